#include <QPainter>
#include <algorithm>

#include "drawing/AnalogueFace.h"
#include "drawing/ClockBackground.h"
#include "drawing/ClockPlate.h"
#include "drawing/Hands.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using mduAPILib::RoundToInteger;

namespace drawing {

namespace {

constexpr double MostPercent = 400;  // of a picture's size, either way
constexpr double LeastSide = 100;    // of a picture, in logical pixels
constexpr int SpeckSide = 5;

QSize SizeOf(const Surface& surface) {
    return {surface.ScaleWidth(), surface.ScaleHeight()};
}

qint64 Area(const QSize& size) {
    return static_cast<qint64>(size.width()) * size.height();
}

QRect Around(const QPoint& centre, const QSize& size) {
    return {centre.x() - size.width() / 2, centre.y() - size.height() / 2, size.width(),
            size.height()};
}

/// The size to keep a picture at. One that reaches far over the surface is stretched as it is
/// painted, since most of it is never seen.
QSize KeptSize(const QSize& box, const QSize& surface, const QImage& picture) {
    constexpr qint64 small = 1'000'000;
    return Area(box) <= std::max(2 * Area(surface), small) ? box : picture.size();
}

void PaintStretched(QPainter& painter, const QRect& box, const QImage& picture) {
    if (picture.size() == box.size()) {
        painter.drawImage(box.topLeft(), picture);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(box, picture);
    }
}

/// Through a brush, since a clip by a path has a ragged edge.
void PaintThroughHole(QPainter& painter, const QRect& box, const QImage& picture,
                      const QPainterPath& hole) {
    QBrush brush(picture);
    brush.setTransform(QTransform::fromTranslate(box.x(), box.y())
                           .scale(box.width() / static_cast<double>(picture.width()),
                                  box.height() / static_cast<double>(picture.height())));
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, picture.size() != box.size());
    painter.setClipRect(box, Qt::IntersectClip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawPath(hole);
    painter.restore();
}

}  // namespace

QRect ClockBackground::PictureBox(const Surface& surface) const {
    const int smallest = RoundToInteger(LeastSide * surface.DevicePixelRatio());
    int margin = 0;
    if (HasClockPicture()) {
        const double percent = std::clamp<double>(
            mduAPILib::IntegerValue(Property(u"Clock Image Size(%)"_s)), -MostPercent, MostPercent);
        margin = RoundToInteger((1 - percent / 100) * surface.ScaleHeight() / 2);
    }
    return {margin, margin, std::max(surface.ScaleWidth() - 2 * margin, smallest),
            std::max(surface.ScaleHeight() - 2 * margin, smallest)};
}

void ClockBackground::Place(const Surface& surface) const {
    mduUILib::ControlArray& imgClock = face_.Controls.imgClock;
    const QPointF exact =
        ClockCentre(face_.Properties, surface.ScaleWidth(), surface.ScaleHeight());
    const QPoint centre(ToPoint(exact.x()), ToPoint(exact.y()));
    const bool speck = imgClock(0).Picture && !imgClock(1).Picture && face_.Window.IsTransparent();
    if (speck) {
        imgClock(1).Picture = face_.Controls.picFrame(1).Picture;
    }
    placing_.Surface = SizeOf(surface);
    placing_.Box = speck ? Around(centre, {SpeckSide, SpeckSide}) : PictureBox(surface);
    placing_.Hole = ShapePath(
        ReadShape(Property(u"Clock Shape"_s)),
        imgClock(1).Picture ? Around(centre, placing_.Box.size()) : PlateBox(centre, surface));
    placing_.Brightness = mduAPILib::IntegerValue(Property(u"Clock Image Brightness(%)"_s));
    mduUILib::Control& image = imgClock(1);
    image.Width = static_cast<float>(placing_.Box.width());
    image.Height = static_cast<float>(placing_.Box.height());
    const float half = 0.5F;
    image.Left = speck ? static_cast<float>(centre.x()) - image.Width * half
                       : static_cast<float>(placing_.Box.x());
    image.Top = speck ? static_cast<float>(centre.y()) - image.Height * half
                      : static_cast<float>(placing_.Box.y());
    image.Visible = image.Visible && !(image.Picture && !face_.Window.IsTransparent());
}

void ClockBackground::DrawBackgroundPicture(Surface& surface) const {
    if (placing_.Surface != SizeOf(surface)) {
        Place(surface);
    }
    const Picture& picture = face_.Controls.imgClock(1).Picture;
    if (CoversAll(picture)) {
        surface.Paint([&](QPainter& painter) { PaintDial(painter, picture, dial_); });
        return;
    }
    surface.Cls(face_.Window.BackColor());
    surface.Paint([&](QPainter& painter) {
        PaintLayers(painter, picture, dial_, surface.DevicePixelRatio());
        if (wipe_.IsUnderWay()) {
            PaintWipe(painter, surface.DevicePixelRatio());
        }
    });
}

bool ClockBackground::CoversAll(const Picture& picture) const {
    return picture && !picture->hasAlphaChannel() && placing_.Hole.isEmpty() &&
           !wipe_.IsUnderWay() && placing_.Box.contains(QRect(QPoint(), placing_.Surface));
}

void ClockBackground::PaintWipe(QPainter& painter, double devicePixelRatio) const {
    painter.save();
    painter.setClipRegion(WipeRevealed(wipe_.Mode(), placing_.Surface, wipe_.Part()),
                          Qt::IntersectClip);
    painter.fillRect(QRect(QPoint(), placing_.Surface), QColor(ToRgb(face_.Window.BackColor())));
    PaintLayers(painter, face_.Controls.imgClock(0).Picture, next_, devicePixelRatio);
    painter.restore();
    PaintWipeBand(painter, wipe_.Mode(), placing_.Surface, wipe_.Part(), devicePixelRatio);
}

void ClockBackground::PaintLayers(QPainter& painter, const Picture& dial, Picture& stretched,
                                  double devicePixelRatio) const {
    mat_ = face_.Pictures.Scaled(face_.Controls.picFrame(1).Picture, placing_.Surface);
    if (mat_) {
        painter.drawImage(0, 0, *mat_);
    }
    if (!dial && !placing_.Hole.isEmpty()) {
        const PlateGround ground = mat_                           ? PlateGround::Picture
                                   : face_.Window.IsTransparent() ? PlateGround::SeeThrough
                                                                  : PlateGround::Colour;
        PaintPlate(painter, placing_.Hole, QColor(ToRgb(face_.Window.BackColor())), ground,
                   devicePixelRatio);
    }
    PaintDial(painter, dial, stretched);
}

void ClockBackground::PaintDial(QPainter& painter, const Picture& dial, Picture& stretched) const {
    const QRect& box = placing_.Box;
    stretched = dial ? face_.Pictures.Scaled(dial, KeptSize(box.size(), placing_.Surface, *dial),
                                             placing_.Brightness)
                     : nullptr;
    if (stretched && placing_.Hole.isEmpty()) {
        PaintStretched(painter, box, *stretched);
    } else if (stretched) {
        PaintThroughHole(painter, box, *stretched, placing_.Hole);
    }
}

}  // namespace drawing
