#include "timezones/ui/ZoneListView.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastNameWidth = 220;
constexpr int LeastDisplayWidth = 160;
constexpr double NameShare = 0.42;
constexpr int RowPadding = 6;

/// Rows with some air, and check boxes that can be seen on a dark ground as well: styles draw their
/// outline in a shade of the window's colour.
class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, RowPadding);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->palette.color(QPalette::Base).lightness() < 128) {
            option->palette.setColor(QPalette::Window, QColor(0xA0, 0xA0, 0xA0));
        }
    }
};

}  // namespace

ZoneListView::ZoneListView(Handlers handlers, QWidget* parent)
    : QTreeView(parent), handlers_(std::move(handlers)) {
    setObjectName(u"lsvTimeZones"_s);
    setAccessibleName(u"Time zones"_s);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setItemDelegate(new RowDelegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this,
            [this](int column) { handlers_.HeaderClicked(column); });
}

void ZoneListView::FitColumns() {
    if (header()->count() < 2) {
        return;
    }
    const int whole = viewport()->width();
    const int name = std::max(LeastNameWidth, static_cast<int>(whole * NameShare));
    header()->resizeSection(0, name);
    header()->resizeSection(1, std::max(LeastDisplayWidth, whole - name));
}

void ZoneListView::SetEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

void ZoneListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (model() != nullptr && model()->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect().adjusted(16, 16, -16, -16),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
    }
}

void ZoneListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    FitColumns();
}

void ZoneListView::ToggleCurrent() {
    const QModelIndex row = currentIndex().siblingAtColumn(0);
    if (row.isValid()) {
        const bool checked = row.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        model()->setData(row, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
}

void ZoneListView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Space:
            ToggleCurrent();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            handlers_.LaunchAsked();
            break;
        default:
            QTreeView::keyPressEvent(event);
    }
}

bool ZoneListView::IsOnCheckBox(const QPoint& position) const {
    const QModelIndex index = indexAt(position);
    const int indicator = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    const int left = visualRect(index).left();
    return index.column() == 0 && position.x() < left + indicator + RowPadding;
}

void ZoneListView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    const QPoint position = event->position().toPoint();
    if (event->button() == Qt::LeftButton && indexAt(position).isValid() &&
        !IsOnCheckBox(position)) {
        handlers_.LaunchAsked();
    }
}

void ZoneListView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QPoint place =
        byMouse ? event->pos() : visualRect(currentIndex().siblingAtColumn(0)).bottomLeft();
    handlers_.MenuAsked(viewport()->mapToGlobal(place));
}

bool ZoneListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QTreeView::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    if (index.isValid()) {
        QToolTip::showText(help->globalPos(), handlers_.ToolTip(index.row()), viewport(),
                           visualRect(index));
    } else {
        QToolTip::hideText();
    }
    return true;
}
