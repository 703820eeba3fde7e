#include "clock/ui/FormPopup.h"

#include "MenuClicks.h"
#include "support/FakeDialogs.h"

/// The menu of a real clock, with a real mouse and real keys.
class tst_FormPopup : public QObject {
    Q_OBJECT

    static void Style(ClickedDesk& desk, const QString& name, const QByteArray& colour) {
        QByteArray style = desk.Base.Machine.ReadFile(u"ini/Tempolark.ini"_s);
        style.replace("Window Background Colour=15397106", "Window Background Colour=" + colour);
        desk.Base.Machine.WriteFile(u"Styles/"_s + name + u".ini"_s, style);
    }
    static QRgb Ground(const frmTempolark& clock) {
        return clock.PaintedSurface().Image().pixel(2, 2);
    }
    static QMenu* Open(frmTempolark& clock) {
        QTest::keyClick(&clock, Qt::Key_Menu);
        return ClickedDesk::OpenMenu();
    }
    static QAction* EntryOf(const QMenu& menu, const QString& sub, const QString& caption) {
        return ClickedDesk::Entry(*ClickedDesk::Entry(menu, sub)->menu(), caption);
    }

private Q_SLOTS:
    void OpensByMouseAndKeys() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        desk.Base.Module.Paths.CurrentPropertyFile = u"/another.ini"_s;
        QTest::mouseClick(desk.Base.Area.windowHandle(), Qt::RightButton, {},
                          clock->mapTo(&desk.Base.Area, QPoint(3, 3)));
        QVERIFY(ClickedDesk::OpenMenu() != nullptr);
        QCOMPARE(ClickedDesk::OpenMenu()->objectName(), u"FormPopup"_s);
        QCOMPARE(desk.Base.Module.Paths.CurrentPropertyFile, desk.Base.Path(u"UTC"_s));
        ClickedDesk::OpenMenu()->close();
        QTest::keyClick(clock, Qt::Key_F10, Qt::ShiftModifier);
        QCOMPARE(ClickedDesk::OpenMenu()->objectName(), u"FormPopup"_s);
        ClickedDesk::OpenMenu()->close();
        clock->FormRightClick();
        QCOMPARE(ClickedDesk::OpenMenu()->objectName(), u"FormPopup"_s);
    }

    void IsFilledAtTheMomentOfOpening() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QMenu* menu = Open(*clock);
        QCOMPARE(ClickedDesk::Ticked(*ClickedDesk::Entry(*menu, u"Clocks"_s)->menu()),
                 QStringList(u"Analogue"_s));
        ClickedDesk::Choose({u"Clocks"_s, u"Digital"_s});
        QVERIFY(clock->Data().Is(clockcore::ClockKind::Digital));
        Style(desk, u"A & B"_s, "Red");
        menu = Open(*clock);
        QCOMPARE(ClickedDesk::Ticked(*ClickedDesk::Entry(*menu, u"Clocks"_s)->menu()),
                 QStringList(u"Digital"_s));
        QCOMPARE(ClickedDesk::Captions(*ClickedDesk::Entry(*menu, u"Clock Style"_s)->menu()),
                 QStringList({u"A && B"_s, u"More"_s}));
    }

    void LeavesTheValuesOfAPropertyWindow() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Style(desk, u"Oak"_s, "Red");
        ClockProperties values;
        mduLib::AppendProperty({}, u"Window Background Colour"_s, u"Blue"_s, values);
        clock->PreviewProperties(values);
        QCOMPARE(Ground(*clock), qRgb(0, 0, 255));
        QMenu* menu = Open(*clock);
        menu->close();
        QCOMPARE(Ground(*clock), qRgb(0, 0, 255));
        menu = Open(*clock);
        EntryOf(*menu, u"Clock Style"_s, u"Oak"_s)->hover();
        QCOMPARE(Ground(*clock), qRgb(255, 0, 0));
        menu->close();
        QCOMPARE(Ground(*clock), qRgb(0, 0, 255));
    }

    void PreviewsAStyle() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Style(desk, u"Oak"_s, "Red");
        Style(desk, u"Elm"_s, "Blue");
        const QByteArray file = desk.Base.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s);
        const QRgb own = Ground(*clock);
        QMenu* menu = Open(*clock);
        EntryOf(*menu, u"Clock Style"_s, u"Oak"_s)->hover();
        QCOMPARE(Ground(*clock), qRgb(255, 0, 0));
        EntryOf(*menu, u"Clock Style"_s, u"Elm"_s)->hover();
        QCOMPARE(Ground(*clock), qRgb(0, 0, 255));
        EntryOf(*menu, u"Clock Style"_s, u"More"_s)->hover();
        QCOMPARE(Ground(*clock), own);
        EntryOf(*menu, u"Clock Style"_s, u"Elm"_s)->hover();
        menu->close();
        QCOMPARE(Ground(*clock), own);
        desk.Base.Machine.Clock.Advance(2000);
        QCOMPARE(Ground(*clock), own);
        QCOMPARE(desk.Base.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s), file);
    }

    void PreviewsByTheKeyboard() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Style(desk, u"Oak"_s, "Red");
        const QRgb own = Ground(*clock);
        QMenu* menu = Open(*clock);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right}) {
            QTest::keyClick(menu, key);
        }
        QCOMPARE(Ground(*clock), qRgb(255, 0, 0));
        QTest::keyClick(ClickedDesk::OpenMenu(), Qt::Key_Escape);  // of the styles alone
        QCOMPARE(ClickedDesk::OpenMenu(), menu);
        QCOMPARE(Ground(*clock), own);
    }

    void AClickKeepsThePreviewedStyle() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Style(desk, u"Oak"_s, "Red");
        Open(*clock);
        ClickedDesk::Choose({u"Clock Style"_s, u"Oak"_s});
        QCOMPARE(Ground(*clock), qRgb(255, 0, 0));
        QCOMPARE(clock->Data().Dial.LastStyle, u"Oak"_s);
    }

    void AStyleDeletedMeanwhileIsTold() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Style(desk, u"Oak"_s, "Red");
        const QRgb own = Ground(*clock);
        QMenu* menu = Open(*clock);
        const QString path = desk.Base.Machine.AppFolder() + u"/Styles/Oak.ini"_s;
        QVERIFY(desk.Base.Machine.Files.Delete(path));
        EntryOf(*menu, u"Clock Style"_s, u"Oak"_s)->trigger();
        QCOMPARE(desk.Base.Shell.Messages, QStringList(path + u" is not there any more"_s));
        QCOMPARE(Ground(*clock), own);
    }

    void WhatIsOnlyHighlightedIsNotSaved() {
        ClickedDesk desk;
        Style(desk, u"Oak"_s, "Red");
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QRgb own = Ground(*clock);
        QMenu* menu = Open(*clock);
        EntryOf(*menu, u"Clock Style"_s, u"Oak"_s)->hover();
        QCOMPARE(Ground(*clock), qRgb(255, 0, 0));
        clock->SaveCurrentStyle();
        QCOMPARE(desk.Base.Key(u"UTC"_s, u"Window Background Colour"_s), u"15397106"_s);
        QCOMPARE(Ground(*clock), own);
        EntryOf(*menu, u"Clock Style"_s, u"Oak"_s)->hover();
        clock->SetProperty();
        QCOMPARE(
            mduLib::GetProperty(u"Window Background Colour"_s, desk.Base.Module.CurrentProperties),
            u"15397106"_s);
        EntryOf(*menu, u"Clock Style"_s, u"Oak"_s)->hover();
        const QString path = desk.Base.Machine.AppFolder() + u"/Styles/Mine.ini"_s;
        desk.Base.Machine.Dialogs.FileAnswers = {path};
        clock->SaveStyleAs();
        QVERIFY(desk.Base.Machine.ReadFile(u"Styles/Mine.ini"_s)
                    .contains("Background Colour=15397106"));
    }

    /// A click may still come from a menu whose clock is about to go.
    void AClosingClockDoesNothingMore() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        QAction* digital = EntryOf(*Open(*clock), u"Clocks"_s, u"Digital"_s);
        clock->Unload();
        digital->trigger();
        QVERIFY(clock->Data().Is(clockcore::ClockKind::Analogue));
    }

    void AClosingClockIsNotEnabled() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->EnableWindow(false);
        QTest::mouseClick(desk.Base.Area.windowHandle(), Qt::RightButton, {},
                          clock->mapTo(&desk.Base.Area, QPoint(60, 60)));
        QAction* enable = ClickedDesk::OpenMenu()->actions().value(0);
        desk.Base.Shell.Messages.clear();
        clock->Unload();
        enable->trigger();
        QVERIFY(!clock->IsEnabled());
        QCOMPARE(desk.Base.Shell.Messages, QStringList());
    }

    /// What others do while the menu is open.
    void AClockClosesUnderItsMenu() {
        ClickedDesk desk;
        Style(desk, u"Oak"_s, "Red");
        QPointer<frmTempolark> clock = desk.Running(u"UTC"_s);
        const QPointer<QMenu> menu = Open(*clock);
        EntryOf(*menu, u"Clock Style"_s, u"Oak"_s)->hover();
        desk.Base.Close(clock);
        QVERIFY(clock.isNull());
        QVERIFY(menu.isNull());
        QVERIFY(desk.Base.Key(u"UTC"_s, u"Window Background Colour"_s) != u"Red"_s);
    }

    void AMaximisedClockIsRestored() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        QTest::mouseDClick(clock, Qt::LeftButton, {}, {3, 3});
        QCOMPARE(clock->WindowState(), 2);
        QTest::mouseDClick(clock, Qt::LeftButton, {}, {3, 3});
        QCOMPARE(clock->WindowState(), 0);
        Open(*clock);
        ClickedDesk::Choose({u"Window State"_s, u"Maximized"_s});
        QCOMPARE(clock->WindowState(), 2);
        Open(*clock);
        ClickedDesk::Choose({u"Restore"_s});
        QCOMPARE(clock->WindowState(), 0);
    }

    void CtrlWIsTheClocks() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(2);
        QTest::keyClick(clock, Qt::Key_W, Qt::ControlModifier);
        QCOMPARE(clock->WindowState(), 0);
        QTest::keyClick(clock, Qt::Key_W, Qt::ControlModifier);
        QVERIFY(clock->isVisible());
        QVERIFY(clock->Data().State != clockcore::ClockState::Closing);
    }

    void MovesTheWindow_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("top left") << u"Top Left"_s << QPoint(0, 0);
        QTest::newRow("top right") << u"Top Right"_s << QPoint(100, 0);
        QTest::newRow("bottom left") << u"Bottom Left"_s << QPoint(0, 100);
        QTest::newRow("bottom right") << u"Bottom Right"_s << QPoint(100, 100);
        QTest::newRow("centre") << u"Centre"_s << QPoint(50, 50);
        QTest::newRow("centre, sized by itself") << u"Centre Auto Size"_s << QPoint(50, 50);
    }
    /// In hundredths of the way.
    void MovesTheWindow() {
        QFETCH(QString, caption);
        QFETCH(QPoint, place);
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        Open(*clock);
        ClickedDesk::Choose({u"Window Position"_s, caption});
        const QWidget* frame = clock->parentWidget();
        const QSize room = desk.Base.Area.viewport()->size() - frame->size();
        QVERIFY(qAbs(frame->x() * 100 - room.width() * place.x()) <= 100);
        QVERIFY(qAbs(frame->y() * 100 - room.height() * place.y()) <= 100);
    }

    void TellsOfTheLabel() {
        ClickedDesk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        auto& label = const_cast<mduUILib::Control&>(clock->Controls().lblClock(1));
        label.Left = 20;
        label.Top = 30;
        label.Width = 40;
        label.Height = 10;
        label.Tag = u"a text"_s;
        clock->RightClick(19, 35);
        clock->RightClick(40, 41);
        QCOMPARE(desk.Base.Machine.Dialogs.Boxes.size(), 0U);
        desk.Base.Machine.Dialogs.BoxAnswers = {1};
        clock->RightClick(40, 35);
        QCOMPARE(desk.Base.Machine.Dialogs.Boxes.size(), 1U);
        QCOMPARE(desk.Base.Machine.Dialogs.Boxes[0].Text, u"a text"_s);
        QCOMPARE(desk.Base.Machine.Dialogs.Boxes[0].Title, u"Right Click"_s);
        QCOMPARE(desk.Base.Machine.Dialogs.Boxes[0].Flags, 1);
    }
};

QTEST_MAIN(tst_FormPopup)
#include "tst_FormPopup.moc"
