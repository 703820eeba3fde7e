#pragma once

#include <QStyledItemDelegate>

#include "editor/ui/CellEditors.h"
#include "editor/ui/CellPainter.h"

/// Paints the cells of a grid and gives the view its editors, one for each kind.
class CellDelegate final : public QStyledItemDelegate {
public:
    CellDelegate(const GridParts& parts, GridModel& model, CellEditors& editors, GridView& view);

    /// The parts of a cell as it is painted, in pixels of the viewport.
    CellParts PartsAt(const QModelIndex& index) const;
    /// The width that a cell needs, in pixels.
    int WidthAt(const QModelIndex& index) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsCurrent(const QModelIndex& index) const;
    QStyleOptionViewItem OptionOf(const QStyleOptionViewItem& given, const QModelIndex& index,
                                  const CellLook& look) const;
    CellLook LookOf(const QModelIndex& index) const;
    void PaintGround(QPainter& painter, const QStyleOptionViewItem& option,
                     const QModelIndex& index) const;
    void PaintLines(QPainter& painter, const QRect& rect, bool isFixed) const;
    void PaintFocus(QPainter& painter, const QStyleOptionViewItem& option) const;

    const GridParts& parts_;
    GridModel& model_;
    CellEditors& editors_;
    GridView& view_;
};
