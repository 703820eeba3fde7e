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

/// The window of a balloon: it paints what it is told and answers a click, and decides nothing. It
/// never takes the focus. It is as wide as its text, whose lines are broken at 540 pixels, and
/// sooner on a narrow screen. Title and text are also told to screen readers when it appears.
class BalloonWindow final : public QWidget {
public:
    /// @param owner gives the font, and takes the window with it when it goes
    /// @param onClick is called for a press on the balloon; the window must outlive the call
    BalloonWindow(QWidget* owner, std::function<void()> onClick);

    /// Shows the look beside @p tool, which is given in pixels of the screen, on the screen that
    /// holds the tool's middle. One that is shown already moves.
    void Appear(const BalloonLook& look, const QRect& tool, BalloonStand stand);

    /// Where it stands, and to which side it points.
    const BalloonPlace& Place() const { return place_; }
    /// What `Appear` was told last.
    const BalloonLook& Look() const { return look_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    /// The size of title, icon and text with the margins around them, where a line of text is no
    /// longer than @p widest pixels.
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
