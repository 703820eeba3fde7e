#include "foundation/BalloonPlace.h"

#include <algorithm>

namespace {

constexpr int PointerHeight = 12;
constexpr int PointerInset = 24;  ///< from the body's left or upper edge to the pointer
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
    const bool below = roomBelow >= wanted || roomBelow >= roomAbove;
    place.Side = below ? BalloonSide::Below : BalloonSide::Above;

    const int room = std::max(below ? roomBelow : roomAbove, PointerHeight + 2 * Radius);
    const int height = std::min(wanted, room);
    const int width = std::min(size.width(), screen.width());
    const int tipX = tool.x() + tool.width() / 2;
    const int left = Within(tipX - (centred ? width / 2 : PointerInset), screen.left(),
                            screen.right() + 1 - width);
    const int top = below ? tool.y() + tool.height() : tool.y() - height;

    place.Window = QRect(left, top, width, height);
    place.Body = QRect(0, below ? PointerHeight : 0, width, height - PointerHeight);
    const int tip = Within(tipX - left, NearestToCorner, width - NearestToCorner);
    place.Tip = QPoint(tip, below ? 0 : height);
    return place;
}

BalloonPlace PlaceBalloonBeside(const QSize& size, const QRect& tool, const QRect& screen) {
    const int roomRight = screen.right() + 1 - tool.x() - tool.width();
    const int roomLeft = tool.x() - screen.left();
    const int wanted = size.width() + PointerHeight;
    const bool right = roomRight >= wanted || roomRight >= roomLeft;
    const int room = std::max(right ? roomRight : roomLeft, PointerHeight + 2 * Radius);
    const int width = std::min(wanted, room);
    const int height = std::min(size.height(), screen.height());
    const int tipY = tool.y() + tool.height() / 2;
    const int top = Within(tipY - PointerInset, screen.top(), screen.bottom() + 1 - height);
    const int left = right ? tool.x() + tool.width() : tool.x() - width;

    BalloonPlace place;
    place.Side = right ? BalloonSide::Right : BalloonSide::Left;
    place.Window = QRect(left, top, width, height);
    place.Body = QRect(right ? PointerHeight : 0, 0, width - PointerHeight, height);
    const int tip = Within(tipY - top, NearestToCorner, height - NearestToCorner);
    place.Tip = QPoint(right ? 0 : width, tip);
    return place;
}

namespace {

QPainterPath Triangle(const QPointF& first, const QPointF& tip, const QPointF& last) {
    QPainterPath triangle(first);
    triangle.lineTo(tip);
    triangle.lineTo(last);
    triangle.closeSubpath();
    return triangle;
}

QPainterPath Pointer(const BalloonPlace& place) {
    if (place.Side == BalloonSide::Left || place.Side == BalloonSide::Right) {
        const bool right = place.Side == BalloonSide::Right;
        const double foot = right ? place.Body.left() + 1.5 : place.Body.right() - 0.5;
        const double tip = right ? 0.5 : place.Tip.x() - 0.5;
        return Triangle({foot, place.Tip.y() - 1.0 * PointerHalfWidth}, {tip, 1.0 * place.Tip.y()},
                        {foot, place.Tip.y() + 1.0 * PointerHalfWidth});
    }
    const bool below = place.Side == BalloonSide::Below;
    const double foot = below ? place.Body.top() + 1.5 : place.Body.bottom() - 0.5;
    const double tip = below ? 0.5 : place.Tip.y() - 0.5;
    return Triangle({place.Tip.x() - 1.0 * PointerHalfWidth, foot}, {1.0 * place.Tip.x(), tip},
                    {place.Tip.x() + 1.0 * PointerHalfWidth, foot});
}

}  // namespace

QPainterPath BalloonOutline(const BalloonPlace& place) {
    QPainterPath body;
    body.addRoundedRect(QRectF(place.Body).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    return body.united(Pointer(place));
}

QPainterPath PlainTipOutline(const BalloonPlace& place) {
    QPainterPath body;
    body.addRect(QRectF(place.Body).adjusted(0.5, 0.5, -0.5, -0.5));
    return body;
}
