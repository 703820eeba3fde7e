#include "clock/ZoneOnClock.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "platform/WallClock.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneYear.h"

using namespace Qt::StringLiterals;

namespace clockcore {

QString ZoneOnClock::PresentZone() const {
    return data_.TakenZone.isEmpty() ? mduLib::FileBaseName(data_.PropertyFileName, false)
                                     : data_.TakenZone;
}

void ZoneOnClock::TakeZone(const QString& name, Take what) {
    const platform::Services& services = program_.Services;
    const PathTable& paths = program_.Module.Paths;
    const QString path = paths.ZoneFileFolder + name + u".ini"_s;
    ClockProperties set;
    if (!mduLib::MayRewrite(services.FileSystem, path) ||
        !mduLib::ReadPropertyFile(services.FileSystem, path, set)) {
        screen_.ShowStatus(path + u" can't be read as a property file"_s);
        return;
    }
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
    if (!names.isEmpty()) {
        TakeZone(names[(names.indexOf(PresentZone()) + 1) % names.size()], what);
    }
}

}  // namespace clockcore
