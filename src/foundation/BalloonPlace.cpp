#include "foundation/BalloonPlace.h"

#include <algorithm>

namespace {

constexpr int PointerHeight = 12;
constexpr int PointerInset = 24;  ///< from the body's left edge to the pointer
constexpr int PointerHalfWidth = 8;
constexpr int Radius = 8;
constexpr int NearestToCorner = Radius + PointerHalfWidth + 1;

int Within(int value, int least, int most) {
    return std::max(least, std::min(value, most));
}

}  // namespace

BalloonPlace PlaceBalloon(const QSize& size, const QRect& tool, const QRect& screen, bool centred) {
    const int roomBelow = screen.bottom() + 1 - tool.y() - tool.height();
    const int roomAbove = tool.y() - screen.top();
    const int wanted = size.height() + PointerHeight;
    BalloonPlace place;
    place.Below = roomBelow >= wanted || roomBelow >= roomAbove;

    const int room = std::max(place.Below ? roomBelow : roomAbove, PointerHeight + 2 * Radius);
    const int height = std::min(wanted, room);
    const int width = std::min(size.width(), screen.width());
    const int tipX = tool.x() + tool.width() / 2;
    const int left = Within(tipX - (centred ? width / 2 : PointerInset), screen.left(),
                            screen.right() + 1 - width);
    const int top = place.Below ? tool.y() + tool.height() : tool.y() - height;

    place.Window = QRect(left, top, width, height);
    place.Body = QRect(0, place.Below ? PointerHeight : 0, width, height - PointerHeight);
    const int tip = Within(tipX - left, NearestToCorner, width - NearestToCorner);
    place.Tip = QPoint(tip, place.Below ? 0 : height);
    return place;
}

QPainterPath BalloonOutline(const BalloonPlace& place) {
    QPainterPath body;
    body.addRoundedRect(QRectF(place.Body).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    const double foot = place.Below ? place.Body.top() + 1.5 : place.Body.bottom() - 0.5;
    const double tip = place.Below ? 0.5 : place.Tip.y() - 0.5;
    QPainterPath pointer;
    pointer.moveTo(place.Tip.x() - PointerHalfWidth, foot);
    pointer.lineTo(place.Tip.x(), tip);
    pointer.lineTo(place.Tip.x() + PointerHalfWidth, foot);
    pointer.closeSubpath();
    return body.united(pointer);
}

QPainterPath PlainTipOutline(const BalloonPlace& place) {
    QPainterPath body;
    body.addRect(QRectF(place.Body).adjusted(0.5, 0.5, -0.5, -0.5));
    return body;
}
