#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "foundation/Program.h"
#include "platform/WallClock.h"
#include "timezones/MapBand.h"

/// A zone on the map.
struct MapDot {
    QString Name;  ///< what is shown while the pointer rests on it
    platform::ZonePlace Place;
    bool Checked = false;
};

/// The map of the world, `imgMap`: it shows the zones as dots over day and night. Moving along it
/// with the left button held down, or with the arrow keys, picks a band of hours; Escape gives it
/// up. A click on a dot picks its zone.
class ZoneMap final : public QWidget {
public:
    struct Handlers {
        std::function<void()> BandChanged;
        std::function<void(int)> DotClicked;
        std::function<void(const QPoint&)> MenuAsked;  ///< at a point of the screen
    };

    ZoneMap(const Program& program, Handlers handlers, QWidget* parent);
    ~ZoneMap() override;

    void SetDots(std::vector<MapDot> dots);
    const std::vector<MapDot>& Dots() const { return dots_; }
    void SetCurrentDot(int dot);  ///< -1 for none
    QPointF PointOfDot(int dot) const;

    const mduTimeZones::MapBand& Band() const { return band_; }
    void ClearBand();

    /// Ends a drag, as letting the button go does.
    void EndDrag();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    mduTimeZones::MapLayout Layout() const { return mduTimeZones::MapLayout(rect()); }
    void TakeBand();
    void StepBand(int hours);
    void PlaceBandShape();
    int DotAt(const QPointF& position) const;
    QString NamesAt(const QPointF& position) const;
    void Hover(int dot);

    // ZoneMapPaint.cpp
    void PaintWorld();
    void PaintNight();
    void DrawPicture(QPainter& painter) const;
    void DrawGraticule(QPainter& painter) const;
    void DrawDots(QPainter& painter) const;
    void DrawDot(QPainter& painter, int dot) const;

    Program program_;
    Handlers handlers_;
    std::vector<MapDot> dots_;
    int current_ = -1;
    int hovered_ = -1;
    mduTimeZones::MapBand band_;
    QWidget* shpArea_;
    bool pressed_ = false;
    bool moved_ = false;
    QPointF pressedAt_;
    std::shared_ptr<const QImage> picture_;
    QPixmap world_;  ///< empty until it is painted for the present size
    QPixmap night_;
    std::unique_ptr<platform::Ticker> timNight_;
};
