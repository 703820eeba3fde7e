#include "editor/ui/ColChooserBox.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <utility>

#include "editor/EditorPlace.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

ColChooserBox::ColChooserBox(const GridParts& parts, Handlers handlers, QWidget* parent)
    : QComboBox(parent), parts_(parts), handlers_(std::move(handlers)) {
    setObjectName(u"ctlColCombo"_s);
    setAccessibleName(u"Sort"_s);
    hide();
    connect(this, &QComboBox::activated, this, [this](int entry) { Choose(entry); });
}

void ColChooserBox::SetOptions(const QString& options) {
    options_ = options;
    items_ = editor::SetColComboOption(options);
    clear();
    for (const editor::ColComboItem& item : items_) {
        addItem(item.Caption);
    }
    setCurrentIndex(-1);
}

void ColChooserBox::ShowColChooser(int col, const QRect& heading) {
    if (items_.empty()) {
        return;
    }
    col_ = col;
    const QRectF twips(heading.x() * TwipsPerPixel, heading.y() * TwipsPerPixel,
                       heading.width() * TwipsPerPixel, heading.height() * TwipsPerPixel);
    const QRectF place = editor::PlaceColChooser(twips);
    setGeometry(qRound(place.x() / TwipsPerPixel), qRound(place.y() / TwipsPerPixel),
                qRound(place.width() / TwipsPerPixel), qRound(place.height() / TwipsPerPixel));
    setCurrentIndex(-1);
    view()->setMinimumWidth(view()->sizeHintForColumn(0));
    show();
    raise();
    setFocus();
    showPopup();
}

void ColChooserBox::showPopup() {
    isOpen_ = true;  // the list takes the focus while it opens
    QComboBox::showPopup();
}

// Whether there has been a choice is known once what closed the list has done its work.
void ColChooserBox::hidePopup() {
    QComboBox::hidePopup();
    if (std::exchange(isOpen_, false)) {
        QMetaObject::invokeMethod(this, &ColChooserBox::Leave, Qt::QueuedConnection);
    }
}

void ColChooserBox::focusOutEvent(QFocusEvent* event) {
    QComboBox::focusOutEvent(event);
    const bool isElsewhere = QApplication::focusWidget() != nullptr;
    if (!isOpen_ && isElsewhere) {
        hide();
    }
}

// The key of the sort is the column under the chooser, whatever is selected.
void ColChooserBox::Choose(int entry) {
    const int number = items_[static_cast<std::size_t>(entry)].Number;
    const int col = parts_.Data.Col();
    const int rowSel = parts_.Data.RowSel();
    Leave();
    parts_.Data.SetCol(col_);
    parts_.Data.SetRowSel(rowSel);
    const editor::ColChoice choice = editor::ChooseColOption(parts_.Data, number);
    parts_.Data.SetCol(col);
    switch (choice) {
        case editor::ColChoice::Nothing:
            handlers_.Sorted();
            break;
        case editor::ColChoice::FitColumns:
            handlers_.FitColumns();
            break;
        case editor::ColChoice::Find:
            parts_.Host.FindAsked();
            break;
    }
}

void ColChooserBox::Leave() {
    if (!isHidden()) {
        hide();
        handlers_.Done();
    }
}
