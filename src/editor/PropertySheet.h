#pragma once

#include <optional>

#include "editor/EditedFile.h"
#include "editor/KeyNotes.h"
#include "editor/PropertyButton.h"
#include "editor/PropertyDefaults.h"
#include "editor/PropertyRecords.h"
#include "editor/PropertyView.h"
#include "editor/ZoneTitle.h"
#include "foundation/FilePickers.h"
#include "foundation/Program.h"
#include "foundation/RemovalQuestion.h"

namespace editor {

/// The key that takes a new zone's name.
inline const QString ZoneNameKey = QStringLiteral("Time Zone Standard Name");

/// What a window of properties is opened for.
enum class SheetKind {
    Clock,
    NewClock,  ///< the default file, on behalf of a zone whose name is typed into the title
    Shell
};

/// A question with Yes and No.
struct SheetQuestion {
    QString Text;
    QString Title;
    int Flags = MsgBox::YesNoQuestion;
    bool operator==(const SheetQuestion&) const = default;
};

/// What a question was answered with.
enum class SheetAnswer {
    Yes,
    No,
    Neither  ///< its box was dismissed: nothing is to be done, and the window stays
};

/// What the window has to do behind a press of its button, or behind its last save.
struct SheetOutcome {
    QString Problem;  ///< to be told; nothing has been written then. Empty when all is done
    std::optional<QString> RefreshOwner;  ///< call `RefreshForm` of the file's owner with this
    QString Launch;                       ///< launch the clock of this zone and unload
    bool operator==(const SheetOutcome&) const = default;
};

/// A window of properties without its window: one file, its records, what is shown of them, and
/// what its buttons, its menu and its title do.
///
/// It is opened on the exchange slot (`ModuleState::CurrentProperties`) and its file, of which it
/// keeps copies: another clock that becomes current changes neither. It publishes its records there
/// where the owner is to take them.
///
///     PropertySheet sheet(program, {SheetKind::Clock, u"London"_s, owner.DefaultIniFile()});
///     for (int record : sheet.Shown()) { ... sheet.Key(record), sheet.Cell(record) ... }
///     sheet.Commit(record, u"Red"_s);             // the row was left
///     if (const auto question = sheet.ChangeQuestion()) { ... sheet.AnswerChange(yes) ... }
///     const SheetOutcome outcome = sheet.Press(record, cell, ownerNow);
class PropertySheet {
public:
    struct Source {
        SheetKind Kind = SheetKind::Clock;
        QString ZoneName;  ///< of the clock, "TempolarkCentral" for the shell; empty for a new one
        QString DefaultFile;  ///< the full path of the owner's default file
    };
    PropertySheet(const Program& program, const Source& source);

    // --- the records -------------------------------------------------------------------------
    PropertyRecords& Records() { return records_; }  ///< commands, undo, `Watch`, `BeginVisit`
    const ClockProperties& Properties() const { return records_.Now(); }
    QString Key(int record) const;   ///< empty where there is no such record, as are the next two
    QString Cell(int record) const;  ///< what the column "Value" shows
    QStringList Choices(int record) const;
    bool IsPicked(int record) const;  ///< by a list of choices, else it is typed
    RowInfo Info(int record) const;
    bool DiffersFromDefault(int record) const;

    /// Takes a cell's text into its record.
    RowCommit Commit(int record, const QString& cell) { return records_.Commit(record, cell); }
    /// Gives a record the default's value and choices, where it has any
    /// (`PropertyDefaults::Gives`).
    void BackToDefault(int record);

    // --- what is shown -----------------------------------------------------------------------
    PropertyView& View() { return view_; }
    const PropertyView& View() const { return view_; }
    std::vector<int> Shown() const { return view_.Records(records_.Now(), notes_); }

    // --- state -------------------------------------------------------------------------------
    /// Of the file that is open, also while another is named; empty in a window for a new one.
    const QString& Path() const { return file_.Path(); }
    const QString& ZoneName() const { return zoneName_; }
    bool IsForNewFile() const { return forNewFile_; }  ///< the grid can't be edited then
    bool IsDirty() const { return records_.IsDirty(); }
    /// What a press does now: "Apply" while there is something to write.
    ButtonTag Button() const { return !forNewFile_ && IsDirty() ? ButtonTag::Apply : button_; }
    const QString& Caption() const { return title_.Caption(); }
    /// Where a press of the button writes; in the new-file flow a file there whose name differs in
    /// letter case alone is meant. Empty while the name can't be a file's.
    QString PropertyFilePath() const;
    /// Whether this is the sheet of a file.
    bool Edits(const QString& path) const { return !path.isEmpty() && Path() == path; }

    // --- the name of a new zone ----------------------------------------------------------------
    /// A key of the title, see `drawing::EditTitleKey`. @return true for the Enter that
    /// ends a name: the button is to be pressed.
    bool TitleKey(int keyCode);
    /// Turns the flow of a new file over, or back to the file that was open: the default file in a
    /// window that was opened for a new one. The shell's window has no such flow.
    void FlipNewFile();
    /// Why the name typed can't be a new zone's; empty when it can.
    QString NameProblem() const;
    /// Whether the name typed is that of a file.
    bool NamesAFile() const;

    // --- the buttons ---------------------------------------------------------------------------
    /// Asked before `Press` and `SaveAtClose`, behind `ChangeQuestion`: in the new-file flow before
    /// a file is written over, else before one that is gone is made anew. But for Yes nothing is to
    /// be written.
    std::optional<SheetQuestion> WriteQuestion() const;
    /// The button: commits the cell of @p record (0 for none), then goes by its state.
    /// @param ownerNow the owner's properties as they stand (`IClock::SetProperty`): what the user
    /// has not edited of the window's place is taken from there, or from the file for an empty
    /// array
    /// @param seen what the button has told before an edit ended with this press
    SheetOutcome Press(int record, const QString& cell, const ClockProperties& ownerNow,
                       std::optional<ButtonTag> seen = std::nullopt);
    /// Asked before the window closes; nothing when there is nothing to save.
    std::optional<SheetQuestion> CloseQuestion() const;
    /// The answer Yes. With a `Problem` the window had better stay.
    SheetOutcome SaveAtClose(int record, const QString& cell, const ClockProperties& ownerNow);
    /// To be called when the owner has taken what was written: what it wrote itself meanwhile, such
    /// as keys of its zone, is no change that is asked about.
    void OwnerHasTaken();

    // --- changes by others -----------------------------------------------------------------------
    void SetPropertyChanged(bool state);
    FileState CheckFile() const { return file_.State(); }
    /// Asked before `Press` and `SaveAtClose`, where a clock or another program has written the
    /// file; the values are written behind the answer No alone.
    std::optional<SheetQuestion> ChangeQuestion() const;
    /// The same for the moment when the grid gets the focus: not once more what was dismissed.
    std::optional<SheetQuestion> FocusQuestion() const;
    /// Yes reads the file (`Reload`), in one step that can be undone; No goes on with what is here,
    /// and is not asked again for that content. @return a problem to be told, or empty
    QString AnswerChange(SheetAnswer answer);

    // --- the menu
    // ----------------------------------------------------------------------------------
    /// The file as it is on disk, in one command; the order is "2,0" again, as behind the next two.
    /// @return why it can't be read, or empty
    QString Reload();
    /// The defaults in the place of the values. @return why there are none, or empty
    QString RefreshFromDefault();
    bool CanRefreshTimeZone() const;
    /// Brings the present rules of the zone into the keys of the time zone, and publishes the
    /// records. `ChangeQuestion` and, with an owner, `WriteQuestion` come first.
    /// @param owner rewrites those keys in its file first; may be null
    /// @return why nothing was done, or empty
    QString RefreshTimeZoneDefaults(IClock* owner);

    // --- files that values name
    // ---------------------------------------------------------------------
    std::optional<mduUILib::FilePicker> PickerOf(int record) const;

private:
    QString PresentName() const;
    void TakeNameBack();
    SheetOutcome Create();
    SheetOutcome Apply(ButtonTag held, const ClockProperties& ownerNow);
    SheetOutcome Launch(const ClockProperties& ownerNow);
    QString Write(const ClockProperties& ownerNow);
    void TakePlace(const ClockProperties& ownerNow);
    void Publish();
    void SetButton(int code) { button_ = ButtonState(code, forNewFile_, button_); }
    void ResetOrder() { view_.Sort(2, 0); }

    Program program_;
    Source source_;
    QString zoneName_;
    EditedFile file_;
    PropertyRecords records_;
    KeyNotes notes_;
    PropertyDefaults defaults_;
    PropertyView view_;
    ZoneTitle title_;
    QString nameBefore_;                   ///< the zone's name in the records before one was typed
    ButtonTag button_ = ButtonTag::Apply;  ///< while nothing waits to be written
    bool forNewFile_;
    bool propertyChanged_ = false;
    bool putOff_ = false;  ///< the question about a change was dismissed
};

}  // namespace editor
