#include "drawing/CalculatorLines.h"

#include "foundation/Dates.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"
#include "timezones/ZoneArithmetic.h"
#include "timezones/ZoneConversion.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

using mduUILib::Control;

constexpr int Tab = 9;
constexpr int Enter = 13;
constexpr int Esc = 27;

}  // namespace

void CalculatorLines::DrawCalculatorClock() {
    ShowPresentTime();
}

void CalculatorLines::SetCalculatorClock(CalculatorTexts texts) {
    isTyping_ = false;
    if (texts == CalculatorTexts::PresentTime) {
        ShowPresentTime();
    } else {
        ShowText(Side::Local, {});
        ShowText(Side::Zone, {});
    }
    for (const Side side : {Side::Local, Side::Zone}) {
        Line(side).Visible = true;
    }
    for (Control& label : face_.Controls.lblDigitalNumber.Members) {
        label.Visible = false;
    }
    ApplyCalculatorLook();
}

void CalculatorLines::ApplyCalculatorLook() {
    for (const Side side : {Side::Local, Side::Zone}) {
        Line(side).ForeColor = mduUILib::ColourValue(Value(side, u"Font Colour"_s), face_.Random);
    }
    SetCalculatorLayout();
}

void CalculatorLines::HideCalculatorClock() {
    isTyping_ = false;
    Hint().Visible = false;
    Line(Side::Local).Visible = false;
    Line(Side::Zone).Visible = false;
}

void CalculatorLines::BeginInput() {
    before_ = {Line(Side::Local).Tag, Line(Side::Zone).Tag, face_.Controls.lblLocation(1).Caption};
    caret_ = {};
    inPlaceOfTag_.clear();
    isTyping_ = true;
    MoveCaretTo(Side::Local);
    SetCalculatorLayout();
    TellKeys();
    face_.Window.ShowChanges();
}

void CalculatorLines::TellKeys() {
    face_.Window.ShowStatus(
        u"Type a time. Tab changes the line, Esc goes back to the present time."_s);
}

bool CalculatorLines::EditCalculatorKey(int keyCode) {
    if (keyCode == Tab) {
        MoveCaretTo(Other(edited_));
    } else if (keyCode == Esc) {
        GiveBackTexts();
    } else {
        EditLine(keyCode);
    }
    if (keyCode == Enter) {
        TellKeys();  // nothing else shows that the clock goes on standing still
    }
    face_.Window.ShowChanges();
    return keyCode != Esc;
}

Control& CalculatorLines::Line(Side side) const {
    return side == Side::Zone ? face_.Controls.lblTimeOutput(1) : face_.Controls.lblTimeInput(1);
}

QString CalculatorLines::Value(Side side, const QString& what) const {
    const QString line = side == Side::Zone ? u"Calculator Time "_s : u"Calculator Local Time "_s;
    return mduLib::GetProperty(line + what, face_.Properties);
}

QString CalculatorLines::Prefix(Side side) const {
    return (side == Side::Zone ? face_.Controls.lblLocation(1).Caption + u':' : u"Local Time:"_s) +
           u' ';
}

void CalculatorLines::ShowPresentTime() {
    const QDateTime now = face_.Clock.Now();
    const QString local = mduAPILib::MomentText(now);
    ShowText(Side::Local, local);
    ShowText(Side::Zone, face_.Zone.ExactId.isEmpty()
                             ? mduTimeZones::ConvertZoneTime(local, true, face_.Zone, now)
                             : mduAPILib::MomentText(mduTimeZones::GetClockTime(face_.Zone, now)));
}

void CalculatorLines::ShowText(Side side, const QString& text) {
    Control& line = Line(side);
    const QString caption = Prefix(side) + text;
    if (line.Caption != caption || line.Tag != text) {
        line.Tag = text;
        line.Caption = caption;
        PlaceAcross(side);
    }
}

void CalculatorLines::MoveCaretTo(Side side) {
    ShowText(edited_, Line(edited_).Tag);
    edited_ = side;
    inPlaceOfTag_.clear();
    Control& line = Line(side);
    caret_.Position = static_cast<int>(line.Tag.size());
    line.Caption = Prefix(side) + TextWithCaret(line.Tag, caret_.Position);
    PlaceAcross(side);
}

void CalculatorLines::GiveBackTexts() {
    isTyping_ = false;
    face_.Controls.lblLocation(1).Caption = before_.Location;
    ShowText(Side::Local, before_.Local);
    ShowText(Side::Zone, before_.Zone);
    SetCalculatorLayout();
}

void CalculatorLines::EditLine(int keyCode) {
    Control& line = Line(edited_);
    const QString text = line.Tag;
    EditTitleKey(line.Tag, line.Caption, Prefix(edited_), keyCode, caret_);
    if (line.Tag != text) {
        ConvertEdited();
    }
    PlaceAcross(edited_);
}

void CalculatorLines::ConvertEdited() {
    const bool toZone = edited_ == Side::Local;
    const mduTimeZones::ConvertedTime converted = mduTimeZones::ConvertTime(
        face_.Zones, Line(edited_).Tag, toZone, face_.Zone, face_.Clock.Now());
    if (face_.Zone.ExactId.isEmpty()) {
        NameZoneAtTypedTime(toZone ? converted.Text : Line(Side::Zone).Tag);
    } else {
        NameExactZoneAtTypedTime();
    }
    ShowConverted(converted);
    if (edited_ == Side::Zone) {
        Line(Side::Zone).Caption =
            Prefix(Side::Zone) + TextWithCaret(Line(Side::Zone).Tag, caret_.Position);
    }
}

// Lines of an automatic size make room for both readings; for others the times alone may do.
void CalculatorLines::ShowConverted(const mduTimeZones::ConvertedTime& converted) {
    const Side other = Other(edited_);
    const QString before = inPlaceOfTag_;
    ShowText(other, converted.IsGap ? QString() : converted.Text);
    inPlaceOfTag_ = converted.IsGap || !converted.Texts.isEmpty() ? converted.Shown() : QString();
    if (inPlaceOfTag_ != before) {
        SetCalculatorLayout();
    }
    const double room = face_.Window.Surface().ScaleWidth();
    if (!inPlaceOfTag_.isEmpty() && WidestText(other, Line(other).Font) > room) {
        inPlaceOfTag_ = converted.ShownAsTimes();
    }
    if (!inPlaceOfTag_.isEmpty()) {
        Line(other).Caption = Prefix(other) + inPlaceOfTag_;
        PlaceAcross(other);
    }
}

void CalculatorLines::NameExactZoneAtTypedTime() {
    const auto typed = mduTimeZones::MomentOfText(Line(edited_).Tag, face_.Clock.Now());
    if (typed) {
        face_.Controls.lblLocation(1).Caption =
            mduTimeZones::ExactNameAt(face_.Zones, face_.Zone, *typed, edited_ == Side::Zone);
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
