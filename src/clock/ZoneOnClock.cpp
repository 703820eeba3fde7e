#include "clock/ZoneOnClock.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "platform/WallClock.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneYear.h"

using namespace Qt::StringLiterals;

namespace clockcore {

QString PresentZone(const ClockData& data) {
    return data.TakenZone.isEmpty() ? mduLib::FileBaseName(data.PropertyFileName, false)
                                    : data.TakenZone;
}

QString ZoneOnClock::PathOf(const QString& name) const {
    return program_.Module.Paths.ZoneFileFolder + name + u".ini"_s;
}

std::optional<ClockProperties> ZoneOnClock::ReadZone(const QString& name) const {
    const platform::Files& files = program_.Services.FileSystem;
    ClockProperties set;
    const bool isRead = mduLib::MayRewrite(files, PathOf(name)) &&
                        mduLib::ReadPropertyFile(files, PathOf(name), set);
    return isRead ? std::optional(std::move(set)) : std::nullopt;
}

void ZoneOnClock::TellUnreadable(const QString& name) {
    screen_.ShowStatus(PathOf(name) + u" can't be read as a property file"_s);
}

void ZoneOnClock::TakeZone(const QString& name, Take what) {
    if (std::optional<ClockProperties> set = ReadZone(name)) {
        Put(name, std::move(*set), what);
    } else {
        TellUnreadable(name);
    }
}

void ZoneOnClock::Put(const QString& name, ClockProperties set, Take what) {
    const platform::Services& services = program_.Services;
    const PathTable& paths = program_.Module.Paths;
    if (mduTimeZones::IsOfAnotherYear(set, services.Clock.Now().date())) {
        mduTimeZones::PutZoneKeys(services, paths, set, name);
    }
    if (what == Take::ZoneOnly) {
        const ClockProperties zone = set;
        set = data_.Properties();
        mduTimeZones::CopyZoneKeys(zone, set);
    }
    // Without a path: no file is written, be there a key to be filled in or not.
    data_.Zone = mduTimeZones::LoadZone(services, paths, name, set, {});
    data_.TakenZone = name;
    if (what == Take::WholeSet) {
        program_.Module.CurrentProperties = set;
        look_.RefreshForm({});
    } else {
        data_.EditProperties() = set;
        look_.ApplyFace();
    }
    screen_.ShowStatus(u"%1 shows the time of %2"_s.arg(
        mduLib::FileBaseName(data_.PropertyFileName, false), name));
}

void ZoneOnClock::TakeNextZone(Take what) {
    QStringList names;
    for (const QString& file :
         program_.Services.FileSystem.FileNames(program_.Module.Paths.ZoneFileFolder)) {
        if (file.endsWith(u".ini"_s, Qt::CaseInsensitive)) {
            names += mduLib::FileBaseName(file, false);
        }
    }
    const qsizetype next = names.indexOf(PresentZone(data_)) + 1;
    for (qsizetype step = 0; step < names.size(); ++step) {
        const QString& name = names[(next + step) % names.size()];
        if (std::optional<ClockProperties> set = ReadZone(name)) {
            return Put(name, std::move(*set), what);
        }
    }
    if (!names.isEmpty()) {
        TellUnreadable(names[next % names.size()]);
    }
}

}  // namespace clockcore
