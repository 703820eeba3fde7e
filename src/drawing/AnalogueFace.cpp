#include "drawing/AnalogueFace.h"

#include <algorithm>
#include <cmath>

#include "drawing/Hands.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "platform/RandomNumbers.h"

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

constexpr int LargestPen = 4096;  // pixels: wider than any clock

double CentreOf(double percent, int extent) {
    return percent == -1 ? extent / 2.0 : percent * extent / 100;
}

HandsFrame::Hand MakeHand(const HandLook& look, double angle, int diameter,
                          platform::RandomNumbers& random) {
    HandsFrame::Hand hand{look.Style, angle, 0, 0, mduUILib::ColourValue(look.Colour, random)};
    if (look.Style != HandStyle::Unknown) {
        hand.LineWidth = IsPen(look.Style) ? std::min(look.LineWidth, LargestPen) : look.LineWidth;
        hand.Length = ToPoint(look.LengthPercent * diameter / 200);
    }
    return hand;
}

QRect HubBounds(const HandsFrame& frame, double devicePixelRatio) {
    const int reach =
        static_cast<int>(std::ceil(CentrePointRings(frame.Height) * devicePixelRatio)) + 1;
    return {frame.Cx - reach, frame.Cy - reach, 2 * reach + 1, 2 * reach + 1};
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
            ReadClockSpecial(properties)};
}

QPointF ClockCentre(const AnalogueLook& look, int scaleWidth, int scaleHeight) {
    return {CentreOf(look.CentralX, scaleWidth), CentreOf(look.CentralY, scaleHeight)};
}

QPointF ClockCentre(const ClockProperties& properties, int scaleWidth, int scaleHeight) {
    const auto percent = [&](const QString& key) {
        return mduAPILib::Val(mduLib::GetProperty(key, properties));
    };
    return {CentreOf(percent(u"Clock CentralX(%)"_s), scaleWidth),
            CentreOf(percent(u"Clock CentralY(%)"_s), scaleHeight)};
}

HandsFrame MakeHandsFrame(const Surface& surface, const AnalogueLook& look, const HandTime& time,
                          platform::RandomNumbers& random) {
    HandsFrame frame;
    const QPointF centre = ClockCentre(look, surface.ScaleWidth(), surface.ScaleHeight());
    frame.Cx = ToPoint(centre.x());
    frame.Cy = ToPoint(centre.y());
    const int diameter = std::min(surface.ScaleWidth(), surface.ScaleHeight());
    const HandAngles angles = AnglesAt(time, look.Special);
    frame.Hands = {MakeHand(look.Hour, angles.Hour, diameter, random),
                   MakeHand(look.Minute, angles.Minute, diameter, random),
                   MakeHand(look.Second, angles.Second, diameter, random)};
    frame.HeadColour = mduUILib::ColourValue(look.HeadColour, random);
    frame.Height = surface.Height();
    return frame;
}

void PaintHands(Surface& surface, const HandsFrame& frame) {
    for (const HandsFrame::Hand& hand : frame.Hands) {
        DrawClockHand(surface, hand.Style, frame.Cx, frame.Cy, hand.Angle, hand.Length, hand.Colour,
                      hand.LineWidth);
    }
    DrawCentrePoint(surface, frame.Cx, frame.Cy, frame.HeadColour);
}

QRect HandsDifference(const HandsFrame& before, const HandsFrame& now, double devicePixelRatio) {
    const bool moved = before.Cx != now.Cx || before.Cy != now.Cy;
    QRect changed;
    for (std::size_t i = 0; i < now.Hands.size(); ++i) {
        if (!moved && before.Hands[i] == now.Hands[i]) {
            continue;
        }
        for (const HandsFrame* frame : {&before, &now}) {
            const HandsFrame::Hand& hand = frame->Hands[i];
            changed |= HandBounds(hand.Style, frame->Cx, frame->Cy, hand.Angle, hand.Length,
                                  hand.LineWidth, devicePixelRatio);
        }
    }
    if (moved || before.HeadColour != now.HeadColour || before.Height != now.Height) {
        changed |= HubBounds(before, devicePixelRatio) | HubBounds(now, devicePixelRatio);
    }
    return changed;
}

}  // namespace drawing
