#include "clock/ui/MessageBoxes.h"

#include <QKeyEvent>
#include <QTest>

#include "clock/DialDesk.h"

using namespace Qt::StringLiterals;

namespace {

/// A box over a plain form, whose timer is the only one.
struct BoxDesk : DialDesk {
    QWidget Form;
    clockcore::MessageBoxes Boxes{Form};
    clockcore::MessageTyping Keys{
        Data, {Controls, Timers, Host, Calculator, Canvas, Machine.Clock, Boxes}};

    explicit BoxDesk(const QString& message = u"Tea"_s) {
        Boxes.SetTyping(Keys);
        Form.setFocusPolicy(Qt::StrongFocus);
        Form.resize(300, 200);
        Form.show();
        Data.Tag = {clockcore::ClockKind::Digital, false};
        Add(u"03:05"_s, message);
    }
    void Open(int colour = 255) {
        timers::ClockTimer timer = Timers.Timer(1);
        timer.MessageColour = colour;
        Timers.ChangeTimer(1, timer);
        Keys.OpenMessageBox(1);
    }
    QLineEdit* Line() const { return Form.findChild<QLineEdit*>(u"txtMsg"_s); }
    void LoseFocus(Qt::FocusReason reason) const {
        QFocusEvent event(QEvent::FocusOut, reason);
        QApplication::sendEvent(Line(), &event);
    }
    /// Letters are thin, and their edges soft.
    static bool IsLike(const QColor& one, const QColor& other) {
        return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
                   std::abs(one.blue() - other.blue()) <
               200;
    }
    bool TakesKey(int key, Qt::KeyboardModifiers with = {}) const {
        QKeyEvent event(QEvent::KeyPress, key, with);
        event.ignore();
        QApplication::sendEvent(Line(), &event);
        return event.isAccepted();
    }
};

}  // namespace

class tst_MessageBoxes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void StandsWhereItsTimerWantsIt() {
        BoxDesk desk;
        desk.Open();
        QVERIFY(desk.Line() != nullptr && desk.Line()->isVisible());
        QCOMPARE(desk.Line()->geometry(), desk.Keys.Place(1).toAlignedRect());
        QCOMPARE(desk.Line()->text(), u"Tea"_s);
        desk.Controls.imgTimer(1).Height = 40;
        desk.Keys.Follow();
        QCOMPARE(desk.Line()->geometry().top(), 200 - 40 - 26 - 4);
    }

    void LettersCanBeReadOnAnyColour_data() {
        QTest::addColumn<int>("colour");
        QTest::addColumn<QColor>("back");
        QTest::addColumn<QColor>("letters");
        QTest::newRow("red") << 0x0000FF << QColor(Qt::red) << QColor(Qt::white);
        QTest::newRow("yellow") << 0x00FFFF << QColor(Qt::yellow) << QColor(Qt::black);
        QTest::newRow("black") << 0 << QColor(Qt::black) << QColor(Qt::white);
        QTest::newRow("blue") << 0xFF0000 << QColor(Qt::blue) << QColor(Qt::white);
    }

    void LettersCanBeReadOnAnyColour() {
        QFETCH(int, colour);
        QFETCH(QColor, back);
        QFETCH(QColor, letters);
        BoxDesk desk(u"HHHHHH"_s);
        desk.Open(colour);
        const QImage shown = desk.Line()->grab().toImage();
        int ofLetters = 0;
        for (int x = 0; x < 60; ++x) {
            for (int y = 2; y < shown.height() - 2; ++y) {
                ofLetters += BoxDesk::IsLike(shown.pixelColor(x, y), letters) ? 1 : 0;
            }
        }
        QCOMPARE(shown.pixelColor(shown.width() - 5, shown.height() - 4), back);
        QVERIFY2(ofLetters > 20, qPrintable(QString::number(ofLetters)));
    }

    // Opened and closed it is as it was, whatever a hand would have been kept from typing.
    void ALongMessageOfTheFileIsNotCut() {
        const QString message(100'001, u'x');
        BoxDesk desk(message);
        desk.Open();
        QCOMPARE(desk.Timers.Timer(1).Message.size(), 100'001);
        QCOMPARE(desk.Line()->text().size(), 100'001);
        desk.Keys.FinishMessage();
        QCOMPARE(desk.Timers.Timer(1).Message, message);
    }

    void NobodyTypesMoreThanThat() {
        BoxDesk desk;
        desk.Open();
        desk.Line()->insert(QString(100'001, u'x'));
        QCOMPARE(desk.Timers.Timer(1).Message.size(), 100'000);
    }

    void ItsOwnMenuAndAnotherWindowEndNothing() {
        BoxDesk desk;
        desk.Open();
        desk.LoseFocus(Qt::PopupFocusReason);
        QCOMPARE(desk.Keys.Slot(), 1);
        QVERIFY(QTest::qWaitForWindowActive(&desk.Form));
        QVERIFY(desk.Boxes.HasKeys());
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!desk.Boxes.HasKeys());
        desk.LoseFocus(Qt::ActiveWindowFocusReason);
        QCOMPARE(desk.Keys.Slot(), 1);
        desk.LoseFocus(Qt::MouseFocusReason);
        QCOMPARE(desk.Keys.Slot(), 0);
    }

    // Another clock of the same shell comes to the front.
    void AnotherPartOfTheWindowFinishesIt() {
        BoxDesk desk;
        desk.Form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.Form));
        desk.Open();
        desk.LoseFocus(Qt::ActiveWindowFocusReason);
        QCOMPARE(desk.Keys.Slot(), 0);
    }

    void KeysThatFinishIt_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
        QTest::newRow("Tab") << Qt::Key_Tab;
        QTest::newRow("Backtab") << Qt::Key_Backtab;
        QTest::newRow("Escape") << Qt::Key_Escape;
    }

    void KeysThatFinishIt() {
        QFETCH(Qt::Key, key);
        BoxDesk desk;
        desk.Open();
        QVERIFY(desk.TakesKey(key));
        QCOMPARE(desk.Keys.Slot(), 0);
        QVERIFY(desk.Timers.Timer(1).OnDial);
        QVERIFY(!desk.Line()->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(desk.Line() == nullptr);
    }

    void ALongMessageIsNotCut() {
        BoxDesk desk(QString(40'000, u'x'));
        desk.Open();
        desk.Line()->end(false);
        desk.Line()->insert(u"y"_s);
        desk.TakesKey(Qt::Key_Return);
        QCOMPARE(desk.Timers.Timer(1).Message, QString(40'000, u'x') + u'y');
    }

    void NoKeyPassesIt_data() {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("with");
        const int ctrl = Qt::ControlModifier;
        const int alt = Qt::AltModifier;
        QTest::newRow("up") << Qt::Key_Up << int(Qt::NoModifier);
        QTest::newRow("help") << Qt::Key_F1 << int(Qt::NoModifier);
        QTest::newRow("normal size") << Qt::Key_W << ctrl;
        QTest::newRow("Ctrl+Enter") << Qt::Key_Return << ctrl;
        QTest::newRow("Ctrl+F2") << Qt::Key_F2 << ctrl;
        QTest::newRow("Alt+K") << Qt::Key_K << alt;
        QTest::newRow("Alt+Esc") << Qt::Key_Escape << alt;
        QTest::newRow("Ctrl+Alt+D") << Qt::Key_D << (ctrl | alt);
    }

    void NoKeyPassesIt() {
        QFETCH(Qt::Key, key);
        QFETCH(int, with);
        BoxDesk desk;
        desk.Open();
        QVERIFY(desk.TakesKey(key, Qt::KeyboardModifiers(with)));
        QCOMPARE(desk.Keys.Slot(), 1);
        QCOMPARE(desk.Line()->text(), u"Tea"_s);
    }

    void ItsOwnKeysWork() {
        BoxDesk desk;
        desk.Open();
        QTest::keyClick(desk.Line(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(desk.Line()->selectedText(), u"Tea"_s);
        QTest::keyClick(desk.Line(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(desk.Line(), Qt::Key_End);
        QTest::keyClick(desk.Line(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Line()->text(), u"TeaTea"_s);
        QTest::keyClick(desk.Line(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Line()->text(), u"Tea"_s);
    }

    void DeleteTakesALetterFirst() {
        BoxDesk desk(u"T"_s);
        desk.Open();
        desk.Line()->home(false);
        QVERIFY(desk.TakesKey(Qt::Key_Delete));
        QCOMPARE(desk.Timers.Timer(1).Message, QString());
        QCOMPARE(desk.Keys.Slot(), 1);
        QVERIFY(desk.TakesKey(Qt::Key_Delete));
        QCOMPARE(desk.Keys.Slot(), 0);
        QVERIFY(!desk.Timers.Timer(1).OnDial);
    }

    void TheFormTakesTheKeysAgain() {
        BoxDesk desk;
        desk.Form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.Form));
        desk.Open();
        QTRY_VERIFY(desk.Line()->hasFocus());
        desk.TakesKey(Qt::Key_Return);
        QVERIFY(desk.Form.hasFocus());
    }
};

QTEST_MAIN(tst_MessageBoxes)
#include "tst_MessageBoxes.moc"
