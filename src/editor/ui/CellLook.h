#pragma once

#include <QBrush>
#include <QColor>
#include <QPixmap>
#include <QString>
#include <functional>
#include <optional>

/// How one cell, or one entry of its list, is decorated beside its text.
struct CellLook {
    bool Bold = false;
    bool Quiet = false;            ///< in the colour of a placeholder
    QString Heading;               ///< a caption above the whole row; asked of column 0 alone
    std::optional<QBrush> Swatch;  ///< a square of this colour, or pattern, before the text
    QString FontFamily;            ///< the text is drawn in it; empty for the grid's own
    QPixmap Picture;               ///< a small picture before the text
    std::optional<bool> Check;     ///< a check box before the text, which a click presses
    bool Button = false;           ///< a button "..." while the cell is the current one
    bool Arrow = false;            ///< the button shows an arrow, as one that opens a list
    QString ToolTip;               ///< empty shows the text where it is cut off
    QColor ForeColor;              ///< of the text; invalid for the grid's own
};

/// Tell how a cell, and an entry of a cell's open list, is decorated. They are asked while the grid
/// paints, and of column 0 for every row when the grid is refreshed, so they should be quick.
struct CellLooks {
    std::function<CellLook(int row, int col)> OfCell;
    std::function<CellLook(int row, int col, const QString& item)> OfItem;
};
