#include "shell/ui/frmShortcuts.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QTableView>
#include <QTest>

#include "foundation/PropertyFile.h"
#include "shell/FakeShell.h"
#include "support/FakeDialogs.h"
#include "support/FakeHelp.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// The window of the keys over three commands, with real keys and clicks.
class tst_frmShortcuts : public QObject {
    Q_OBJECT

private:
    struct Desk {
        FakeServices Machine;
        ModuleState Module;
        Forms Windows;
        Program TheProgram{Machine.Services, Module, Windows};
        FakeShell Shell;
        std::unique_ptr<frmShortcuts> Window;

        explicit Desk(bool withShell = true) {
            Module.Paths.AppFolder = Machine.AppFolder();
            Module.Paths.ShortcutsFile = Machine.AppFolder() + u"/Shortcuts.txt"_s;
            Machine.WriteFile(u"ini/Shortcuts.txt"_s, "Clocks=F7\r\nDisable=F8\r\n");
            Machine.WriteFile(u"Shortcuts.txt"_s,
                              "Clocks=F2\r\nDisable=Ctrl+D\r\nClock Style=F11\r\n");
            mduLib::ReadPropertyFile(Machine.Files, Module.Paths.ShortcutsFile,
                                     Module.ShortcutList);
            Window =
                std::make_unique<frmShortcuts>(TheProgram, withShell ? &Shell : nullptr, nullptr);
            Window->resize(600, 500);
            Window->ShowMe(u"Clock Shortcuts"_s, Module.Paths.ShortcutsFile);
            QVERIFY(QTest::qWaitForWindowActive(Window.get()));
        }
        ctlEditGrid& Grid() { return *Window->findChild<ctlEditGrid*>(u"grdShortcut"_s); }
        QTableView& View() { return Grid().View(); }
        QString Cell(int row) { return Grid().Data().TextMatrix(row, 1); }
        int Row() { return Grid().Data().Row(); }
        QString Listed(int record) const { return Module.ShortcutList[record].Value; }
        QByteArray Stored() const { return Machine.ReadFile(u"Shortcuts.txt"_s); }
        QString Info() { return Window->findChild<QLabel*>(u"lblInfo"_s)->text(); }
        QPushButton& Save() { return *Window->findChild<QPushButton*>(u"cmdButton0"_s); }
        QPushButton& Close() { return *Window->findChild<QPushButton*>(u"cmdButton1"_s); }
        QMenu& Menu() { return *qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
        void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, key, modifiers);
                QApplication::sendEvent(&View(), &event);
            }
        }
        QPoint MiddleOf(int row) {
            return View().visualRect(View().model()->index(row - 1, 1)).center();
        }
        void RightClick(int row) {
            QTest::mouseClick(View().viewport(), Qt::RightButton, {}, MiddleOf(row));
        }
        void Choose(const QString& item) {
            RightClick(1);
            QAction* action = Menu().findChild<QAction*>(item);
            QTest::mouseClick(&Menu(), Qt::LeftButton, {}, Menu().actionGeometry(action).center());
        }
    };

private Q_SLOTS:
    void OpensOnTheList() {
        Desk desk;
        QCOMPARE(desk.Window->Caption(), u"Shortcuts - Clock Shortcuts"_s);
        QCOMPARE(desk.Window->Name(), u"frmShortcuts"_s);
        QCOMPARE(desk.Windows.Find(desk.Window->hwnd()), desk.Window.get());
        const QAbstractItemModel& model = *desk.View().model();
        QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), u"Shortcut"_s);
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), u"Value"_s);
        QCOMPARE(model.index(1, 0).data().toString(), u"Disable"_s);
        QCOMPARE(model.index(1, 1).data().toString(), u"Ctrl+D"_s);
        QCOMPARE(model.rowCount(), 3);
        QVERIFY(desk.View().hasFocus());
        QCOMPARE(desk.Row(), 1);
        QVERIFY(!desk.Save().isEnabled());
        const QRect info = desk.Window->findChild<QLabel*>(u"lblInfo"_s)->geometry();
        QVERIFY(info.top() > desk.Grid().geometry().bottom());
        QVERIFY(info.bottom() < desk.Save().geometry().top());
        QCOMPARE(desk.Info(),
                 u"Shows the next kind: a dial, digits, a calculator, dial and "
                 u"digits. Press the new key in the place of F2."_s);
    }

    void ColumnsFollowTheWidth() {
        Desk desk;
        for (const int width : {600, 400}) {
            desk.Window->resize(width, 300);
            const int room = desk.Grid().width();
            QVERIFY(std::abs(desk.View().columnWidth(0) - room * 0.58) <= 1);
            QVERIFY(std::abs(desk.View().columnWidth(1) - room * 0.325) <= 1);
        }
        desk.Window->resize(600, 10);
        QCOMPARE(desk.Window->height(), 100);
    }

    /// What the user has dragged stays in proportion.
    void DraggedColumnsKeepTheirShares() {
        Desk desk;
        const int room = desk.Grid().width();
        const int dragged = room / 4;
        desk.View().horizontalHeader()->resizeSection(0, dragged);
        for (const int width : {400, 900, 600}) {
            desk.Window->resize(width, 300);
            const double now = desk.Grid().width();
            QVERIFY(std::abs(desk.View().columnWidth(0) - now * dragged / room) <= 1);
            QVERIFY(std::abs(desk.View().columnWidth(1) - now * 0.325) <= 1);
        }
        QCOMPARE(desk.View().columnWidth(0), dragged);
    }

    void KeysThatAreRecorded_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QString>("cell");
        const auto row = [](const char* name, int key, Qt::KeyboardModifiers modifiers,
                            const QString& cell) {
            QTest::newRow(name) << key << modifiers << cell;
        };
        row("a letter with Ctrl", Qt::Key_J, Qt::ControlModifier, u"Ctrl+J"_s);
        row("with Alt", Qt::Key_E, Qt::AltModifier, u"Alt+E"_s);
        row("with both", Qt::Key_J, Qt::ControlModifier | Qt::AltModifier, u"Alt+J"_s);
        row("with Shift", Qt::Key_J, Qt::ShiftModifier, u"+J"_s);
        row("undo is recorded, too", Qt::Key_Z, Qt::ControlModifier, u"Ctrl+Z"_s);
        row("and copy", Qt::Key_C, Qt::ControlModifier, u"Ctrl+C"_s);
        row("a letter alone", Qt::Key_J, Qt::NoModifier, u"Invalid"_s);
        row("the blank", Qt::Key_Space, Qt::NoModifier, u"Invalid"_s);
        row("the key that deletes", Qt::Key_Delete, Qt::NoModifier, u"Invalid"_s);
        row("and with Ctrl", Qt::Key_Delete, Qt::ControlModifier, u"F2"_s);
        row("F9", Qt::Key_F9, Qt::NoModifier, u"F9"_s);
        row("F11 is used", Qt::Key_F11, Qt::NoModifier, u"Used"_s);
        row("F5 with Shift", Qt::Key_F5, Qt::ShiftModifier, u"F5"_s);
        row("F5 with Ctrl", Qt::Key_F5, Qt::ControlModifier, u"Ctrl+F5"_s);
        row("F1 with Alt", Qt::Key_F1, Qt::AltModifier, u"Alt+F1"_s);
        row("a digit of the number pad", Qt::Key_5, Qt::ControlModifier | Qt::KeypadModifier,
            u"Ctrl+5"_s);
        row("what AltGr types", Qt::Key_At, Qt::GroupSwitchModifier, u"Invalid"_s);
        row("Ctrl itself", Qt::Key_Control, Qt::ControlModifier, u"F2"_s);
        row("a letter without a code", 0x41a, Qt::ControlModifier, u"F2"_s);
        row("F13", Qt::Key_F13, Qt::NoModifier, u"F2"_s);
        row("the brace is not F12", Qt::Key_BraceLeft, Qt::ControlModifier, u"F2"_s);
        row("backspace", Qt::Key_Backspace, Qt::NoModifier, u"F2"_s);
        row("enter", Qt::Key_Return, Qt::NoModifier, u"F2"_s);
    }
    void KeysThatAreRecorded() {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        Desk desk;
        desk.Press(key, modifiers);
        QTEST(desk.Cell(1), "cell");
        QCOMPARE(desk.Save().isEnabled(), desk.Cell(1) != u"F2"_s);
        QCOMPARE(desk.View().model()->index(0, 1).data().toString(), desk.Cell(1));
    }

    /// No menu of the shell, nor anything else, gets a key that the window records.
    void KeysAreKeptFromShortcuts() {
        Desk desk;
        const auto isKept = [&desk](int key, Qt::KeyboardModifiers modifiers) {
            QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
            event.ignore();
            QApplication::sendEvent(&desk.View(), &event);
            return event.isAccepted();
        };
        QVERIFY(isKept(Qt::Key_E, Qt::AltModifier));
        QVERIFY(isKept(Qt::Key_F4, Qt::ControlModifier));
        QVERIFY(!isKept(Qt::Key_Up, Qt::AltModifier));
    }

    void LeavingARowCommitsIt() {
        Desk desk;
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(desk.Listed(1), u"F2"_s);
        desk.Press(Qt::Key_Down);
        QCOMPARE(desk.Row(), 2);
        QCOMPARE(desk.Listed(1), u"Ctrl+J"_s);
        QVERIFY(desk.Info().startsWith(u"Disables the clock"_s));
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        QCOMPARE(desk.Cell(2), u"Used"_s);
        QVERIFY(desk.Info().startsWith(u"Ctrl+J is the key of \"Clocks\"."_s));
        QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {}, desk.MiddleOf(3));
        QCOMPARE(desk.Row(), 3);
        QCOMPARE(desk.Listed(2), u"Used"_s);
    }

    void SaveWrites() {
        Desk desk;
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        QTest::mouseClick(&desk.Save(), Qt::LeftButton);
        QCOMPARE(desk.Stored(), "Clocks=Ctrl+J\r\nDisable=Ctrl+D\r\nClock Style=F11\r\n");
        QVERIFY(!desk.Save().isEnabled());
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Shell.Take(), QStringList{u"Saved the shortcuts at 12:00:00"_s});
    }

    void TheMenuOfTheGrid() {
        Desk desk;
        desk.RightClick(1);
        QStringList texts;
        for (const QAction* action : desk.Menu().actions()) {
            texts += action->text() + (action->isEnabled() ? QString() : u"|"_s);
        }
        QCOMPARE(texts, (QStringList{u"Reload Shortcuts"_s, u"Refresh By Default  (F5)"_s,
                                     QString(), u"Undo|"_s, u"Redo|"_s}));
        QCOMPARE(desk.Menu().objectName(), u"Menu"_s);
        desk.Menu().close();
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Choose(u"Undo"_s);
        QCOMPARE(desk.Cell(1), u"F2"_s);
        desk.Choose(u"Redo"_s);
        QCOMPARE(desk.Cell(1), u"Ctrl+J"_s);
        QCOMPARE(desk.View().model()->index(0, 1).data().toString(), u"Ctrl+J"_s);
        desk.Choose(u"ReloadShortcuts"_s);
        QCOMPARE(desk.Cell(1), u"F2"_s);
        QVERIFY(!desk.Save().isEnabled());
        desk.Choose(u"RefreshByDefault"_s);
        QCOMPARE(desk.View().model()->rowCount(), 2);
        QVERIFY(desk.Save().isEnabled());
        QCOMPARE(desk.Listed(1), u"F7"_s);
    }

    /// It is seen what has been undone.
    void AStepGoesToItsRow() {
        Desk desk;
        desk.Press(Qt::Key_Down);
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Press(Qt::Key_Down);
        desk.Window->Edit(EditAction::Undo);
        QCOMPARE(desk.Row(), 2);
        QCOMPARE(desk.View().currentIndex().row(), 1);
        QVERIFY(desk.Info().startsWith(u"Disables the clock"_s));
        desk.Press(Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(desk.Cell(2), u"Ctrl+L"_s);
        desk.Press(Qt::Key_Up);
        QCOMPARE(desk.Listed(2), u"Ctrl+L"_s);
    }

    void TheMenuByTheKeyboard() {
        Desk desk;
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
        QApplication::sendEvent(&desk.View(), &event);
        QCOMPARE(desk.Menu().objectName(), u"Menu"_s);
        desk.Menu().close();
    }

    void KeysOfTheWindow() {
        Desk desk;
        desk.Press(Qt::Key_F1);
        const std::vector<FakeHelp::Page> pages = {
            {desk.Machine.AppFolder() + u"/Help/TempolarkCentral.chm"_s, 300}};
        QVERIFY(desk.Machine.Help.Pages == pages);
        desk.Machine.Help.Refusal = u"no viewer"_s;
        QTest::keyClick(&desk.Close(), Qt::Key_F1);
        QCOMPARE(desk.Shell.Take(), QStringList{u"no viewer"_s});
        desk.Press(Qt::Key_F5);
        QCOMPARE(desk.Cell(1), u"F7"_s);
        desk.Shell.BoxAnswers = {7};
        desk.Press(Qt::Key_Escape);
        QVERIFY(!desk.Window->isVisible());
        QCOMPARE(desk.Listed(1), u"F2"_s);
    }

    void CloseAsks() {
        Desk desk;
        QTest::mouseClick(&desk.Close(), Qt::LeftButton);
        QVERIFY(!desk.Window->isVisible());
        desk.Window->Show();
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Shell.BoxAnswers = {6};
        desk.Window->Unload();
        QCOMPARE(desk.Shell.Take(),
                 (QStringList{u"box 36, Save Shortcut: Do you want to save the Clock Shortcuts?"_s,
                              u"Saved the shortcuts at 12:00:00"_s}));
        QVERIFY(!desk.Window->isVisible());
        QVERIFY(desk.Stored().contains("Clocks=Ctrl+J"));
    }

    void WhatCantBeSavedKeepsTheWindow() {
        Desk desk;
        desk.Machine.Files.Unwritable += desk.Module.Paths.ShortcutsFile;
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Shell.BoxAnswers = {6};
        desk.Window->Unload();
        QVERIFY(desk.Window->isVisible());
    }

    void ADismissedQuestionKeepsTheWindow() {
        Desk desk;
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Shell.BoxAnswers = {2};
        desk.Window->Unload();
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Cell(1), u"Ctrl+J"_s);
        QVERIFY(desk.Save().isEnabled());
    }

    /// Whoever closes it meanwhile: what asks comes back to it.
    void ItStaysWhileItAsks() {
        Desk desk;
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, "Clocks=F6\r\n");
        desk.Shell.BoxAnswers = {7, 7};
        desk.Shell.WhileAsking = [&desk] { desk.Window->Unload(); };
        QTest::mouseClick(&desk.Save(), Qt::LeftButton);
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Shell.BoxAnswers, std::vector<int>{7});  // one box has been shown
        desk.Window->Unload();
        QVERIFY(!desk.Window->isVisible());
    }

    void AloneItAsksTheMachine() {
        Desk desk(false);
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Machine.Dialogs.BoxAnswers = {7};
        desk.Window->Unload();
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), 1U);
        QVERIFY(!desk.Window->isVisible());
    }

    void TheMenuEdit() {
        Desk desk;
        IEditTarget& target = *desk.Window->AsEditTarget();
        QVERIFY(!target.CanEdit(EditAction::Undo));
        QVERIFY(target.CanEdit(EditAction::Copy));
        for (const EditAction none : {EditAction::Cut, EditAction::Paste, EditAction::Delete,
                                      EditAction::Clear, EditAction::SelectAll, EditAction::Find}) {
            QVERIFY(!target.CanEdit(none));
            target.Edit(none);
        }
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        target.Edit(EditAction::Copy);
        QCOMPARE(QApplication::clipboard()->text(), u"Clocks\tCtrl+J"_s);
        QVERIFY(target.CanEdit(EditAction::Undo));
        target.Edit(EditAction::Undo);
        QCOMPARE(desk.Cell(1), u"F2"_s);
        QVERIFY(!target.CanEdit(EditAction::Undo));
        QVERIFY(target.CanEdit(EditAction::Redo));
        target.Edit(EditAction::Redo);
        QCOMPARE(desk.Cell(1), u"Ctrl+J"_s);
    }

    void TabWalksThroughAllThatHasAName() {
        Desk desk;
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        QStringList names;
        for (int i = 0; i < 4; ++i) {
            names += QApplication::focusWidget()->accessibleName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names, (QStringList{u"Shortcuts"_s, u"Save"_s, u"Close"_s, u"Shortcuts"_s}));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Shortcuts"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget()->accessibleName(), u"Close"_s);
    }

    void ItLeavesTheListOfWindows() {
        Desk desk;
        const int handle = desk.Window->hwnd();
        desk.Press(Qt::Key_J, Qt::ControlModifier);
        desk.Window.reset();
        QVERIFY(desk.Windows.Find(handle) == nullptr);
    }
};

QTEST_MAIN(tst_frmShortcuts)
#include "tst_frmShortcuts.moc"
