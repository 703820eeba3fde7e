#pragma once

#include <QFile>
#include <QLibraryInfo>

/// Whether the toolkit's plugin for the speech engine flite is installed.
inline bool HasFlite() {
    return QFile::exists(QLibraryInfo::path(QLibraryInfo::PluginsPath) +
                         QStringLiteral("/texttospeech/libqtexttospeech_flite.so"));
}
