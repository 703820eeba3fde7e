#pragma once

#include "editor/ui/CellDelegate.h"
#include "editor/ui/ColChooserBox.h"
#include "editor/ui/GridCursor.h"
#include "editor/ui/GridPlaces.h"

/// Keys and presses on a grid: they are told to the host and then done. What types goes to the gate
/// of `CellEditing`; Tab, Enter and Backspace do what it says.
class GridInput final : public GridViewEvents {
public:
    /// The parts of the grid that input acts on; all live longer.
    struct Actors {
        GridModel& Model;
        CellEditors& Editors;
        GridCursor& Cursor;
    };
    struct Handlers {
        std::function<void()> Compact;  ///< a press on a cell
        std::function<void(Qt::FocusReason)> FocusWent;
    };

    GridInput(const GridParts& parts, Actors actors, Handlers handlers)
        : parts_(parts), actors_(actors), handlers_(std::move(handlers)) {}

    /// Given before the first event.
    void SetView(GridView& view, CellDelegate& delegate, ColChooserBox& chooser);

    /// The cell under the pointer as it was told last; -1 for none, 0 the headings.
    int MouseRow() const { return mouseRow_; }
    int MouseCol() const { return mouseCol_; }

    /// An event of the header, as one of the grid; the header acts itself afterwards.
    void HeaderEvent(const QEvent& event);
    /// A click on a heading, which opens the chooser where it offers anything.
    void HeadingClicked(int col);
    void ShowColChooser(int col);

    bool KeyPress(QKeyEvent& event) override;
    void KeyRelease(QKeyEvent& event) override;
    bool InputMethod(QInputMethodEvent& event) override;
    void MouseDown(const QMouseEvent& event) override;
    void MousePressed(const QPoint& place) override;
    void MouseMove(const QMouseEvent& event) override;
    void MouseUp(const QMouseEvent& event) override;
    void MouseReleased(const QMouseEvent& event) override;
    void DoubleClick(const QMouseEvent& event) override;
    void CursorMoved() override;
    void FocusCame() override { parts_.Host.GotFocus(); }
    void FocusWent(Qt::FocusReason reason) override { handlers_.FocusWent(reason); }
    void Scrolled() override;

private:
    bool Type(int character);
    bool PressControl(const QKeyEvent& event, int code);
    bool MoveOn();
    bool Enter(const editor::EditKey& key);
    bool PressButton();
    bool IsAtTheEnd() const;
    bool TypeByInputMethod(const QString& text);
    /// Whether a point of the viewport lies on the button or the check box of a cell.
    bool IsOnButton(const QPoint& place) const;
    QPoint InGrid(const QMouseEvent& event) const;
    void NoteMouse(const QMouseEvent& event);

    const GridParts& parts_;
    Actors actors_;
    Handlers handlers_;
    GridView* view_ = nullptr;
    CellDelegate* delegate_ = nullptr;
    ColChooserBox* chooser_ = nullptr;
    int mouseRow_ = -1;
    int mouseCol_ = -1;
    bool isPressed_ = false;  ///< a press that a release makes a click
    bool onButton_ = false;   ///< the press lies on a button or a check box
};
