#include "clock/ClockFiles.h"

#include "foundation/FileHelpers.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "platform/Files.h"
#include "platform/WallClock.h"
#include "timezones/ExactKeys.h"
#include "timezones/ExactOffset.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneYear.h"

using namespace Qt::StringLiterals;

namespace clockcore {

std::array<std::pair<QString, QString>, 4> PlaceValues(const QRectF& twips) {
    const auto text = [](double value) { return mduAPILib::SingleText(static_cast<float>(value)); };
    return {{{u"Window Top"_s, text(twips.top())},
             {u"Window Left"_s, text(twips.left())},
             {u"Window Height"_s, text(twips.height())},
             {u"Window Width"_s, text(twips.width())}}};
}

bool ClockFiles::NameCurrentFile(const QString& zoneName) {
    const QString problem = zoneName.trimmed().isEmpty() ? u"The time zone has no name"_s
                                                         : mduLib::ZoneNameProblem(zoneName);
    if (!problem.isEmpty()) {
        report_(problem);
        return false;
    }
    PathTable& paths = program_.Module.Paths;
    paths.CurrentPropertyFile =
        paths.ZoneFileFolder + mduLib::AddIniExtension(mduLib::ZoneFileStem(zoneName));
    return true;
}

bool ClockFiles::LoadForShell(const QString& zoneName) {
    if (!NameCurrentFile(zoneName)) {
        return false;
    }
    PathTable& paths = program_.Module.Paths;
    paths.TimerFile = paths.TimersFolder + mduLib::ZoneFileStem(zoneName) + u"Timer.txt"_s;
    const bool merged = RefreshFile();
    LoadCurrent();
    if (!merged || HasOldZone()) {
        RefreshDefaultTimeZoneDetails(mduLib::StripIniExtension(zoneName));
    }
    program_.Module.CurrentProperties = data_.Properties();
    return true;
}

bool ClockFiles::RefreshFile() {
    QString& current = program_.Module.Paths.CurrentPropertyFile;
    const QString file = current;
    const bool merged = mduMain::RefreshCurrentPropertyFile(program_.Module, program_.Services);
    // The merge lets other windows run, which may have become current meanwhile.
    current = file;
    return merged;
}

void ClockFiles::LoadCurrent() {
    data_.PropertyFileName = program_.Module.Paths.CurrentPropertyFile;
    data_.TimerFile = program_.Module.Paths.TimerFile;
    ReadProperties();
}

void ClockFiles::ReadProperties() {
    const platform::Files& files = program_.Services.FileSystem;
    ClockProperties& properties = data_.EditProperties();
    properties.Reset();
    mduLib::ReadPropertyFile(files, data_.PropertyFileName, properties);
    mayWrite_ = mduLib::MayRewrite(files, data_.PropertyFileName);
    if (!mayWrite_) {
        report_(u"%1 can't be read as a property file; it is left as it is"_s.arg(
            data_.PropertyFileName));
    }
}

void ClockFiles::FillZone(const QString& zoneName) {
    const QString name = mduLib::StripIniExtension(zoneName);
    if (HasOldZone()) {
        RenewZone(name);
        SaveZone();
    }
    if (mayWrite_) {
        bool written = true;
        data_.Zone =
            mduTimeZones::LoadZone(program_.Services, program_.Module.Paths, name,
                                   data_.EditProperties(), data_.PropertyFileName, &written);
        ReportUnless(written);
        return;
    }
    ClockProperties copy = data_.Properties();
    data_.Zone = mduTimeZones::LoadZone(program_.Services, program_.Module.Paths, name, copy, {});
}

void ClockFiles::RefreshZone() {
    const platform::Services& services = program_.Services;
    const bool isOld = HasOldZone();
    if (isOld) {
        RenewZone(mduLib::FileBaseName(data_.PropertyFileName, false));
    }
    ClockProperties copy = data_.Properties();
    ClockProperties& properties = mayWrite_ ? data_.EditProperties() : copy;
    const QString source = data_.Zone.KeyName;
    const QStringList filledIn =
        mduTimeZones::OverlayZoneKeys(data_.Zone, properties, services.Clock.Now());
    const bool changed = mduTimeZones::OverlayExactKeys(services, source, data_.Zone, properties);
    if (isOld || changed || !filledIn.isEmpty()) {
        SaveZone();
    }
    mduTimeZones::ApplyPresentOffset(services, data_.Zone);
}

// A file that has just been merged, or that a clock has held open over the turn of the year.
bool ClockFiles::HasOldZone() const {
    return mduTimeZones::IsOfAnotherYear(data_.Properties(), program_.Services.Clock.Now().date());
}

void ClockFiles::RenewZone(const QString& zoneName) {
    const platform::Files& files = program_.Services.FileSystem;
    const QString& path = data_.PropertyFileName;
    if (!mayWrite_ || !mduLib::MayRewrite(files, path)) {
        return;
    }
    ClockProperties renewed;
    if (!mduLib::ReadPropertyFile(files, path, renewed)) {
        renewed = data_.Properties();  // the file has gone
    }
    mduTimeZones::PutZoneKeys(program_.Services, program_.Module.Paths, renewed, zoneName);
    mduTimeZones::CopyZoneKeys(renewed, data_.EditProperties());
}

// What else has been changed waits for its own save.
void ClockFiles::SaveZone() {
    platform::Files& files = program_.Services.FileSystem;
    const QString& path = data_.PropertyFileName;
    if (!mayWrite_ || !mduLib::MayRewrite(files, path)) {
        return;
    }
    ClockProperties stored;
    const bool isThere = mduLib::ReadPropertyFile(files, path, stored);
    ClockProperties renewed = isThere ? stored : data_.Properties();
    mduTimeZones::CopyZoneKeys(data_.Properties(), renewed);
    if (renewed != stored) {
        ReportUnless(mduLib::WritePropertyFile(files, renewed, path));
    }
}

void ClockFiles::RefreshDefaultTimeZoneDetails(const QString& zoneName) {
    RenewZone(zoneName);
    SaveZone();
    program_.Module.CurrentProperties = data_.Properties();
}

bool ClockFiles::SavePosition(const QRectF& twips) {
    ReadProperties();
    if (!mayWrite_) {
        return false;
    }
    bool written = true;
    for (const auto& [name, value] : PlaceValues(twips)) {
        written = mduLib::SavePropertyNow(program_.Services.FileSystem, name, value,
                                          data_.EditProperties(), data_.PropertyFileName) &&
                  written;
    }
    return Told(written);
}

bool ClockFiles::SaveKeys(const QStringList& names) {
    platform::Files& files = program_.Services.FileSystem;
    const QString& path = data_.PropertyFileName;
    if (!mayWrite_ || !mduLib::MayRewrite(files, path)) {
        report_(path + u" can't be read as a property file; it is left as it is"_s);
        return false;
    }
    ClockProperties stored;
    if (!mduLib::ReadPropertyFile(files, path, stored)) {
        stored = data_.Properties();  // the file has gone
    }
    for (const QString& name : names) {
        mduLib::PutPropertyRaw(name, mduLib::GetPropertyRaw(name, data_.Properties()), stored);
    }
    const bool written = mduLib::WritePropertyFile(files, stored, path);
    return Told(written);
}

bool ClockFiles::Told(bool written) const {
    ReportUnless(written);
    if (written) {
        TellPropertyWindows();
    }
    return written;
}

void ClockFiles::TellPropertyWindows() const {
    ::TellPropertyWindows(program_.Windows, data_.PropertyFileName);
}

void ClockFiles::ReportUnless(bool written) const {
    if (!written) {
        report_(u"%1 can't be written"_s.arg(data_.PropertyFileName));
    }
}

void ClockFiles::MakeCurrent() {
    program_.Module.Paths.CurrentPropertyFile = data_.PropertyFileName;
    program_.Module.CurrentProperties = data_.Properties();
}

}  // namespace clockcore
