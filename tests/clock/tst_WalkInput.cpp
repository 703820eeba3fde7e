#include "MouseDesk.h"

namespace {

struct KeyDesk : MouseDesk {
    using MouseDesk::MouseDesk;

    void Key(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(Clock, key, with); }
    void Tab(int times = 1) {
        for (int i = 0; i < times; ++i) {
            Key(Qt::Key_Tab);
        }
    }
    /// What a screen reader is told of the part with the ring.
    QString Focus() const { return Clock->accessibleDescription(); }
    QImage Sight() const { return Clock->grab().toImage(); }
};

/// The pixels in which two pictures differ.
QRect Difference(const QImage& one, const QImage& other) {
    QRect area;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}

}  // namespace

class tst_WalkInput : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Hands, twelve numbers, speaker, name; then out, and in again.
    void TabWalksAlong() {
        KeyDesk desk;
        QStringList parts;
        for (int i = 0; i < 16; ++i) {
            desk.Tab();
            parts += desk.Focus();
        }
        QCOMPARE(parts.mid(0, 3),
                 (QStringList{u"Hands"_s, u"Hour number 1"_s, u"Hour number 2"_s}));
        QCOMPARE(parts.mid(12), (QStringList{u"Hour number 12"_s, u"Speaker"_s,
                                             u"Name of the zone"_s, QString()}));
        desk.Tab(2);
        desk.Key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(desk.Focus(), u"Hands"_s);
        desk.Key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(desk.Focus(), QString());
        desk.Key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(desk.Focus(), u"Name of the zone"_s);
    }

    void EscapeEndsIt() {
        KeyDesk desk;
        desk.Tab(3);
        desk.Key(Qt::Key_Escape);
        QCOMPARE(desk.Focus(), QString());
        desk.Tab();
        QCOMPARE(desk.Focus(), u"Hands"_s);
    }

    void AClickEndsIt() {
        KeyDesk desk;
        desk.Tab(3);
        desk.Press({10, 10});
        desk.Release({10, 10});
        QCOMPARE(desk.Focus(), QString());
    }

    void ACalculatorKeepsItsTab() {
        KeyDesk desk("Clocks=Analogue", "Clocks=Calculator");
        desk.Tab();
        QVERIFY(desk.Clock->Data().Is(clockcore::ClockKind::CalculatorInput));
        QCOMPARE(desk.Focus(), QString());
    }

    /// Around the hub, 20 pixels to each side and 3 more; nothing of it is on the surface, and none
    /// is left when the walk is over.
    void TheRing() {
        KeyDesk desk;
        const QImage before = desk.Sight();
        const QImage surface = desk.Clock->PaintedSurface().Image().copy();
        desk.Tab();
        const QImage with = desk.Sight();
        QCOMPARE(Difference(before, with), QRect(127, 77, 46, 46));
        QCOMPARE(with.pixel(150, 77), qRgb(16, 24, 48));
        QCOMPARE(with.pixel(150, 78), qRgb(255, 255, 255));
        QCOMPARE(with.pixel(150, 79), before.pixel(150, 79));
        QVERIFY(desk.Clock->PaintedSurface().Image() == surface);
        desk.Key(Qt::Key_Escape);
        QCOMPARE(desk.Sight(), before);
    }

    void TheRingAsksForNoRedraw() {
        KeyDesk desk;
        QCoreApplication::processEvents();
        desk.Base.Machine.Clock.Advance(2000);
        QCoreApplication::processEvents();
        QVERIFY(desk.Clock->Data().State == clockcore::ClockState::Running);
        desk.Tab(4);
        QCoreApplication::processEvents();
        desk.Key(Qt::Key_Escape);
        QCoreApplication::processEvents();
        QVERIFY(desk.Clock->Data().State == clockcore::ClockState::Running);
    }

    void ItsMenuOpensAtThePart_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("return") << int(Qt::Key_Return);
        QTest::newRow("enter") << int(Qt::Key_Enter);
        QTest::newRow("space") << int(Qt::Key_Space);
        QTest::newRow("menu") << int(Qt::Key_Menu);
    }

    void ItsMenuOpensAtThePart() {
        QFETCH(int, key);
        KeyDesk desk;
        desk.Key(Qt::Key_Backtab, Qt::ShiftModifier);
        desk.Key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(desk.Focus(), u"Speaker"_s);
        desk.Key(Qt::Key(key));
        QMenu* menu = KeyDesk::OpenMenu();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->objectName(), u"SpeakerMenu"_s);
        menu->close();
        QCOMPARE(desk.Focus(), u"Speaker"_s);  // the walk goes on behind it
    }

    void WithoutAWalkTheMenuIsTheClocks() {
        KeyDesk desk;
        desk.Key(Qt::Key_Return);
        QVERIFY(KeyDesk::OpenMenu() == nullptr);
        desk.Key(Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(KeyDesk::OpenMenu() != nullptr);
        QCOMPARE(KeyDesk::OpenMenu()->objectName(), u"FormPopup"_s);
        KeyDesk::OpenMenu()->close();
        desk.Key(Qt::Key_Menu);
        QVERIFY(KeyDesk::OpenMenu() != nullptr);
        KeyDesk::OpenMenu()->close();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
        QCoreApplication::sendEvent(desk.Clock, &event);
        QVERIFY(KeyDesk::OpenMenu() != nullptr);
        KeyDesk::OpenMenu()->close();
    }

    /// 51 and 52 percent; stored when the key is let go.
    void ArrowsPushTheDial() {
        KeyDesk desk;
        desk.Tab();
        QTest::keyPress(desk.Clock, Qt::Key_Right);
        QCOMPARE(desk.Value(u"Clock CentralX(%)"_s), u"51"_s);
        QCOMPARE(desk.InFile(u"Clock CentralX(%)"_s), u"-1"_s);
        QTest::keyPress(desk.Clock, Qt::Key_Right);
        QTest::keyPress(desk.Clock, Qt::Key_Up);
        QCOMPARE(desk.Base.Shell.Messages, QStringList());
        QTest::keyRelease(desk.Clock, Qt::Key_Right);
        QCOMPARE(desk.InFile(u"Clock CentralX(%)"_s), u"52"_s);
        QCOMPARE(desk.InFile(u"Clock CentralY(%)"_s), u"49"_s);
        QCOMPARE(desk.Base.Shell.Messages.size(), 1);
        QTest::keyRelease(desk.Clock, Qt::Key_Up);
        QCOMPARE(desk.Base.Shell.Messages.size(), 1);
    }

    /// 3 of 300 pixels to the left, and another size while the key is down.
    void APushHoldsThroughAnotherSize() {
        KeyDesk desk;
        desk.Tab(15);
        const mduUILib::Control& name = desk.Clock->Controls().lblLocation(1);
        const qreal left = name.Rect().left();
        QTest::keyPress(desk.Clock, Qt::Key_Left);
        desk.Frame()->resize(desk.Frame()->size() + QSize(40, 20));
        desk.Base.Machine.Clock.Advance(2000);
        QCOMPARE(name.Rect().left(), left - 3);
        QTest::keyRelease(desk.Clock, Qt::Key_Left);
        QCOMPARE(desk.InFile(u"Time Zone Name Left"_s).toDouble(), left - 3);
    }

    void TheRingGoesWithThePart() {
        KeyDesk desk;
        desk.Tab();
        QTest::keyClick(desk.Clock, Qt::Key_Right);
        const QImage with = desk.Sight();
        QCOMPARE(with.pixel(153, 77), qRgb(16, 24, 48));  // 3 of 300 pixels further
        QCOMPARE(with.pixel(153 - 23, 100), qRgb(16, 24, 48));
    }

    void APushIsKeptWhenTheWalkEnds_data() {
        using Act = std::function<void(KeyDesk&)>;
        QTest::addColumn<Act>("act");
        QTest::newRow("escape") << Act([](KeyDesk& desk) { desk.Key(Qt::Key_Escape); });
        QTest::newRow("tab") << Act([](KeyDesk& desk) { desk.Tab(); });
        QTest::newRow("click") << Act([](KeyDesk& desk) { desk.Press({10, 10}); });
        QTest::newRow("disable") << Act([](KeyDesk& desk) { desk.Clock->EnableWindow(false); });
        QTest::newRow("close") << Act([](KeyDesk& desk) { desk.Base.Close(desk.Clock); });
    }

    void APushIsKeptWhenTheWalkEnds() {
        QFETCH(std::function<void(KeyDesk&)>, act);
        KeyDesk desk;
        desk.Tab();
        QTest::keyPress(desk.Clock, Qt::Key_Left);
        act(desk);
        QCOMPARE(desk.InFile(u"Clock CentralX(%)"_s), u"49"_s);
    }

    void ADisabledClockIsNotWalked_data() {
        QTest::addColumn<QByteArray>("enable");
        QTest::newRow("from its start") << QByteArray("Enable=No");
        QTest::newRow("in between") << QByteArray("Enable=Yes");
    }

    void ADisabledClockIsNotWalked() {
        QFETCH(QByteArray, enable);
        KeyDesk desk("Enable=Yes", enable);
        if (desk.Clock->isEnabled()) {
            desk.Tab();
            QCOMPARE(desk.Focus(), u"Hands"_s);
            desk.Clock->EnableWindow(false);
        }
        QCOMPARE(desk.Focus(), QString());
        QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(desk.Clock, &focus);
        QCOMPARE(desk.Focus(), QString());
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.Clock, &tab);
        QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.Clock, &right);
        QCOMPARE(desk.Focus(), QString());
        QCOMPARE(desk.Value(u"Clock CentralX(%)"_s), u"-1"_s);
    }

    void ANumberStays() {
        KeyDesk desk;
        desk.Tab(2);
        desk.Key(Qt::Key_Right);
        QCOMPARE(desk.Focus(), u"Hour number 1"_s);
        QCOMPARE(desk.Value(u"Clock CentralX(%)"_s), u"-1"_s);
    }

    /// Who comes by Tab is at the first part, who comes back at the last.
    void TheFocusComesByTab() {
        KeyDesk desk;
        QFocusEvent forward(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(desk.Clock, &forward);
        QCOMPARE(desk.Focus(), u"Hands"_s);
        QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
        QCoreApplication::sendEvent(desk.Clock, &out);
        QCOMPARE(desk.Focus(), QString());
        QFocusEvent backward(QEvent::FocusIn, Qt::BacktabFocusReason);
        QCoreApplication::sendEvent(desk.Clock, &backward);
        QCOMPARE(desk.Focus(), u"Name of the zone"_s);
        QFocusEvent click(QEvent::FocusIn, Qt::MouseFocusReason);
        QCoreApplication::sendEvent(desk.Clock, &out);
        QCoreApplication::sendEvent(desk.Clock, &click);
        QCOMPARE(desk.Focus(), QString());
    }

    /// A timer that fires takes its mark along, and the ring with it.
    void ARingDoesNotOutliveItsPart() {
        KeyDesk desk;
        desk.Tab(15);
        QCOMPARE(desk.Focus(), u"Name of the zone"_s);
        desk.Clock->SetClocks(2);
        desk.Clock->SetClocks(4);  // dial and digits show no name
        desk.Base.Machine.Clock.Advance(2000);
        QVERIFY(!desk.Clock->Controls().lblLocation(1).Visible);
        const QImage with = desk.Sight();
        desk.Key(Qt::Key_Escape);
        QCOMPARE(desk.Sight(), with);
    }
};

QTEST_MAIN(tst_WalkInput)
#include "tst_WalkInput.moc"
