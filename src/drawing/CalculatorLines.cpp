#include "drawing/CalculatorLines.h"

#include <algorithm>
#include <cmath>

#include "drawing/LabelText.h"
#include "foundation/Dates.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneConversion.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

using mduUILib::Control;

constexpr int Tab = 9;
constexpr int Esc = 27;
constexpr double SmallestSize = 4;    // points
constexpr double LargestSize = 3000;  // points: some thousand pixels
constexpr double PointsPerPixel = 0.75;
constexpr double Margin = 4;        // pixels kept free at the left
constexpr double LinesApart = 0.4;  // of a line's height
constexpr double Filled = 0.92;     // of the surface, by lines of an automatic size

constexpr double HintSize = 0.6;                      // of the local line's
constexpr double SmallestHint = 7, LargestHint = 12;  // points
constexpr double HintApart = 0.5;                     // of the hint's height

/// No date and time is wider.
QString WidestMoment() {
    return u"00/00/0000 00:00:00"_s;
}

QString KeyOf(bool zoneLine, const QString& what) {
    return (zoneLine ? u"Calculator Time "_s : u"Calculator Local Time "_s) + what;
}

}  // namespace

void CalculatorLines::DrawCalculatorClock() {
    ShowPresentTime();
}

void CalculatorLines::SetCalculatorClock(bool fill) {
    isTyping_ = false;
    if (fill) {
        ShowPresentTime();
    } else {
        ShowText(false, {});
        ShowText(true, {});
    }
    for (const bool zoneLine : {false, true}) {
        const QString colour =
            mduLib::GetProperty(KeyOf(zoneLine, u"Font Colour"_s), face_.Properties);
        Line(zoneLine).ForeColor = mduUILib::ColourValue(colour, face_.Random);
        Line(zoneLine).Visible = true;
    }
    for (Control& label : face_.Controls.lblDigitalNumber.Members) {
        label.Visible = false;
    }
    SetCalculatorLayout();
}

void CalculatorLines::SetCalculatorLayout() {
    for (const bool zoneLine : {false, true}) {
        const auto value = [&](const QString& what) {
            return mduLib::GetProperty(KeyOf(zoneLine, what), face_.Properties);
        };
        const double size = mduAPILib::IntegerValue(value(u"Font Size"_s));
        QFont font(value(u"Font"_s).trimmed());
        font.setPointSizeF(std::clamp(size, SmallestSize, LargestSize));
        Line(zoneLine).Font = font;
    }
    const double automatic = AutomaticSize();
    for (const bool zoneLine : {false, true}) {
        if (IsAutomatic(zoneLine)) {
            Line(zoneLine).Font.setPointSizeF(automatic);
        }
        PlaceAcross(zoneLine);
    }
    PlaceBelowEachOther();
    ShowHint();
}

void CalculatorLines::HideCalculatorClock() {
    isTyping_ = false;
    ShowHint();
    Line(false).Visible = false;
    Line(true).Visible = false;
}

void CalculatorLines::BeginInput() {
    before_ = {Line(false).Tag, Line(true).Tag, face_.Controls.lblLocation(1).Caption};
    caret_ = {};
    isTyping_ = true;
    MoveCaretTo(false);
    ShowHint();
    face_.Window.ShowStatus(
        u"Type a time. Tab changes the line, Esc goes back to the present time."_s);
    face_.Window.ShowChanges();
}

bool CalculatorLines::EditCalculatorKey(int keyCode) {
    if (keyCode == Tab) {
        MoveCaretTo(!editingZoneLine_);
    } else if (keyCode == Esc) {
        GiveBackTexts();
    } else {
        EditLine(keyCode);
    }
    face_.Window.ShowChanges();
    return keyCode != Esc;
}

Control& CalculatorLines::Line(bool zoneLine) const {
    return zoneLine ? face_.Controls.lblTimeOutput(1) : face_.Controls.lblTimeInput(1);
}

QString CalculatorLines::Prefix(bool zoneLine) const {
    return (zoneLine ? face_.Controls.lblLocation(1).Caption + u':' : u"Local Time:"_s) + u' ';
}

void CalculatorLines::ShowPresentTime() {
    const QDateTime now = face_.Clock.Now();
    const QString local = mduAPILib::MomentText(now);
    ShowText(false, local);
    ShowText(true, mduTimeZones::ConvertZoneTime(local, true, face_.Zone, now));
}

void CalculatorLines::ShowText(bool zoneLine, const QString& text) {
    Control& line = Line(zoneLine);
    const QString caption = Prefix(zoneLine) + text;
    if (line.Caption != caption || line.Tag != text) {
        line.Tag = text;
        line.Caption = caption;
        PlaceAcross(zoneLine);
    }
}

double CalculatorLines::WidestText(bool zoneLine, const QFont& font) const {
    const double ratio = face_.Window.Surface().DevicePixelRatio();
    const auto widthOf = [&](const QString& text) {
        return TextSize(font, Prefix(zoneLine) + text, ratio).width();
    };
    return std::max(widthOf(WidestMoment()), widthOf(Line(zoneLine).Tag));
}

// Laid out for the widest text, so that a line stands still while its figures change.
void CalculatorLines::PlaceAcross(bool zoneLine) {
    const Surface& surface = face_.Window.Surface();
    Control& line = Line(zoneLine);
    const double left = (surface.ScaleWidth() - WidestText(zoneLine, line.Font)) / 2;
    line.Left =
        static_cast<float>(std::nearbyint(std::max(left, Margin * surface.DevicePixelRatio())));
    AutoSize(line, surface.DevicePixelRatio());
}

void CalculatorLines::PlaceBelowEachOther() {
    const double first = static_cast<double>(Line(false).Height);
    const double second = static_cast<double>(Line(true).Height);
    const double gap = LinesApart * std::max(first, second);
    const double top = (face_.Window.Surface().ScaleHeight() - first - gap - second) / 2;
    Line(false).Top = static_cast<float>(std::nearbyint(top));
    Line(true).Top = static_cast<float>(std::nearbyint(top + first + gap));
}

bool CalculatorLines::IsAutomatic(bool zoneLine) const {
    const QString size = mduLib::GetProperty(KeyOf(zoneLine, u"Font Size"_s), face_.Properties);
    return mduAPILib::IntegerValue(size) == -1;
}

// The whole number of pixels at which the widest automatic line fills the width, and two lines
// have room in the height; in points.
double CalculatorLines::AutomaticSize() const {
    constexpr double tried = 100;  // logical pixels
    const Surface& surface = face_.Window.Surface();
    const double ratio = surface.DevicePixelRatio();
    double pixels = LargestSize;
    for (const bool zoneLine : {false, true}) {
        if (IsAutomatic(zoneLine)) {
            QFont font = Line(zoneLine).Font;
            font.setPointSizeF(tried * PointsPerPixel);
            const double height = TextSize(font, WidestMoment(), ratio).height();
            const double across = surface.ScaleWidth() / WidestText(zoneLine, font);
            const double down = surface.ScaleHeight() / ((2 + LinesApart) * height);
            pixels = std::min(pixels, tried * Filled * std::min(across, down));
        }
    }
    return std::max(std::floor(pixels) * PointsPerPixel, SmallestSize);
}

void CalculatorLines::MoveCaretTo(bool zoneLine) {
    ShowText(editingZoneLine_, Line(editingZoneLine_).Tag);
    editingZoneLine_ = zoneLine;
    Control& line = Line(zoneLine);
    caret_.Position = static_cast<int>(line.Tag.size());
    line.Caption = Prefix(zoneLine) + TextWithCaret(line.Tag, caret_.Position);
    PlaceAcross(zoneLine);
}

// Below the lines, in the colour of the first, where that leaves room.
void CalculatorLines::ShowHint() {
    const Surface& surface = face_.Window.Surface();
    const double ratio = surface.DevicePixelRatio();
    Control& hint = face_.Controls.lblClock(1);
    hint.Visible = isTyping_;
    if (!isTyping_) {
        return;
    }
    hint.Caption = u"Esc: present time"_s;
    hint.ForeColor = Line(false).ForeColor;
    hint.Font = Line(false).Font;
    hint.Font.setPointSizeF(
        std::clamp(HintSize * hint.Font.pointSizeF(), SmallestHint, LargestHint));
    AutoSize(hint, ratio);
    const double height = static_cast<double>(hint.Height);
    const double free = surface.ScaleWidth() - static_cast<double>(hint.Width);
    const double top = static_cast<double>(Line(true).Top + Line(true).Height) + HintApart * height;
    hint.Left = static_cast<float>(std::nearbyint(free / 2));
    hint.Top = static_cast<float>(std::nearbyint(top));
    hint.Visible = free >= 0 && top + height <= surface.ScaleHeight();
}

void CalculatorLines::GiveBackTexts() {
    isTyping_ = false;
    ShowHint();
    face_.Controls.lblLocation(1).Caption = before_.Location;
    ShowText(false, before_.Local);
    ShowText(true, before_.Zone);
}

void CalculatorLines::EditLine(int keyCode) {
    Control& line = Line(editingZoneLine_);
    const QString text = line.Tag;
    EditTitleKey(line.Tag, line.Caption, Prefix(editingZoneLine_), keyCode, caret_);
    if (line.Tag != text) {
        ConvertEdited();
    }
    PlaceAcross(editingZoneLine_);
}

void CalculatorLines::ConvertEdited() {
    const bool toZone = !editingZoneLine_;
    const QString converted = mduTimeZones::ConvertZoneTime(Line(editingZoneLine_).Tag, toZone,
                                                            face_.Zone, face_.Clock.Now());
    NameZoneAtTypedTime(toZone ? converted : Line(true).Tag);
    ShowText(!editingZoneLine_, converted);
    if (editingZoneLine_) {
        Line(true).Caption = Prefix(true) + TextWithCaret(Line(true).Tag, caret_.Position);
    }
}

// The rule of the zone is asked with the local moment, as ever; the offset of the machine counts
// to the west here.
void CalculatorLines::NameZoneAtTypedTime(const QString& zoneText) {
    const QDateTime now = face_.Clock.Now();
    const std::optional<QDateTime> moment = mduTimeZones::MomentOfText(zoneText, now);
    if (moment) {
        TimeZoneRecord zone = face_.Zone;
        const auto localHours = static_cast<float>(-face_.Clock.OffsetFromGmt() / 3600.0);
        face_.Controls.lblLocation(1).Caption = mduTimeZones::ZoneNameAtTime(
            mduTimeZones::LocalMoment(*moment, zone), now, zone, localHours);
    }
}

}  // namespace drawing
