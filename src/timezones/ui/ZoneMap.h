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
///
/// The ground is "WorldMap.png" of the images; without it, a net of lines each 15 degrees of
/// longitude and 30 of latitude. Night is worked out anew each minute while the map can be seen. A
/// movement of up to 3 pixels is still a click.
class ZoneMap final : public QWidget {
public:
    /// All must be given.
    struct Handlers {
        /// There is another band, or none any more; `Band` tells which.
        std::function<void()> BandChanged;
        /// @param dot its number in `Dots`
        std::function<void(int)> DotClicked;
        std::function<void(const QPoint&)> MenuAsked;  ///< at a point of the screen
    };

    ZoneMap(const Program& program, Handlers handlers, QWidget* parent);
    ~ZoneMap() override;

    /// Replaces all dots. None of the new ones is current.
    void SetDots(std::vector<MapDot> dots);
    /// In the order in which they are painted: a later dot lies over an earlier one.
    const std::vector<MapDot>& Dots() const { return dots_; }
    /// Lights the dot of the current row.
    /// @param dot its number in `Dots`; -1 for none
    void SetCurrentDot(int dot);
    /// The middle of a dot, in pixels of the map. It lies outside where the map is too low for it.
    QPointF PointOfDot(int dot) const;

    /// The hours that are picked, in their two forms; see `MapBand`.
    const mduTimeZones::MapBand& Band() const { return band_; }
    /// Gives the band up. `BandChanged` is called also when there was none.
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
    /// Shows the band that has been picked, and tells of it.
    void TakeBand();
    /// Moves the band by whole hours, from -12 to 14; the first step of all picks Greenwich.
    void StepBand(int hours);
    void PlaceBandShape();
    /// The dot nearest to a pixel, the one on top where several are; -1 when none lies within 7
    /// pixels.
    int DotAt(const QPointF& position) const;
    /// The names of the dots within 7 pixels, one a line, the nearest first, four at most;
    /// a last line tells how many more there are.
    QString NamesAt(const QPointF& position) const;
    void Hover(int dot);

    // ZoneMapPaint.cpp
    /// Fills `world_` and `night_` for the present size.
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
    /// Whether the mouse has gone too far for a click since the button went down.
    bool moved_ = false;
    QPointF pressedAt_;
    std::shared_ptr<const QImage> picture_;
    QPixmap world_;  ///< empty until it is painted for the present size
    /// The shade of night, coarser than the map; empty until it is worked out for this minute.
    QPixmap night_;
    std::unique_ptr<platform::Ticker> timNight_;
};
