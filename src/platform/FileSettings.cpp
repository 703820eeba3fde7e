#include "platform/FileSettings.h"

#include <QSettings>

namespace platform {

QVariant FileSettings::Value(const QString& key, const QString& name) const {
    return QSettings(path_, QSettings::IniFormat).value(key + u'/' + name);
}

void FileSettings::SetValue(const QString& key, const QString& name, const QVariant& value) {
    QSettings(path_, QSettings::IniFormat).setValue(key + u'/' + name, value);
}

void FileSettings::Remove(const QString& key, const QString& name) {
    QSettings(path_, QSettings::IniFormat).remove(key + u'/' + name);
}

}  // namespace platform
