#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

#include "editor/ui/EditorWidgets.h"
#include "editor/ui/GridView.h"

/// The open editor as a widget: one of `ctlText`, `ctlUpDown`, `ctlCombo` and `ctlComboEdit` over
/// the current cell. What keys do is decided by `CellEditing`; a line keeps its own text, with all
/// that input methods and the clipboard bring, and hands it over as it changes.
class CellEditors final : public QObject {
public:
    struct Handlers {
        std::function<void()> Moved;  ///< an edit has ended; the cell may be another
        std::function<void(Qt::FocusReason)> FocusLeft;  ///< the editor has lost the focus
    };

    CellEditors(const GridParts& parts, GridModel& model, Handlers handlers);

    /// The view lives longer than any editor; it is given before the first one opens.
    void SetView(GridView& view) { view_ = &view; }

    /// Opens the current cell as a key does. @return whether an editor is open
    bool OnCellKeyPress(int keyAscii);
    /// Shows what the core has opened, if it has. @return whether an editor is open
    bool ShowOpened();
    void End();
    void Cancel();
    /// Ends the edit where its row still holds what it held, else drops it.
    void EndOrDrop();

    /// The widget that is open; null for none.
    QWidget* Widget() const { return widget_; }
    /// What has changed in the core is shown in the widget.
    void Mirror();

    // For the delegate
    QWidget* Make(QWidget* parent);
    void Place(QWidget* widget, const QModelIndex& index);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ListEditor* List() const { return dynamic_cast<ListEditor*>(widget_.data()); }
    QWidget* MakeLine(QWidget* parent);
    QWidget* MakeSpin(QWidget* parent);
    QWidget* MakeList(QWidget* parent, bool hasLine);
    void Watch(QLineEdit& line);
    bool HasLeft(Qt::FocusReason reason) const;
    bool PressKey(QKeyEvent& event);
    /// Ctrl+Y, which lines know by no key of their own on every desktop. @return whether it was
    /// that
    bool Redo(const QKeyEvent& event);
    bool ActOn(const editor::EditKey& key, editor::EditorAction action);
    bool StayWith(const editor::EditKey& key);
    /// Runs what may end the edit in the core, and settles what follows.
    template <typename Work>
    void Finish(const Work& work);
    void CloseWidget();
    void TakeText(const QString& text);
    void TakeEdited(const QString& text);
    void Choose(int item);
    void Highlight(int item);
    void ForgetHighlight();
    void ChooseHighlighted();

    const GridParts& parts_;
    GridModel& model_;
    Handlers handlers_;
    GridView* view_ = nullptr;
    QPointer<QWidget> widget_;
    QPersistentModelIndex index_;  ///< of the cell that is edited
    int row_ = 0;
    int col_ = 0;
    int data_ = 0;          ///< the row's number when the edit began
    QString typed_;         ///< what the event that is on its way types
    int highlighted_ = -1;  ///< the entry that the host knows as highlighted
    bool mirrors_ = false;
};
