#include <QClipboard>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

#include "clock/ui/frmTempolark.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "shell/ShellDesk.h"
#include "support/FakeDialogs.h"
#include "support/FakeHelp.h"

/// The windows of properties and shortcuts in the real shell, beside a real clock.
class tst_EditorsInTheShell : public QObject {
    Q_OBJECT

private:
    struct EditDesk : Desk {
        frmTempolark* Clock = nullptr;

        EditDesk() {
            Zone(u"UTC"_s);
            if (!Start()) {
                qFatal("no shell");
            }
            Shell->resize(1300, 900);
            Machine.Clock.Advance(2000);
            Shell->LaunchTempolark(u"UTC"_s);
            Machine.Clock.Advance(2000);
            Clock = dynamic_cast<frmTempolark*>(Windows.Find(1002));
            Shell->activateWindow();
            if (!QTest::qWaitForWindowActive(Shell.get())) {
                qFatal("the shell is not active");
            }
        }
        QMdiArea& Area() { return *Shell->findChild<QMdiArea*>(); }
        QMdiSubWindow* Frame() { return Area().activeSubWindow(); }
        /// The window in front, as all know it.
        IForm* Front() { return dynamic_cast<IForm*>(Frame()->widget()); }
        template <class Widget>
        Widget* In(const QString& name) {
            auto* found = Frame()->findChild<Widget*>(name);
            if (found == nullptr) {
                qFatal("no such widget: %s", qPrintable(name));
            }
            return found;
        }
        QTableView* Grid() { return In<QTableView>(u"ctlGrid"_s); }
        void PressClock(int key, Qt::KeyboardModifiers modifiers) {
            Clock->SetFocus();
            QTest::keyClick(Clock, static_cast<Qt::Key>(key), modifiers);
        }
        int Editors() {
            int count = 0;
            for (int i = 0; i < Windows.Count(); ++i) {
                count += Windows[i].AsEditTarget() != nullptr ? 1 : 0;
            }
            return count;
        }
        void ClickOn(const QString& button) {
            QTest::mouseClick(In<QPushButton>(button), Qt::LeftButton);
        }
    };

    static QString BackgroundIn(EditDesk& desk, const QString& file) {
        ClockProperties stored;
        mduLib::ReadPropertyFile(desk.Machine.Files, file, stored);
        return mduLib::GetProperty(u"Window Background Colour"_s, stored);
    }

private Q_SLOTS:
    void TheToolbarOpensThem() {
        EditDesk desk;
        QTest::mouseClick(desk.Button(u"Property"_s), Qt::LeftButton);
        QCOMPARE(desk.Front()->Caption(), u"Properties - UTC"_s);
        QCOMPARE(desk.Front()->AsPropertyWindow()->PropertyFile(), desk.Clock->IniFile());
        QTest::mouseClick(desk.Button(u"Shortcut"_s), Qt::LeftButton);
        QCOMPARE(desk.Front()->Caption(), u"Shortcuts - Clock Shortcuts"_s);
        QCOMPARE(desk.Grid()->model()->rowCount(), 20);
        QVERIFY(!desk.HeaderShows());
        desk.Stop();
    }

    void TheHeaderMakesRoom() {
        Desk desk;
        QVERIFY(desk.Start());
        QVERIFY(desk.HeaderShows());
        QTest::mouseClick(desk.Button(u"Shortcut"_s), Qt::LeftButton);
        QVERIFY(!desk.HeaderShows());
        desk.Stop();
    }

    void TheMenusOpenThem() {
        EditDesk desk;
        desk.Shell->DoMenuItem(9, 9);
        QCOMPARE(desk.Front()->Caption(), u"Properties - TempolarkCentral"_s);
        desk.ClickItem(u"SetShortcut"_s, 1);
        QCOMPARE(desk.Front()->Name(), u"frmShortcuts"_s);
        desk.ClickItem(u"NewClock"_s, 1);
        QCOMPARE(desk.Front()->Caption(), u"Properties -  _"_s);
        QStringList windows;
        for (int i = 1; i <= 5; ++i) {
            const QAction* item = desk.Entry(u"OpenedWindow"_s, i);
            windows += item->text() + (item->isChecked() ? u"*"_s : QString());
        }
        QCOMPARE(windows,
                 (QStringList{u"UTC"_s, u"Properties - TempolarkCentral"_s,
                              u"Shortcuts - Clock Shortcuts"_s, u"Properties -  _*"_s, u"All"_s}));
        desk.ClickItem(u"OpenedWindow"_s, 3);
        QCOMPARE(desk.Front()->Name(), u"frmShortcuts"_s);
        desk.Stop();
    }

    void AClockOpensThem() {
        EditDesk desk;
        desk.PressClock(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(desk.Front()->Caption(), u"Properties - UTC"_s);
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QCOMPARE(desk.Front()->Name(), u"frmShortcuts"_s);
        desk.PressClock(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(desk.Editors(), 2);
        QCOMPARE(desk.Front()->Caption(), u"Properties - UTC"_s);
        QTest::keyClick(desk.Grid(), Qt::Key_F1);
        QCOMPARE(desk.Machine.Help.Pages.back().ContextNumber, 400);
        desk.Stop();
    }

    void AKeyIsRecordedAndThenWorks() {
        EditDesk desk;
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QTableView* grid = desk.Grid();
        for (int i = 1; i < 4; ++i) {
            QTest::keyClick(grid, Qt::Key_Down);  // to "Clocks"
        }
        QTest::keyClick(grid, Qt::Key_D, Qt::ControlModifier);
        QVERIFY(desk.Clock->IsEnabled());  // whose key it is
        QTest::keyClick(grid, Qt::Key_E, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget() == nullptr);  // the menu "Edit" has not opened
        QTest::keyClick(grid, Qt::Key_Down);
        QVERIFY(desk.Clock->Data().Is(clockcore::ClockKind::Analogue));
        desk.PressClock(Qt::Key_E, Qt::AltModifier);
        QVERIFY(desk.Clock->Data().Is(clockcore::ClockKind::Digital));
        desk.Machine.Dialogs.BoxAnswers = {6};
        desk.Stop();
        QVERIFY(desk.User(u"Shortcuts.txt"_s).contains("Clocks=Alt+E\r\n"));
    }

    void TheMenuEditServesThem() {
        EditDesk desk;
        QVERIFY(!desk.Entry(u"EditItem"_s, 11)->isEnabled());
        desk.PressClock(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(desk.Entry(u"EditItem"_s, 11)->text(), u"Find\tCtrl+F"_s);
        QVERIFY(desk.Entry(u"EditItem"_s, 11)->isEnabled());
        QVERIFY(!desk.Entry(u"EditItem"_s, 1)->isEnabled());
        QVERIFY(!desk.Entry(u"EditItem"_s, 12)->isEnabled());
        desk.ClickItem(u"EditItem"_s, 11);
        QTRY_VERIFY(desk.In<QLineEdit>(u"txtSearch"_s)->hasFocus());
        QTest::keyClicks(desk.In<QLineEdit>(u"txtSearch"_s), u"hour"_s);
        desk.ClickItem(u"EditItem"_s, 9);
        QCOMPARE(desk.In<QLineEdit>(u"txtSearch"_s)->selectedText(), u"hour"_s);
        desk.ClickItem(u"EditItem"_s, 7);
        QCOMPARE(desk.In<QLineEdit>(u"txtSearch"_s)->text(), QString());
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QTest::keyClick(desk.Grid(), Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(desk.Entry(u"EditItem"_s, 1)->text(), u"Undo"_s);  // Ctrl+Z would be recorded
        desk.ClickItem(u"EditItem"_s, 1);
        QCOMPARE(desk.Grid()->model()->index(0, 1).data().toString(), u"Ctrl+P"_s);
        QVERIFY(desk.Entry(u"EditItem"_s, 2)->isEnabled());
        desk.Stop();
    }

    /// What can't be saved keeps the shell and all that is in it.
    void TheShellStaysWithWhatCantBeSaved() {
        EditDesk desk;
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QTest::keyClick(desk.Grid(), Qt::Key_J, Qt::ControlModifier);
        const QString file = desk.Module.Paths.ShortcutsFile;
        desk.Machine.Files.Unwritable += file;
        desk.Machine.Dialogs.BoxAnswers = {6};
        QVERIFY(!desk.Shell->close());
        QVERIFY(desk.Shell->isVisible());
        QCOMPARE(desk.Clocks(), QStringList{u"UTC"_s});
        desk.Machine.Dialogs.BoxAnswers = {7};
        QVERIFY(desk.Shell->close());
        QVERIFY(desk.User(u"Shortcuts.txt"_s).contains("Property Window=Ctrl+P"));
        desk.Stop();
    }

    /// The system ends the program while the window asks whether to write over a file.
    void TheEndWaitsForTheAnswer() {
        EditDesk desk;
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QTest::keyClick(desk.Grid(), Qt::Key_J, Qt::ControlModifier);
        desk.Machine.WriteFile(u"tester/Shortcuts.txt"_s, "Clocks=F6\r\n");
        desk.Machine.Dialogs.BoxAnswers = {6};
        bool stands = false;
        desk.Machine.Dialogs.WhileAsking = [&] {
            desk.Shell->Quit();
            QCoreApplication::processEvents();
            stands = desk.Shell->isVisible();
        };
        desk.ClickOn(u"cmdButton0"_s);
        QVERIFY(stands);
        QVERIFY(desk.User(u"Shortcuts.txt"_s).contains("Property Window=Ctrl+J"));
        QTRY_VERIFY(!desk.Shell->isVisible());
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), 1U);
        desk.Stop();
    }

    void ACloseDuringTheQuestionIsRefused() {
        EditDesk desk;
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QTest::keyClick(desk.Grid(), Qt::Key_J, Qt::ControlModifier);
        desk.Machine.WriteFile(u"tester/Shortcuts.txt"_s, "Clocks=F6\r\n");
        desk.Machine.Dialogs.BoxAnswers = {7, 7};
        desk.Machine.Dialogs.WhileAsking = [&] {
            desk.Shell->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        desk.ClickOn(u"cmdButton0"_s);
        QVERIFY(desk.Shell->isVisible());
        QCOMPARE(desk.Editors(), 1);
        QCOMPARE(desk.Clocks(), QStringList{u"UTC"_s});
        desk.Stop();
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), 2U);
    }

    /// It is asked for while a question at the end stands already, which then keeps the shell.
    void TheEndIsNotForgotten() {
        EditDesk desk;
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QTest::keyClick(desk.Grid(), Qt::Key_J, Qt::ControlModifier);
        desk.Machine.Files.Unwritable += desk.Module.Paths.ShortcutsFile;
        desk.Machine.Dialogs.BoxAnswers = {6, 7};
        desk.Machine.Dialogs.WhileAsking = [&] { desk.Shell->Quit(); };
        QVERIFY(!desk.Shell->close());
        QTRY_VERIFY(!desk.Shell->isVisible());
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), 2U);
        desk.Shell->Quit();  // it has ended
        desk.Stop();
    }

    /// "Close All" asks, too, and leaves what keeps its say.
    void CloseAllAsks() {
        EditDesk desk;
        desk.PressClock(Qt::Key_K, Qt::ControlModifier);
        QTest::keyClick(desk.Grid(), Qt::Key_J, Qt::ControlModifier);
        desk.Machine.Files.Unwritable += desk.Module.Paths.ShortcutsFile;
        desk.Machine.Dialogs.BoxAnswers = {6};
        desk.ClickItem(u"WindowItem"_s, 8);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(desk.Clocks(), QStringList());
        QCOMPARE(desk.Editors(), 1);
        desk.Machine.Files.Unwritable.clear();
        desk.Machine.Dialogs.BoxAnswers = {6};
        desk.ClickItem(u"WindowItem"_s, 8);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(desk.Editors(), 0);
        desk.Stop();
    }

    void TheShellTakesWhatIsApplied() {
        EditDesk desk;
        desk.Shell->DoMenuItem(9, 9);
        QCOMPARE(desk.Shell->Setting(u"Auto Show Balloon Tips"_s), u"Yes"_s);
        auto* search = desk.In<QLineEdit>(u"txtSearch"_s);
        QTest::keyClicks(search, u"auto show balloon"_s);
        QTest::keyClick(search, Qt::Key_Down);
        QCOMPARE(desk.Grid()->model()->index(0, 0).data().toString(), u"Auto Show Balloon Tips"_s);
        QTest::keyClick(desk.Grid(), Qt::Key_Space);  // the box of Yes and No
        desk.ClickOn(u"cmdButton0"_s);
        QCOMPARE(desk.Shell->Setting(u"Auto Show Balloon Tips"_s), u"No"_s);
        desk.Stop();
    }

    void ANewClockIsNamedByTyping() {
        EditDesk desk;
        desk.ClickItem(u"NewClock"_s, 1);
        QTRY_VERIFY(QApplication::focusWidget() != nullptr);
        QTest::keyClicks(QApplication::focusWidget(), u"Atlantis"_s);
        QCOMPARE(desk.Front()->Caption(), u"Properties - Atlantis _"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(desk.HasZone(u"Atlantis"_s));
        QCOMPARE(desk.In<QPushButton>(u"cmdButton0"_s)->text(), u"Launch"_s);
        desk.ClickOn(u"cmdButton0"_s);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(desk.Clocks(), (QStringList{u"UTC"_s, u"Atlantis"_s}));
        QCOMPARE(desk.Editors(), 0);
        desk.Stop();
    }

    void ThePropertiesOfAPropertyWindowAreItself() {
        EditDesk desk;
        desk.PressClock(Qt::Key_P, Qt::ControlModifier);
        QTest::mouseClick(desk.Button(u"Property"_s), Qt::LeftButton);
        QCOMPARE(desk.Editors(), 1);
        QCOMPARE(desk.Front()->Caption(), u"Properties - UTC"_s);
        desk.Stop();
    }

    void AClockMayCloseWhileItShowsWhatIsEdited() {
        EditDesk desk;
        const auto ground = [&desk] { return desk.Clock->PaintedSurface().Image().pixel(2, 2); };
        const QString file = desk.Clock->IniFile();
        const QRgb own = ground();
        desk.PressClock(Qt::Key_P, Qt::ControlModifier);
        desk.In<QLineEdit>(u"txtSearch"_s)->setText(u"Window Background Colour"_s);
        QTableView* grid = desk.Grid();
        grid->setFocus();
        QGuiApplication::clipboard()->setText(u"Red"_s);
        QTest::keyClick(grid, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(own != qRgb(255, 0, 0));
        QCOMPARE(ground(), qRgb(255, 0, 0));
        const QPointer<frmTempolark> clock = desk.Clock;
        desk.Clock->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!clock);
        QCOMPARE(BackgroundIn(desk, file), u"15397106"_s);  // what was shown is not stored
        grid->setFocus();
        QGuiApplication::clipboard()->setText(u"Blue"_s);
        QTest::keyClick(grid, Qt::Key_V, Qt::ControlModifier);
        desk.Machine.Dialogs.BoxAnswers = {7, 7, 7};
        desk.Front()->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(desk.Editors(), 0);
        QCOMPARE(BackgroundIn(desk, file), u"15397106"_s);
        desk.Stop();
    }

    /// A save on the clock itself is told to the window of its properties.
    void TheClocksOwnSaveIsAskedAbout() {
        EditDesk desk;
        desk.PressClock(Qt::Key_P, Qt::ControlModifier);
        desk.PressClock(Qt::Key_F2, Qt::NoModifier);  // digital
        desk.PressClock(Qt::Key_S, Qt::ControlModifier);
        desk.Machine.Dialogs.BoxAnswers = {6};
        desk.PressClock(Qt::Key_P, Qt::ControlModifier);
        QTRY_COMPARE(desk.Machine.Dialogs.Boxes.size(), 1U);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Text,
                 u"Property has been changed, do you want to refresh with the new values?"_s);
        desk.Stop();
    }
};

QTEST_MAIN(tst_EditorsInTheShell)
#include "tst_EditorsInTheShell.moc"
