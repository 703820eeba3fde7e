#include "editor/PropertySheet.h"

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/Files.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

/// Nothing where it can't be read.
std::optional<ClockProperties> ReadDefaults(const platform::Files& files, const QString& path) {
    ClockProperties defaults;
    return mduLib::ReadPropertyFile(files, path, defaults) ? std::optional(defaults) : std::nullopt;
}

}  // namespace

PropertySheet::PropertySheet(const Program& program, const Source& source)
    : program_(program),
      source_(source),
      zoneName_(source.ZoneName),
      file_(program.Services.FileSystem, source.Kind == SheetKind::NewClock
                                             ? QString()
                                             : program.Module.Paths.CurrentPropertyFile),
      records_(program.Module.CurrentProperties),
      notes_(program.Services.FileSystem, KeyNotesPath(program.Module.Paths.AppFolder),
             source.Kind == SheetKind::Shell ? u"TempolarkCentral"_s : u"Tempolark"_s),
      defaults_(ReadDefaults(program.Services.FileSystem, source.DefaultFile)
                    .value_or(ClockProperties())),
      title_(source.ZoneName),
      forNewFile_(source.Kind == SheetKind::NewClock) {
    title_.SetEdited(forNewFile_);
    nameBefore_ = PresentName();
    if (source.Kind == SheetKind::Shell) {
        SetButton(-1);
    }
}

QString PropertySheet::PresentName() const {
    return Cell(mduLib::FindPropertyRow(ZoneNameKey, Properties()));
}

QString PropertySheet::Key(int record) const {
    return HasRecord(Properties(), record) ? Properties()[record].Name : QString();
}

QString PropertySheet::Cell(int record) const {
    return HasRecord(Properties(), record) ? PropertyCell(Properties()[record].Value) : QString();
}

QStringList PropertySheet::Choices(int record) const {
    return HasRecord(Properties(), record) ? ValueChoices(Properties()[record].Value)
                                           : QStringList();
}

bool PropertySheet::IsPicked(int record) const {
    return HasRecord(Properties(), record) && editor::IsPicked(Properties()[record].Value);
}

RowInfo PropertySheet::Info(int record) const {
    return HasRecord(Properties(), record) ? RowInfoOf(Properties()[record], notes_) : RowInfo();
}

bool PropertySheet::DiffersFromDefault(int record) const {
    return HasRecord(Properties(), record) && defaults_.Differs(Properties()[record]);
}

std::optional<mduUILib::FilePicker> PropertySheet::PickerOf(int record) const {
    const QString key = Key(record);
    return mduUILib::IsFileKey(key) ? mduUILib::FilePickerOf(key, program_.Module.Paths)
                                    : std::nullopt;
}

void PropertySheet::BackToDefault(int record) {
    if (HasRecord(Properties(), record) && defaults_.Gives(Properties()[record])) {
        const QString value = defaults_.ValueOf(Properties()[record]);
        records_.PutValue(record, value, Key(record).trimmed() + u" Back to Default"_s);
    }
}

QString PropertySheet::Reload() {
    const std::optional<ClockProperties> onDisk = file_.Read();
    if (!onDisk) {
        return file_.State() == FileState::Gone ? u"%1 is not there any more"_s.arg(Path())
                                                : UnreadableText(Path());
    }
    records_.Replace(*onDisk, u"Reload Properties"_s);
    records_.MarkWritten();
    file_.Note();
    SetPropertyChanged(false);
    ResetOrder();
    return {};
}

QString PropertySheet::RefreshFromDefault() {
    const auto defaults = ReadDefaults(program_.Services.FileSystem, source_.DefaultFile);
    if (!defaults) {
        return u"%1 can't be read"_s.arg(source_.DefaultFile);
    }
    defaults_ = PropertyDefaults(*defaults);
    records_.Replace(defaults_.MergedOver(Properties()), u"Refresh By Default"_s);
    ResetOrder();
    return {};
}

bool PropertySheet::CanRefreshTimeZone() const {
    const PathTable& paths = program_.Module.Paths;
    if (zoneName_.trimmed().isEmpty() || source_.Kind == SheetKind::Shell) {
        return false;
    }
    TimeZoneRecord nothing;
    nothing.StandardName = zoneName_;
    const QString file = mduLib::AddIniExtension(mduLib::ZoneFileStem(zoneName_));
    return mduLib::FileExists(program_.Services.FileSystem, paths.ZoneFileFolder + file) ||
           mduTimeZones::FindTimeZone(program_.Services, paths, zoneName_) != nothing;
}

QString PropertySheet::RefreshTimeZoneDefaults(IClock* owner) {
    const bool ownerWrites = owner != nullptr && owner->IniFile() == Path();
    const FileState state = file_.State();
    if (ownerWrites && state == FileState::Unreadable) {
        return UnreadableText(Path());
    }
    ClockProperties renewed = Properties();
    if (ownerWrites) {
        owner->RefreshDefaultTimeZoneDetails(zoneName_);
        mduTimeZones::CopyZoneKeys(program_.Module.CurrentProperties, renewed);
    } else {
        mduTimeZones::PutZoneKeys(program_.Services, program_.Module.Paths, renewed, zoneName_);
    }
    records_.Replace(renewed, u"Refresh Time Zone By Default"_s);
    if (ownerWrites && state != FileState::Changed) {
        OwnerHasTaken();
    }
    Publish();
    ResetOrder();
    return {};
}

}  // namespace editor
