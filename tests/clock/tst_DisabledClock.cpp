#include "MenuClicks.h"
#include "clock/ui/DisabledVeil.h"

/// A clock that is disabled: how it looks, and the way back.
class tst_DisabledClock : public QObject {
    Q_OBJECT

    static QImage Sight(QWidget* widget) { return widget->grab().toImage(); }

    /// The lightest less the darkest of a part of a picture.
    static int Contrast(const QImage& picture, const QRect& part) {
        int least = 255;
        int most = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const int grey = qGray(picture.pixel(x, y));
                least = qMin(least, grey);
                most = qMax(most, grey);
            }
        }
        return most - least;
    }

    static void RightClick(const ClickedDesk& desk, QWidget& widget, const QPoint& at) {
        QTest::mouseClick(desk.Base.Area.windowHandle(), Qt::RightButton, {},
                          widget.mapTo(&desk.Base.Area, at));
    }

    /// A key as the shell hands it on. @return whether it meant something
    static bool Press(frmTempolark& clock, int key, Qt::KeyboardModifiers with = {}) {
        QKeyEvent event(QEvent::KeyPress, key, with);
        event.ignore();
        return static_cast<QObject&>(clock).event(&event) && event.isAccepted();
    }

private Q_SLOTS:
    /// 150 of 255 parts grey 150, the rest what is there.
    void Veil() {
        QImage image(3, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        image.setPixel(0, 0, qRgb(255, 0, 0));
        image.setPixel(1, 0, qRgb(255, 0, 0));
        QPainter painter(&image);
        clockcore::DrawDisabledVeil(painter, QRect(1, 0, 2, 1));
        painter.end();
        QCOMPARE(image.pixel(0, 0), qRgb(255, 0, 0));
        QVERIFY(qAbs(qRed(image.pixel(1, 0)) - 193) <= 1);
        QVERIFY(qAbs(qGreen(image.pixel(1, 0)) - 88) <= 1);
        QCOMPARE(qAlpha(image.pixel(2, 0)), 0);
    }

    void FaceAndTitleAreDimmed() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowBackColour({}, u"Red"_s);
        QWidget* frame = clock->parentWidget();
        const QRect title(30, 4, 120, 16);
        const QImage face = Sight(clock);
        const QImage whole = Sight(frame);
        QCOMPARE(face.pixel(1, 1), qRgb(255, 0, 0));
        clock->EnableWindow(false);
        QVERIFY(qAbs(qRed(Sight(clock).pixel(1, 1)) - 193) <= 1);
        QVERIFY(qAbs(qBlue(Sight(clock).pixel(1, 1)) - 88) <= 1);
        QVERIFY(Contrast(whole, title) > 60);
        QVERIFY(Contrast(Sight(frame), title) < Contrast(whole, title) * 2 / 3);
        clock->EnableWindow(true);
        QCOMPARE(Sight(clock), face);
        QCOMPARE(Sight(frame), whole);
    }

    /// A second paints a part of the face; that part is as dim as the rest.
    void TicksKeepItDim() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->EnableWindow(false);
        desk.Base.Machine.Clock.Advance(2000);
        QCoreApplication::processEvents();
        const QImage parts =
            desk.Base.Area.windowHandle() != nullptr ? Sight(&desk.Base.Area) : QImage();
        clock->update();
        QCoreApplication::processEvents();
        QCOMPARE(Sight(&desk.Base.Area), parts);
    }

    void DisabledByItsFile() {
        ClickedDesk desk;
        QByteArray file = desk.Base.Machine.ReadFile(u"ini/Tempolark.ini"_s);
        file.replace("Enable=Yes", "Enable=No");
        desk.Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, file);
        frmTempolark* clock = desk.Running(u"UTC"_s);
        QVERIFY(!clock->Controls().imgSpeaker(1).Enabled);
        const QImage dim = Sight(clock);
        RightClick(desk, *clock, {100, 60});
        ClickedDesk::Choose({u"Enable Clock"_s});
        QVERIFY(clock->IsEnabled());
        QVERIFY(clock->Controls().imgSpeaker(1).Enabled);
        QCOMPARE(desk.Base.Key(u"UTC"_s, u"Enable"_s), u"Yes"_s);
        QCOMPARE(desk.Base.Shell.Messages.last(), u"Saved the settings of UTC at 12:00:00"_s);
        QVERIFY(Sight(clock) != dim);
    }

    void TellsOfAFileThatCantBeSaved() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->EnableWindow(false);
        desk.Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, QByteArray("\0\1", 2));
        RightClick(desk, *clock, {100, 60});
        ClickedDesk::Choose({u"Enable Clock"_s});
        QVERIFY(clock->IsEnabled());
        QVERIFY(desk.Base.Shell.Messages.last().endsWith(
            u"UTC.ini can't be read as a property file; it is left as it is"_s));
    }

    void RightClickOffersNothingElse_data() {
        QTest::addColumn<bool>("onTitle");
        QTest::newRow("face") << false;
        QTest::newRow("title bar") << true;
    }
    void RightClickOffersNothingElse() {
        QFETCH(bool, onTitle);
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->EnableWindow(false);
        RightClick(desk, onTitle ? *clock->parentWidget() : *clock, {60, 12});
        const QMenu* menu = ClickedDesk::OpenMenu();
        QVERIFY(menu != nullptr);
        QCOMPARE(ClickedDesk::Captions(*menu), QStringList{u"Enable Clock"_s});
        ClickedDesk::Choose({u"Enable Clock"_s});
        QVERIFY(clock->IsEnabled());
        RightClick(desk, *clock, {4, 4});  // beside the dial and its spots
        QVERIFY(ClickedDesk::OpenMenu() != nullptr);
        QCOMPARE(ClickedDesk::OpenMenu()->objectName(), u"FormPopup"_s);
    }

    void TheMenuKeyOffersNothingElse_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("with");
        QTest::newRow("menu key") << int(Qt::Key_Menu) << int(Qt::NoModifier);
        QTest::newRow("Shift+F10") << int(Qt::Key_F10) << int(Qt::ShiftModifier);
    }
    void TheMenuKeyOffersNothingElse() {
        QFETCH(int, key);
        QFETCH(int, with);
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->EnableWindow(false);
        Press(*clock, key, Qt::KeyboardModifiers(with));
        const QMenu* menu = ClickedDesk::OpenMenu();
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->objectName(), u"DisabledMenu"_s);
        ClickedDesk::Choose({u"Enable Clock"_s});
        QVERIFY(clock->IsEnabled());
    }

    void OtherKeysDoNothing() {
        ClickedDesk desk;
        for (const auto* row : {"F2:Clocks", "Ctrl+M:Window Maximized", "Ctrl+D:Disable"}) {
            const QStringList parts = QString::fromLatin1(row).split(u':');
            mduLib::AppendProperty(u"Clock"_s, parts[1], parts[0], desk.Base.Module.ShortcutList);
        }
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetClocks(3);
        clock->EnableWindow(false);
        for (const int key : {Qt::Key_Tab, Qt::Key_F2, Qt::Key_5}) {
            QVERIFY(!Press(*clock, key));
        }
        QVERIFY(clock->Data().Is(clockcore::ClockKind::Calculator));
        for (const int key : {Qt::Key_M, Qt::Key_W, Qt::Key_R}) {
            QVERIFY(!Press(*clock, key, Qt::ControlModifier));
        }
        QCOMPARE(clock->WindowState(), 0);
        QVERIFY(Press(*clock, Qt::Key_F1));
        QCOMPARE(desk.Base.Shell.Helps, 1);
        QVERIFY(!clock->IsEnabled());
        QVERIFY(Press(*clock, Qt::Key_D, Qt::ControlModifier));
        QVERIFY(clock->IsEnabled());
        clock->EnableWindow(false);
        QVERIFY(Press(*clock, Qt::Key_E, Qt::ControlModifier));
        QVERIFY(clock->IsEnabled());
    }

    void EnabledWhileMinimised() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(1);
        clock->EnableWindow(false);
        RightClick(desk, *clock->parentWidget(), {60, 12});
        ClickedDesk::Choose({u"Enable Clock"_s});
        QVERIFY(clock->IsEnabled());
        QCOMPARE(clock->WindowState(), 1);
    }

    void CanBeNeitherDraggedNorClosed() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        QWidget* frame = clock->parentWidget();
        const QRect place = frame->geometry();
        clock->EnableWindow(false);
        QWindow* window = desk.Base.Area.windowHandle();
        const QPoint title = frame->mapTo(&desk.Base.Area, QPoint(60, 12));
        QTest::mouseMove(window, title);
        QTest::mousePress(window, Qt::LeftButton, {}, title);
        QTest::mouseMove(window, title + QPoint(50, 50));
        QTest::mouseRelease(window, Qt::LeftButton, {}, title + QPoint(50, 50));
        QCOMPARE(frame->geometry(), place);
        QTest::mouseClick(window, Qt::LeftButton, {},
                          frame->mapTo(&desk.Base.Area, QPoint(frame->width() - 13, 12)));
        QVERIFY(frame->isVisible());
    }
};

QTEST_MAIN(tst_DisabledClock)
#include "tst_DisabledClock.moc"
