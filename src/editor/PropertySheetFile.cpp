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
    if (source_.Kind == SheetKind::Shell) {
        return SetButton(-1);
    }
    forNewFile_ = !forNewFile_;
    SetButton(forNewFile_ ? -1 : 0);
    if (forNewFile_) {
        nameBefore_ = PresentName();
    } else {
        TakeNameBack();
    }
    title_.SetEdited(forNewFile_);
}

void PropertySheet::TakeNameBack() {
    if (mduLib::FindPropertyRow(ZoneNameKey, Properties()) != 0) {
        records_.PutQuietly(ZoneNameKey, nameBefore_);
    }
    title_.SetName(zoneName_);
    if (Path().isEmpty()) {
        file_.SetPath(source_.DefaultFile);
    }
}

QString PropertySheet::NameProblem() const {
    const QString name = title_.Name().trimmed();
    if (name.isEmpty()) {
        return u"The time zone has no name"_s;
    }
    if (IsShellName(name)) {
        return u"%1 is the name of the shell's own settings"_s.arg(mduMain::CentralExeName);
    }
    return mduLib::ZoneNameProblem(name == ScreenSaverRun ? u"/"_s : name);
}

bool PropertySheet::NamesAFile() const {
    const QString path = forNewFile_ && NameProblem().isEmpty() ? PropertyFilePath() : QString();
    return mduLib::FileExists(program_.Services.FileSystem, path);
}

std::optional<SheetQuestion> PropertySheet::WriteQuestion() const {
    if (NamesAFile()) {
        return SheetQuestion{
            PropertyFilePath() + u"\r\nexists, do you want to over write this file?"_s,
            u"Property File Exists"_s, MsgBox::RemovalQuestion};
    }
    if (!forNewFile_ && CheckFile() == FileState::Gone) {
        return SheetQuestion{Path() + u"\r\nis gone, do you want to save it anew?"_s,
                             u"Property File Gone"_s};
    }
    return std::nullopt;
}

SheetOutcome PropertySheet::Press(int record, const QString& cell, const ClockProperties& ownerNow,
                                  std::optional<ButtonTag> seen) {
    const ButtonTag held = seen.value_or(Button());  // what the user has seen
    Commit(record, cell);
    if (forNewFile_) {
        return Create();
    }
    SheetOutcome outcome = held == ButtonTag::Launch ? Launch(ownerNow) : Apply(held, ownerNow);
    if (outcome.Problem.isEmpty()) {
        SetPropertyChanged(false);
    }
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
    SetPropertyChanged(false);
    zoneName_ = ZoneOf(Path());
    title_.SetEdited(false);
    title_.SetName(zoneName_);
    SetButton(2);
    Publish();
    return {{}, Path(), {}};  // a clock may have that file open
}

SheetOutcome PropertySheet::Apply(ButtonTag held, const ClockProperties& ownerNow) {
    const QString problem = Write(ownerNow);
    if (!problem.isEmpty()) {
        return {problem, {}, {}};
    }
    if (button_ != ButtonTag::Launch) {
        SetButton(held == ButtonTag::Save ? -1 : 0);
    }
    Publish();
    return {{}, Path(), {}};
}

SheetOutcome PropertySheet::Launch(const ClockProperties& ownerNow) {
    const bool writes = IsDirty() || CheckFile() == FileState::Gone;
    const QString problem = writes ? Write(ownerNow) : QString();
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

// A window that has been moved since would otherwise jump back; one that was closed has left its
// place in the file.
void PropertySheet::TakePlace(const ClockProperties& ownerNow) {
    const bool isThere = ownerNow != ClockProperties();
    const ClockProperties stands = isThere ? ownerNow : file_.Read().value_or(ClockProperties());
    for (const QString& key : PlaceKeys()) {
        const int row = mduLib::FindPropertyRow(key, Properties());
        const int written = mduLib::FindPropertyRow(key, records_.Written());
        const int standing = mduLib::FindPropertyRow(key, stands);
        if (row == 0 || written == 0 || standing == 0) {
            continue;
        }
        const QString cell = PropertyCell(Properties()[row].Value);
        const QString present = PropertyCell(stands[standing].Value);
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
    return {{}, QString(), {}};
}

void PropertySheet::OwnerHasTaken() {
    const std::optional<ClockProperties> onDisk = file_.Read();
    if (onDisk && records_.Follow(*onDisk)) {
        file_.Note();
        SetPropertyChanged(false);
    }
}

void PropertySheet::SetPropertyChanged(bool state) {
    propertyChanged_ = state;
    putOff_ = false;
}

std::optional<SheetQuestion> PropertySheet::ChangeQuestion() const {
    const FileState state = CheckFile();
    const bool isChanged = propertyChanged_ || state == FileState::Changed;
    if (forNewFile_ || !isChanged || state == FileState::Gone) {
        return std::nullopt;
    }
    return SheetQuestion{
        u"Property has been changed, do you want to refresh with the new values?"_s,
        u"Property Changed"_s};
}

std::optional<SheetQuestion> PropertySheet::FocusQuestion() const {
    return putOff_ ? std::nullopt : ChangeQuestion();
}

QString PropertySheet::AnswerChange(SheetAnswer answer) {
    if (answer == SheetAnswer::Neither) {
        putOff_ = true;
        return {};
    }
    SetPropertyChanged(false);
    if (answer == SheetAnswer::Yes) {
        return Reload();
    }
    file_.Note();
    return {};
}

}  // namespace editor
