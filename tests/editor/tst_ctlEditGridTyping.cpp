#include <QInputMethodEvent>

#include "editor/GridDesk.h"

/// What the host learns of keys, and what input methods bring.
class tst_ctlEditGridTyping : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LeavesOtherKeysToTheWindow();
    void TellsKeysInOrder();
    void TellsCodes_data();
    void TellsCodes();
    void SwallowsKeys();
    void TellsKeysInCells();
    void TypesWhatTheHostMakesOfIt();
    void TakesWhatIsCommitted();
    void TakesWhatIsComposed();
    void TakesDeadKeysInTheLine();
};

void tst_ctlEditGridTyping::LeavesOtherKeysToTheWindow() {
    struct Listener final : QObject {
        QList<int> Keys;
        bool eventFilter(QObject*, QEvent* event) override {
            const bool isKey = event->type() == QEvent::KeyPress;
            if (isKey && static_cast<QKeyEvent*>(event)->key() != Qt::Key_Control) {
                Keys += static_cast<QKeyEvent*>(event)->key();
            }
            return false;
        }
    } listener;
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Window.installEventFilter(&listener);
    desk.Press(Qt::Key_C, Qt::ControlModifier);
    desk.Press(Qt::Key_F5);
    QVERIFY(desk.Editor() == nullptr);
    desk.Press(Qt::Key_Return);
    desk.Press(Qt::Key_F5);
    QCOMPARE(listener.Keys, QList<int>({Qt::Key_C, Qt::Key_F5, Qt::Key_F5}));
    QVERIFY(desk.Editor() != nullptr);
}

void tst_ctlEditGridTyping::TellsKeysInOrder() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(desk.Host.Events.first(), u"KeyDown 39 3"_s);
    QCOMPARE(desk.Host.Events.last(), u"KeyUp 39 3"_s);
    desk.GoTo(1, GridDesk::Number);
    QTest::keyClick(&desk.View(), Qt::Key_X, Qt::NoModifier);
    QCOMPARE(desk.Host.Events,
             QStringList({u"KeyDown 88 0"_s, u"KeyPress 120"_s, u"KeyUp 88 0"_s}));
    desk.GoTo(1, GridDesk::Text);
    desk.Press(Qt::Key_Right);
    QCOMPARE(desk.Host.Events, QStringList({u"KeyDown 39 0"_s, u"LeaveCell"_s, u"EnterCell"_s,
                                            u"RowColChange"_s, u"SelChange"_s, u"KeyUp 39 0"_s}));
}

void tst_ctlEditGridTyping::TellsCodes_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QStringList>("events");
    const auto row = [](const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers,
                        const QStringList& events) {
        QTest::newRow(name) << int(key) << int(modifiers) << events;
    };
    row("enter", Qt::Key_Return, {}, {u"KeyDown 13 0"_s, u"KeyPress 13"_s, u"KeyUp 13 0"_s});
    row("backspace", Qt::Key_Backspace, {}, {u"KeyDown 8 0"_s, u"KeyPress 8"_s, u"KeyUp 8 0"_s});
    row("escape", Qt::Key_Escape, {}, {u"KeyDown 27 0"_s, u"KeyPress 27"_s, u"KeyUp 27 0"_s});
    row("delete", Qt::Key_Delete, {}, {u"KeyDown 46 0"_s, u"KeyUp 46 0"_s});
    row("F12", Qt::Key_F12, Qt::AltModifier, {u"KeyDown 123 4"_s, u"KeyUp 123 4"_s});
    row("ctrl and a letter", Qt::Key_K, Qt::ControlModifier, {u"KeyDown 75 2"_s, u"KeyUp 75 2"_s});
    row("a digit", Qt::Key_5, {}, {u"KeyDown 53 0"_s, u"KeyPress 53"_s, u"KeyUp 53 0"_s});
    row("another character", Qt::Key_Minus, {},
        {u"KeyDown 16777261 0"_s, u"KeyPress 45"_s, u"KeyUp 16777261 0"_s});
}

void tst_ctlEditGridTyping::TellsCodes() {
    QFETCH(int, key);
    QFETCH(int, modifiers);
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Number);
    desk.Press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(desk.Host.Events, "events");
}

void tst_ctlEditGridTyping::SwallowsKeys() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Host.SwallowedCode = 40;
    desk.Press(Qt::Key_Down);
    QCOMPARE(desk.Grid.Data().Row(), 1);
    desk.Host.SwallowedCode = 9;
    desk.Press(Qt::Key_Tab);
    QCOMPARE(desk.Grid.Data().Col(), 3);
    QVERIFY(desk.View().hasFocus());
    desk.Host.SwallowedCode = 88;
    desk.Host.Events.clear();
    QTest::keyClick(&desk.View(), Qt::Key_X);
    QVERIFY(!desk.Host.Events.contains(u"KeyPress 120"_s));
    desk.Host.SwallowedCode = -1;
    desk.Host.SwallowedChar = 'x';
    desk.Type(u"x"_s);
    QVERIFY(desk.Editor() == nullptr);
    desk.Host.SwallowedChar = 13;
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Editor() == nullptr);
    desk.Type(u"y"_s);
    QVERIFY(desk.Editor() != nullptr);
}

void tst_ctlEditGridTyping::TellsKeysInCells() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(2, GridDesk::Text);
    desk.Press(Qt::Key_Return);
    QVERIFY(desk.Host.KeysInCells.isEmpty());
    desk.Press(Qt::Key_Shift);  // which has no code
    desk.Press(Qt::Key_Home);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Host.KeysInCells, QStringList({u"36 2 3"_s, u"13 2 3"_s}));
    QCOMPARE(desk.Host.Events.filter(u"KeyDown"_s), QStringList{u"KeyDown 13 0"_s});
}

void tst_ctlEditGridTyping::TypesWhatTheHostMakesOfIt() {
    struct Capitals final : EditGridHost {
        void KeyPress(int& ascii) override { ascii = QChar::toUpper(static_cast<char32_t>(ascii)); }
    } host;
    FakeServices machine;
    ctlEditGrid grid(machine.Clock, host, nullptr);
    grid.SetCellCtl(1, 3);
    grid.Data().SetCol(1);
    grid.Refresh();
    grid.show();
    QTest::keyClick(&grid.View(), Qt::Key_Q);
    QCOMPARE(grid.GetComboEditText(), u"Q"_s);
}

// Input methods bring what they have made of several keys.
void tst_ctlEditGridTyping::TakesWhatIsCommitted() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    QVERIFY(desk.View().testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent event;
    event.setCommitString(u"\u6642\u8A08"_s);
    QApplication::sendEvent(&desk.View(), &event);
    QCOMPARE(desk.Host.Events.filter(u"KeyPress"_s), QStringList{u"KeyPress 26178"_s});
    QCOMPARE(desk.Line()->text(), u"\u6642\u8A08"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 3), u"\u6642\u8A08"_s);
}

void tst_ctlEditGridTyping::TakesWhatIsComposed() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    QInputMethodEvent composing(u"to"_s, {});
    QApplication::sendEvent(&desk.View(), &composing);
    QVERIFY(desk.Editor() != nullptr);
    QCOMPARE(desk.Line()->text(), QString());  // nothing is fixed yet, and "abc" is replaced
    QInputMethodEvent done;
    done.setCommitString(u"\u3068"_s);
    QApplication::sendEvent(desk.Keyboard(), &done);
    QCOMPARE(desk.Line()->text(), u"\u3068"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 3), u"\u3068"_s);
}

void tst_ctlEditGridTyping::TakesDeadKeysInTheLine() {
    GridDesk desk;
    desk.Show();
    desk.GoTo(1, GridDesk::Text);
    desk.Type(u"caf"_s);
    QTest::sendKeyEvent(QTest::Click, desk.Keyboard(), Qt::Key_Dead_Acute, QString(), {});
    QTest::sendKeyEvent(QTest::Click, desk.Keyboard(), Qt::Key_E, u"\u00E9"_s, {});
    QCOMPARE(desk.Line()->text(), u"caf\u00E9"_s);
    desk.Press(Qt::Key_Return);
    QCOMPARE(desk.Cell(1, 3), u"caf\u00E9"_s);
}

QTEST_MAIN(tst_ctlEditGridTyping)
#include "tst_ctlEditGridTyping.moc"
