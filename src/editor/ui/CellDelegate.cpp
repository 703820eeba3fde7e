#include "editor/ui/CellDelegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "foundation/Contrast.h"

using Lines = editor::GridLook::Lines;

namespace {

constexpr int MostInTip = 600;  // characters

QColor FromNumber(int color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

QColor Either(const QColor& first, const QColor& second) {
    return first.isValid() ? first : second;
}

}  // namespace

CellDelegate::CellDelegate(const GridParts& parts, GridModel& model, CellEditors& editors,
                           GridView& view)
    : QStyledItemDelegate(&view), parts_(parts), model_(model), editors_(editors), view_(view) {}

bool CellDelegate::IsCurrent(const QModelIndex& index) const {
    return model_.RowOf(index.row()) == parts_.Data.Row() && index.column() == parts_.Data.Col();
}

// A cell's own colour counts where the host's look leaves it; it can be read on light and dark.
CellLook CellDelegate::LookOf(const QModelIndex& index) const {
    const int row = model_.RowOf(index.row());
    CellLook look = parts_.LookOf(row, index.column());
    const int color = parts_.Data.CellForeColor(row, index.column());
    if (!look.ForeColor.isValid() && color != editor::NoForeColor) {
        look.ForeColor = FromNumber(color);
    }
    if (look.ForeColor.isValid()) {
        const QColor ground = view_.palette().color(QPalette::Base);
        look.ForeColor = mduUILib::ReadableShade(look.ForeColor, ground);
    }
    return look;
}

QStyleOptionViewItem CellDelegate::OptionOf(const QStyleOptionViewItem& given,
                                            const QModelIndex& index, const CellLook& look) const {
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const int row = model_.RowOf(index.row());
    option.text = parts_.Data.TextMatrix(row, index.column());
    option.font = FontOf(option.font, look, parts_.Data.IsStruckThrough(row));
    if (!view_.ShowsSelection()) {
        option.state &= ~QStyle::State_Selected;
    }
    option.state |= QStyle::State_Enabled;
    if (parts_.IsFixed(row, index.column())) {
        option.palette.setColor(QPalette::Text, Either(parts_.Look.ForeColorFixed,
                                                       option.palette.color(QPalette::ButtonText)));
    }
    return option;
}

CellParts CellDelegate::PartsAt(const QModelIndex& index) const {
    const CellLook look = LookOf(index);
    QStyleOptionViewItem option;
    view_.initViewItemOption(&option);
    option.rect = view_.CellRect(index);
    return PartsOf(option.rect, look, IsCurrent(index), option);
}

int CellDelegate::WidthAt(const QModelIndex& index) const {
    QStyleOptionViewItem option;
    view_.initViewItemOption(&option);
    option.rect = QRect(0, 0, 1'000, view_.BaseRowHeight());
    const CellLook look = LookOf(index);
    option.font = FontOf(option.font, look, false);
    return WidthOf(index.data().toString(), look, option);
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                         const QModelIndex& index) const {
    const CellLook look = LookOf(index);
    QStyleOptionViewItem option = OptionOf(given, index, look);
    painter->save();
    painter->setClipRect(given.rect);
    if (!model_.HeadingOf(index.row()).isEmpty()) {
        option.rect.setTop(option.rect.top() + view_.HeadingHeight());
        const QRect heading(given.rect.topLeft(),
                            QPoint(given.rect.right(), option.rect.top() - 1));
        painter->fillRect(heading, option.palette.brush(QPalette::Base));
    }
    PaintGround(*painter, option, index);
    PaintCell(*painter, option, PartsOf(option.rect, look, IsCurrent(index), option), look);
    PaintLines(*painter, option.rect, parts_.IsFixed(model_.RowOf(index.row()), index.column()));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        PaintFocus(*painter, option);
    }
    painter->restore();
}

void CellDelegate::PaintGround(QPainter& painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    const bool isFixed = parts_.IsFixed(model_.RowOf(index.row()), index.column());
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor ground =
        isFixed ? Either(parts_.Look.BackColorFixed, option.palette.color(QPalette::Button))
                : option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    painter.fillRect(option.rect, ground);
}

void CellDelegate::PaintLines(QPainter& painter, const QRect& rect, bool isFixed) const {
    const editor::GridLook& look = parts_.Look;
    if ((isFixed ? look.GridLinesFixed : look.GridLines) == Lines::None) {
        return;
    }
    QColor own = view_.palette().color(QPalette::Text);
    own.setAlpha(40);
    const QColor color = Either(isFixed ? look.GridColorFixed : look.GridColor, own);
    const int width = std::max(look.GridLineWidth, 1);
    const int side =
        view_.layoutDirection() == Qt::RightToLeft ? rect.left() : rect.right() + 1 - width;
    painter.fillRect(QRect(side, rect.top(), width, rect.height()), color);
    painter.fillRect(QRect(rect.left(), rect.bottom() + 1 - width, rect.width() - width, width),
                     color);
}

void CellDelegate::PaintFocus(QPainter& painter, const QStyleOptionViewItem& option) const {
    if (parts_.Look.FocusRect == 0) {
        return;
    }
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const int width = parts_.Look.FocusRect == 2 ? 2 : 1;
    QPen pen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight));
    pen.setWidth(width);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.drawRect(option.rect.adjusted(width, width, -width - 1, -width - 1));
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex&) const {
    return editors_.Make(parent);
}

void CellDelegate::setEditorData(QWidget*, const QModelIndex&) const {}

void CellDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {}

void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const {
    editors_.Place(editor, index);
}

// A text that is cut off is told whole.
bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) {
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    QString text = LookOf(index).ToolTip;
    if (text.isEmpty() && WidthAt(index) > view_.CellRect(index).width()) {
        text = OneLine(index.data().toString(), MostInTip);
    }
    text = text.isEmpty() ? parts_.Look.ToolTipText : text;
    QToolTip::showText(event->globalPos(), text, view_.viewport(), view_.CellRect(index));
    return true;
}

bool CellDelegate::eventFilter(QObject* watched, QEvent* event) {
    return editors_.eventFilter(watched, event);
}
