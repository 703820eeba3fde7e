#pragma once

#include <QColor>
#include <QFont>
#include <QVariantMap>
#include <vector>

/// How a grid looks, as values: the properties that a host sets and that are saved with it.
namespace editor {

/// How the texts of a column stand.
enum class ColAlign { Left = 1, Centre = 4, Right = 7 };

/// What is known of one column besides its editor.
struct ColumnLook {
    int Width = 0;  ///< twips; 0 or less lets the grid choose
    ColAlign Alignment = ColAlign::Left;
    ColAlign FixedAlignment = ColAlign::Left;  ///< of its heading
    bool Merge = false;                        ///< equal cells below each other show as one
    int Data = 0;                              ///< the host's own number, `ColData`
    bool operator==(const ColumnLook&) const = default;
};

/// The looks of a grid. A colour that is not valid is the desktop's own, which follows light and
/// dark. Measures are in twips, 15 to a pixel.
struct GridLook {
    enum class Frame { None = 0, Single = 1 };
    enum class Lines { None = 0, Flat = 1, Inset = 2, Raised = 3 };
    enum class When { Never = 0, Always = 1, WithFocus = 2 };
    enum class Bars { None = 0, Horizontal = 1, Vertical = 2, Both = 3 };
    enum class Resizing { None = 0, Columns = 1, Rows = 2, Both = 3 };

    QColor ForeColor, BackColor, ForeColorSel, BackColorSel, ForeColorFixed, BackColorFixed;
    QColor GridColor, GridColorFixed;
    QFont Font;
    bool HasFont = false;  ///< whether `Font` holds; else the one of the window
    Frame BorderStyle = Frame::Single;
    int Appearance = 1;  ///< 0 flat, 1 sunken; without a border it shows nothing
    Lines GridLines = Lines::Flat;
    Lines GridLinesFixed = Lines::Inset;
    int GridLineWidth = 1;  ///< pixels
    When HighLight = When::Always;
    int FocusRect = 1;  ///< 0 none, 1 light, 2 heavy
    Bars ScrollBars = Bars::Both;
    Resizing AllowUserResizing = Resizing::Columns;
    bool ScrollTrack = true;  ///< the rows follow the bar while it is dragged
    bool RightToLeft = false;
    int RowHeightMin = 0;     ///< no row that is seen is lower
    bool MergeCells = false;  ///< whether `ColumnLook::Merge` counts
    QString FormatString;     ///< see `FormatOf`
    bool Enabled = true;
    bool Redraw = true;            ///< false shows no change until it is true again
    bool CausesValidation = true;  ///< the host is asked before the focus leaves
    int MousePointer = 0;          ///< 0 arrow, 2 cross, 3 text, 11 waiting
    QString ToolTipText;           ///< of cells that have none of their own
    // These are only kept for the host, and show nothing. So it is with two values of others:
    // `GridLines` that are inset or raised are flat ones, and rows take no other heights from the
    // mouse. There is no `MouseIcon`, `FontWidth`, `OLEDrag` and `CellPicture` at all: a cell has
    // its decorations, `CellLook`, in their place.
    bool WordWrap = false;
    int TextStyle = 0;  ///< 0 flat, 1 raised, 2 inset, of the cells
    int TextStyleFixed = 0;
    int Index = 0;
    int WhatsThisHelpID = 0;
    int OLEDropMode = 0;
    int PictureType = 0;
    std::vector<ColumnLook> Columns;

    /// The look of a column; columns behind the last one get one.
    ColumnLook& Column(int col);
    ColumnLook ColumnAt(int col) const;  ///< the default one where there is none
    bool operator==(const GridLook&) const = default;

    /// The properties by their names, for a property bag, and back. What the bag doesn't hold, or
    /// holds in a wrong kind, stays as it is.
    QVariantMap ToMap() const;
    void FromMap(const QVariantMap& bag);
};

}  // namespace editor
