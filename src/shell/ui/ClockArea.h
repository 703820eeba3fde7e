#pragma once

#include <QMdiArea>
#include <QPixmap>

#include "foundation/Forms.h"
#include "shell/Arrangement.h"

/// Where the clocks stand: the shell's colour and, over it, its background picture. It arranges
/// them and knows which window is in front.
class ClockArea final : public QMdiArea {
    Q_OBJECT

public:
    explicit ClockArea(QWidget* parent);

    /// Covers the area with a picture, scaled and cut at the edges; a null one clears it.
    void SetPicture(const QPixmap& picture);
    const QPixmap& Picture() const { return picture_; }

    /// Places the child windows that can be seen: the minimised for `Icons`, else the others.
    void Arrange(shell::Arrangement code);

    /// The child window in front; null when there is none.
    IForm* ActiveChild() const;
    /// From now on a key that nobody in @p window has taken is given to the child in front, where
    /// that is disabled and so can't have the focus.
    void WatchKeysOf(QWidget& window);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPixmap picture_;
    QPixmap scaled_;  ///< covers the area
};
