#pragma once

#include <QDateTime>

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"
#include "drawing/TitleEdit.h"
#include "timezones/ExactConversion.h"

namespace drawing {

/// The calculator: the local time and the same moment in the clock's zone, converted both ways.
/// The plain date and time of a line, without its prefix and the caret, is in the line's `Tag`.
///
/// A clock with exact rules converts by those of the time that is typed. Of a time that is lived
/// through twice the other line shows both readings, and its `Tag` holds the earlier; of one that
/// is left out it says so, and its `Tag` is empty.
///
/// While a line is typed into the clock stands still. A small hint below the lines, in `lblClock`,
/// then tells the way back. The lines make room for it: those of an automatic size are smaller
/// meanwhile, others move up. Where they can't, the status bar tells it alone.
class CalculatorLines final : public CalculatorClock {
public:
    explicit CalculatorLines(const FaceContext& face) : face_(face) {}

    void DrawCalculatorClock() override;

    void SetCalculatorClock(CalculatorTexts texts) override;

    /// Fonts and places of the lines: one above the other in the middle of the surface. A size of
    /// -1 lets the longest line fill the width.
    void SetCalculatorLayout() override;
    void ApplyCalculatorLook() override;

    void HideCalculatorClock() override;
    void BeginInput() override;

    /// Tab moves the caret to the other line; Esc gives both lines back the texts that they had
    /// before; Enter takes the caret away until the next key. Any other key edits the line, and
    /// the other line follows.
    /// @return false for Esc alone
    bool EditCalculatorKey(int keyCode) override;

    /// The line that is being edited: false `lblTimeInput`, true `lblTimeOutput`.
    bool EditingZoneLine() const { return edited_ == Side::Zone; }

private:
    /// The line of the local time and that of the clock's zone.
    enum class Side { Local, Zone };
    static Side Other(Side side) { return side == Side::Local ? Side::Zone : Side::Local; }

    mduUILib::Control& Line(Side side) const;
    /// `lblClock`, which tells the way back to the present time.
    mduUILib::Control& Hint() const { return face_.Controls.lblClock(1); }
    /// The current value of "Calculator Local Time ..." or "Calculator Time ...", @p what being the
    /// rest.
    QString Value(Side side, const QString& what) const;
    /// What stands before the time: the name of the place, or that the time is local.
    QString Prefix(Side side) const;
    double WidestText(Side side, const QFont& font) const;

    void ShowPresentTime();
    void ShowText(Side side, const QString& text);
    void PlaceAcross(Side side);
    void PlaceBelowEachOther();
    /// Whether the font size is -1: the longest line fills the width.
    bool IsAutomatic(Side side) const;
    double AutomaticSize() const;

    void FillHint();
    void TellKeys();
    void MoveCaretTo(Side side);
    void GiveBackTexts();
    void EditLine(int keyCode);
    void ConvertEdited();
    void ShowConverted(const mduTimeZones::ConvertedTime& converted);
    void NameZoneAtTypedTime(const QString& zoneText);
    void NameExactZoneAtTypedTime();

    FaceContext face_;
    bool isTyping_ = false;
    Side edited_ = Side::Local;
    TitleCaret caret_;
    /// What the line that is not edited shows in place of its plain text; empty for that itself.
    QString inPlaceOfTag_;
    struct {
        QString Local, Zone, Location;
    } before_;  ///< what the input state began with
};

}  // namespace drawing
