#include "drawing/DigitalReadOut.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "drawing/AnalogueFace.h"
#include "drawing/LabelText.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneArithmetic.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

using mduUILib::Control;

constexpr int SmallestSize = 4;
constexpr int LargestSize = 3000;         // in points: some thousand pixels
constexpr double AutomaticSize = 0.0075;  // points for each twip of the window's width
constexpr double Margin = 10;             // pixels kept free at the left and the top
constexpr double FarAway = 1e6;           // pixels or percent; outside of any surface

/// A place as controls hold it.
float Place(double value) {
    return static_cast<float>(std::clamp(value, -FarAway, FarAway));
}

QString TwoDigits(int value) {
    return u"%1"_s.arg(value, 2, 10, QChar(u'0'));
}

bool Holds(const QString& format, const QString& part) {
    return format.contains(part, Qt::CaseInsensitive);
}

QString HalfOfDay(const QString& caption) {
    const bool hasMark = Holds(caption, u"AM"_s) || Holds(caption, u"PM"_s);
    return hasMark ? caption.trimmed().right(2) : QString();
}

}  // namespace

QString DigitalCaption(const QString& format, const QTime& time) {
    const auto put = [](QString& text, const QString& part, const QString& value) {
        text.replace(part, value, Qt::CaseInsensitive);
    };
    QString caption = format;
    put(caption, u"hh"_s, TwoDigits(time.hour()));
    put(caption, u"mm"_s, TwoDigits(time.minute()));
    put(caption, u"ss"_s, TwoDigits(time.second()));
    put(caption, u"ampm"_s, time.hour() < 12 ? u"AM"_s : u"PM"_s);
    return caption;
}

DigitalReadOut::DigitalReadOut(const FaceContext& face)
    : face_(face), motion_(face.Controls.lblDigitalNumber, face.Window, face.Clock) {}

// A motion belongs to a second: further passes in the same one leave it alone.
void DigitalReadOut::DrawDigitalClock(const QString& format) {
    const QDateTime now = mduTimeZones::GetClockTime(face_.Zone, face_.Clock.Now());
    const bool isNew = turn_.IsNew(now);
    if (isNew) {
        motion_.Finish();
    }
    Fill(format);
    if (isNew) {
        Animate();
    }
}

void DigitalReadOut::SetDigitalLayout() {
    motion_.Finish();
    const ClockSpecial special = Special();
    Fill(Value(u"Digital Clock Format"_s));
    SetFonts();
    SetSizes();
    PlaceModel();
    if (special == ClockSpecial::DigitalVertical) {
        Stack();
    } else {
        LineUp(special == ClockSpecial::DigitalBackward);
    }
    face_.Window.ShowChanges();
}

void DigitalReadOut::HideDigitalClock() {
    motion_.Finish();
    for (Control& label : Labels().Members) {
        label.Visible = false;
    }
}

void DigitalReadOut::FinishMotion() {
    if (motion_.Finish()) {
        face_.Window.ShowChanges();
    }
}

int DigitalReadOut::GetDigitalFontSize() const {
    const int size = mduAPILib::IntegerValue(Value(u"Digital Font Size"_s));
    const int used =
        size == -1 ? static_cast<int>(face_.Window.OuterSize().width() * AutomaticSize) : size;
    return std::max(used, SmallestSize);
}

int DigitalReadOut::GetDigitalTravel() const {
    const double height = static_cast<double>(Labels()(1).Height);
    return mduAPILib::RoundToInteger(face_.Window.Surface().ScaleHeight() - height / 2);
}

QString DigitalReadOut::Value(const QString& key) const {
    return mduLib::GetProperty(key, face_.Properties);
}

// The labels show the time itself, and "AM" or "PM" as the caption has it, whatever else a format
// of the user's own holds. The caption is written last.
void DigitalReadOut::Fill(const QString& format) {
    const QTime time = mduTimeZones::GetClockTime(face_.Zone, face_.Clock.Now()).time();
    const bool hasHour = Holds(format, u"hh"_s);
    const bool hasSecond = Holds(format, u"ss"_s);
    const QString caption = DigitalCaption(hasHour ? format : u"hh:mm:ss"_s, time);
    const QString half = HalfOfDay(caption);
    Show(1, hasHour, TwoDigits(time.hour()));
    Show(2, hasHour, u":"_s);
    Show(3, true, TwoDigits(time.minute()));
    Show(4, hasSecond, u":"_s);
    Show(5, hasSecond, TwoDigits(time.second()));
    Show(6, !half.isEmpty(), half);
    Model().Caption = caption;
}

void DigitalReadOut::Show(int label, bool visible, const QString& caption) {
    Control& digits = Labels()(label);
    digits.Visible = visible;
    if (visible && digits.Caption != caption) {
        digits.Caption = caption;
    }
}

void DigitalReadOut::SetFonts() {
    QFont font(Value(u"Digital Clock Font"_s).trimmed());
    font.setPointSize(std::min(GetDigitalFontSize(), LargestSize));
    const int colour = mduUILib::ColourValue(Value(u"Digital Clock Colour"_s), face_.Random);
    Model().Font = font;
    Model().ForeColor = colour;
    Model().Visible = false;
    for (Control& label : Labels().Members) {
        label.Font = font;
        label.ForeColor = colour;
    }
}

// A label has the width of the widest text it may show, so that nothing moves with the digits. In
// a column all are as wide as the widest, which centres one under the other.
void DigitalReadOut::SetSizes() {
    const double ratio = face_.Window.Surface().DevicePixelRatio();
    const auto widthOf = [&](const QString& text) {
        return static_cast<float>(TextSize(Model().Font, text, ratio).width());
    };
    AutoSize(Model(), ratio);
    const float digits = widthOf(u"00"_s);
    const float colon = widthOf(u":"_s);
    const float mark = std::max(widthOf(u"AM"_s), widthOf(u"PM"_s));
    const float column = std::max(digits, mark);
    const bool stacked = Special() == ClockSpecial::DigitalVertical;
    const std::array<float, 6> widths = {digits, colon, digits, colon, digits, mark};
    for (std::size_t i = 0; i < widths.size(); ++i) {
        Control& label = Labels().Members[i];
        label.Width = stacked ? column : widths[i];
        label.Height = Model().Height;
    }
}

void DigitalReadOut::PlaceModel() {
    const Surface& surface = face_.Window.Surface();
    const double ratio = surface.DevicePixelRatio();
    const QPointF centre =
        ClockCentre(face_.Properties, surface.ScaleWidth(), surface.ScaleHeight());
    const auto rawPlace = [&](const QString& key) {
        return std::clamp(mduAPILib::Val(Value(key)), -FarAway, FarAway);
    };
    const double x = rawPlace(u"Digital Clock CentralX(%)"_s);
    const double y = rawPlace(u"Digital Clock CentralY(%)"_s);
    const double size = Model().Font.pointSize() * ratio;
    const double width = static_cast<double>(Model().Width);
    const double height = static_cast<double>(Model().Height);
    const double top = y == -1 ? std::max(centre.y() - 0.75 * height, Margin * ratio)
                               : y * surface.ScaleHeight() / 100;
    const double left = x == -1 ? std::max(centre.x() - (size / 2 + width) / 2, Margin * ratio)
                                : x * surface.ScaleWidth() / 100;
    Model().Top = Place(top);
    Model().Left = Place(left);
}

void DigitalReadOut::LineUp(bool backward) {
    const double gap =
        2.0 * Model().Font.pointSize() / 10 * face_.Window.Surface().DevicePixelRatio();
    const int count = Labels().Count();
    double x = std::nearbyint(static_cast<double>(Model().Left));
    for (int i = 1; i <= count; ++i) {
        Control& label = Labels()(backward ? count + 1 - i : i);
        label.Top = Model().Top;
        if (label.Visible) {
            label.Left = Place(x);
            x = std::nearbyint(x + static_cast<double>(label.Width) + gap);
        }
    }
}

// A hidden label keeps its place and leaves a gap.
void DigitalReadOut::Stack() {
    const Surface& surface = face_.Window.Surface();
    const QPointF centre =
        ClockCentre(face_.Properties, surface.ScaleWidth(), surface.ScaleHeight());
    const double x = std::nearbyint(centre.x() - static_cast<double>(Labels()(1).Width) / 2);
    double y = Margin * surface.DevicePixelRatio();
    for (Control& label : Labels().Members) {
        label.Left = Place(x);
        label.Top = Place(y);
        y = std::nearbyint(y + static_cast<double>(label.Height));
    }
}

LabelSteps DigitalReadOut::Steps(double amplitude, int pause, Motion motion) const {
    const double base = mduAPILib::RoundToInteger(static_cast<double>(Model().Top));
    return AnimateLabels(Labels().Count(), base, amplitude, pause, motion, face_.Random);
}

void DigitalReadOut::Animate() {
    const double travel = GetDigitalTravel();
    const ClockSpecial special = Special();
    if (special == ClockSpecial::DigitalUpDown) {
        LabelSteps steps = Steps(travel, 80, Motion::Arc);
        const LabelSteps back = Steps(0, 3, Motion::Arc);
        steps.insert(steps.end(), back.begin(), back.end());
        motion_.Play(std::move(steps));
    } else if (special == ClockSpecial::DigitalUpDownWave) {
        motion_.Play(Steps(mduAPILib::RoundToInteger(travel / 5), 1, Motion::Sine));
    } else if (special == ClockSpecial::DigitalWave) {
        motion_.Play(Steps(mduAPILib::RoundToInteger(travel / 8), 0, Motion::Wave));
    }
}

}  // namespace drawing
