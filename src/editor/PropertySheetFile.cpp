#include "editor/PropertySheet.h"
#include "foundation/FileHelpers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "platform/Files.h"

using namespace Qt::StringLiterals;

/// The sheet's file: the name of a new one, its writing, and what others do to it.
namespace editor {

namespace {

constexpr QStringView ScreenSaverRun = u"/s";  ///< no zone, though its file can be named

/// The file of that name, letter case aside, where there is none of exactly that name.
QString NameOnDisk(const platform::Files& files, const QString& folder, const QString& name) {
    const QStringList names = files.FileNames(folder);
    for (const QString& present : names) {
        if (!names.contains(name) && present.compare(name, Qt::CaseInsensitive) == 0) {
            return present;
        }
    }
    return name;
}

/// The name by which the launcher finds the file again.
QString ZoneOf(const QString& path) {
    return mduLib::StripIniExtension(mduLib::FileBaseName(path, true));
}

bool IsShellName(const QString& name) {
    return name.compare(mduMain::CentralExeName, Qt::CaseInsensitive) == 0;
}

}  // namespace

QString PropertySheet::PropertyFilePath() const {
    if (!forNewFile_) {
        return Path();
    }
    const PathTable& paths = program_.Module.Paths;
    const QString name = title_.Name().trimmed();
    if (IsShellName(name)) {
        return paths.CentralFile;
    }
    if (!NameProblem().isEmpty()) {
        return {};
    }
    const QString file = mduLib::AddIniExtension(name);
    return paths.ZoneFileFolder +
           NameOnDisk(program_.Services.FileSystem, paths.ZoneFileFolder, file);
}

bool PropertySheet::TitleKey(int keyCode) {
    const bool ended = title_.Key(keyCode);
    if (forNewFile_) {
        records_.PutQuietly(ZoneNameKey, title_.Name());
    }
    return ended;
}

void PropertySheet::FlipNewFile() {
    forNewFile_ = !forNewFile_;
    SetButton(forNewFile_ ? -1 : 0);
    if (forNewFile_) {
        nameBefore_ = PresentName();
    } else {
        records_.PutQuietly(ZoneNameKey, nameBefore_);
        title_.SetName(zoneName_);
    }
    title_.SetEdited(forNewFile_);
}

QString PropertySheet::NameProblem() const {
    const QString name = title_.Name().trimmed();
    if (name.isEmpty()) {
        return u"The time zone has no name"_s;
    }
    if (IsShellName(name) && source_.Kind != SheetKind::Shell) {
        return u"%1 is the name of the shell's own settings"_s.arg(mduMain::CentralExeName);
    }
    return mduLib::ZoneNameProblem(name == ScreenSaverRun ? u"/"_s : name);
}

std::optional<SheetQuestion> PropertySheet::OverwriteQuestion() const {
    const QString path = forNewFile_ && NameProblem().isEmpty() ? PropertyFilePath() : QString();
    if (!mduLib::FileExists(program_.Services.FileSystem, path)) {
        return std::nullopt;
    }
    return SheetQuestion{path + u"\r\nexists, do you want to over write this file?"_s,
                         u"Property File Exists"_s};
}

SheetOutcome PropertySheet::Press(int record, const QString& cell, const ClockProperties& ownerNow,
                                  std::optional<ButtonTag> seen) {
    const ButtonTag held = seen.value_or(Button());  // what the user has seen
    Commit(record, cell);
    if (forNewFile_) {
        return Create();
    }
    SheetOutcome outcome = held == ButtonTag::Launch ? Launch(ownerNow) : Apply(held, ownerNow);
    propertyChanged_ = propertyChanged_ && !outcome.Problem.isEmpty();
    return outcome;
}

SheetOutcome PropertySheet::Create() {
    const QString problem = NameProblem();
    if (!problem.isEmpty()) {
        return {problem, {}, {}};
    }
    EditedFile created(program_.Services.FileSystem, PropertyFilePath());
    const QString failure = created.Write(Properties());
    if (!failure.isEmpty()) {
        return {failure, {}, {}};
    }
    file_.SetPath(created.Path());
    records_.MarkWritten();
    forNewFile_ = false;
    isShownByOwner_ = false;
    propertyChanged_ = false;
    zoneName_ = ZoneOf(Path());
    title_.SetEdited(false);
    title_.SetName(zoneName_);
    SetButton(2);
    Publish();
    return {};
}

SheetOutcome PropertySheet::Apply(ButtonTag held, const ClockProperties& ownerNow) {
    const QString problem = Write(ownerNow);
    if (!problem.isEmpty()) {
        return {problem, {}, {}};
    }
    if (!isShownByOwner_) {
        SetButton(2);
        return {};
    }
    SetButton(held == ButtonTag::Save ? -1 : 0);
    Publish();
    return {{}, Path(), {}};
}

SheetOutcome PropertySheet::Launch(const ClockProperties& ownerNow) {
    const QString problem = IsDirty() ? Write(ownerNow) : QString();
    if (!problem.isEmpty()) {
        return {problem, {}, {}};
    }
    Publish();
    return {{}, {}, ZoneOf(Path())};
}

QString PropertySheet::Write(const ClockProperties& ownerNow) {
    TakePlace(ownerNow);
    QString problem = file_.Write(Properties());
    if (problem.isEmpty()) {
        records_.MarkWritten();
    }
    return problem;
}

// A window that has been moved since would otherwise jump back.
void PropertySheet::TakePlace(const ClockProperties& ownerNow) {
    if (!isShownByOwner_) {
        return;
    }
    for (const QString& key : PlaceKeys()) {
        const int row = mduLib::FindPropertyRow(key, Properties());
        const int written = mduLib::FindPropertyRow(key, records_.Written());
        const int owner = mduLib::FindPropertyRow(key, ownerNow);
        if (row == 0 || written == 0 || owner == 0) {
            continue;
        }
        const QString cell = PropertyCell(Properties()[row].Value);
        const QString present = PropertyCell(ownerNow[owner].Value);
        if (cell == PropertyCell(records_.Written()[written].Value) && cell != present) {
            records_.PutQuietly(key, present);
        }
    }
}

void PropertySheet::Publish() {
    program_.Module.CurrentProperties = Properties();
    program_.Module.Paths.CurrentPropertyFile = Path();
}

std::optional<SheetQuestion> PropertySheet::CloseQuestion() const {
    if (!IsDirty()) {
        return std::nullopt;
    }
    const QString name = forNewFile_ ? title_.Name().trimmed() : zoneName_;
    return SheetQuestion{u"Do you want to save the "_s + name + u'?', u"Save Property"_s};
}

SheetOutcome PropertySheet::SaveAtClose(int record, const QString& cell,
                                        const ClockProperties& ownerNow) {
    Commit(record, cell);
    if (forNewFile_) {
        return Create();
    }
    const QString problem = Write(ownerNow);
    if (!problem.isEmpty()) {
        return {problem, {}, {}};
    }
    Publish();
    return {{}, isShownByOwner_ ? std::optional(QString()) : std::nullopt, {}};
}

void PropertySheet::OwnerHasTaken() {
    const std::optional<ClockProperties> onDisk = file_.Read();
    if (onDisk && records_.Follow(*onDisk)) {
        file_.Note();
        propertyChanged_ = false;
    }
}

std::optional<SheetQuestion> PropertySheet::ChangeQuestion() const {
    if (forNewFile_ || (!propertyChanged_ && CheckFile() != FileState::Changed)) {
        return std::nullopt;
    }
    return SheetQuestion{
        u"Property has been changed, do you want to refresh with the new values?"_s,
        u"Property Changed"_s};
}

QString PropertySheet::AnswerChange(bool yes) {
    propertyChanged_ = false;
    if (yes) {
        return Reload();
    }
    file_.Note();
    return {};
}

}  // namespace editor
