#include "platform/FileSettings.h"

#include <QSettings>

namespace platform {

QVariant FileSettings::Value(const QString& key, const QString& name) const {
    return QSettings(path_, QSettings::IniFormat).value(key + u'/' + name);
}

bool FileSettings::SetValue(const QString& key, const QString& name, const QVariant& value) {
    QSettings file(path_, QSettings::IniFormat);
    file.setValue(key + u'/' + name, value);
    file.sync();
    return file.status() == QSettings::NoError;
}

void FileSettings::Remove(const QString& key, const QString& name) {
    QSettings(path_, QSettings::IniFormat).remove(key + u'/' + name);
}

}  // namespace platform
