#include <QTest>

#include "drawing/DigitalReadOut.h"
#include "drawing/LabelText.h"
#include "support/FakeFace.h"

using namespace Qt::StringLiterals;
using drawing::DigitalReadOut;

namespace {

/// A digital clock of 400 by 200 pixels in 20 points.
struct Digits {
    explicit Digits(const QTime& time = QTime(15, 5, 7), double ratio = 1)
        : Face(static_cast<int>(400 * ratio), static_cast<int>(200 * ratio), ratio),
          ReadOut(Face.Context()) {
        SetTime(time);
        Face.Set(u"Digital Clock Format"_s, u"hh:mm:ss"_s);
        Face.Set(u"Digital Clock Font"_s, u"Liberation Sans"_s);
        Face.Set(u"Digital Font Size"_s, u"20"_s);
        Face.Set(u"Digital Clock Colour"_s, u"Red"_s);
        Face.Set(u"Digital Clock CentralX(%)"_s, u"-1"_s);
        Face.Set(u"Digital Clock CentralY(%)"_s, u"-1"_s);
        Face.Set(u"Clock CentralX(%)"_s, u"-1"_s);
        Face.Set(u"Clock CentralY(%)"_s, u"-1"_s);
        Face.Set(u"Clock Special"_s, u"None"_s);
    }

    void SetTime(const QTime& time) {
        Face.Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), time, Qt::UTC));
    }

    mduUILib::Control& Label(int number) { return Face.Controls.lblDigitalNumber(number); }
    mduUILib::Control& Model() { return Face.Controls.lblClock(1); }

    /// What is seen, from label 1 on.
    QStringList Shown() {
        QStringList shown;
        for (const mduUILib::Control& label : Face.Controls.lblDigitalNumber.Members) {
            shown += label.Visible ? label.Caption : QString();
        }
        return shown;
    }

    std::vector<float> Tops() {
        std::vector<float> tops;
        for (const mduUILib::Control& label : Face.Controls.lblDigitalNumber.Members) {
            tops.push_back(label.Top);
        }
        return tops;
    }

    FakeFace Face;
    DigitalReadOut ReadOut;
};

}  // namespace

class tst_DigitalReadOut : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FillsTheDigits_data();
    void FillsTheDigits();
    void ShowsTheTimeOfTheZone();
    void TellsTheFontSize_data();
    void TellsTheFontSize();
    void SizesByTheOuterWindow();
    void TellsTheTravel();
    void PlacesTheModelInTheMiddle();
    void PlacesTheModelByPercent();
    void KeepsFreeOfTheEdge();
    void KeepsFreeOfTheEdgeAtHighResolution();
    void FollowsTheCentreOfTheClock();
    void LinesUp();
    void LinesUpAtHighResolution();
    void ClosesTheRowWithoutHours();
    void LinesUpBackward();
    void Stacks();
    void StacksWithGaps();
    void GivesFontAndColour();
    void TakesARandomColourAtEachLayout();
    void KeepsWidthsWhileTheTimeRuns();
    void FillsBeforeTheFirstTick();
    void Hides();
    void GoesUpAndDown();
    void WavesUpAndDown();
    void Waves();
    void WavesAreRounded_data();
    void WavesAreRounded();
    void ReadsTheSpecialAtEachSecond();
    void ShowsANewLayoutAtOnce();
    void BeginsEachSecondWhereTheLastEnds();
    void MovesOnceInASecond();
    void FinishesTheMotion();
    void StopsTheMotionWhenHidden();
    void SurvivesBadInput_data();
    void SurvivesBadInput();
};

void tst_DigitalReadOut::FillsTheDigits_data() {
    QTest::addColumn<QString>("format");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QString>("caption");
    const QTime morning(9, 5, 7);
    const QTime afternoon(15, 5, 7);
    const QTime midnight(0, 0, 0);
    const QString none;
    QTest::newRow("hh:mm:ss") << u"hh:mm:ss"_s << morning
                              << QStringList{u"09"_s, u":"_s, u"05"_s, u":"_s, u"07"_s, none}
                              << u"09:05:07"_s;
    QTest::newRow("hh:mm") << u"hh:mm"_s << morning
                           << QStringList{u"09"_s, u":"_s, u"05"_s, none, none, none} << u"09:05"_s;
    QTest::newRow("mm:ss") << u"mm:ss"_s << morning
                           << QStringList{none, none, u"05"_s, u":"_s, u"07"_s, none}
                           << u"09:05:07"_s;
    QTest::newRow("hh:mm ampm") << u"hh:mm ampm"_s << morning
                                << QStringList{u"09"_s, u":"_s, u"05"_s, none, none, u"AM"_s}
                                << u"09:05 AM"_s;
    QTest::newRow("24 hours beside PM")
        << u"hh:mm ampm"_s << afternoon
        << QStringList{u"15"_s, u":"_s, u"05"_s, none, none, u"PM"_s} << u"15:05 PM"_s;
    QTest::newRow("hh:mm:ss ampm")
        << u"hh:mm:ss ampm"_s << afternoon
        << QStringList{u"15"_s, u":"_s, u"05"_s, u":"_s, u"07"_s, u"PM"_s} << u"15:05:07 PM"_s;
    QTest::newRow("midnight") << u"hh:mm:ss ampm"_s << midnight
                              << QStringList{u"00"_s, u":"_s, u"00"_s, u":"_s, u"00"_s, u"AM"_s}
                              << u"00:00:00 AM"_s;
    QTest::newRow("noon") << u"hh:mm:ss ampm"_s << QTime(12, 0, 0)
                          << QStringList{u"12"_s, u":"_s, u"00"_s, u":"_s, u"00"_s, u"PM"_s}
                          << u"12:00:00 PM"_s;
    QTest::newRow("past midnight")
        << u"hh:mm ampm"_s << QTime(0, 5, 7)
        << QStringList{u"00"_s, u":"_s, u"05"_s, none, none, u"AM"_s} << u"00:05 AM"_s;
    QTest::newRow("capitals") << u"HH:MM:SS AMPM"_s << afternoon
                              << QStringList{u"15"_s, u":"_s, u"05"_s, u":"_s, u"07"_s, u"PM"_s}
                              << u"15:05:07 PM"_s;
    QTest::newRow("missing key") << u"0"_s << afternoon
                                 << QStringList{none, none, u"05"_s, none, none, none}
                                 << u"15:05:07"_s;
    QTest::newRow("empty") << none << afternoon
                           << QStringList{none, none, u"05"_s, none, none, none} << u"15:05:07"_s;
    QTest::newRow("abc") << u"abc"_s << afternoon
                         << QStringList{none, none, u"05"_s, none, none, none} << u"15:05:07"_s;
    QTest::newRow("an order of its own")
        << u"ss:mm:hh"_s << afternoon
        << QStringList{u"15"_s, u":"_s, u"05"_s, u":"_s, u"07"_s, none} << u"07:05:15"_s;
    QTest::newRow("hours alone") << u"hh"_s << afternoon
                                 << QStringList{u"15"_s, u":"_s, u"05"_s, none, none, none}
                                 << u"15"_s;
}

void tst_DigitalReadOut::FillsTheDigits() {
    QFETCH(QString, format);
    QFETCH(QTime, time);
    Digits digits(time);
    digits.ReadOut.DrawDigitalClock(format);
    QTEST(digits.Shown(), "shown");
    QTEST(digits.Model().Caption, "caption");
}

void tst_DigitalReadOut::ShowsTheTimeOfTheZone() {
    Digits digits(QTime(23, 15, 7));
    digits.Face.Zone.HoursFromLocal = 5.75F;
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    QCOMPARE(digits.Model().Caption, u"05:00:07"_s);
}

void tst_DigitalReadOut::TellsTheFontSize_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("size");
    QTest::newRow("as it stands") << u"20"_s << 20;
    QTest::newRow("4") << u"4"_s << 4;
    QTest::newRow("2") << u"2"_s << 4;
    QTest::newRow("0") << u"0"_s << 4;
    QTest::newRow("text") << u"big"_s << 4;
    QTest::newRow("-2") << u"-2"_s << 4;
    QTest::newRow("automatic") << u"-1"_s << 45;  // 400 pixels are 6000 twips
    QTest::newRow("half to even") << u"20.5"_s << 20;
}

void tst_DigitalReadOut::TellsTheFontSize() {
    QFETCH(QString, value);
    Digits digits;
    digits.Face.Set(u"Digital Font Size"_s, value);
    QTEST(digits.ReadOut.GetDigitalFontSize(), "size");
}

void tst_DigitalReadOut::SizesByTheOuterWindow() {
    Digits digits;
    digits.Face.Set(u"Digital Font Size"_s, u"-1"_s);
    digits.Face.Window.Outer = QSizeF(3999, 90000);
    QCOMPARE(digits.ReadOut.GetDigitalFontSize(), 29);  // 29.99
    digits.Face.Window.Outer = QSizeF(15, 15);
    QCOMPARE(digits.ReadOut.GetDigitalFontSize(), 4);
}

void tst_DigitalReadOut::TellsTheTravel() {
    Digits digits;
    digits.Label(1).Height = 31;
    QCOMPARE(digits.ReadOut.GetDigitalTravel(), 184);  // 184.5 to the even number
    digits.Label(1).Height = 29;
    QCOMPARE(digits.ReadOut.GetDigitalTravel(), 186);  // 185.5
    digits.Label(1).Height = 30;
    QCOMPARE(digits.ReadOut.GetDigitalTravel(), 185);
}

void tst_DigitalReadOut::PlacesTheModelInTheMiddle() {
    Digits digits;
    digits.ReadOut.SetDigitalLayout();
    QVERIFY(!digits.Model().Visible);
    QCOMPARE(digits.Model().Top, 100 - 0.75F * digits.Model().Height);
    QCOMPARE(digits.Model().Left, 200 - (10 + digits.Model().Width) / 2);
}

void tst_DigitalReadOut::PlacesTheModelByPercent() {
    Digits digits;
    digits.Face.Set(u"Digital Clock CentralX(%)"_s, u"12.6"_s);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, u"30.7"_s);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Model().Left, 50.4F);
    QCOMPARE(digits.Model().Top, 61.4F);
    QCOMPARE(digits.Label(1).Left, 50.0F);
    QCOMPARE(digits.Label(1).Top, 61.4F);
}

void tst_DigitalReadOut::KeepsFreeOfTheEdge() {
    Digits digits;
    digits.Face.Set(u"Digital Clock Format"_s, u"hh:mm:ss ampm"_s);
    digits.Face.Window.Resize(60, 20);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Model().Left, 10.0F);
    QCOMPARE(digits.Model().Top, 10.0F);
    QCOMPARE(digits.Label(1).Left, 10.0F);
}

void tst_DigitalReadOut::KeepsFreeOfTheEdgeAtHighResolution() {
    Digits digits(QTime(15, 5, 7), 2);
    digits.Face.Window.Resize(120, 40);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Model().Left, 20.0F);
    QCOMPARE(digits.Model().Top, 20.0F);
}

void tst_DigitalReadOut::FollowsTheCentreOfTheClock() {
    Digits digits;
    digits.Face.Set(u"Clock CentralX(%)"_s, u"75"_s);
    digits.Face.Set(u"Clock CentralY(%)"_s, u"60"_s);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Model().Top, 120 - 0.75F * digits.Model().Height);
    QCOMPARE(digits.Model().Left, 300 - (10 + digits.Model().Width) / 2);
}

// 20 points leave gaps of 4 pixels.
void tst_DigitalReadOut::LinesUp() {
    Digits digits;
    digits.Face.Set(u"Digital Clock Format"_s, u"hh:mm:ss ampm"_s);
    digits.Face.Set(u"Digital Clock CentralX(%)"_s, u"5"_s);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Label(1).Left, 20.0F);
    for (int i = 2; i <= 6; ++i) {
        const mduUILib::Control& before = digits.Label(i - 1);
        QVERIFY(before.Width > 4);
        QCOMPARE(digits.Label(i).Left, before.Left + before.Width + 4);
        QCOMPARE(digits.Label(i).Top, digits.Model().Top);
        QCOMPARE(digits.Label(i).Height, digits.Model().Height);
    }
}

void tst_DigitalReadOut::LinesUpAtHighResolution() {
    Digits digits(QTime(15, 5, 7), 2);
    digits.Face.Set(u"Digital Clock CentralX(%)"_s, u"5"_s);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Label(1).Left, 40.0F);
    QCOMPARE(digits.Label(2).Left, 40 + digits.Label(1).Width + 8);
}

void tst_DigitalReadOut::ClosesTheRowWithoutHours() {
    Digits digits;
    digits.Face.Set(u"Digital Clock Format"_s, u"mm:ss"_s);
    digits.Face.Set(u"Digital Clock CentralX(%)"_s, u"5"_s);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Label(3).Left, 20.0F);
    QCOMPARE(digits.Label(4).Left, 20 + digits.Label(3).Width + 4);
}

void tst_DigitalReadOut::LinesUpBackward() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u" Digital Backward "_s);
    digits.Face.Set(u"Digital Clock CentralX(%)"_s, u"5"_s);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Label(5).Left, 20.0F);
    for (int i = 4; i >= 1; --i) {
        const mduUILib::Control& before = digits.Label(i + 1);
        QCOMPARE(digits.Label(i).Left, before.Left + before.Width + 4);
    }
}

void tst_DigitalReadOut::Stacks() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Vertical"_s);
    digits.Face.Set(u"Digital Clock Format"_s, u"hh:mm:ss ampm"_s);
    digits.ReadOut.SetDigitalLayout();
    const float height = digits.Model().Height;
    const std::vector<float> tops = {
        10, 10 + height, 10 + 2 * height, 10 + 3 * height, 10 + 4 * height, 10 + 5 * height};
    QCOMPARE(digits.Tops(), tops);
    for (int i = 1; i <= 6; ++i) {
        QCOMPARE(digits.Label(i).Left, std::nearbyint(200 - digits.Label(1).Width / 2));
        QCOMPARE(digits.Label(i).Width, digits.Label(1).Width);
    }
}

void tst_DigitalReadOut::StacksWithGaps() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Vertical"_s);
    digits.Face.Set(u"Digital Clock Format"_s, u"mm:ss"_s);
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Label(3).Top, 10 + 2 * digits.Label(1).Height);
}

void tst_DigitalReadOut::GivesFontAndColour() {
    Digits digits;
    digits.ReadOut.SetDigitalLayout();
    for (int i = 1; i <= 6; ++i) {
        QCOMPARE(digits.Label(i).Font.family(), u"Liberation Sans"_s);
        QCOMPARE(digits.Label(i).Font.pointSize(), 20);
        QCOMPARE(digits.Label(i).ForeColor, 0x0000FF);
    }
    QCOMPARE(digits.Model().Font.pointSize(), 20);
}

void tst_DigitalReadOut::TakesARandomColourAtEachLayout() {
    Digits digits;
    digits.Face.Machine.Random.Numbers = {0.1, 0.2, 0.3, 0.4, 0.5};
    digits.Face.Set(u"Digital Clock Colour"_s, u"Random"_s);
    digits.ReadOut.SetDigitalLayout();
    const int first = digits.Label(1).ForeColor;
    QCOMPARE(digits.Label(6).ForeColor, first);
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    QCOMPARE(digits.Label(1).ForeColor, first);
    digits.ReadOut.SetDigitalLayout();
    QVERIFY(digits.Label(1).ForeColor != first);
}

void tst_DigitalReadOut::KeepsWidthsWhileTheTimeRuns() {
    Digits digits(QTime(20, 0, 0));
    digits.Face.Set(u"Digital Clock Font"_s, u"Liberation Serif"_s);
    digits.ReadOut.SetDigitalLayout();
    const mduUILib::Control before = digits.Label(5);
    digits.SetTime(QTime(20, 0, 11));
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    QCOMPARE(digits.Label(5).Caption, u"11"_s);
    QCOMPARE(digits.Label(5).Width, before.Width);
    QCOMPARE(digits.Label(5).Left, before.Left);
}

void tst_DigitalReadOut::FillsBeforeTheFirstTick() {
    Digits digits;
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Shown(), (QStringList{u"15"_s, u":"_s, u"05"_s, u":"_s, u"07"_s, QString()}));
}

void tst_DigitalReadOut::Hides() {
    Digits digits;
    digits.ReadOut.SetDigitalLayout();
    digits.ReadOut.HideDigitalClock();
    QCOMPARE(digits.Shown(), QStringList(6));
}

// The row stands at 60; labels of 30 pixels leave a travel of 185.
void tst_DigitalReadOut::GoesUpAndDown() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Up Down"_s);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, u"30.2"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.Face.Window.Shows = 0;
    digits.Label(1).Height = 30;
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.Face.Machine.Clock.Advance(79);
    QCOMPARE(digits.Tops(), std::vector<float>(6, 60.4F));
    digits.Face.Machine.Clock.Advance(1);
    QVERIFY(qAbs(digits.Label(1).Top - 144.838F) < 0.01F);  // 60 + 185 sin(1 - pi/6)
    QCOMPARE(digits.Label(2).Top, 60.4F);
    digits.Face.Machine.Clock.Advance(400);
    QVERIFY(qAbs(digits.Label(6).Top + 95.672F) < 0.01F);  // 60 + 185 sin(1 - pi)
    digits.Face.Machine.Clock.Advance(17);
    QCOMPARE(digits.Label(5).Top, 60.0F);
    QVERIFY(digits.Label(6).Top < 0);
    digits.Face.Machine.Clock.Advance(1);
    QCOMPARE(digits.Tops(), std::vector<float>(6, 60.0F));
    QCOMPARE(digits.Face.Window.Shows, 12);
    QCOMPARE(digits.Face.Machine.Random.Seeds, 2);
}

// A fifth of the travel: 37.
void tst_DigitalReadOut::WavesUpAndDown() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Up Down Wave"_s);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, u"30"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.Face.Window.Shows = 0;
    digits.Label(1).Height = 30;
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.Face.Machine.Clock.Advance(13);  // k is -13
    QVERIFY(qAbs(digits.Label(1).Top - 23.073F) < 0.01F);
    QCOMPARE(digits.Tops(), std::vector<float>(6, digits.Label(1).Top));
    digits.Face.Machine.Clock.Advance(25);  // k is 12
    QVERIFY(qAbs(digits.Label(6).Top - 96.927F) < 0.01F);
    digits.Face.Machine.Clock.Advance(13);
    QVERIFY(qAbs(digits.Label(6).Top - 60) < 0.01F);
    QCOMPARE(digits.Face.Window.Shows, 51);
    digits.Face.Machine.Clock.Advance(900);
    QCOMPARE(digits.Face.Window.Shows, 51);
}

// An eighth of the travel: 23.
void tst_DigitalReadOut::Waves() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Wave"_s);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, u"30"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.Face.Window.Shows = 0;
    digits.Label(1).Height = 30;
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    QVERIFY(qAbs(digits.Label(1).Top - 81.198F) < 0.01F);  // 60 + 23 sin(6.28/6 + 6.28/50)
    digits.Face.Machine.Clock.Advance(48);
    QCOMPARE(digits.Face.Window.Shows, 48);
    digits.Face.Machine.Clock.Advance(900);
    QCOMPARE(digits.Face.Window.Shows, 49);
    QVERIFY(qAbs(digits.Label(1).Top - 79.876F) < 0.01F);  // 60 + 23 sin(6.28/6 + 6.28)
    QVERIFY(qAbs(digits.Label(6).Top - 59.853F) < 0.01F);  // 60 + 23 sin(6.28 + 6.28)
}

// The travel is 200 less half the height. Its fifth or eighth is rounded half to even, and so is
// the line that the digits move around.
void tst_DigitalReadOut::WavesAreRounded_data() {
    QTest::addColumn<QString>("special");
    QTest::addColumn<QString>("centralY");
    QTest::addColumn<float>("height");
    QTest::addColumn<float>("top");  // of label 1 at the first step that moves it
    const QString together = u"Digital Up Down Wave"_s;
    const QString wave = u"Digital Wave"_s;
    const QString sixty = u"30"_s;
    // sin(2 * -24 * pi / 50) is -0.12533, sin(6.28 / 6 + 6.28 / 50) is 0.92165
    QTest::newRow("a fifth of 188 is 38") << together << sixty << 24.0F << 55.237F;
    QTest::newRow("a fifth of 187 is 37") << together << sixty << 26.0F << 55.363F;
    QTest::newRow("an eighth of 188 is 24") << wave << sixty << 24.0F << 82.120F;
    QTest::newRow("an eighth of 180 is 22") << wave << sixty << 40.0F << 80.276F;
    QTest::newRow("around 61") << wave << u"30.3"_s << 30.0F << 82.198F;
}

void tst_DigitalReadOut::WavesAreRounded() {
    QFETCH(QString, special);
    QFETCH(QString, centralY);
    QFETCH(float, height);
    QFETCH(float, top);
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, special);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, centralY);
    digits.ReadOut.SetDigitalLayout();
    digits.Label(1).Height = height;
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    if (special == u"Digital Up Down Wave"_s) {
        digits.Face.Machine.Clock.Advance(2);  // k is -24
    }
    QVERIFY2(qAbs(digits.Label(1).Top - top) < 0.01F,
             qPrintable(QString::number(static_cast<double>(digits.Label(1).Top))));
}

void tst_DigitalReadOut::ReadsTheSpecialAtEachSecond() {
    Digits digits;
    digits.ReadOut.SetDigitalLayout();
    digits.Face.Window.Shows = 0;
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.Face.Machine.Clock.Advance(900);
    QCOMPARE(digits.Face.Window.Shows, 0);
    digits.Face.Set(u"Clock Special"_s, u"Digital Wave"_s);
    digits.SetTime(QTime(15, 5, 8));
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.Face.Machine.Clock.Advance(900);
    QVERIFY(digits.Face.Window.Shows > 0);
}

// Whoever lays out in the middle of a motion has stopped it.
void tst_DigitalReadOut::ShowsANewLayoutAtOnce() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Wave"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.Face.Machine.Clock.Advance(10);
    digits.Face.Window.Shows = 0;
    digits.ReadOut.SetDigitalLayout();
    QCOMPARE(digits.Face.Window.Shows, 1);
    QCOMPARE(digits.Label(1).Top, digits.Label(6).Top);
}

void tst_DigitalReadOut::BeginsEachSecondWhereTheLastEnds() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Up Down"_s);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, u"30"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.Face.Machine.Clock.Advance(300);
    QVERIFY(digits.Label(1).Top > 100);
    digits.SetTime(QTime(15, 5, 8));
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    QCOMPARE(digits.Tops(), std::vector<float>(6, 60.0F));
}

// Ten passes a second, as while a message runs: one motion, of eleven steps behind the first show,
// and a fresh one with the next second.
void tst_DigitalReadOut::MovesOnceInASecond() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Up Down"_s);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, u"30"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.Face.Window.Shows = 0;
    digits.Face.Machine.Random.Seeds = 0;
    for (int pass = 0; pass < 20; ++pass) {
        digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
        QCOMPARE(digits.Shown().at(4), pass < 10 ? u"07"_s : u"08"_s);
        digits.Face.Machine.Clock.Advance(100);
        if (pass == 3) {
            QVERIFY(digits.Label(1).Top > 100);  // on its way
        }
    }
    QCOMPARE(digits.Face.Window.Shows, 24);
    QCOMPARE(digits.Face.Machine.Random.Seeds, 4);
    QCOMPARE(digits.Tops(), std::vector<float>(6, 60.0F));
}

void tst_DigitalReadOut::FinishesTheMotion() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Up Down"_s);
    digits.Face.Set(u"Digital Clock CentralY(%)"_s, u"30"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.Face.Window.Shows = 0;
    digits.ReadOut.FinishMotion();
    QCOMPARE(digits.Face.Window.Shows, 0);
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.Face.Machine.Clock.Advance(100);
    digits.ReadOut.FinishMotion();
    QCOMPARE(digits.Tops(), std::vector<float>(6, 60.0F));
    QCOMPARE(digits.Face.Window.Shows, 2);
}

void tst_DigitalReadOut::StopsTheMotionWhenHidden() {
    Digits digits;
    digits.Face.Set(u"Clock Special"_s, u"Digital Up Down"_s);
    digits.ReadOut.SetDigitalLayout();
    digits.Face.Window.Shows = 0;
    digits.ReadOut.DrawDigitalClock(u"hh:mm:ss"_s);
    digits.ReadOut.HideDigitalClock();
    digits.Face.Machine.Clock.Advance(900);
    QCOMPARE(digits.Face.Window.Shows, 0);
}

void tst_DigitalReadOut::SurvivesBadInput_data() {
    QTest::addColumn<QString>("number");
    QTest::addColumn<QSize>("size");
    for (const QString& number :
         {u"-1"_s, u"0"_s, u"1"_s, u"100000"_s, u"-100000"_s, u"1e308"_s, u"text"_s, QString()}) {
        for (const QSize& size : {QSize(1, 1), QSize(400, 200)}) {
            QTest::addRow("%s at %d", qPrintable(number), size.width()) << number << size;
        }
    }
}

void tst_DigitalReadOut::SurvivesBadInput() {
    QFETCH(QString, number);
    QFETCH(QSize, size);
    for (const QString& special : {u"None"_s, u"Digital Backward"_s, u"Digital Vertical"_s,
                                   u"Digital Up Down"_s, u"Digital Wave"_s, u"nonsense"_s}) {
        Digits digits;
        digits.Face.Window.Resize(size.width(), size.height());
        for (const QString& key :
             {u"Digital Font Size"_s, u"Digital Clock CentralX(%)"_s,
              u"Digital Clock CentralY(%)"_s, u"Clock CentralX(%)"_s, u"Clock CentralY(%)"_s,
              u"Digital Clock Font"_s, u"Digital Clock Colour"_s}) {
            digits.Face.Set(key, number);
        }
        digits.Face.Set(u"Clock Special"_s, special);
        digits.ReadOut.SetDigitalLayout();
        digits.ReadOut.DrawDigitalClock(u"hh:mm:ss ampm"_s);
        digits.Face.Machine.Clock.Advance(1000);
        digits.Face.Window.Drawn.Paint([&](QPainter& painter) {
            for (int i = 1; i <= 6; ++i) {
                drawing::PaintLabel(painter, digits.Label(i), 1);
            }
        });
        QVERIFY(digits.Label(1).Height > 0 && digits.Label(1).Height < 8000);
        QVERIFY(qAbs(digits.Label(6).Left) <= 1e6F);
    }
}

QTEST_MAIN(tst_DigitalReadOut)
#include "tst_DigitalReadOut.moc"
