#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>

#include "clock/ui/ClockInput.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockPart;

namespace {

struct WritingCalculator final : drawing::CalculatorClock {
    QStringList Log;
    void BeginInput() override { Log += u"begin"_s; }
    bool EditCalculatorKey(int keyCode) override {
        Log += QString::number(keyCode);
        return keyCode != 27;
    }
};

struct WritingClicks final : clockcore::ClockClicks {
    QStringList Log;
    void ClickSpeaker() override { Log += u"speaker"_s; }
    void ClickAction() override { Log += u"action"_s; }
    QString SpeakerHint() const override { return u"Ann"_s; }
    void ShowMenu(const clockcore::ClockHit& hit, const QPoint& at) override {
        Log += u"menu %1 at %2,%3"_s.arg(static_cast<int>(hit.Part)).arg(at.x()).arg(at.y());
    }
    void DoubleClickGround() override { Log += u"ground"_s; }
    bool PressKey(int code, int shift) override {
        Log += u"key %1 %2"_s.arg(code).arg(shift);
        return code == 112;
    }
    void ShowDisabledMenu(const QPoint& at) override {
        Log += u"disabled at %1,%2"_s.arg(at.x()).arg(at.y());
    }
};

/// A clock's events without a clock: its speaker is at 0,0, its action at 20,0, its message at
/// 40,0; each 10 by 10.
struct InputDesk {
    QWidget Form;
    clockcore::ClockData Data;
    mduUILib::ClockControls Controls;
    WritingCalculator Calculator;
    WritingClicks Clicks;
    clockcore::ClockInput Input{Form, Data, Controls, Calculator, Clicks};

    InputDesk() {
        Put(Controls.imgSpeaker(1), 0);
        Put(Controls.imgAction(1), 20);
        Put(Controls.lblMsg(1), 40);
    }
    void Put(mduUILib::Control& control, double left) const {
        const auto ratio = static_cast<float>(Form.devicePixelRatioF());
        control.Left = static_cast<float>(left) * ratio;
        control.Width = control.Height = 10 * ratio;
        control.Visible = true;
    }

    bool Key(int key, const QString& text = {}, Qt::KeyboardModifiers with = {}) {
        return Input.PressKey(QKeyEvent(QEvent::KeyPress, key, with, text));
    }
    bool Press(const QPoint& at, Qt::MouseButton button, Qt::KeyboardModifiers with = {}) {
        return Input.PressMouse(
            QMouseEvent(QEvent::MouseButtonPress, at, at, button, button, with));
    }
    void Menu(const QPoint& at, Qt::KeyboardModifiers with = {}) {
        Input.ShowMenu(
            QContextMenuEvent(QContextMenuEvent::Mouse, at, at + QPoint(100, 100), with));
    }
};

}  // namespace

class tst_ClockInput : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TabBeginsTheTyping() {
        InputDesk desk;
        desk.Data.Tag = {ClockKind::Calculator, false};
        QVERIFY(!desk.Key(Qt::Key_5, u"5"_s));
        QVERIFY(desk.Key(Qt::Key_Tab, u"\t"_s));
        QVERIFY(desk.Data.Is(ClockKind::CalculatorInput));
        QVERIFY(desk.Key(Qt::Key_Left));
        QVERIFY(desk.Key(Qt::Key_Backtab, {}, Qt::ShiftModifier));
        QCOMPARE(desk.Calculator.Log, (QStringList{u"begin"_s, u"37"_s, u"9"_s}));
    }

    void EscEndsTheTyping() {
        InputDesk desk;
        desk.Data.Tag = {ClockKind::CalculatorInput, false};
        QVERIFY(desk.Key(Qt::Key_Escape));
        QVERIFY(desk.Data.Is(ClockKind::Calculator));
    }

    void KeysThatMeanNothingAreTheWindows() {
        InputDesk desk;
        desk.Data.Tag = {ClockKind::CalculatorInput, false};
        QVERIFY(!desk.Key(Qt::Key_F5));
        QVERIFY(!desk.Key(Qt::Key_C, u"c"_s, Qt::ControlModifier));
        QVERIFY(!desk.Key(Qt::Key_Tab, u"\t"_s, Qt::AltModifier));
        QVERIFY(desk.Key(Qt::Key_Enter, u"\r"_s, Qt::KeypadModifier));
        QCOMPARE(desk.Calculator.Log, QStringList{u"13"_s});
        desk.Data.Tag = {ClockKind::Analogue, false};
        QVERIFY(!desk.Key(Qt::Key_Tab, u"\t"_s));
        QVERIFY(!desk.Key(Qt::Key_Left));
        QCOMPARE(desk.Calculator.Log.size(), 1);
    }

    void TheMenuKeyOpensTheClocksMenu() {
        InputDesk desk;
        desk.Form.setGeometry(100, 50, 200, 160);
        const QPoint middle = desk.Form.mapToGlobal(QPoint(99, 79));
        const QString menu = u"menu 0 at %1,%2"_s.arg(middle.x()).arg(middle.y());
        QVERIFY(desk.Key(Qt::Key_Menu));
        QVERIFY(desk.Key(Qt::Key_F10, {}, Qt::ShiftModifier));
        QCOMPARE(desk.Clicks.Log, QStringList({menu, menu}));
        QVERIFY(!desk.Key(Qt::Key_F10));
        QCOMPARE(desk.Clicks.Log.last(), u"key 121 0"_s);
    }

    void OtherKeysAreHandedOn() {
        InputDesk desk;
        QVERIFY(desk.Key(Qt::Key_F1));
        QVERIFY(!desk.Key(Qt::Key_K, u"\v"_s, Qt::ControlModifier | Qt::ShiftModifier));
        QVERIFY(!desk.Key(Qt::Key_K, {}, Qt::AltModifier | Qt::ControlModifier));
        QVERIFY(!desk.Key(Qt::Key_Up));
        QCOMPARE(desk.Clicks.Log,
                 QStringList({u"key 112 0"_s, u"key 75 3"_s, u"key 75 6"_s, u"key 0 0"_s}));
    }

    void ADoubleClickOnTheGround() {
        InputDesk desk;
        const auto doubleClick = [&desk](const QPoint& at, Qt::MouseButton button) {
            return desk.Input.DoubleClickMouse(
                QMouseEvent(QEvent::MouseButtonDblClick, at, at, button, button, {}));
        };
        QVERIFY(!doubleClick({5, 5}, Qt::LeftButton));
        QVERIFY(!doubleClick({99, 99}, Qt::RightButton));
        QVERIFY(doubleClick({99, 99}, Qt::LeftButton));
        QCOMPARE(desk.Clicks.Log, QStringList(u"ground"_s));
        desk.Form.setEnabled(false);
        QVERIFY(!doubleClick({99, 99}, Qt::LeftButton));
    }

    void TabIsTheCalculators_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<bool>("takes");
        QTest::newRow("analogue") << ClockKind::Analogue << false;
        QTest::newRow("digital") << ClockKind::Digital << false;
        QTest::newRow("calculator") << ClockKind::Calculator << true;
        QTest::newRow("typing") << ClockKind::CalculatorInput << true;
    }

    void TabIsTheCalculators() {
        QFETCH(ClockKind, kind);
        InputDesk desk;
        desk.Data.Tag = {kind, false};
        QTEST(desk.Input.TakesTab(), "takes");
    }

    void TheLeftButtonOnParts() {
        InputDesk desk;
        QVERIFY(desk.Press({5, 5}, Qt::LeftButton));
        QVERIFY(desk.Press({25, 5}, Qt::LeftButton));
        QVERIFY(!desk.Press({45, 5}, Qt::LeftButton));
        QVERIFY(!desk.Press({5, 5}, Qt::RightButton));
        QVERIFY(!desk.Press({5, 5}, Qt::LeftButton, Qt::ControlModifier));
        QVERIFY(desk.Press({25, 5}, Qt::LeftButton, Qt::ControlModifier));
        QCOMPARE(desk.Clicks.Log, (QStringList{u"speaker"_s, u"action"_s, u"action"_s}));
    }

    void TheTextOfAnActionIsTheAction() {
        InputDesk desk;
        desk.Put(desk.Controls.lblActionMsg(1), 60);
        QVERIFY(desk.Press({65, 5}, Qt::LeftButton));
        QCOMPARE(desk.Clicks.Log, QStringList{u"action"_s});
    }

    void EachPartHasItsMenu() {
        InputDesk desk;
        desk.Menu({5, 5});
        desk.Menu({25, 5});
        desk.Menu({45, 5});
        desk.Menu({80, 80});
        QCOMPARE(desk.Clicks.Log, (QStringList{u"menu 1 at 105,105"_s, u"menu 2 at 125,105"_s,
                                               u"menu 3 at 145,105"_s, u"menu 0 at 180,180"_s}));
    }

    // Without the keys of its place the dial's centre is at 0,0.
    void WhereTheHandsMeetIsTheirMenu() {
        InputDesk desk;
        desk.Menu({15, 15});
        desk.Menu({15, 21});
        QCOMPARE(desk.Clicks.Log,
                 (QStringList{u"menu %1 at 115,115"_s.arg(static_cast<int>(ClockPart::Hands)),
                              u"menu 0 at 115,121"_s}));
    }

    void AKeyOpensTheMenuOfTheClock() {
        InputDesk desk;
        desk.Input.ShowMenu(QContextMenuEvent(QContextMenuEvent::Keyboard, {45, 5}, {145, 105}));
        QCOMPARE(desk.Clicks.Log, QStringList{u"menu 0 at 145,105"_s});
    }

    void WithCtrlTheSpeakerHasNoMenu() {
        InputDesk desk;
        desk.Menu({5, 5}, Qt::ControlModifier);
        QCOMPARE(desk.Clicks.Log, QStringList());
        desk.Menu({25, 5}, Qt::ControlModifier);
        QCOMPARE(desk.Clicks.Log, QStringList{u"menu 2 at 125,105"_s});
    }

    void ADisabledClockHasOneMenu() {
        InputDesk desk;
        desk.Form.setEnabled(false);
        desk.Menu({5, 5});
        QCOMPARE(desk.Clicks.Log, QStringList{u"disabled at 105,105"_s});
    }

    void ADisabledClockTypesNothing() {
        InputDesk desk;
        desk.Form.setEnabled(false);
        desk.Data.Tag = {ClockKind::Calculator, false};
        QVERIFY(!desk.Key(Qt::Key_Tab, u"\t"_s));
        QVERIFY(desk.Data.Is(ClockKind::Calculator));
        desk.Data.Tag = {ClockKind::CalculatorInput, false};
        QVERIFY(!desk.Key(Qt::Key_5, u"5"_s));
        QCOMPARE(desk.Calculator.Log, QStringList());
        QCOMPARE(desk.Clicks.Log, QStringList({u"key 0 0"_s, u"key 53 0"_s}));
    }
};

QTEST_MAIN(tst_ClockInput)
#include "tst_ClockInput.moc"
