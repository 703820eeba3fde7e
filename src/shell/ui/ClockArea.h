#pragma once

#include <QMdiArea>
#include <QPixmap>

/// Where the clocks stand: the shell's colour and, over it, its background picture.
class ClockArea final : public QMdiArea {
    Q_OBJECT

public:
    explicit ClockArea(QWidget* parent);

    void SetPicture(const QPixmap& picture);  ///< a null one clears it
    const QPixmap& Picture() const { return picture_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
    QPixmap scaled_;  ///< covers the area
};
