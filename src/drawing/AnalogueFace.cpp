#include "drawing/AnalogueFace.h"

#include <algorithm>

#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

HandLook ReadHand(const QString& hand, const ClockProperties& properties) {
    const auto value = [&](const QString& key) {
        return mduLib::GetProperty(hand + key, properties);
    };
    return {ReadHandStyle(value(u" Style"_s)), value(u" Colour"_s),
            mduAPILib::Val(value(u" Length(%)"_s)),
            mduAPILib::IntegerValue(value(u" Line Width"_s))};
}

constexpr int LargestWidth = 4096;  // of a pen, in pixels: wider than any clock

double CentreOf(double percent, int extent) {
    return percent == -1 ? extent / 2.0 : percent * extent / 100;
}

}  // namespace

AnalogueLook ReadAnalogueLook(const ClockProperties& properties) {
    const auto value = [&](const QString& key) { return mduLib::GetProperty(key, properties); };
    return {mduAPILib::Val(value(u"Clock CentralX(%)"_s)),
            mduAPILib::Val(value(u"Clock CentralY(%)"_s)),
            ReadHand(u"Hour Hand"_s, properties),
            ReadHand(u"Minute Hand"_s, properties),
            ReadHand(u"Second Hand"_s, properties),
            value(u"Hand Head Colour"_s),
            value(u"Clock Special"_s).trimmed()};
}

QPointF ClockCentre(const AnalogueLook& look, int scaleWidth, int scaleHeight) {
    return {CentreOf(look.CentralX, scaleWidth), CentreOf(look.CentralY, scaleHeight)};
}

QRect AnalogueFace::DrawAnalogueClock(Surface& surface, const AnalogueLook& look,
                                      const HandTime& time, int backColour) {
    const Frame frame = MakeFrame(surface, look, time, backColour);
    const std::optional<QRect> changed = ChangedPart(frame);
    if (!changed || !changed->isEmpty()) {
        surface.SetClip(changed.value_or(QRect()));
        Paint(surface, frame);
        surface.SetClip({});
    }
    if (look.ClockSpecial == u"Analogue Hour Number Random Colour"_s) {
        dial_.RecolourNumbers();
    }
    last_ = frame;
    return changed.value_or(QRect(QPoint(0, 0), frame.Size));
}

AnalogueFace::Frame AnalogueFace::MakeFrame(const Surface& surface, const AnalogueLook& look,
                                            const HandTime& time, int backColour) {
    Frame frame;
    frame.Size = {surface.ScaleWidth(), surface.ScaleHeight()};
    const QPointF centre = ClockCentre(look, frame.Size.width(), frame.Size.height());
    frame.Cx = ToPoint(centre.x());
    frame.Cy = ToPoint(centre.y());
    const int diameter = std::min(frame.Size.width(), frame.Size.height());
    const HandAngles angles = AnglesAt(time, look.ClockSpecial);
    frame.Hands = {MakeHand(look.Hour, angles.Hour, diameter),
                   MakeHand(look.Minute, angles.Minute, diameter),
                   MakeHand(look.Second, angles.Second, diameter)};
    frame.HeadColour = mduUILib::ColourValue(QString(look.HeadColour), random_);
    frame.BackColour = backColour;
    frame.Height = surface.Height();
    return frame;
}

AnalogueFace::Hand AnalogueFace::MakeHand(const HandLook& look, double angle, int diameter) {
    Hand hand{look.Style, angle, 0, 0, mduUILib::ColourValue(QString(look.Colour), random_)};
    if (look.Style != HandStyle::Unknown) {
        hand.LineWidth = std::min(look.LineWidth, LargestWidth);
        hand.Length = ToPoint(look.LengthPercent * diameter / 200);
    }
    return hand;
}

// Nothing where the whole surface has to be painted.
std::optional<QRect> AnalogueFace::ChangedPart(const Frame& frame) const {
    if (!last_ || frame.Size != last_->Size || frame.Cx != last_->Cx || frame.Cy != last_->Cy ||
        frame.HeadColour != last_->HeadColour || frame.BackColour != last_->BackColour ||
        frame.Height != last_->Height || background_.HasClockPicture() ||
        dial_.NumbersArePainted()) {
        return std::nullopt;
    }
    QRect changed;
    for (std::size_t i = 0; i < frame.Hands.size(); ++i) {
        const Hand& now = frame.Hands[i];
        const Hand& before = last_->Hands[i];
        if (now != before) {
            for (const Hand& hand : {now, before}) {
                changed |= HandBounds(hand.Style, frame.Cx, frame.Cy, hand.Angle, hand.Length,
                                      hand.LineWidth);
            }
        }
    }
    return changed & QRect(QPoint(0, 0), frame.Size);
}

void AnalogueFace::Paint(Surface& surface, const Frame& frame) {
    if (background_.HasClockPicture()) {
        background_.DrawBackgroundPicture();
    } else {
        surface.Cls(frame.BackColour);
    }
    if (dial_.NumbersArePainted()) {
        dial_.DrawDialNumbers(true, {}, true);
    }
    for (const Hand& hand : frame.Hands) {
        DrawClockHand(surface, hand.Style, frame.Cx, frame.Cy, hand.Angle, hand.Length, hand.Colour,
                      hand.LineWidth);
    }
    DrawCentrePoint(surface, frame.Cx, frame.Cy, frame.HeadColour);
}

}  // namespace drawing
