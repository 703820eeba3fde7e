#include "clock/Face.h"

#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

QString HandCaption(const QTime& time) {
    QString caption(8, u':');
    const auto put = [&caption](qsizetype at, int value) {
        caption[at] = QChar(u'0' + value / 10);
        caption[at + 1] = QChar(u'0' + value % 10);
    };
    put(0, time.hour());
    put(3, time.minute());
    put(6, time.second());
    return caption;
}

}  // namespace

Face::Face(ClockData& data, mduUILib::ClockControls& controls, Canvas& canvas, const Parts& parts,
           const platform::WallClock& clock, platform::RandomNumbers& random)
    : data_(data),
      controls_(controls),
      canvas_(canvas),
      parts_(parts),
      clock_(clock),
      random_(random),
      analogue_(parts.Dial, parts.Background, random) {}

void Face::ApplyWindowBackground() {
    QString colour = mduLib::GetProperty(u"Window Background Colour"_s, data_.Properties());
    const int value = mduUILib::ColourValue(colour, random_);
    const bool transparent = colour == u"transparent"_s;
    canvas_.SetTransparent(transparent);
    canvas_.SetBackColor(transparent ? canvas_.ParentBackColor() : value);
}

void Face::ReadDigitalFormat() {
    data_.ClockFormat = mduLib::GetProperty(u"Digital Clock Format"_s, data_.Properties());
}

void Face::PrepareClockFace() {
    Invalidate();
    parts_.Dial.SetClockDial(data_.IsAnalogue(), {}, false, false);
    if (data_.Is(Digital) || data_.Is(AnalogueAndDigital)) {
        parts_.Digital.SetDigitalLayout();
    } else {
        parts_.Digital.HideDigitalClock();
    }
    if (data_.Is(Calculator)) {
        parts_.Calculator.SetCalculatorClock(true);
    }
}

void Face::DrawClockFace() {
    if (data_.Is(Analogue)) {
        DrawAnalogue();
        parts_.Overlays.SetSunMoon();
        parts_.Overlays.SetLocationLabel();
    } else if (data_.Is(Digital)) {
        parts_.Digital.DrawDigitalClock(data_.ClockFormat);
        parts_.Overlays.SetLocationLabel();
    } else if (data_.Is(Calculator)) {
        parts_.Calculator.DrawCalculatorClock();
    } else if (data_.Is(AnalogueAndDigital)) {
        DrawAnalogue();
        parts_.Overlays.SetSunMoon();
        parts_.Digital.DrawDigitalClock(data_.ClockFormat);
    }
}

void Face::DrawAnalogue() {
    const QDateTime time = mduTimeZones::GetClockTime(data_.Zone, clock_.Now());
    mduUILib::Control& lblClock = controls_.lblClock(1);
    lblClock.Caption = HandCaption(time.time());
    if (!canvas_.CanBeSeen()) {
        Invalidate();
        return;
    }
    if (revisionRead_ != data_.Revision()) {
        revisionRead_ = data_.Revision();
        look_ = drawing::ReadAnalogueLook(data_.Properties());
    }
    canvas_.Present(analogue_.DrawAnalogueClock(
        canvas_.Surface(), look_, drawing::ReadHandTime(lblClock.Caption), canvas_.BackColor()));
}

}  // namespace clockcore
