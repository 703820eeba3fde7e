#include "drawing/ClockDial.h"

#include <QPainter>
#include <algorithm>

#include "drawing/LabelText.h"
#include "drawing/StockPictures.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

using mduUILib::Control;

constexpr int Indexes = 60;
constexpr int Hours = 12;
constexpr int ShadowColour = 30 | 30 << 8 | 30 << 16;

// The marks of the two halves differ, as spots and as cursors.
std::shared_ptr<const QImage> StockMark(int index) {
    return GetStockPicture(index < 31 || index == Indexes ? StockPicture::SpotRight
                                                          : StockPicture::SpotLeft);
}

void Print(Surface& surface, const std::vector<PaintedNumber>& numbers) {
    for (const PaintedNumber& number : numbers) {
        DrawFontText(surface, number.Text, number.X, number.Y, number.Font, number.Colour);
    }
}

void SetPlace(Control& control, const QRectF& place) {
    control.Left = static_cast<float>(place.left());
    control.Top = static_cast<float>(place.top());
    control.Width = static_cast<float>(place.width());
    control.Height = static_cast<float>(place.height());
}

}  // namespace

void ClockDial::SetClockDial(const DialOrder& order) {
    isShown_ = order.Parts != DialParts::None;
    HideNumbers();
    if (isShown_) {
        const DialLook look = ReadDialLook(face_.Properties, face_.Window, order.Style);
        LayOutNumbers(look, order.AsShadow);
        if (order.Parts == DialParts::All) {
            SetSpots(look);
        }
    } else {
        HideSpots();
    }
    face_.Window.StillChanged();
}

void ClockDial::DrawDialNumbers(DialParts parts) {
    SetClockDial({parts});  // lays a shadow out, too
}

void ClockDial::HideNumbers() {
    shadows_.clear();
    numbers_.clear();
    over_.clear();
    isPainted_ = isRandom_ = false;
    for (Control& label : face_.Controls.lblHour.Members) {
        label.Visible = false;
        if (IsBehindPaintedNumber(label)) {
            label.Caption.clear();
        }
    }
}

// The tags, too: whoever shows the spots later goes by them alone.
void ClockDial::HideSpots() {
    for (Control& spot : face_.Controls.imgClockNumber.Members) {
        spot.Visible = false;
        spot.Tag = u"False"_s;
    }
}

void ClockDial::LayOutNumbers(const DialLook& look, bool shadow) {
    isPainted_ = look.Style.IsPainted();
    isRandom_ = (isPainted_ && look.IsRandomColour()) || look.IsRecoloured();
    if (!isPainted_) {
        SetCaptions(look, shadow);
        return;
    }
    if (shadow || look.Style.HasShadow()) {
        shadows_ = DrawHourNumberTexts(look, true);
    }
    if (!shadow) {
        numbers_ = DrawHourNumberTexts(look, false);
    }
}

ClockDial::PaintedNumbers ClockDial::DrawHourNumberTexts(const DialLook& look, bool shadow) {
    const int colour = shadow ? ShadowColour : PickNumberColour(look.NumberColour);
    const NumberPlacing placing(look.Style, look.OuterHeight, look.Ratio, look.IsBackward());
    PaintedNumbers numbers;
    for (int hour = 1; hour <= Hours; ++hour) {
        if (look.Style.IsNumbered(hour * 5)) {
            const QPointF at = look.NumberPoint(hour * 5, shadow);
            SetClickLabel(hour, placing.ClickArea(at));
            numbers.push_back(placing.Place(hour, at));
            numbers.back().Colour = colour;
        }
    }
    return numbers;
}

void ClockDial::SetClickLabel(int hour, const QRectF& area) {
    Control& label = face_.Controls.lblHour(hour * 5);
    label.Caption = u"  "_s;
    label.Picture = StockMark(hour * 5);
    label.Visible = hour == Hours;
    SetPlace(label, area);
}

void ClockDial::SetCaptions(const DialLook& look, bool shadow) {
    for (int index = 1; index <= Indexes; ++index) {
        if (look.Style.IsNumbered(index)) {
            SetHourNumber(index, look.NumberPoint(index, shadow), look);
        }
    }
}

// The label is placed while it is empty, and so has no width; its caption then lets it grow to both
// sides.
void ClockDial::SetHourNumber(int index, QPointF at, const DialLook& look) {
    const bool isHour = index % 5 == 0;
    const int size = CaptionSize(index, look.Special, look.LogicalHeight, look.NumberSize);
    Control& label = face_.Controls.lblHour(index);
    label.Picture = StockMark(index);
    label.Font = QFont(look.NumberFont);
    label.Font.setPointSize(std::max(size, 1));
    label.ForeColor = PickNumberColour(look.NumberColour);
    label.Caption = isHour ? QString::number(index / 5) : QString();
    AutoSize(label, look.Ratio);
    const double height = static_cast<double>(label.Height);
    const double width = isHour ? static_cast<double>(label.Width) : height;
    SetPlace(label, {at.x() - width / 2, at.y() - height / 1.6, width, height});
    label.Visible = size >= 1 && (!isHour || look.Style.ShowsCaption(index / 5));
}

void ClockDial::SetSpots(const DialLook& look) {
    spotPicture_ = SpotPicture(look.SpotImageFile);
    for (int index = 1; index <= Indexes; ++index) {
        SetSpot(index, look);
    }
}

void ClockDial::SetSpot(int index, const DialLook& look) {
    Control& spot = face_.Controls.imgClockNumber(index);
    const bool isWanted = look.SpotSize != 0 && look.Spots.Wants(index);
    spot.Visible = isWanted;
    spot.Tag = isWanted ? u"True"_s : u"False"_s;
    spot.Picture = StockMark(index);
    spot.Width = spot.Height = static_cast<float>(look.SpotSize);
    if (!isWanted) {
        return;
    }
    SetPlace(spot, look.SpotPlace(index));
    spot.ToolTipText = SpotTime(index);
    if (spotPicture_) {
        spot.Picture = spotPicture_;
    }
    if (spot.Picture && look.SpotSize <= LargestSpot) {
        spot.Picture = face_.Pictures.Scaled(spot.Picture, QSize(look.SpotSize, look.SpotSize));
    }
}

std::shared_ptr<const QImage> ClockDial::SpotPicture(const QString& path) const {
    return mduUILib::IsNoneValue(path)
               ? nullptr
               : face_.Pictures.Load(face_.FileSystem,
                                     mduLib::ResolveAppPath(path, face_.Paths.AppFolder));
}

// A random colour that comes out as the background gets a second chance.
int ClockDial::PickNumberColour(const QString& name) const {
    const int colour = mduUILib::ColourValue(name, face_.Random);
    return colour == face_.Window.BackColor() ? mduUILib::ColourValue(name, face_.Random) : colour;
}

void ClockDial::ShowMinuteSpots(int /*hour*/) {
    bool hasChanged = false;
    for (Control& spot : face_.Controls.imgClockNumber.Members) {
        const bool isWanted = spot.Tag == "True"_L1;
        hasChanged = hasChanged || spot.Visible != isWanted;
        spot.Visible = isWanted;
    }
    if (hasChanged) {
        face_.Window.StillChanged();
    }
}

void ClockDial::ApplyClockSpecial() {
    if (isShown_) {
        SetClockDial({DialParts::All});
    }
}

void ClockDial::RecolourNumbers() {
    over_ = numbers_;
    for (PaintedNumber& number : over_) {
        number.Colour = PickNumberColour(u"random"_s);
    }
    if (!isPainted_ && isShown_) {
        RecolourCaptions();
    }
}

void ClockDial::RecolourCaptions() {
    for (int hour = 1; hour <= Hours; ++hour) {
        face_.Controls.lblHour(hour * 5).ForeColor = PickNumberColour(u"random"_s);
    }
    face_.Window.StillChanged();
}

void ClockDial::PaintStill(Surface& surface) const {
    Print(surface, shadows_);
    Print(surface, numbers_);
    surface.Paint([this, &surface](QPainter& painter) {
        for (const Control& spot : face_.Controls.imgClockNumber.Members) {
            if (spot.Width <= LargestSpot) {
                PaintImage(painter, spot);
            }
        }
        for (const Control& label : face_.Controls.lblHour.Members) {
            PaintLabel(painter, label, surface.DevicePixelRatio());
        }
    });
}

void ClockDial::PaintNumbersOver(Surface& surface) const {
    if (!over_.empty() && ReadClockSpecial(face_.Properties) == ClockSpecial::RandomNumberColour) {
        Print(surface, over_);
    }
}

}  // namespace drawing
