#pragma once

#include <QWidget>
#include <memory>

namespace clockcore {

/// What the mouse looks like over a clock. It is changed only when it is to look otherwise, so that
/// each move of the mouse may ask.
class MousePointer {
public:
    explicit MousePointer(QWidget& form) : form_(form) {}

    /// The desktop's own arrow.
    void ShowArrow() { Show(Qt::ArrowCursor, {}); }
    /// An open hand, over what can be dragged; a closed one, while that moves.
    void ShowHand(bool closed) { Show(closed ? Qt::ClosedHandCursor : Qt::OpenHandCursor, {}); }
    /// A picture, 16 logical pixels large; the arrow where it is null or empty.
    void ShowMark(const std::shared_ptr<const QImage>& mark);

private:
    void Show(Qt::CursorShape shape, const std::shared_ptr<const QImage>& mark);

    QWidget& form_;
    Qt::CursorShape shape_ = Qt::ArrowCursor;
    std::shared_ptr<const QImage> mark_;
};

}  // namespace clockcore
