#include "shell/ui/ToolBarCommands.h"

#include <QApplication>
#include <QTest>
#include <QToolButton>

#include "shell/BarsDesk.h"
#include "support/FakeSettings.h"

using namespace Qt::StringLiterals;

/// What the toolbar's buttons do, without a shell.
class tst_ToolBarCommands : public QObject {
    Q_OBJECT

private:
    struct Desk : BarsDesk {
        ToolBarCommands Buttons{TheProgram,
                                {*Toolbar, *Menus, State, Commands, Settings},
                                [this](const QString& text) { Log += text; }};
        Desk() {
            Toolbar->ApplyToolbarSize(u"Small Size"_s);
            Buttons.AddTo(Commands);
            for (const QString& name : {u"ActiveProperties"_s, u"SetShortcut"_s,
                                        u"ChooseTimeZone"_s, u"Help"_s, u"Exit"_s}) {
                Commands.Handle(name, [this, name] { Log += u"run "_s + name; });
            }
            Window.show();
        }
        /// What a click does; a menu is closed again.
        QString Press(int index) {
            Log.clear();
            Buttons.HandleToolButton(index);
            QWidget* menu = QApplication::activePopupWidget();
            if (menu != nullptr) {
                menu->close();
                return menu->objectName();
            }
            return Log.join(u'|');
        }
    };

private Q_SLOTS:
    void EachButton_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("effect");
        QTest::newRow("Launch") << 1 << u"File"_s;
        QTest::newRow("Minimize") << 6 << u"OpenedAction"_s;
        QTest::newRow("Property") << 9 << u"run ActiveProperties"_s;
        QTest::newRow("Shortcut") << 10 << u"run SetShortcut"_s;
        QTest::newRow("Timezone") << 11 << u"run ChooseTimeZone"_s;
        QTest::newRow("Clock Agent") << 12 << u"TempolarkAgent"_s;
        QTest::newRow("a separator") << 13 << QString();
        QTest::newRow("CProperty") << 14 << u"CentralProperty"_s;
        QTest::newRow("Manage Clocks") << 15 << u"WindowsProperty"_s;
        QTest::newRow("Organize Windows") << 16 << u"Window"_s;
        QTest::newRow("Datebrook")
            << 17 << u"Failed to launch Datebrook as datebrook.dll is missing"_s;
        QTest::newRow("Help") << 19 << u"run Help"_s;
        QTest::newRow("Exit") << 20 << u"run Exit"_s;
        QTest::newRow("no button") << 21 << QString();
        QTest::newRow("below the first") << 0 << QString();
    }

    void EachButton() {
        QFETCH(int, index);
        Desk desk;
        QTEST(desk.Press(index), "effect");
    }

    void ThePopUpHasTheButtonsTitle() {
        Desk desk;
        desk.Press(6);
        const shell::MenuItem& title = desk.State[u"Action"_s](1);
        QCOMPARE(title.Caption, u"Minimize"_s);
        QVERIFY(title.Visible && !title.Enabled);
        desk.Press(8);
        QCOMPARE(desk.State[u"Action"_s](1).Caption, u"Auto Start"_s);
    }

    void AMenuStandsBesideTheBar_data() {
        QTest::addColumn<int>("align");
        QTest::addColumn<QPoint>("corner");  // of the button, in its sizes
        QTest::newRow("top") << 1 << QPoint(0, 1);
        QTest::newRow("left") << 3 << QPoint(1, 0);
    }

    void AMenuStandsBesideTheBar() {
        QFETCH(int, align);
        QFETCH(QPoint, corner);
        Desk desk;
        desk.Window.move(50, 60);
        desk.Toolbar->SetAlign(align);
        desk.Frame->PlaceToolbar(align);
        QCoreApplication::processEvents();
        desk.Buttons.HandleToolButton(16);
        const QWidget* menu = QApplication::activePopupWidget();
        const QToolButton* button = desk.Toolbar->Button(16);
        const QPoint place(corner.x() * button->width(), corner.y() * button->height());
        QCOMPARE(menu->pos(), button->mapToGlobal(place));
        desk.Menus->EndMenu();
    }

    void DatebrookTellsItsButton() {
        Desk desk;
        desk.Press(17);
        QCOMPARE(desk.Toolbar->Button(17)->toolTip(),
                 u"Failed to launch Datebrook as datebrook.dll is missing"_s);
    }

    void TheLayoutIsKept() {
        Desk desk;
        desk.Toolbar->Offer(2, false);
        desk.Module.Paths.UserName = u"tester"_s;
        QVERIFY(desk.Commands.Run(u"SaveToolbarSetting"_s));
        QVERIFY(desk.Machine.Settings.Value(u"TempolarkCentralToolbar"_s, u"tester"_s)
                    .toString()
                    .startsWith(u"\"1,1\" \"1,3\" "_s));
        QCOMPARE(desk.Told, QStringList{u"Saved the toolbar at 12:00:00"_s});
    }

    void BalloonsAreSwitchedByTheMenu() {
        Desk desk;
        desk.Click(u"AutoShowToolTips"_s, u"Hind Tool Tips"_s, u"No"_s);
        QCOMPARE(desk.Stored(), QByteArray("Auto Show Balloon Tips=No\r\n"));
        const auto balloonAfter = [&desk](int index) {
            desk.Buttons.ShowToolTip(index);
            desk.Machine.Clock.Advance(600);
            const QWidgetList all = QApplication::topLevelWidgets();
            return std::any_of(all.begin(), all.end(), [](const QWidget* widget) {
                return dynamic_cast<const BalloonWindow*>(widget) != nullptr && widget->isVisible();
            });
        };
        QVERIFY(!balloonAfter(1));
        desk.Click(u"AutoShowToolTips"_s, u"Auto Show Tool Tips"_s, u"Yes"_s);
        QVERIFY(balloonAfter(1));
        QVERIFY(!balloonAfter(0));
    }
};

QTEST_MAIN(tst_ToolBarCommands)
#include "tst_ToolBarCommands.moc"
