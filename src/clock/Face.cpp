#include "clock/Face.h"

#include "foundation/PropertyLookup.h"
#include "platform/RandomNumbers.h"
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

Face::Face(ClockData& data, mduUILib::ClockControls& controls, drawing::Canvas& canvas,
           const Parts& parts, const platform::WallClock& clock, platform::RandomNumbers& random)
    : data_(data),
      controls_(controls),
      canvas_(canvas),
      parts_(parts),
      clock_(clock),
      random_(random),
      composer_(canvas, controls, parts.Dial, parts.Background) {}

void Face::ApplyWindowBackground() {
    parts_.Background.ApplyTransparency();
    controls_.picFrame(1).ForeColor = canvas_.BackColor();
    StillChanged();
}

void Face::ReadDigitalFormat() {
    data_.ClockFormat = mduLib::GetProperty(u"Digital Clock Format"_s, data_.Properties());
}

void Face::PrepareClockFace() {
    const bool analogue = data_.IsAnalogue();
    parts_.Dial.DrawDialNumbers(analogue ? drawing::DialParts::All : drawing::DialParts::None);
    if (!analogue) {
        hands_.reset();
        parts_.Overlays.HideSunMoon();
    }
    if (!data_.Is(ClockKind::Analogue) && !data_.Is(ClockKind::Digital)) {
        parts_.Overlays.HideLocationLabel();
    }
    PrepareReadOuts();
    StillChanged();
}

void Face::PrepareReadOuts() {
    if (data_.IsDigital()) {
        ReadDigitalFormat();
        parts_.Digital.SetDigitalLayout();
    } else {
        parts_.Digital.HideDigitalClock();
    }
    if (data_.Is(ClockKind::Calculator)) {
        parts_.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    } else if (!data_.IsCalculator()) {
        parts_.Calculator.HideCalculatorClock();
    }
}

void Face::DrawClockFace() {
    if (data_.Is(ClockKind::Analogue)) {
        MoveHands();
        parts_.Overlays.SetSunMoon();
        parts_.Overlays.SetLocationLabel();
    } else if (data_.Is(ClockKind::Digital)) {
        parts_.Digital.DrawDigitalClock(data_.ClockFormat);
        parts_.Overlays.SetLocationLabel();
    } else if (data_.Is(ClockKind::Calculator)) {
        parts_.Calculator.DrawCalculatorClock();
    } else if (data_.Is(ClockKind::AnalogueAndDigital)) {
        MoveHands();
        parts_.Overlays.SetSunMoon();
        parts_.Digital.DrawDigitalClock(data_.ClockFormat);
    }
    ShowChanges();
}

void Face::ShowChanges() {
    if (canvas_.CanBeSeen()) {
        canvas_.Present(composer_.Compose(hands_));
    } else {
        Invalidate();
    }
}

void Face::MoveHands() {
    const QTime time = mduTimeZones::GetClockTime(data_.Zone, clock_.Now()).time();
    if (canvas_.CanBeSeen()) {
        AimHands({time.hour(), time.minute(), time.second()});
    }
    HandText().Caption = HandCaption(time);
}

void Face::AimHands(const drawing::HandTime& time) {
    if (revisionRead_ != data_.Revision()) {
        revisionRead_ = data_.Revision();
        look_ = drawing::ReadAnalogueLook(data_.Properties());
        if (parts_.Dial.NumbersArePainted()) {
            parts_.Dial.DrawDialNumbers(drawing::DialParts::Numbers);
        }
    }
    RecolourNumbers();
    hands_ = drawing::MakeHandsFrame(canvas_.Surface(), look_, time, random_);
}

// Numbers that take a colour by chance take another at each pass.
void Face::RecolourNumbers() {
    if (!parts_.Dial.NumbersAreRandom()) {
        return;
    }
    if (look_.Special == drawing::ClockSpecial::RandomNumberColour) {
        parts_.Dial.RecolourNumbers();
    } else {
        parts_.Dial.DrawDialNumbers(drawing::DialParts::Numbers);
    }
    Invalidate();
}

}  // namespace clockcore
