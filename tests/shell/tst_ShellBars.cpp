#include <QContextMenuEvent>
#include <QMenuBar>
#include <QTest>

#include "shell/ShellDesk.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/ToolBar.h"

/// The menus of the bars, and how what was hidden with the mouse comes back with the mouse.
class tst_ShellBars : public QObject {
    Q_OBJECT

private:
    /// A press of the right button there, as the window system sends it; the menu that it opens.
    static QMenu* RightClick(QWidget* widget, const QPoint& at) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
        QCoreApplication::sendEvent(widget, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    static QString NameOf(const QMenu* menu) {
        return menu == nullptr ? u"none"_s : menu->objectName();
    }

    /// What can be hidden or changed, in words.
    static QString Look(const Desk& desk) {
        const auto* bar = desk.Shell->findChild<ToolBar*>();
        const auto* status = desk.Shell->findChild<StatusBar*>();
        return u"%1 %2 %3, status %4 %5, title %6, tips %7"_s
            .arg(bar->isVisible() ? u"shown"_s : u"hidden"_s)
            .arg(bar->AlignCode())
            .arg(bar->SizeName(), status->isVisible() ? u"shown"_s : u"hidden"_s)
            .arg(status->AlignCode())
            .arg(desk.Shell->windowFlags() & Qt::FramelessWindowHint ? u"hidden"_s : u"shown"_s,
                 desk.Shell->Setting(u"Auto Show Balloon Tips"_s));
    }

private Q_SLOTS:
    void ARightClickOpensAMenu_data() {
        QTest::addColumn<QString>("part");
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QStringList>("entries");
        const QStringList bars = {u"Status Bar"_s, u"Tool Bar"_s};
        QTest::newRow("menu bar") << u"menuBar"_s << QPoint(700, 5) << u"BarsMenu"_s << bars;
        QTest::newRow("title of a menu") << u"menuBar"_s << QPoint(10, 8) << u"BarsMenu"_s << bars;
        QTest::newRow("status bar") << u"sbStatusBar"_s << QPoint(40, 5) << u"StatusBarMenu"_s
                                    << QStringList{u"Hide Status Bar"_s, u"Clear Status Message"_s};
        QTest::newRow("toolbar") << u"toolbar"_s << QPoint(5, 5) << u"ToolBarMenu"_s
                                 << QStringList{u"ToolBar Size"_s, u"Tool Bar Position"_s,
                                                u"Hind Tool Tips"_s, u"Customize Toolbar"_s,
                                                u"Save Current Toolbar Setting"_s};
        QTest::newRow("header") << u"picMain"_s << QPoint(10, 10) << u"MainMenu"_s
                                << QStringList{u"Enable Auto Start"_s,
                                               u"Set Screen Saver"_s,
                                               u"-"_s,
                                               u"-"_s,
                                               u"Exit"_s,
                                               u"-"_s,
                                               u"Help"_s,
                                               u"About"_s,
                                               u"-"_s,
                                               u"Save Current Settings"_s,
                                               u"Properties"_s};
    }

    void ARightClickOpensAMenu() {
        QFETCH(QString, part);
        QFETCH(QPoint, at);
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->menuBar()->setObjectName(u"menuBar"_s);
        QMenu* menu = RightClick(desk.Shell->findChild<QWidget*>(part), at);
        QTEST(NameOf(menu), "menu");
        QTEST(Desk::Texts(menu), "entries");
        menu->close();
    }

    void ARightClickOnTheGroundOpensTheWindowMenu() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Settle();
        desk.Machine.Clock.Advance(400);
        const QString before = desk.Status();
        QWidget* ground = desk.Shell->findChild<ClockArea*>()->viewport();
        QTest::mouseClick(ground, Qt::RightButton, {}, {3, 3});
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QCOMPARE(NameOf(menu), u"Window"_s);
        QVERIFY(Desk::Texts(menu).contains(u"UTC"_s));
        QCOMPARE(desk.Status(), before);  // the empty message adds nothing
        menu->close();
        QTest::mouseClick(ground, Qt::LeftButton, {}, {3, 3});
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void ViewHoldsWhatCanBeHidden() {
        Desk desk;
        QVERIFY(desk.Start());
        QMenu* view = desk.Menu(u"View"_s);
        Q_EMIT view->aboutToShow();
        QCOMPARE(Desk::Texts(view).mid(0, 3),
                 (QStringList{u"Status Bar"_s, u"Tool Bar"_s, u"Hide Title Bar"_s}));
        QCOMPARE(Desk::Texts(view).mid(Desk::Texts(view).size() - 2),
                 (QStringList{u"-"_s, u"Setup Auto Start"_s}));
        QCOMPARE(Desk::Texts(desk.Menu(u"ToolBarMenu"_s)),
                 (QStringList{u"ToolBar Size"_s, u"Tool Bar Position"_s, u"Hind Tool Tips"_s,
                              u"Customize Toolbar"_s, u"Save Current Toolbar Setting"_s}));
        // The same submenus stand under CProperty.
        QMenu* central = desk.Open(u"CProperty"_s);
        QCOMPARE(Desk::Item(central, u"Tool Bar"_s)->menu(), desk.Menu(u"ToolBarMenu"_s));
        QCOMPARE(Desk::Item(view, u"Tool Bar"_s)->menu(), desk.Menu(u"ToolBarMenu"_s));
        central->close();
    }

    void AHiddenToolbarComesBackFromTheMenuBar() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                               "Tool Bar=Left:Hide\r\nStatus Bar=Yes\r\n");
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<ToolBar*>();
        QVERIFY(!bar->isVisible());
        QMenu* menu = RightClick(desk.Shell->menuBar(), {5, 5});
        QCOMPARE(NameOf(menu), u"BarsMenu"_s);
        QMenu* positions = desk.Menu(u"ToolBarPositionMenu"_s);
        QVERIFY(Desk::Item(positions, u"Hide"_s)->isChecked());
        QVERIFY(!Desk::Item(positions, u"Left"_s)->isChecked());
        menu->close();
        Desk::Click(positions, u"Left"_s);
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->AlignCode(), 3);
        Q_EMIT desk.Menu(u"View"_s)->aboutToShow();
        QVERIFY(Desk::Item(positions, u"Left"_s)->isChecked());
    }

    void AStatusBarHiddenForNowComesBackWithOneClick_data() {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("align");
        QTest::addColumn<QByteArray>("kept");
        for (const QString& entry : {u"StatusBarAction"_s, u"HideStatusBar"_s}) {
            const char* name = entry == u"HideStatusBar"_s ? "CProperty" : "View";
            QTest::addRow("%s, bottom", name)
                << QByteArray("Yes") << entry << 2 << QByteArray("Status Bar=Yes\r\n");
            QTest::addRow("%s, top", name)
                << QByteArray("Top") << entry << 1 << QByteArray("Status Bar=Top\r\n");
        }
    }

    void AStatusBarHiddenForNowComesBackWithOneClick() {
        QFETCH(QByteArray, stored);
        QFETCH(QString, entry);
        QFETCH(QByteArray, kept);
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s, "Status Bar=" + stored + "\r\n");
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<StatusBar*>();
        QCOMPARE(desk.Caption(u"StatusBarAction"_s), u"Hide Status Bar"_s);
        desk.ClickItem(u"StatusBarAction"_s, 1);
        QVERIFY(!bar->isVisible());
        QCOMPARE(desk.Caption(u"HideStatusBar"_s), u"Show Status Bar"_s);
        QCOMPARE(desk.Caption(u"StatusBarAction"_s), u"Show Status Bar"_s);
        desk.ClickItem(entry, 1);
        QVERIFY(bar->isVisible());
        QTEST(bar->AlignCode(), "align");
        QCOMPARE(desk.Caption(entry), u"Hide Status Bar"_s);
        QCOMPARE(desk.User(u"TempolarkCentral.ini"_s), kept);
    }

    void AStatusBarHiddenForGoodComesBackForGood() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s, "Status Bar=No\r\n");
        QVERIFY(desk.Start());
        QCOMPARE(desk.Caption(u"StatusBarAction"_s), u"Show Status Bar"_s);
        desk.ClickItem(u"StatusBarAction"_s, 1);
        QVERIFY(desk.Shell->findChild<StatusBar*>()->isVisible());
        QCOMPARE(desk.User(u"TempolarkCentral.ini"_s), QByteArray("Status Bar=Yes\r\n"));
    }

    void ASizeNeverHidesTheBar() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s, "Tool Bar=None\r\n");
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<ToolBar*>();
        desk.ClickItem(u"ToolBarSize"_s, 1);
        QVERIFY(!bar->isVisible());  // the file says that there is none
        desk.ClickItem(u"ToolBarPositions"_s, 2);
        desk.ClickItem(u"ToolBarSize"_s, 3);
        QVERIFY(bar->isVisible());
    }

    void EverySettingHasItsWayBack_data() {
        QTest::addColumn<QString>("away");
        QTest::addColumn<int>("awayIndex");
        QTest::addColumn<QString>("changed");
        QTest::addColumn<QString>("back");
        QTest::addColumn<int>("backIndex");
        const auto look = [](const char* toolbar, const char* status, const char* title,
                             const char* tips) {
            return u"%1, status %2 2, title %3, tips %4"_s.arg(
                QString::fromLatin1(toolbar), QString::fromLatin1(status),
                QString::fromLatin1(title), QString::fromLatin1(tips));
        };
        const char* const top = "shown 1 Large Size";
        const QString position = u"ToolBarPositions"_s;
        const QString size = u"ToolBarSize"_s;
        QTest::newRow("bottom") << position << 2
                                << look("shown 2 Large Size", "shown", "shown", "Yes") << position
                                << 1;
        QTest::newRow("left") << position << 3
                              << look("shown 3 Large Size", "shown", "shown", "Yes") << position
                              << 1;
        QTest::newRow("right") << position << 4
                               << look("shown 4 Large Size", "shown", "shown", "Yes") << position
                               << 1;
        QTest::newRow("hidden") << position << 5
                                << look("hidden 1 Large Size", "shown", "shown", "Yes") << position
                                << 1;
        QTest::newRow("small") << size << 1 << look("shown 1 Small Size", "shown", "shown", "Yes")
                               << size << 3;
        QTest::newRow("captions") << size << 4
                                  << look("shown 1 Large Size with Caption", "shown", "shown",
                                          "Yes")
                                  << size << 3;
        QTest::newRow("balloons") << u"AutoShowToolTips"_s << 1 << look(top, "shown", "shown", "No")
                                  << u"AutoShowToolTips"_s << 1;
        QTest::newRow("title bar")
            << u"WindowTitleBar"_s << 1 << look(top, "shown", "hidden", "Yes")
            << u"WindowTitleBar"_s << 1;
        QTest::newRow("status bar")
            << u"HideStatusBar"_s << 1 << look(top, "hidden", "shown", "Yes") << u"HideStatusBar"_s
            << 1;
        QTest::newRow("status bar, by View")
            << u"HideStatusBar"_s << 1 << look(top, "hidden", "shown", "Yes")
            << u"StatusBarAction"_s << 1;
    }

    void EverySettingHasItsWayBack() {
        QFETCH(QString, away);
        QFETCH(int, awayIndex);
        QFETCH(QString, back);
        QFETCH(int, backIndex);
        Desk desk;
        QVERIFY(desk.Start());
        const QString before = u"shown 1 Large Size, status shown 2, title shown, tips Yes"_s;
        QCOMPARE(Look(desk), before);
        desk.ClickItem(away, awayIndex);
        QTEST(Look(desk), "changed");
        desk.ClickItem(back, backIndex);
        QCOMPARE(Look(desk), before);
    }
};

QTEST_MAIN(tst_ShellBars)
#include "tst_ShellBars.moc"
