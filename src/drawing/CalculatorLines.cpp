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

void CalculatorLines::SetCalculatorClock(bool fill) {
    isTyping_ = false;
    if (fill) {
        ShowPresentTime();
    } else {
        ShowText(false, {});
        ShowText(true, {});
    }
    for (const bool zoneLine : {false, true}) {
        Line(zoneLine).ForeColor =
            mduUILib::ColourValue(Value(zoneLine, u"Font Colour"_s), face_.Random);
        Line(zoneLine).Visible = true;
    }
    for (Control& label : face_.Controls.lblDigitalNumber.Members) {
        label.Visible = false;
    }
    SetCalculatorLayout();
}

void CalculatorLines::HideCalculatorClock() {
    isTyping_ = false;
    face_.Controls.lblClock(1).Visible = false;
    Line(false).Visible = false;
    Line(true).Visible = false;
}

void CalculatorLines::BeginInput() {
    before_ = {Line(false).Tag, Line(true).Tag, face_.Controls.lblLocation(1).Caption};
    caret_ = {};
    isTyping_ = true;
    MoveCaretTo(false);
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
        MoveCaretTo(!editingZoneLine_);
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

Control& CalculatorLines::Line(bool zoneLine) const {
    return zoneLine ? face_.Controls.lblTimeOutput(1) : face_.Controls.lblTimeInput(1);
}

QString CalculatorLines::Value(bool zoneLine, const QString& what) const {
    const QString line = zoneLine ? u"Calculator Time "_s : u"Calculator Local Time "_s;
    return mduLib::GetProperty(line + what, face_.Properties);
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

void CalculatorLines::MoveCaretTo(bool zoneLine) {
    ShowText(editingZoneLine_, Line(editingZoneLine_).Tag);
    editingZoneLine_ = zoneLine;
    Control& line = Line(zoneLine);
    caret_.Position = static_cast<int>(line.Tag.size());
    line.Caption = Prefix(zoneLine) + TextWithCaret(line.Tag, caret_.Position);
    PlaceAcross(zoneLine);
}

void CalculatorLines::GiveBackTexts() {
    isTyping_ = false;
    face_.Controls.lblLocation(1).Caption = before_.Location;
    ShowText(false, before_.Local);
    ShowText(true, before_.Zone);
    SetCalculatorLayout();
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
