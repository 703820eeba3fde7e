#include "drawing/DigitalReadOut.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "drawing/AnalogueFace.h"
#include "drawing/LabelText.h"
#include "foundation/Dates.h"
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

/// The time that a caption tells, whoever wrote it; nothing where it tells none.
std::optional<HandTime> TimeOfCaption(const QString& caption) {
    const auto parsed = mduAPILib::ParseMoment(caption, 2000);
    if (!parsed || !parsed->HasTime) {
        return std::nullopt;
    }
    const QTime time = parsed->Moment.time();
    return HandTime{time.hour(), time.minute(), time.second()};
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
    const QDateTime second = now.addMSecs(-now.time().msec());
    const bool isNew = std::exchange(drawnAt_, second) != second;
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
    const QString special = Special();
    Fill(Value(u"Digital Clock Format"_s));
    SetFonts();
    SetSizes();
    PlaceModel();
    if (special == u"Digital Vertical"_s) {
        Stack();
    } else {
        LineUp(special == u"Digital Backward"_s);
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

QString DigitalReadOut::Special() const {
    return Value(u"Clock Special"_s).trimmed();
}

QString DigitalReadOut::Value(const QString& key) const {
    return mduLib::GetProperty(key, face_.Properties);
}

// The digits are read back out of the caption. A format of the user's own may leave no time in it;
// then they show the time itself.
HandTime DigitalReadOut::WriteCaption(const QString& format) {
    const QTime time = mduTimeZones::GetClockTime(face_.Zone, face_.Clock.Now()).time();
    Model().Caption = DigitalCaption(Holds(format, u"hh"_s) ? format : u"hh:mm:ss"_s, time);
    return TimeOfCaption(Model().Caption)
        .value_or(HandTime{time.hour(), time.minute(), time.second()});
}

void DigitalReadOut::Fill(const QString& format) {
    const HandTime time = WriteCaption(format);
    const bool hasHour = Holds(format, u"hh"_s);
    const bool hasSecond = Holds(format, u"ss"_s);
    const QString half = HalfOfDay(Model().Caption);
    Show(1, hasHour, TwoDigits(time.Hour));
    Show(2, hasHour, u":"_s);
    Show(3, true, TwoDigits(time.Minute));
    Show(4, hasSecond, u":"_s);
    Show(5, hasSecond, TwoDigits(time.Second));
    Show(6, !half.isEmpty(), half);
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
    const bool stacked = Special() == u"Digital Vertical"_s;
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

LabelSteps DigitalReadOut::Steps(double amplitude, int pause, int mode) const {
    const double base = mduAPILib::RoundToInteger(static_cast<double>(Model().Top));
    return AnimateLabels(Labels().Count(), base, amplitude, pause, mode, face_.Random);
}

void DigitalReadOut::Animate() {
    const double travel = GetDigitalTravel();
    const QString special = Special();
    if (special == u"Digital Up Down"_s) {
        LabelSteps steps = Steps(travel, 80, 1);
        const LabelSteps back = Steps(0, 3, 1);
        steps.insert(steps.end(), back.begin(), back.end());
        motion_.Play(std::move(steps));
    } else if (special == u"Digital Up Down Wave"_s) {
        motion_.Play(Steps(mduAPILib::RoundToInteger(travel / 5), 1, 3));
    } else if (special == u"Digital Wave"_s) {
        motion_.Play(Steps(mduAPILib::RoundToInteger(travel / 8), 0, 4));
    }
}

}  // namespace drawing
