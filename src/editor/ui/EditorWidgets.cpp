#include "editor/ui/EditorWidgets.h"

#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <limits>

#include "editor/ui/CellPainter.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ItemPadding = 6;     // pixels
constexpr int MostItemsSeen = 14;  // more are scrolled
constexpr int MostMeasured = 200;  // items

/// Entries of a list with their decorations.
class ItemPainter final : public QStyledItemDelegate {
public:
    ItemPainter(std::function<CellLook(const QString&)> lookOf, QObject* parent)
        : QStyledItemDelegate(parent), lookOf_(std::move(lookOf)) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& given,
               const QModelIndex& index) const override {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        const CellLook look = lookOf_(option.text);
        option.font = FontOf(option.font, look, false);
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        painter->fillRect(option.rect,
                          option.palette.brush(isSelected ? QPalette::Highlight : QPalette::Base));
        PaintCell(*painter, option, PartsOf(option.rect, look, false, option), look);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(),
                option.fontMetrics.height() + ItemPadding};
    }

private:
    std::function<CellLook(const QString&)> lookOf_;
};

/// The width that the entries need, each with the decorations of the first.
int WidthOfItems(const QStringList& items, const CellLook& look, const QWidget& widget) {
    QStyleOptionViewItem option;
    option.font = widget.font();
    option.widget = &widget;
    option.rect = QRect(0, 0, 1'000, QFontMetrics(option.font).height() + ItemPadding);
    int width = 0;
    for (const QString& item : items.mid(0, MostMeasured)) {
        width = std::max(width, WidthOf(item, look, option));
    }
    return width;
}

}  // namespace

SpinEditor::SpinEditor(std::function<void(int)> spin, QWidget* parent)
    : QAbstractSpinBox(parent), spin_(std::move(spin)) {
    setObjectName(u"ctlUpDown"_s);
    lineEdit()->setObjectName(u"ctlText"_s);
}

void SpinEditor::stepBy(int steps) {
    spin_(steps > 0 ? 1 : -1);
}

void SpinEditor::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

ListEditor::ListEditor(const QStringList& items, bool hasLine, Handlers handlers, QWidget* parent)
    : QComboBox(parent), handlers_(std::move(handlers)) {
    setObjectName(hasLine ? u"ctlComboEdit"_s : u"ctlCombo"_s);
    auto* list = new QListView(this);
    list->setObjectName(u"ctlList"_s);
    list->setUniformItemSizes(true);
    setView(list);
    setItemDelegate(new ItemPainter(handlers_.LookOfItem, this));
    setMaxVisibleItems(MostItemsSeen);
    setEditable(hasLine);
    setInsertPolicy(QComboBox::NoInsert);
    if (hasLine) {
        setCompleter(nullptr);  // the type-ahead is the grid's
    }
    addItems(items);
    setCurrentIndex(-1);
    const CellLook look = items.isEmpty() ? CellLook() : handlers_.LookOfItem(items.first());
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    list->setMinimumWidth(WidthOfItems(items, look, *this) + bar);
}

void ListEditor::showPopup() {
    isOpen_ = true;  // the list takes the focus while it opens
    QComboBox::showPopup();
    isOpen_ = view()->isVisible();
    if (isOpen_) {
        handlers_.Opened();
    }
}

void ListEditor::hidePopup() {
    QComboBox::hidePopup();
    if (std::exchange(isOpen_, false)) {
        handlers_.Closed();
    }
}

void ListEditor::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

QLineEdit* LineOf(QWidget* editor) {
    if (auto* spin = dynamic_cast<SpinEditor*>(editor)) {
        return spin->Line();
    }
    auto* list = qobject_cast<QComboBox*>(editor);
    return list != nullptr ? list->lineEdit() : qobject_cast<QLineEdit*>(editor);
}
