#pragma once

#include <QUndoStack>
#include <functional>
#include <optional>

#include "foundation/Program.h"
#include "shell/ShortcutRows.h"

namespace shell {

/// What the shortcut window edits: the keys of the commands of a clock, in its grid and in
/// `ModuleState::ShortcutList`, which all clocks go by, and in their file.
///
/// A key that is pressed stands in the grid first. When its row is committed it goes to the list,
/// so that the clocks listen to it; `Save` brings the list into the file. Everything can be undone
/// step by step, also behind a save.
///
///     ShortcutSheet sheet(program, grid, hooks);
///     sheet.Open(paths.ShortcutsFile, "Clock Shortcuts");
///     sheet.PressKey(4, 'J', KeyShift::Ctrl);  // row 4 shows "Ctrl+J"
///     sheet.Save(4);                           // the list has it, and the file
class ShortcutSheet {
public:
    struct Hooks {
        /// A message box; see `platform::Dialogs::MessageBox`.
        std::function<int(const QString& text, int flags, const QString& title)> Ask;
        std::function<void(const QString&)> Tell;  ///< of what failed and what was saved
    };

    /// @param grid what the window shows; it outlives this, as does the program
    ShortcutSheet(const Program& program, editor::EditGridData& grid, Hooks hooks);

    /// Fills the grid from the list as it stands. @param file its full path
    /// @param title how questions name what is edited
    void Open(const QString& file, const QString& title);

    /// A key goes down on a row. Presses on the same row are one step until it is committed.
    /// @return false for a code that is no key of the list, or a row without a command
    bool PressKey(int row, int code, int shift);
    /// Brings a row into the list; an empty cell gets the record's value back.
    void CommitShortcutRow(int row);

    /// Commits the row and writes the list. A file that another program has changed meanwhile is
    /// only written after a question. A failure is told, and the sheet stays dirty.
    /// @return whether the file holds the list now
    bool Save(int row);
    /// Takes the list from the file again, from the stock file by `RefreshByDefault`; that one is
    /// not saved by it. One that can't be read leaves the list as it is, which is told.
    void ReloadShortcuts();
    void RefreshByDefault();

    /// Asks whether to save, where there is something. "No" brings the list back to what the file
    /// holds. @param row the current one @return false when it was to be saved and could not be, or
    /// when the question was dismissed
    bool MayClose(int row);

    /// Whether something differs from what was last read or written.
    bool Dirty() const { return !steps_.isClean(); }
    /// The steps, to undo and redo them; each brings the grid and the list in line,
    /// and makes the row that it changes the current one.
    QUndoStack& Steps() { return steps_; }
    const QUndoStack& Steps() const { return steps_; }

    /// The command of a row; empty for a row without one.
    QString Command(int row) const;
    /// What a row is about: what its command does, how its key stands, and which command has the
    /// key that was last refused there.
    QString RowInfo(int row) const;

private:
    class BindKey;
    class ReplaceList;

    ClockProperties& List() const { return program_.Module.ShortcutList; }
    bool HasCommand(int row) const { return !Command(row).isEmpty(); }
    QString ShownValue(int row) const;
    /// The value of a row's record as the list holds it, with all its choices.
    QString RawValue(int row) const;
    void PutRawValue(int row, const QString& value);
    void ShowList(const ClockProperties& list);
    /// The list of a file; nothing, and that is told, when it can't be read.
    std::optional<ClockProperties> Read(const QString& file) const;
    /// @return whether the list is that of the file now
    bool Replace(const QString& what, const QString& file);
    /// Whether another program has written something else into the file.
    bool IsChangedOutside() const;
    bool Write();

    Program program_;
    editor::EditGridData& grid_;
    Hooks hooks_;
    QUndoStack steps_;
    QString file_;
    QString title_;
    ClockProperties stored_;  ///< what the file held when it was last read or written
    int openRow_ = 0;         ///< the row with a key that is not in the list yet; 0 for none
    QString refusedKey_;      ///< the text of the key that was pressed last and is "Used"
};

}  // namespace shell
