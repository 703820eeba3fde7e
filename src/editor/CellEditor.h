#pragma once

#include <QStringList>

#include "editor/EditLine.h"
#include "editor/EditorKeys.h"

namespace editor {

class TypeAhead;

/// The editor over one cell, from its opening to its end: the same for all four kinds, whatever
/// shows it.
class CellEditor {
public:
    /// @param kind not `None`
    /// @param cellText the cell's text, which stays should the edit be cancelled
    /// @param items the entries of its list, where it has one
    CellEditor(EditorKind kind, const QString& cellText, const QStringList& items);

    /// Opens it by a key. A line gets @p typed in place of the cell's text, the caret behind it;
    /// an empty text keeps the cell's. A list to pick from opens with the cell's entry selected.
    void Begin(const QString& typed);

    EditorKind Kind() const { return kind_; }
    const QString& OldText() const { return oldText_; }
    const QStringList& Items() const { return items_; }
    const EditLine& Line() const { return line_; }
    /// What goes to the cell: the chosen entry or what stands in the line. A list in which nothing
    /// has been chosen keeps the cell's text.
    QString Text() const { return line_.Text(); }
    int ListIndex() const { return listIndex_; }  ///< the chosen entry; -1 for none
    bool IsDroppedDown() const { return droppedDown_; }

    /// Takes over what a control of the window holds.
    void SetText(const QString& text);
    /// Chooses an entry; a place out of the list is refused.
    bool Choose(int item);
    /// Lets the choice go: the text becomes empty.
    void ClearChoice();
    /// A key that acts within the editor (`EditorAction::Stays`).
    /// @param presentYear of a date without one that is spun
    void Key(const EditKey& key, TypeAhead& typeAhead, int presentYear);
    /// A press on a spin button: 1 up, -1 down. A text that is no number and no date stays.
    void Spin(int step, int presentYear);

private:
    void ListKey(const EditKey& key);
    void LineKey(const EditKey& key, TypeAhead& typeAhead);
    void TypeWithList(const EditKey& key, TypeAhead& typeAhead);

    EditorKind kind_;
    QString oldText_;
    QStringList items_;
    EditLine line_;
    int listIndex_ = -1;
    bool droppedDown_ = false;
};

}  // namespace editor
