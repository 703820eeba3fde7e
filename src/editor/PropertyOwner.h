#pragma once

#include <functional>

#include "editor/PropertySheet.h"
#include "foundation/Program.h"

namespace editor {

/// Whom a window of properties works for: a clock, or the shell. A clock is looked up by its file
/// at each use, since it may be closed, and opened again, while its properties are open; in between
/// there is nobody to tell.
class PropertyOwner {
public:
    /// @param shell may be null: boxes are then shown without it, and nothing else is told
    /// @param handle of the clock; 0 for the shell
    /// @param file tells the full path of the file that the window edits now; may be empty
    PropertyOwner(const Program& program, IShell* shell, int handle, std::function<QString()> file)
        : program_(program), shell_(shell), handle_(handle), file_(std::move(file)) {}

    bool IsShell() const { return handle_ == 0; }
    /// The clock that shows the window's file, whichever opened the window. Null for the shell's
    /// file, and while that clock is closed.
    IClock* Clock() const { return ClockOf(file_()); }
    /// The clock that has this file open; null where none has, and for an empty path.
    IClock* ClockOf(const QString& file) const;

    /// What the sheet of a zone is opened with; an empty name asks for a new one.
    PropertySheet::Source SourceOf(const QString& zoneName) const;

    SheetAnswer AnswerTo(const SheetQuestion& question) const;
    /// @return whether the answer is Yes; true where there is nothing to ask
    bool Ask(const std::optional<SheetQuestion>& question) const;
    /// Says something in the shell's status bar; a box where there is no shell. Not an empty text.
    void Tell(const QString& text) const;
    /// The properties as the clock has them at this moment, its place among them; empty where there
    /// is no clock. The exchange slot stays as it is.
    ClockProperties Now() const;
    /// Lets the owner take the exchange slot over, see `IClock` and `IShell`: the shell takes its
    /// own file alone.
    void RefreshForm(const QString& name) const;
    /// See `IClock::PreviewProperties`.
    void Preview(const ClockProperties& values) const;
    /// @return whether there is a shell, and it could launch the zone's clock
    bool Launch(const QString& zoneName) const;
    void ShowHelp() const;

private:
    Program program_;
    IShell* shell_;
    int handle_;
    std::function<QString()> file_;
};

}  // namespace editor
