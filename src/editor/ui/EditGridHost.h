#pragma once

/// What a grid tells the window that it stands in, before it acts itself. A window overrides what
/// it is interested in.
///
/// Codes of keys are those of `editor::KeyCode`, 112 to 123 for F1 to F12, the code of the capital
/// letter or the digit, else `drawing::TypedKey` of the character; keys without one, such as Shift,
/// are not told. The bits of @p shift are those of `mduUILib::KeyShift`. Places are in pixels of
/// the grid. The numbers are those by which hosts know the events.
class EditGridHost {
public:
    virtual ~EditGridHost() = default;

    virtual void Click() {}                                ///< 1
    virtual void DblClick() {}                             ///< 2
    virtual void KeyDown(int& /*code*/, int /*shift*/) {}  ///< 3; a code set to 0 goes no further
    virtual void KeyPress(int& /*ascii*/) {}               ///< 4; likewise
    virtual void KeyUp(int /*code*/, int /*shift*/) {}     ///< 5
    virtual void MouseDown(int /*button*/, int /*shift*/, double /*x*/, double /*y*/) {}  ///< 6
    virtual void MouseMove(int /*button*/, int /*shift*/, double /*x*/, double /*y*/) {}  ///< 7
    virtual void MouseUp(int /*button*/, int /*shift*/, double /*x*/, double /*y*/) {}    ///< 8
    virtual void Validate(bool& /*cancel*/) {}  ///< 9; the focus is about to leave the grid
    virtual void RowColChange() {}              ///< 10; behind `LeaveCell` and `EnterCell`
    virtual void Scroll() {}                    ///< 11
    virtual void SelChange() {}                 ///< 12
    virtual void Compare(int /*row1*/, int /*row2*/, int& /*order*/) {}  ///< 18
    virtual void EnterCell() {}                                          ///< 19
    virtual void LeaveCell() {}                                          ///< 20
    virtual void KeyInCell(int /*key*/, int /*row*/, int /*col*/) {}     ///< 22

    /// The grid has got the focus, from without or from one of its own editors.
    virtual void GotFocus() {}
    /// The edit of a cell has ended with another text.
    virtual void CellChanged(int /*row*/, int /*col*/) {}
    /// An entry of an open list stands highlighted; -1 when that list is closed without a choice.
    virtual void ItemHighlighted(int /*row*/, int /*col*/, int /*item*/) {}
    /// The button "..." or the check box of a cell has been pressed, with the mouse or a key.
    virtual void ButtonClicked(int /*row*/, int /*col*/) {}
    /// "Find" has been chosen in the chooser over a header.
    virtual void FindAsked() {}
};
