#pragma once

#include <QWidget>
#include <functional>

#include "foundation/BalloonPlace.h"

/// What a balloon says and how it looks.
struct BalloonLook {
    QString Title;
    QString Text;  ///< plain; its line breaks are kept
    int Icon = 0;  ///< 0 none, 1 information, 2 warning, 3 error
    QColor Back;
    QColor Fore;
    bool IsBalloon = true;  ///< otherwise a plain rectangle without a pointer
};

/// How a balloon stands at its tool.
enum class BalloonStand {
    Hanging,  ///< below or above it, to the right
    Centred,  ///< below or above it, in its middle
    Beside    ///< at its side
};

/// The window of a balloon: it paints what it is told and answers a click, and decides nothing.
class BalloonWindow final : public QWidget {
public:
    /// @param onClick is called for a press on the balloon; the window must outlive the call
    BalloonWindow(QWidget* owner, std::function<void()> onClick);

    /// Shows the look beside @p tool, which is given in pixels of the screen.
    void Appear(const BalloonLook& look, const QRect& tool, BalloonStand stand);

    /// Where it stands, and to which side it points.
    const BalloonPlace& Place() const { return place_; }
    const BalloonLook& Look() const { return look_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QSize BodySize(int widest) const;
    QSize TitleSize(int widest) const;
    QSize TextSize(int widest) const;
    QFont TitleFont() const;
    QPainterPath Outline() const;
    int IconSpace() const;

    std::function<void()> onClick_;
    BalloonLook look_;
    BalloonPlace place_;
};
