#include <QPainter>

#include "timezones/SunShade.h"
#include "timezones/ui/ZoneMap.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int NightStrength = 135;  // of 255
constexpr int NightGrain = 4;       // pixels of the map to one that is worked out
constexpr double DotRadius = 3.2;
constexpr double SmallDotRadius = 2.4;
constexpr std::size_t ManyDots = 200;

const QColor sea(0x2B, 0x5C, 0x86);
const QColor lineColour(0xFF, 0xFF, 0xFF, 70);
const QColor strongLine(0xFF, 0xFF, 0xFF, 140);
const QColor dotColour(0xF4, 0xF7, 0xFA);
const QColor checkedColour(0xFF, 0xB3, 0x00);
const QColor dotEdge(0x10, 0x1C, 0x2C);

/// Draws a picture of the world and its copies to the left and right.
void DrawAround(QPainter& painter, const QRectF& world, const QPixmap& picture) {
    for (const int round : {-1, 0, 1}) {
        painter.drawPixmap(world.translated(round * world.width(), 0), picture,
                           QRectF(picture.rect()));
    }
}

}  // namespace

void ZoneMap::paintEvent(QPaintEvent*) {
    if (world_.isNull()) {
        PaintWorld();
    }
    if (night_.isNull()) {
        PaintNight();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, world_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    DrawAround(painter, Layout().World(), night_);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawDots(painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void ZoneMap::PaintWorld() {
    const double ratio = devicePixelRatioF();
    world_ = QPixmap(size() * ratio);
    world_.setDevicePixelRatio(ratio);
    world_.fill(sea);
    QPainter painter(&world_);
    const QString path = program_.Module.Paths.ImagesFolder + u"WorldMap.png"_s;
    picture_ = program_.Module.Pictures.Load(program_.Services.FileSystem, path);
    if (picture_ == nullptr) {
        DrawGraticule(painter);
    } else {
        DrawPicture(painter);
    }
}

void ZoneMap::DrawPicture(QPainter& painter) const {
    const QRectF world = Layout().World();
    const QSize pixels = (world.size() * devicePixelRatioF()).toSize();
    const QImage scaled = picture_->scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    DrawAround(painter, world, QPixmap::fromImage(scaled));
}

void ZoneMap::DrawGraticule(QPainter& painter) const {
    const mduTimeZones::MapLayout layout = Layout();
    const QRectF world = layout.World();
    const auto pen = [&](int degrees) {
        painter.setPen(QPen(degrees == 0 ? strongLine : lineColour, 1));
    };
    for (int longitude = -195; longitude <= 225; longitude += 15) {
        pen(longitude);
        const double x = layout.PointOf({0, static_cast<double>(longitude)}).x();
        painter.drawLine(QPointF(x, world.top()), QPointF(x, world.bottom()));
    }
    for (int latitude = -90; latitude <= 90; latitude += 30) {
        pen(latitude);
        const double y = layout.PointOf({static_cast<double>(latitude), 0}).y();
        painter.drawLine(QPointF(0, y), QPointF(width(), y));
    }
}

void ZoneMap::PaintNight() {
    const platform::WallClock& clock = program_.Services.Clock;
    const QSize grain = (Layout().World().size() / NightGrain).toSize().expandedTo(QSize(2, 1));
    const QDateTime gmt = clock.Now().addSecs(-clock.OffsetFromGmt());
    night_ = QPixmap::fromImage(mduTimeZones::NightPicture(gmt, grain, NightStrength));
}

void ZoneMap::DrawDots(QPainter& painter) const {
    const int count = static_cast<int>(dots_.size());
    for (const bool checked : {false, true}) {
        for (int dot = 0; dot < count; ++dot) {
            const bool isMarked = dot == current_ || dot == hovered_;
            if (dots_[static_cast<std::size_t>(dot)].Checked == checked && !isMarked) {
                DrawDot(painter, dot);
            }
        }
    }
    for (const int marked : {current_, hovered_}) {
        if (marked >= 0 && marked < count) {
            DrawDot(painter, marked);
        }
    }
}

void ZoneMap::DrawDot(QPainter& painter, int dot) const {
    const QPointF point = PointOfDot(dot);
    double radius = dots_.size() > ManyDots ? SmallDotRadius : DotRadius;
    painter.setPen(QPen(dotEdge, 1));
    if (dot == current_) {
        painter.setBrush(palette().color(QPalette::Highlight));
        painter.drawEllipse(point, DotRadius + 4, DotRadius + 4);
    }
    if (dot == current_ || dot == hovered_) {
        radius = DotRadius + 1.5;
    }
    painter.setBrush(dots_[static_cast<std::size_t>(dot)].Checked ? checkedColour : dotColour);
    painter.drawEllipse(point, radius, radius);
}
