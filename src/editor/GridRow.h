#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// The grid that the property and shortcut windows edit with: its data and its rules, without a
/// window.
namespace editor {

/// Heights in twips: what a row has at first, and what one has that is opened at the end.
inline constexpr int DefaultRowHeight = 240;
inline constexpr int OpenedRowHeight = 285;

/// The colour of a text that has none of its own.
inline constexpr int NoForeColor = -1;

/// One row of a grid.
struct GridRow {
    /// The texts by column; those behind the last one that was written may be missing and count as
    /// empty.
    std::vector<QString> Cells;
    int Data = 0;  ///< the host's own number, such as the place of a record
    int Height = DefaultRowHeight;
    bool StrikeThrough = false;  ///< the whole row is struck through and takes no editor
    bool Locked = false;         ///< the row takes no editor
    /// The colours of the texts by column, red in the low byte; those that are missing are
    /// `NoForeColor`.
    std::vector<int> ForeColors;
};

/// What a cut or a copy of a row keeps until it is pasted.
struct RowClip {
    QStringList Cells;
    int Data = 0;
    bool StrikeThrough = false;
    int Source = -1;  ///< the row that a pending cut takes away; below 1 when there is none

    /// The row's clip text; empty where there is nothing to paste.
    QString Text() const { return Cells.join(u'\t'); }
};

}  // namespace editor
