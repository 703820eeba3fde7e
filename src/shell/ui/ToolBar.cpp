#include "shell/ui/ToolBar.h"

#include <QContextMenuEvent>
#include <QIcon>
#include <QMouseEvent>
#include <QToolButton>

#include "foundation/Numbers.h"
#include "foundation/Twips.h"
#include "shell/ToolbarLook.h"
#include "shell/ui/ShellPictures.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int SeparatorExtent = 9;
constexpr int ButtonMargin = 3;

/// The pointer of that picture with its tip at @p tip; the desktop's own where there is none.
QCursor PointerOf(const QIcon& icon, const QPoint& tip, Qt::CursorShape otherwise) {
    const QPixmap picture = icon.pixmap(24, 24);
    return picture.isNull() ? QCursor(otherwise) : QCursor(picture, tip.x(), tip.y());
}

/// A caption of two words stands in two lines, or the bar would show half of its buttons only.
QString InTwoLines(QString caption) {
    const qsizetype blank = caption.indexOf(u' ');
    return blank < 0 ? caption : caption.replace(blank, 1, u'\n');
}

}  // namespace

ToolBar::ToolBar(const platform::Files& files, const QString& pictureFolder, Hooks hooks,
                 QWidget* parent)
    : QFrame(parent),
      files_(files),
      pictureFolder_(pictureFolder),
      hooks_(std::move(hooks)),
      slots_(shell::Tool::Count) {
    setObjectName(u"toolbar"_s);
    setAccessibleName(u"Tool Bar"_s);
    setMouseTracking(true);
    for (int i = 1; i <= shell::Tool::Count; ++i) {
        MakeButton(i, slots_[static_cast<std::size_t>(i - 1)]);
    }
    SetAlign(shell::Align::Top);
    SetBorder(1);
}

void ToolBar::MakeButton(int index, Slot& slot) {
    slot.Data = shell::SetupToolButton(index, sizeName_);
    if (slot.Data.Key.isEmpty()) {
        slot.Line = new QFrame(this);
        slot.Line->setForegroundRole(QPalette::Mid);
        return;
    }
    slot.Button = new QToolButton(this);
    slot.Button->setObjectName(u"tool_"_s + slot.Data.Tag);
    slot.Button->setAccessibleName(slot.Data.Tag);
    slot.Button->setAccessibleDescription(slot.Data.Description);
    slot.Button->setAutoRaise(true);
    slot.Button->setFocusPolicy(Qt::TabFocus);
    slot.Button->setIcon(
        ShellPicture(files_, u"%1/Toolbar/%2.svg"_s.arg(pictureFolder_, slot.Data.Tag)));
    slot.Button->installEventFilter(this);
    connect(slot.Button, &QToolButton::clicked, this,
            [this, &slot] { hooks_.Click(shell::ToolIndexOfKey(slot.Data.Key)); });
}

void ToolBar::ApplyToolbarSize(const QString& sizeName) {
    sizeName_ = sizeName;
    UseCursor(false);
    for (int i = 1; i <= shell::Tool::Count; ++i) {
        SetUp(i, slots_[static_cast<std::size_t>(i - 1)]);
    }
    FitToolbarButtons();
    updateGeometry();
}

void ToolBar::SetUp(int index, Slot& slot) {
    slot.Data = shell::SetupToolButton(index, sizeName_);
    if (slot.Button == nullptr) {
        return;
    }
    const int side = shell::ToolbarPictureSide(sizeName_);
    slot.Button->setIconSize({side, side});
    slot.Button->setText(InTwoLines(slot.Data.Caption));
    slot.Button->setToolButtonStyle(slot.Data.Caption.isEmpty() ? Qt::ToolButtonIconOnly
                                                                : Qt::ToolButtonTextUnderIcon);
    QFont font = QWidget::font();
    font.setPixelSize(side > 24 ? 12 : 10);
    slot.Button->setFont(font);
}

bool ToolBar::IsVertical() const {
    return shell::IsVertical(align_);
}

void ToolBar::SetAlign(int align) {
    align_ = align;
    setSizePolicy(IsVertical() ? QSizePolicy::Fixed : QSizePolicy::Ignored,
                  IsVertical() ? QSizePolicy::Ignored : QSizePolicy::Fixed);
    FitToolbarButtons();
    updateGeometry();
}

void ToolBar::SetBorder(int border) {
    setFrameStyle(border == 0 ? QFrame::NoFrame : QFrame::StyledPanel | QFrame::Plain);
}

QToolButton* ToolBar::Button(int index) const {
    return slots_[static_cast<std::size_t>(index - 1)].Button;
}

bool ToolBar::IsOffered(int index) const {
    const Slot& slot = slots_[static_cast<std::size_t>(index - 1)];
    return slot.Offered && slot.Data.Visible;
}

void ToolBar::Offer(int index, bool offered) {
    slots_[static_cast<std::size_t>(index - 1)].Offered = offered;
    FitToolbarButtons();
}

QString ToolBar::Layout() const {
    QStringList keys;
    for (int i = 1; i <= shell::Tool::Count; ++i) {
        const Slot& slot = slots_[static_cast<std::size_t>(i - 1)];
        if (IsOffered(i) && !slot.Data.Key.isEmpty()) {
            keys += slot.Data.Key;
        }
    }
    return keys.join(u' ');
}

QSize ToolBar::sizeHint() const {
    const int extent = mduAPILib::RoundToInteger(shell::ToolbarExtent(sizeName_) / TwipsPerPixel);
    return IsVertical() ? QSize(extent, 1) : QSize(1, extent);
}

QWidget* ToolBar::WidgetOf(const Slot& slot) const {
    return slot.Button != nullptr ? static_cast<QWidget*>(slot.Button) : slot.Line;
}

int ToolBar::ExtentOf(const Slot& slot) const {
    if (slot.Button == nullptr) {
        return SeparatorExtent;
    }
    const int side = shell::ToolbarPictureSide(sizeName_) + 2 * ButtonMargin;
    if (slot.Data.Caption.isEmpty()) {
        return side;
    }
    const QSize caption =
        QFontMetrics(slot.Button->font()).size(0, slot.Button->text()) + QSize(4, 4) * ButtonMargin;
    return IsVertical() ? side + caption.height() : std::max(side, caption.width());
}

void ToolBar::FitToolbarButtons() {
    std::vector<shell::ToolRow::Button> row;
    for (const Slot& slot : slots_) {
        row.push_back({ExtentOf(slot), slot.Offered && slot.Data.Visible, false});
    }
    row_ = shell::ToolRow(std::move(row));
    row_.Fit(IsVertical() ? height() : width());
    PlaceButtons();
}

void ToolBar::PlaceButtons() {
    const int across = IsVertical() ? width() : height();
    int along = 0;
    for (int i = 1; i <= row_.Count(); ++i) {
        const Slot& slot = slots_[static_cast<std::size_t>(i - 1)];
        QWidget* widget = WidgetOf(slot);
        widget->setVisible(row_.IsVisible(i));
        if (!row_.IsVisible(i)) {
            continue;
        }
        const int extent = ExtentOf(slot);
        QRect place(along, 1, extent, across - 2);
        if (slot.Line != nullptr) {
            place.adjust(extent / 2, 4, -(extent - extent / 2 - 1), -4);
        }
        if (IsVertical()) {
            place = {place.y(), place.x(), place.height(), place.width()};
        }
        widget->setGeometry(place);
        if (slot.Line != nullptr) {
            slot.Line->setFrameStyle((IsVertical() ? QFrame::HLine : QFrame::VLine) |
                                     QFrame::Plain);
        }
        along += extent;
    }
    hooks_.Hover(0);
}

int ToolBar::ButtonAt(const QPoint& place) const {
    for (int i = 1; i <= row_.Count(); ++i) {
        if (Button(i) != nullptr && row_.IsVisible(i) && Button(i)->geometry().contains(place)) {
            return i;
        }
    }
    return 0;
}

int ToolBar::LastEdge() const {
    int edge = 0;
    for (int i = 1; i <= row_.Count(); ++i) {
        if (row_.IsVisible(i)) {
            edge += ExtentOf(slots_[static_cast<std::size_t>(i - 1)]);
        }
    }
    return edge;
}

void ToolBar::UseCursor(bool dragging) {
    const auto picture = [this](const QString& name) {
        return ShellPicture(files_, u"%1/Shell/cursor-%2.png"_s.arg(pictureFolder_, name));
    };
    setCursor(dragging ? PointerOf(picture(u"drag"_s), {12, 12}, Qt::ClosedHandCursor)
                       : PointerOf(picture(u"normal"_s), {4, 1}, Qt::ArrowCursor));
}

void ToolBar::resizeEvent(QResizeEvent*) {
    FitToolbarButtons();
}
