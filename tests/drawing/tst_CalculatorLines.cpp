#include <QTest>
#include <functional>

#include "drawing/CalculatorLines.h"
#include "drawing/LabelText.h"
#include "support/ExactMachine.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::CalculatorLines;

namespace {

/// A calculator of 600 by 200 pixels, whose zone is 5.5 hours ahead of GMT and keeps daylight time
/// from 29 March to 25 October. It is noon of 15 June 2026 in GMT.
struct Lines {
    explicit Lines(double ratio = 1)
        : Face(static_cast<int>(600 * ratio), static_cast<int>(200 * ratio), ratio),
          Calculator(Face.Context()) {
        Face.Zone.StandardName = u"Hill Standard Time"_s;
        Face.Zone.DaylightName = u"Hill Daylight Time"_s;
        Face.Zone.StandardBias = -270;
        Face.Zone.DaylightBias = -330;
        Face.Zone.DaylightDate = {0, 3, 0, 5, 2, 0, 0, 0};
        Face.Zone.StandardDate = {0, 10, 0, 5, 2, 0, 0, 0};
        Face.Zone.HoursFromLocal = 5.5F;
        Face.Controls.lblLocation(1).Caption = u"Hill Daylight Time"_s;
        for (const QString& line : {u"Calculator Local Time "_s, u"Calculator Time "_s}) {
            Face.Set(line + u"Font"_s, u"Liberation Sans"_s);
            Face.Set(line + u"Font Size"_s, u"12"_s);
        }
        Face.Set(u"Calculator Local Time Font Colour"_s, u"Red"_s);
        Face.Set(u"Calculator Time Font Colour"_s, u"Blue"_s);
    }

    mduUILib::Control& Local() { return Face.Controls.lblTimeInput(1); }
    mduUILib::Control& Zone() { return Face.Controls.lblTimeOutput(1); }

    void Type(const QString& text) {
        for (const QChar character : text) {
            QVERIFY(Calculator.EditCalculatorKey(character.unicode()));
        }
    }

    void Press(int key, int times = 1) {
        for (int i = 0; i < times; ++i) {
            Calculator.EditCalculatorKey(key);
        }
    }

    FakeFace Face;
    CalculatorLines Calculator;
};

/// A calculator whose input has begun with both lines blank.
struct BlankLines : Lines {
    BlankLines() {
        Calculator.SetCalculatorClock(drawing::CalculatorTexts::Blank);
        Calculator.BeginInput();
        Face.Window.Status.clear();
    }
};

}  // namespace

class tst_CalculatorLines : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsThePresentTime();
    void FollowsTheClock();
    void ShowsBlankLines();
    void GivesColoursAndHidesTheDigits();
    void Hides();
    void GivesFontsAndSizes_data();
    void GivesFontsAndSizes();
    void StandsInTheMiddle();
    void StandsStillWhileTheTimeRuns();
    void KeepsLinesThatAreTooLongAtTheLeft();
    void FillsTheWidth();
    void FillsTheWidthAtHighResolution();
    void FillsTheWidthByTheLongestLine();
    void KeepsToTheHeight();
    void BeginsInput();
    void TabMovesTheCaret();
    void ConvertsToTheZone();
    void ConvertsToLocalTime();
    void LeavesConversionsBlank_data();
    void LeavesConversionsBlank();
    void NamesTheZoneAtTheTypedTime();
    void NamesTheZoneByTheMachinesOffset();
    void MovingTheCaretConvertsNothing();
    void EscGivesTheTextsBack();
    void EnterTakesTheCaretAway();
    void EnterInABlankLineChangesNothing();
    void IgnoresOtherKeys();
    void CapsTheText();
    void BeginsAnewInTheLocalLine();
    void TellsOfEscWhileItStandsStill();
    void PlacesTheHintBelowTheLines();
    void AutomaticLinesMakeRoomForTheHint_data();
    void AutomaticLinesMakeRoomForTheHint();
    void LinesMoveUpForTheHint();
    void AHintThatJustFits();
    void EnterTellsOfEscAgain();
    void TellsOfEscInTheStatusBarWithoutRoom();
    void ConvertsByTheRulesOfTheTimeTyped();
    void ShowsBothReadingsOfATimeLivedTwice();
    void ShowsBothReadingsWhereThereIsLittleRoom();
    void TellsATimeThatDoesNotExist();
    void NamesAnExactZoneAtTheTypedTime();
    void ShowsThePresentTimeInTheHourLivedTwice();
    void SurvivesBadInput_data();
    void SurvivesBadInput();
};

void tst_CalculatorLines::ShowsThePresentTime() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QCOMPARE(lines.Local().Caption, u"Local Time: 15/06/2026 12:00:00"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 17:30:00"_s);
    QCOMPARE(lines.Local().Tag, u"15/06/2026 12:00:00"_s);
    QCOMPARE(lines.Zone().Tag, u"15/06/2026 17:30:00"_s);
    QVERIFY(lines.Local().Visible);
    QVERIFY(lines.Zone().Visible);
}

void tst_CalculatorLines::FollowsTheClock() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Face.Machine.Clock.SetNow(QDateTime(QDate(2026, 12, 31), QTime(22, 9, 5, 990), Qt::UTC));
    lines.Calculator.DrawCalculatorClock();
    QCOMPARE(lines.Local().Caption, u"Local Time: 31/12/2026 22:09:05"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 01/01/2027 3:39:05"_s);
}

void tst_CalculatorLines::ShowsBlankLines() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::Blank);
    QCOMPARE(lines.Local().Caption, u"Local Time: "_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: "_s);
    QCOMPARE(lines.Local().Tag, QString());
    QCOMPARE(lines.Zone().Tag, QString());
    QVERIFY(lines.Local().Visible);
}

void tst_CalculatorLines::GivesColoursAndHidesTheDigits() {
    Lines lines;
    lines.Face.Controls.lblDigitalNumber(3).Visible = true;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QCOMPARE(lines.Local().ForeColor, 0x0000FF);
    QCOMPARE(lines.Zone().ForeColor, 0xFF0000);
    QVERIFY(!lines.Face.Controls.lblDigitalNumber(3).Visible);
}

void tst_CalculatorLines::Hides() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.HideCalculatorClock();
    QVERIFY(!lines.Local().Visible);
    QVERIFY(!lines.Zone().Visible);
}

void tst_CalculatorLines::GivesFontsAndSizes_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<double>("size");
    QTest::newRow("as it stands") << u"12"_s << 12.0;
    QTest::newRow("2") << u"2"_s << 4.0;
    QTest::newRow("-2") << u"-2"_s << 4.0;
    QTest::newRow("text") << u"big"_s << 4.0;
    QTest::newRow("too large to fit") << u"72"_s << 72.0;
    QTest::newRow("out of all bounds") << u"100000"_s << 3000.0;
}

void tst_CalculatorLines::GivesFontsAndSizes() {
    QFETCH(QString, value);
    Lines lines;
    lines.Face.Set(u"Calculator Time Font"_s, u"Liberation Mono"_s);
    lines.Face.Set(u"Calculator Time Font Size"_s, value);
    lines.Calculator.SetCalculatorLayout();
    QCOMPARE(lines.Local().Font.family(), u"Liberation Sans"_s);
    QCOMPARE(lines.Local().Font.pointSizeF(), 12.0);
    QCOMPARE(lines.Zone().Font.family(), u"Liberation Mono"_s);
    QTEST(lines.Zone().Font.pointSizeF(), "size");
}

void tst_CalculatorLines::StandsInTheMiddle() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    for (const mduUILib::Control* line : {&lines.Local(), &lines.Zone()}) {
        const float middle = line->Left + line->Width / 2;
        QVERIFY2(qAbs(middle - 300) < 2, qPrintable(QString::number(middle)));
    }
    const float top = lines.Local().Top;
    const float bottom = lines.Zone().Top + lines.Zone().Height;
    QVERIFY(qAbs(top - (200 - bottom)) <= 1);
    const float gap = lines.Zone().Top - (lines.Local().Top + lines.Local().Height);
    QVERIFY(gap >= 5 && gap <= 10);
}

void tst_CalculatorLines::StandsStillWhileTheTimeRuns() {
    Lines lines;
    lines.Face.Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), QTime(9, 59, 59), Qt::UTC));
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    const float left = lines.Local().Left;
    const float width = lines.Local().Width;
    lines.Face.Machine.Clock.Advance(1000);
    lines.Calculator.DrawCalculatorClock();
    QCOMPARE(lines.Local().Tag, u"15/06/2026 10:00:00"_s);
    QVERIFY(lines.Local().Width > width);
    QCOMPARE(lines.Local().Left, left);
}

void tst_CalculatorLines::KeepsLinesThatAreTooLongAtTheLeft() {
    Lines lines;
    lines.Face.Window.Resize(100, 100);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QCOMPARE(lines.Local().Left, 4.0F);
    QCOMPARE(lines.Zone().Left, 4.0F);
    QVERIFY(lines.Zone().Width > 100);
}

void tst_CalculatorLines::FillsTheWidth() {
    Lines lines;
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"-1"_s);
    lines.Face.Set(u"Calculator Time Font Size"_s, u"-1"_s);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QVERIFY(lines.Zone().Width > 500);
    QVERIFY(lines.Zone().Width <= 592);
    QCOMPARE(lines.Local().Font.pointSizeF(), lines.Zone().Font.pointSizeF());
}

void tst_CalculatorLines::FillsTheWidthAtHighResolution() {
    Lines lines(2);
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"-1"_s);
    lines.Face.Set(u"Calculator Time Font Size"_s, u"-1"_s);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QVERIFY(lines.Zone().Width > 1000);
    QVERIFY(lines.Zone().Width <= 1184);
}

void tst_CalculatorLines::FillsTheWidthByTheLongestLine() {
    Lines lines;
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"-1"_s);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QVERIFY(lines.Local().Width > 500);
    QVERIFY(lines.Local().Width <= 592);
    QCOMPARE(lines.Zone().Font.pointSizeF(), 12.0);
}

void tst_CalculatorLines::KeepsToTheHeight() {
    Lines lines;
    lines.Face.Window.Resize(600, 30);
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"-1"_s);
    lines.Face.Set(u"Calculator Time Font Size"_s, u"-1"_s);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QVERIFY(lines.Local().Top >= 0);
    QVERIFY(lines.Zone().Top + lines.Zone().Height <= 30);
    QVERIFY(lines.Local().Top + lines.Local().Height <= lines.Zone().Top);
}

void tst_CalculatorLines::BeginsInput() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    QVERIFY(!lines.Calculator.EditingZoneLine());
    QCOMPARE(lines.Local().Caption, u"Local Time: 15/06/2026 12:00:00 _"_s);
    QCOMPARE(lines.Local().Tag, u"15/06/2026 12:00:00"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 17:30:00"_s);
    QCOMPARE(lines.Face.Window.Shows, 1);
}

void tst_CalculatorLines::TabMovesTheCaret() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    QVERIFY(lines.Calculator.EditCalculatorKey(9));
    QVERIFY(lines.Calculator.EditingZoneLine());
    QCOMPARE(lines.Local().Caption, u"Local Time: 15/06/2026 12:00:00"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 17:30:00 _"_s);
    QCOMPARE(lines.Face.Window.Shows, 2);
    QVERIFY(lines.Calculator.EditCalculatorKey(9));
    QVERIFY(!lines.Calculator.EditingZoneLine());
    QCOMPARE(lines.Local().Caption, u"Local Time: 15/06/2026 12:00:00 _"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 17:30:00"_s);
}

void tst_CalculatorLines::ConvertsToTheZone() {
    BlankLines lines;
    lines.Type(u"12:"_s);
    QCOMPARE(lines.Zone().Tag, QString());
    QCOMPARE(lines.Local().Caption, u"Local Time: 12: _"_s);
    lines.Type(u"30"_s);
    QCOMPARE(lines.Local().Caption, u"Local Time: 12:30 _"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 18:00:00"_s);
    lines.Press(37, 4);
    lines.Press(8);
    QCOMPARE(lines.Local().Caption, u"Local Time: _:30"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 8:00:00"_s);
}

void tst_CalculatorLines::ConvertsToLocalTime() {
    BlankLines lines;
    lines.Press(9);
    lines.Type(u"1/7/2026 2:15"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 1/7/2026 2:15 _"_s);
    QCOMPARE(lines.Local().Caption, u"Local Time: 30/06/2026 20:45:00"_s);
    lines.Press(46);
    QCOMPARE(lines.Local().Tag, u"30/06/2026 20:45:00"_s);
    lines.Press(8, 13);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time:  _"_s);
    QCOMPARE(lines.Local().Caption, u"Local Time: "_s);
}

void tst_CalculatorLines::LeavesConversionsBlank_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << u"noon"_s;
    QTest::newRow("a number") << u"12"_s;
    QTest::newRow("no such day") << u"30/2/2026"_s;
    QTest::newRow("behind the last year") << u"31/12/9999 23:00"_s;
}

void tst_CalculatorLines::LeavesConversionsBlank() {
    QFETCH(QString, text);
    BlankLines lines;
    lines.Type(text);
    QCOMPARE(lines.Local().Tag, text);
    QCOMPARE(lines.Zone().Tag, QString());
    QVERIFY(lines.Zone().Caption.endsWith(u" Time: "_s));
    QVERIFY(lines.Face.Window.Status.isEmpty());
}

void tst_CalculatorLines::NamesTheZoneAtTheTypedTime() {
    BlankLines lines;
    lines.Type(u"15/1/2026 12:00"_s);
    QCOMPARE(lines.Face.Controls.lblLocation(1).Caption, u"Hill Standard Time"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Standard Time: 15/01/2026 17:30:00"_s);
    lines.Press(9);
    lines.Press(8, 19);
    QCOMPARE(lines.Zone().Caption, u"Hill Standard Time:  _"_s);
    lines.Type(u"15/7/2026 12:00"_s);
    QCOMPARE(lines.Face.Controls.lblLocation(1).Caption, u"Hill Daylight Time"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/7/2026 12:00 _"_s);
    QCOMPARE(lines.Face.Zone.CurrentName, QString());
}

// The zone's clock shows two in standard time, 4:30 ahead of GMT, when it is 16:30 of the day
// before in a place five hours behind GMT.
void tst_CalculatorLines::NamesTheZoneByTheMachinesOffset() {
    BlankLines lines;
    lines.Face.Machine.Clock.SetZone(QTimeZone(-5 * 3600));
    lines.Type(u"28/3/2026 16:30:00"_s);
    QCOMPARE(lines.Face.Controls.lblLocation(1).Caption, u"Hill Standard Time"_s);
    lines.Press(8);
    lines.Type(u"1"_s);
    QCOMPARE(lines.Local().Tag, u"28/3/2026 16:30:01"_s);
    QCOMPARE(lines.Face.Controls.lblLocation(1).Caption, u"Hill Daylight Time"_s);
}

void tst_CalculatorLines::MovingTheCaretConvertsNothing() {
    BlankLines lines;
    lines.Type(u"noon"_s);
    lines.Press(9);
    lines.Press(37);
    lines.Press(39);
    lines.Press(45);
    QCOMPARE(lines.Local().Tag, u"noon"_s);
}

void tst_CalculatorLines::EscGivesTheTextsBack() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    lines.Press(8, 19);
    lines.Type(u"15/1/2026 10:00"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Standard Time: 15/01/2026 15:30:00"_s);
    QVERIFY(!lines.Calculator.EditCalculatorKey(27));
    QCOMPARE(lines.Local().Caption, u"Local Time: 15/06/2026 12:00:00"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 17:30:00"_s);
    QCOMPARE(lines.Face.Controls.lblLocation(1).Caption, u"Hill Daylight Time"_s);
}

void tst_CalculatorLines::EnterTakesTheCaretAway() {
    BlankLines lines;
    lines.Type(u"12:30"_s);
    QVERIFY(lines.Calculator.EditCalculatorKey(13));
    QCOMPARE(lines.Local().Caption, u"Local Time: 12:30"_s);
    QCOMPARE(lines.Zone().Tag, u"15/06/2026 18:00:00"_s);
    lines.Press(37);
    QCOMPARE(lines.Local().Caption, u"Local Time: 12:3_"_s);
}

void tst_CalculatorLines::EnterInABlankLineChangesNothing() {
    BlankLines lines;
    QVERIFY(lines.Calculator.EditCalculatorKey(13));
    QCOMPARE(lines.Local().Caption, u"Local Time:  _"_s);
}

void tst_CalculatorLines::IgnoresOtherKeys() {
    BlankLines lines;
    for (const int key : {-1, 0, 1, 16, 17, 31, 127, 0x110000}) {
        QVERIFY(lines.Calculator.EditCalculatorKey(key));
        QCOMPARE(lines.Local().Tag, QString());
    }
}

void tst_CalculatorLines::CapsTheText() {
    BlankLines lines;
    lines.Type(QString(60, u'1'));
    QCOMPARE(lines.Local().Tag, QString(40, u'1'));
    QCOMPARE(lines.Zone().Tag, QString());
}

void tst_CalculatorLines::BeginsAnewInTheLocalLine() {
    Lines lines;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    lines.Press(9);
    lines.Press(45);
    lines.Press(27);
    lines.Calculator.BeginInput();
    QVERIFY(!lines.Calculator.EditingZoneLine());
    QCOMPARE(lines.Local().Caption, u"Local Time: 15/06/2026 12:00:00 _"_s);
    QCOMPARE(lines.Zone().Caption, u"Hill Daylight Time: 15/06/2026 17:30:00"_s);
    lines.Press(37);
    lines.Type(u"1"_s);
    QCOMPARE(lines.Local().Tag, u"15/06/2026 12:00:010"_s);
}

void tst_CalculatorLines::TellsOfEscWhileItStandsStill() {
    Lines lines;
    const mduUILib::Control& hint = lines.Face.Controls.lblClock(1);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QVERIFY(!hint.Visible);
    for (const auto& leave : std::initializer_list<std::function<void()>>{
             [&] { lines.Press(27); },
             [&] { lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime); },
             [&] { lines.Calculator.HideCalculatorClock(); }}) {
        lines.Calculator.BeginInput();
        QVERIFY(hint.Visible);
        QCOMPARE(hint.Caption, u"Esc: present time"_s);
        lines.Press(13);
        QVERIFY(hint.Visible);
        lines.Calculator.SetCalculatorLayout();
        QVERIFY(hint.Visible);
        leave();
        QVERIFY(!hint.Visible);
        lines.Calculator.SetCalculatorLayout();
        QVERIFY(!hint.Visible);
    }
}

void tst_CalculatorLines::PlacesTheHintBelowTheLines() {
    Lines lines;
    const mduUILib::Control& hint = lines.Face.Controls.lblClock(1);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    QCOMPARE(hint.Font.family(), u"Liberation Sans"_s);
    QCOMPARE(hint.Font.pointSizeF(), 7.2);  // 0.6 of 12
    QCOMPARE(hint.ForeColor, 0x0000FF);
    QVERIFY(qAbs(hint.Left + hint.Width / 2 - 300) <= 1);
    const float below = hint.Top - lines.Zone().Top - lines.Zone().Height;
    QVERIFY(qAbs(below - hint.Height / 2) <= 1);
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"40"_s);
    lines.Calculator.SetCalculatorLayout();
    QCOMPARE(hint.Font.pointSizeF(), 12.0);
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"6"_s);
    lines.Calculator.SetCalculatorLayout();
    QCOMPARE(hint.Font.pointSizeF(), 7.0);
}

void tst_CalculatorLines::AutomaticLinesMakeRoomForTheHint_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("low") << 600 << 60;
    QTest::newRow("low and wide") << 1600 << 120;
    QTest::newRow("large") << 3000 << 300;
    QTest::newRow("the width decides") << 300 << 200;
}

void tst_CalculatorLines::AutomaticLinesMakeRoomForTheHint() {
    QFETCH(int, width);
    QFETCH(int, height);
    Lines lines;
    const mduUILib::Control& hint = lines.Face.Controls.lblClock(1);
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"-1"_s);
    lines.Face.Set(u"Calculator Time Font Size"_s, u"-1"_s);
    lines.Face.Window.Resize(width, height);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    const double size = lines.Local().Font.pointSizeF();
    const QRectF zone = lines.Zone().Rect();
    lines.Calculator.BeginInput();
    QVERIFY(hint.Visible);
    QVERIFY(lines.Local().Top >= 0);
    QVERIFY(lines.Local().Rect().bottom() <= lines.Zone().Rect().top());
    QVERIFY(lines.Zone().Rect().bottom() < hint.Rect().top());
    QVERIFY2(hint.Rect().bottom() <= height, qPrintable(QString::number(hint.Rect().bottom())));
    QCOMPARE(lines.Local().Font.pointSizeF() < size, width > 300);
    lines.Press(27);
    QVERIFY(!hint.Visible);
    QCOMPARE(lines.Local().Font.pointSizeF(), size);
    QCOMPARE(lines.Zone().Rect(), zone);
}

/// Lines of a size of their own keep it.
void tst_CalculatorLines::LinesMoveUpForTheHint() {
    Lines lines;
    const mduUILib::Control& hint = lines.Face.Controls.lblClock(1);
    lines.Face.Window.Resize(600, 70);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    const float local = lines.Local().Top;
    const float zone = lines.Zone().Top;
    lines.Calculator.BeginInput();
    QVERIFY(hint.Visible);
    QCOMPARE(hint.Rect().bottom(), 70.0);  // as far as needed, and no farther
    QVERIFY(lines.Local().Top < local && lines.Local().Top >= 0);
    QVERIFY(qAbs(local - lines.Local().Top - (zone - lines.Zone().Top)) <= 1);
    QCOMPARE(lines.Local().Font.pointSizeF(), 12.0);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QCOMPARE(lines.Local().Top, local);
    lines.Face.Window.Resize(600, 60);
    lines.Calculator.BeginInput();  // there is no room: they stay in the middle
    QVERIFY(!hint.Visible);
    const float below = 60 - lines.Zone().Top - lines.Zone().Height;
    QVERIFY(qAbs(lines.Local().Top - below) <= 1);
}

/// Two lines of 40 pixels with 16 between them, 9 below them and the hint of 18 are 123 high.
void tst_CalculatorLines::AHintThatJustFits() {
    Lines lines;
    const mduUILib::Control& hint = lines.Face.Controls.lblClock(1);
    lines.Face.Set(u"Calculator Local Time Font Size"_s, u"26"_s);
    lines.Face.Set(u"Calculator Time Font Size"_s, u"26"_s);
    lines.Face.Window.Resize(600, 123);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    QVERIFY(hint.Visible);
    QCOMPARE(lines.Local().Top, 0.0F);
    QCOMPARE(lines.Local().Height, 40.0F);
    QCOMPARE(lines.Zone().Top, 56.0F);
    QCOMPARE(hint.Rect().top(), 105.0);
    QCOMPARE(hint.Rect().bottom(), 123.0);
    lines.Face.Window.Resize(600, 122);
    lines.Calculator.SetCalculatorLayout();
    QVERIFY(!hint.Visible);
}

void tst_CalculatorLines::EnterTellsOfEscAgain() {
    BlankLines lines;
    lines.Type(u"12:30"_s);
    QCOMPARE(lines.Face.Window.Status, QStringList());
    lines.Press(13);
    QCOMPARE(
        lines.Face.Window.Status,
        QStringList{u"Type a time. Tab changes the line, Esc goes back to the present time."_s});
    lines.Press(27);
    QCOMPARE(lines.Face.Window.Status.size(), 1);
}

void tst_CalculatorLines::TellsOfEscInTheStatusBarWithoutRoom() {
    Lines lines;
    const mduUILib::Control& hint = lines.Face.Controls.lblClock(1);
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    QCOMPARE(
        lines.Face.Window.Status,
        QStringList{u"Type a time. Tab changes the line, Esc goes back to the present time."_s});
    lines.Face.Window.Resize(600, 60);
    lines.Calculator.SetCalculatorLayout();
    QVERIFY(!hint.Visible);
    lines.Face.Window.Resize(60, 300);
    lines.Calculator.SetCalculatorLayout();
    QVERIFY(!hint.Visible);
    lines.Face.Window.Resize(300, 300);
    lines.Calculator.SetCalculatorLayout();
    QVERIFY(hint.Visible);
}

namespace {

/// A calculator with the exact rules of New York on a machine in London, in January.
struct ExactLines {
    explicit ExactLines(const QByteArray& gmt = "2026-01-20T12:00:00", int width = 900)
        : Machine(gmt),
          Controls(),
          Window(width, 200, 1),
          Zone(Machine.Record(u"America/New_York"_s)),
          Calculator({Properties, Zone, Controls, Window, Machine.Machine.Clock,
                      Machine.Machine.Files, Machine.Machine.Random, Pictures, Paths,
                      Machine.Zones}) {
        Controls.lblLocation(1).Caption = Zone.CurrentName;
        for (const QString& line : {u"Calculator Local Time "_s, u"Calculator Time "_s}) {
            mduLib::PutProperty(line + u"Font"_s, u"Liberation Sans"_s, Properties);
            mduLib::PutProperty(line + u"Font Size"_s, u"12"_s, Properties);
        }
        Calculator.SetCalculatorClock(drawing::CalculatorTexts::Blank);
        Calculator.BeginInput();
    }
    Q_DISABLE_COPY_MOVE(ExactLines)

    void Type(const QString& text) {
        for (const QChar character : text) {
            Calculator.EditCalculatorKey(character.unicode());
        }
    }
    void TypeIntoTheZone(const QString& text) {
        Calculator.EditCalculatorKey(9);
        Type(text);
    }
    const mduUILib::Control& Local() { return Controls.lblTimeInput(1); }
    const mduUILib::Control& InZone() { return Controls.lblTimeOutput(1); }

    ExactMachine Machine;
    ClockProperties Properties;
    mduUILib::ClockControls Controls;
    FakeCanvas Window;
    mduUILib::PictureStore Pictures;
    PathTable Paths;
    TimeZoneRecord Zone;
    CalculatorLines Calculator;
};

}  // namespace

void tst_CalculatorLines::ConvertsByTheRulesOfTheTimeTyped() {
    ExactLines lines;
    lines.Type(u"15/03/2026 12:00"_s);
    QCOMPARE(lines.InZone().Tag, u"15/03/2026 8:00:00"_s);
    QCOMPARE(lines.InZone().Caption, u"Daylight: 15/03/2026 8:00:00"_s);
}

void tst_CalculatorLines::ShowsBothReadingsOfATimeLivedTwice() {
    ExactLines lines;
    lines.Type(u"25/10/2026 1:30"_s);
    QCOMPARE(lines.InZone().Caption, u"Daylight: 24/10/2026 20:30:00 or 21:30:00"_s);
    QCOMPARE(lines.InZone().Tag, u"24/10/2026 20:30:00"_s);
    const double right = static_cast<double>(lines.InZone().Left + lines.InZone().Width);
    QVERIFY2(right <= 900, qPrintable(QString::number(right)));
    lines.Calculator.EditCalculatorKey(9);  // the plain text is what can be edited
    QCOMPARE(lines.InZone().Caption, u"Daylight: 24/10/2026 20:30:00 _"_s);
}

void tst_CalculatorLines::ShowsBothReadingsWhereThereIsLittleRoom() {
    ExactLines lines("2026-01-20T12:00:00", 260);
    lines.Type(u"25/10/2026 1:30"_s);
    QCOMPARE(lines.InZone().Caption, u"Daylight: 20:30:00 or 21:30:00"_s);
    mduLib::PutProperty(u"Calculator Time Font Size"_s, u"-1"_s, lines.Properties);
    lines.Type(u":0"_s);
    QCOMPARE(lines.InZone().Caption, u"Daylight: 24/10/2026 20:30:00 or 21:30:00"_s);
    QVERIFY(static_cast<double>(lines.InZone().Left + lines.InZone().Width) <= 260);
}

void tst_CalculatorLines::TellsATimeThatDoesNotExist() {
    ExactLines lines;
    lines.TypeIntoTheZone(u"08/03/2026 2:30"_s);
    QCOMPARE(lines.Local().Caption, u"Local Time: does not exist"_s);
    QCOMPARE(lines.Local().Tag, QString());
    lines.Calculator.EditCalculatorKey(27);
    lines.Calculator.BeginInput();
    lines.Type(u"29/03/2026 1:00"_s);
    QCOMPARE(lines.InZone().Caption, u"Daylight: does not exist"_s);
}

void tst_CalculatorLines::NamesAnExactZoneAtTheTypedTime() {
    ExactLines lines;
    lines.TypeIntoTheZone(u"01/11/2026 1:59:59"_s);
    QCOMPARE(lines.Controls.lblLocation(1).Caption, u"Daylight"_s);
    QCOMPARE(lines.Local().Caption, u"Local Time: 01/11/2026 5:59:59 or 6:59:59"_s);
    lines.Calculator.EditCalculatorKey(27);
    lines.Calculator.BeginInput();
    lines.TypeIntoTheZone(u"01/11/2026 2:00"_s);
    QCOMPARE(lines.Controls.lblLocation(1).Caption, u"Standard"_s);
}

void tst_CalculatorLines::ShowsThePresentTimeInTheHourLivedTwice() {
    ExactLines lines("2026-10-25T01:30:00");
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    QCOMPARE(lines.Local().Caption, u"Local Time: 25/10/2026 1:30:00"_s);
    QCOMPARE(lines.InZone().Caption, u"Daylight: 24/10/2026 21:30:00"_s);
}

void tst_CalculatorLines::SurvivesBadInput_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QSize>("size");
    for (const QString& number :
         {u"-1"_s, u"0"_s, u"1"_s, u"100000"_s, u"-100000"_s, u"1e308"_s, u"text"_s, QString()}) {
        for (const QSize& size : {QSize(1, 1), QSize(600, 200), QSize(4000, 4000)}) {
            QTest::addRow("%s at %d", qPrintable(number), size.width()) << number << size;
        }
    }
}

void tst_CalculatorLines::SurvivesBadInput() {
    QFETCH(QString, number);
    QFETCH(QSize, size);
    Lines lines;
    lines.Face.Window.Resize(size.width(), size.height());
    for (const QString& line : {u"Calculator Local Time "_s, u"Calculator Time "_s}) {
        for (const QString& key : {u"Font"_s, u"Font Size"_s, u"Font Colour"_s}) {
            lines.Face.Set(line + key, number);
        }
    }
    lines.Face.Zone.HoursFromLocal = 1e9F;
    lines.Calculator.SetCalculatorClock(drawing::CalculatorTexts::PresentTime);
    lines.Calculator.BeginInput();
    lines.Press('1', 50);
    lines.Face.Window.Drawn.Paint([&](QPainter& painter) {
        drawing::PaintLabel(painter, lines.Local(), 1);
        drawing::PaintLabel(painter, lines.Zone(), 1);
    });
    QVERIFY(lines.Local().Left >= 4);
    QVERIFY(lines.Local().Height > 0 && lines.Local().Height < 8000);
}

QTEST_MAIN(tst_CalculatorLines)
#include "tst_CalculatorLines.moc"
