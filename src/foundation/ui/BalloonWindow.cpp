#include "foundation/ui/BalloonWindow.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int IconSize = 18;
constexpr int IconGap = 8;
constexpr int TitleGap = 6;
constexpr int WidestText = 540;
constexpr int TextFlags = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop;

QColor IconColour(int icon) {
    switch (icon) {
        case 1:
            return {0x1F, 0x6F, 0xC4};
        case 2:
            return {0xD9, 0x8A, 0x00};
        default:
            return {0xC6, 0x28, 0x28};
    }
}

/// A disc for information and error, a triangle for a warning, and the mark in white on it.
void PaintIcon(QPainter& painter, const QRectF& area, int icon) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(IconColour(icon));
    const QPointF middle = area.center();
    if (icon == 2) {
        QPainterPath triangle(QPointF(middle.x(), area.top()));
        triangle.lineTo(area.bottomRight());
        triangle.lineTo(area.bottomLeft());
        triangle.closeSubpath();
        painter.drawPath(triangle);
    } else {
        painter.drawEllipse(area);
    }
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap));
    const double x = middle.x();
    const double y = middle.y();
    if (icon == 1) {
        painter.drawPoint(QPointF(x, y - 4.5));
        painter.drawLine(QPointF(x, y - 0.5), QPointF(x, y + 4.5));
    } else if (icon == 2) {
        painter.drawLine(QPointF(x, y - 2), QPointF(x, y + 2));
        painter.drawPoint(QPointF(x, y + 5.5));
    } else {
        painter.drawLine(QPointF(x - 3, y - 3), QPointF(x + 3, y + 3));
        painter.drawLine(QPointF(x - 3, y + 3), QPointF(x + 3, y - 3));
    }
}

}  // namespace

BalloonWindow::BalloonWindow(QWidget* owner, std::function<void()> onClick)
    : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      onClick_(std::move(onClick)) {
    setObjectName(u"TipWindow"_s);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFont(owner->font());
}

QFont BalloonWindow::TitleFont() const {
    QFont title = font();
    title.setBold(true);
    return title;
}

QPainterPath BalloonWindow::Outline() const {
    return look_.IsBalloon ? BalloonOutline(place_) : PlainTipOutline(place_);
}

int BalloonWindow::IconSpace() const {
    return look_.Icon == 0 ? 0 : IconSize + IconGap;
}

QSize BalloonWindow::TitleSize(int widest) const {
    const QRect limits(0, 0, widest - IconSpace(), 10000);
    const QRect text = QFontMetrics(TitleFont()).boundingRect(limits, TextFlags, look_.Title);
    const int height = look_.Icon == 0 ? 0 : IconSize;
    return look_.Title.isEmpty()
               ? QSize(IconSpace(), height)
               : QSize(text.width() + IconSpace(), std::max(text.height(), height));
}

QSize BalloonWindow::TextSize(int widest) const {
    return look_.Text.isEmpty()
               ? QSize(0, 0)
               : fontMetrics()
                     .boundingRect(QRect(0, 0, widest, 10000), TextFlags, look_.Text)
                     .size();
}

QSize BalloonWindow::BodySize(int widest) const {
    const QSize title = TitleSize(widest);
    const QSize text = TextSize(widest);
    const int gap = title.height() > 0 && text.height() > 0 ? TitleGap : 0;
    return {std::max({title.width(), text.width(), 3 * Margin}) + 2 * Margin,
            title.height() + gap + text.height() + 2 * Margin};
}

void BalloonWindow::Appear(const BalloonLook& look, const QRect& tool, BalloonStand stand) {
    look_ = look;
    setAccessibleName(look.Title);
    setAccessibleDescription(look.Text);
    QScreen* on = parentWidget()->screen();
    const QScreen* there = on->virtualSiblingAt(tool.center());
    const QRect room = (there == nullptr ? on : there)->availableGeometry();
    const int widest = std::min(WidestText, room.width() - 2 * Margin);
    const QSize size = BodySize(widest);
    place_ = stand == BalloonStand::Beside
                 ? PlaceBalloonBeside(size, tool, room)
                 : PlaceBalloon(size, tool, room, stand == BalloonStand::Centred);
    setGeometry(place_.Window);
    setMask(QRegion(Outline().toFillPolygon().toPolygon()) |
            QRegion(place_.Body.adjusted(4, 4, -4, -4)));
    show();
    raise();
    update();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void BalloonWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor edge =
        look_.Back.lightness() < 128 ? look_.Back.lighter(180) : look_.Back.darker(160);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(look_.Back);
    painter.drawPath(Outline());

    const QRect inside = place_.Body.adjusted(Margin, Margin, -Margin, -Margin);
    if (look_.Icon != 0) {
        PaintIcon(painter, QRectF(inside.left(), inside.top(), IconSize, IconSize), look_.Icon);
    }
    painter.setPen(look_.Fore);
    const QSize title = TitleSize(inside.width());
    painter.setFont(TitleFont());
    const QRect titleArea(inside.left() + IconSpace(), inside.top(), inside.width() - IconSpace(),
                          title.height());
    painter.drawText(titleArea, Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignVCenter, look_.Title);
    const int gap = title.height() > 0 ? TitleGap : 0;
    painter.setFont(font());
    painter.drawText(inside.adjusted(0, title.height() + gap, 0, 0), TextFlags, look_.Text);
}

void BalloonWindow::mousePressEvent(QMouseEvent* event) {
    event->accept();
    onClick_();
}
