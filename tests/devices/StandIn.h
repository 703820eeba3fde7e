#pragma once

#include <QFile>
#include <QTemporaryDir>

/// A shell script that stands in for a program. It runs in a folder of its own, which goes with it.
class StandIn {
public:
    explicit StandIn(const QByteArray& script) {
        QFile file(Path());
        const QByteArray text = "#!/bin/sh\ncd \"$(dirname \"$0\")\" || exit 1\n" + script;
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qFatal("can't write %s", qPrintable(Path()));
        }
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString Path() const { return folder_.filePath(QStringLiteral("program")); }

    /// What stands in a file that the script writes; empty while there is none.
    QString Told(const QString& name) const {
        QFile file(folder_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    QTemporaryDir folder_;
};
