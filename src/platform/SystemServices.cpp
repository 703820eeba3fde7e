#include "platform/SystemServices.h"

#include <pwd.h>
#include <unistd.h>

#include <QSettings>

namespace platform {

QString UnixAccount::UserName() const {
    const passwd* entry = getpwuid(getuid());
    return entry != nullptr ? QString::fromLocal8Bit(entry->pw_name).trimmed() : QString();
}

QVariant FileSettings::Value(const QString& key, const QString& name) const {
    return QSettings(path_, QSettings::IniFormat).value(key + u'/' + name);
}

void FileSettings::SetValue(const QString& key, const QString& name, const QVariant& value) {
    QSettings(path_, QSettings::IniFormat).setValue(key + u'/' + name, value);
}

void FileSettings::Remove(const QString& key, const QString& name) {
    QSettings(path_, QSettings::IniFormat).remove(key + u'/' + name);
}

SystemRandom::SystemRandom(std::optional<quint32> seed)
    : seed_(seed), generator_(seed.value_or(0)) {
    if (!seed) {
        generator_ = QRandomGenerator::securelySeeded();
    }
}

// A chosen seed goes on as one sequence: seeding anew would make every colour of a run the same.
void SystemRandom::Seed() {
    if (!seed_) {
        generator_ = QRandomGenerator::securelySeeded();
    }
}

}  // namespace platform
