#pragma once

#include <QDateTime>

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"
#include "drawing/TitleEdit.h"

namespace drawing {

/// The calculator: the local time and the same moment in the clock's zone, converted both ways.
/// The plain date and time of a line, without its prefix and the caret, is in the line's `Tag`.
///
/// While a line is typed into the clock stands still. A small hint below the lines, in `lblClock`,
/// then tells the way back. The lines make room for it: those of an automatic size are smaller
/// meanwhile, others move up. Where they can't, the status bar tells it alone.
class CalculatorLines final : public CalculatorClock {
public:
    explicit CalculatorLines(const FaceContext& face) : face_(face) {}

    void DrawCalculatorClock() override;

    /// Shows both lines, with the present time (@p fill) or blank.
    void SetCalculatorClock(bool fill) override;

    /// Fonts and places of the lines: one above the other in the middle of the surface. A size of
    /// -1 lets the longest line fill the width.
    void SetCalculatorLayout() override;

    void HideCalculatorClock() override;
    void BeginInput() override;

    /// Tab moves the caret to the other line; Esc gives both lines back the texts that they had
    /// before; Enter takes the caret away until the next key. Any other key edits the line, and
    /// the other line follows.
    /// @return false for Esc alone
    bool EditCalculatorKey(int keyCode) override;

    /// The line that is being edited: false `lblTimeInput`, true `lblTimeOutput`.
    bool EditingZoneLine() const { return editingZoneLine_; }

private:
    /// The label of a line: of the clock's zone, or of the local time.
    mduUILib::Control& Line(bool zoneLine) const;
    /// The current value of "Calculator Local Time ..." or "Calculator Time ...", @p what being the
    /// rest.
    QString Value(bool zoneLine, const QString& what) const;
    /// What stands before the time: the name of the place, or that the time is local.
    QString Prefix(bool zoneLine) const;
    double WidestText(bool zoneLine, const QFont& font) const;

    void ShowPresentTime();
    void ShowText(bool zoneLine, const QString& text);
    void PlaceAcross(bool zoneLine);
    void PlaceBelowEachOther();
    /// Whether the font size is -1: the longest line fills the width.
    bool IsAutomatic(bool zoneLine) const;
    double AutomaticSize() const;

    void FillHint();
    void TellKeys();
    void MoveCaretTo(bool zoneLine);
    void GiveBackTexts();
    void EditLine(int keyCode);
    void ConvertEdited();
    void NameZoneAtTypedTime(const QString& zoneText);

    FaceContext face_;
    bool isTyping_ = false;
    bool editingZoneLine_ = false;
    TitleCaret caret_;
    struct {
        QString Local, Zone, Location;
    } before_;  ///< what the input state began with
};

}  // namespace drawing
