#include "shell/ShortcutSheet.h"

#include <QTest>

#include "foundation/PropertyFile.h"
#include "foundation/Shortcuts.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using mduUILib::KeyShift::Alt;
using mduUILib::KeyShift::Ctrl;

/// Three commands on their keys, as the user's file holds them.
class tst_ShortcutSheet : public QObject {
    Q_OBJECT

private:
    struct Desk {
        FakeServices Machine;
        ModuleState Module;
        Forms Windows;
        Program TheProgram{Machine.Services, Module, Windows};
        editor::EditGridData Grid{{2, 2, 1, 0}};
        QStringList Told, Asked;
        std::vector<int> Answers;
        shell::ShortcutSheet Sheet{TheProgram,
                                   Grid,
                                   {[this](const QString& text, int flags, const QString& title) {
                                        Asked += u"%1|%2|%3"_s.arg(text).arg(flags).arg(title);
                                        if (Answers.empty()) {
                                            qFatal("an unexpected box: %s", qPrintable(text));
                                        }
                                        const int answer = Answers.front();
                                        Answers.erase(Answers.begin());
                                        return answer;
                                    },
                                    [this](const QString& text) { Told += text; }}};

        Desk() {
            Module.Paths.AppFolder = Machine.AppFolder();
            Module.Paths.ShortcutsFile = Machine.AppFolder() + u"/Shortcuts.txt"_s;
            Machine.WriteFile(u"ini/Shortcuts.txt"_s, "Clocks=F7\r\nDisable=F8\r\n");
            Machine.WriteFile(u"Shortcuts.txt"_s,
                              "Clocks=F2\r\nDisable=Ctrl+D\r\nClock Style=F11\r\n");
            mduLib::ReadPropertyFile(Machine.Files, Module.Paths.ShortcutsFile,
                                     Module.ShortcutList);
            Sheet.Open(Module.Paths.ShortcutsFile, u"Clock Shortcuts"_s);
        }
        QString Cell(int row) const { return Grid.TextMatrix(row, 1); }
        QString Listed(int record) const { return Module.ShortcutList[record].Value; }
        QByteArray Stored() const { return Machine.ReadFile(u"Shortcuts.txt"_s); }
        QString File() const { return Module.Paths.ShortcutsFile; }
    };
    static inline const QString SaveQuestion =
        u"Do you want to save the Clock Shortcuts?|36|Save Shortcut"_s;

private Q_SLOTS:
    void OpensWithTheListAsItStands() {
        Desk desk;
        QCOMPARE(desk.Cell(2), u"Ctrl+D"_s);
        QCOMPARE(desk.Sheet.Command(2), u"Disable"_s);
        QCOMPARE(desk.Sheet.Command(0), QString());
        QVERIFY(!desk.Sheet.Dirty());
    }

    void AKeyStandsInItsCellUntilTheCommit() {
        Desk desk;
        QVERIFY(desk.Sheet.PressKey(2, 'J', Ctrl));
        QCOMPARE(desk.Cell(2), u"Ctrl+J"_s);
        QCOMPARE(desk.Listed(2), u"Ctrl+D"_s);
        QVERIFY(desk.Sheet.Dirty());
        desk.Sheet.CommitShortcutRow(2);
        QCOMPARE(desk.Listed(2), u"Ctrl+J"_s);
        QVERIFY(desk.Stored().contains("Disable=Ctrl+D"));
    }

    void WhatIsNoKeyOfTheListIsLeftAlone() {
        Desk desk;
        QVERIFY(!desk.Sheet.PressKey(2, 0, Ctrl));
        QVERIFY(!desk.Sheet.PressKey(0, 'J', Ctrl));
        QCOMPARE(desk.Grid.TextMatrix(0, 1), u"Value"_s);
        QVERIFY(!desk.Sheet.Dirty());
    }

    void AKeyOfAnotherCommandIsUsed() {
        Desk desk;
        desk.Sheet.PressKey(2, 'Q', 0);
        QCOMPARE(desk.Cell(2), u"Invalid"_s);
        QCOMPARE(desk.Sheet.RowInfo(2),
                 u"Disables the clock, or enables it again. It has no key: a letter needs Ctrl or "
                 u"Alt. Press the new key."_s);
        desk.Sheet.PressKey(2, 122, 0);
        QCOMPARE(desk.Cell(2), u"Used"_s);
        QCOMPARE(
            desk.Sheet.RowInfo(2),
            u"F11 is the key of \"Clock Style\". Press another key, or change that one first."_s);
        desk.Sheet.CommitShortcutRow(2);
        QCOMPARE(desk.Listed(2), u"Used"_s);
        QCOMPARE(desk.Sheet.RowInfo(2),
                 u"Disables the clock, or enables it again. It has no key. Press the new key."_s);
    }

    /// A second key in the same visit is compared with the others, not with the first.
    void TheHolderOfTheKeyPressedLast() {
        Desk desk;
        desk.Sheet.PressKey(2, 122, 0);
        desk.Sheet.PressKey(2, 113, 0);
        QVERIFY(desk.Sheet.RowInfo(2).startsWith(u"F2 is the key of \"Clocks\"."_s));
        desk.Sheet.PressKey(3, 113, 0);
        QVERIFY(desk.Sheet.RowInfo(3).startsWith(u"F2 is the key of \"Clocks\"."_s));
        QCOMPARE(desk.Listed(2), u"Used"_s);  // the row that was left was committed
    }

    void AnEmptyCellGetsItsValueBack() {
        Desk desk;
        desk.Grid.SetTextMatrix(2, 1, {});
        desk.Sheet.CommitShortcutRow(2);
        QCOMPARE(desk.Cell(2), u"Ctrl+D"_s);
        QCOMPARE(desk.Listed(2), u"Ctrl+D"_s);
    }

    void ChoicesBehindAKeyStay() {
        Desk desk;
        desk.Module.ShortcutList[2].Value = u"Ctrl+D,Ctrl+D,F9"_s;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Sheet.CommitShortcutRow(2);
        QCOMPARE(desk.Listed(2), u"Ctrl+J,Ctrl+D,F9"_s);
    }

    void SaveCommitsAndWrites() {
        Desk desk;
        desk.Sheet.PressKey(3, 'J', Alt);
        QVERIFY(desk.Sheet.Save(3));
        QCOMPARE(desk.Stored(), "Clocks=F2\r\nDisable=Ctrl+D\r\nClock Style=Alt+J\r\n");
        QVERIFY(!desk.Sheet.Dirty());
        QCOMPARE(desk.Told, QStringList{u"Saved the shortcuts at 12:00:00"_s});
        QVERIFY(desk.Sheet.Save(3));  // what was written is not taken for another program's
    }

    void AFailureIsToldAndNothingIsLost() {
        Desk desk;
        desk.Machine.Files.Unwritable += desk.File();
        desk.Sheet.PressKey(2, 'J', Ctrl);
        QVERIFY(!desk.Sheet.Save(2));
        QVERIFY(desk.Sheet.Dirty());
        QCOMPARE(desk.Told, QStringList{desk.File() + u" can't be written"_s});
        QCOMPARE(desk.Listed(2), u"Ctrl+J"_s);
        desk.Answers = {6};
        QVERIFY(!desk.Sheet.MayClose(2));
    }

    void AFileThatAnotherProgramChangedIsAskedFor() {
        Desk desk;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, "Clocks=F6\r\n");
        desk.Answers = {7};
        QVERIFY(!desk.Sheet.Save(2));
        QCOMPARE(desk.Asked,
                 QStringList{desk.File() +
                             u"\r\nhas been changed by another program, do you want to over write "
                             u"it?|292|Save Shortcut"_s});
        QCOMPARE(desk.Stored(), "Clocks=F6\r\n");
        QVERIFY(desk.Sheet.Dirty());
        QCOMPARE(desk.Told.last(),
                 u"The shortcuts are not saved; \"Reload Shortcuts\" shows what the file holds"_s);
        desk.Answers = {6};
        QVERIFY(desk.Sheet.Save(2));
        QCOMPARE(desk.Stored(), "Clocks=F2\r\nDisable=Ctrl+J\r\nClock Style=F11\r\n");
    }

    void AFileThatHasGoneIsWrittenAnew() {
        Desk desk;
        desk.Machine.Files.Delete(desk.File());
        desk.Sheet.PressKey(2, 'J', Ctrl);
        QVERIFY(desk.Sheet.Save(2));
        QVERIFY(desk.Stored().contains("Disable=Ctrl+J"));
    }

    void AFileThatIsNoTextIsNotWritten() {
        Desk desk;
        const QByteArray content("Clocks=F2\0\r\n", 12);
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, content);
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Answers = {6};
        QVERIFY(!desk.Sheet.Save(2));
        QCOMPARE(desk.Stored(), content);
    }

    void ReloadTakesTheFile() {
        Desk desk;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, "Clocks=F6\r\nDisable=F9\r\n");
        desk.Sheet.ReloadShortcuts();
        QCOMPARE(desk.Cell(1), u"F6"_s);
        QCOMPARE(desk.Cell(2), u"F9"_s);
        QCOMPARE(desk.Listed(2), u"F9"_s);
        QCOMPARE(desk.Grid.Rows(), 3);
        QVERIFY(!desk.Sheet.Dirty());
        QVERIFY(desk.Sheet.Save(1));  // it is what the file holds: nobody is asked

        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(2), u"Ctrl+J"_s);
        QCOMPARE(desk.Listed(2), u"Ctrl+J"_s);
        QVERIFY(desk.Sheet.Dirty());
    }

    void WhatCanNotBeReadLeavesTheListAsItIs() {
        Desk desk;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Machine.Files.Delete(desk.File());
        desk.Sheet.ReloadShortcuts();
        QCOMPARE(desk.Told, QStringList{desk.File() + u" can't be read"_s});
        QCOMPARE(desk.Listed(2), u"Ctrl+J"_s);
        QVERIFY(desk.Sheet.Dirty());
    }

    /// The file keeps the user's keys until the save.
    void DefaultsComeIntoMemory() {
        Desk desk;
        desk.Sheet.RefreshByDefault();
        QCOMPARE(desk.Cell(1), u"F7"_s);
        QCOMPARE(desk.Cell(2), u"F8"_s);
        QCOMPARE(desk.Grid.Rows(), 3);
        QCOMPARE(desk.Listed(1), u"F7"_s);
        QVERIFY(desk.Stored().contains("Clocks=F2"));
        QVERIFY(desk.Sheet.Dirty());
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(3), u"F11"_s);
        QVERIFY(!desk.Sheet.Dirty());
        desk.Sheet.Steps().redo();
        QCOMPARE(desk.Listed(2), u"F8"_s);
    }

    void DefaultsThatAreInForceAreNoStep() {
        Desk desk;
        desk.Machine.WriteFile(u"ini/Shortcuts.txt"_s, desk.Stored());
        desk.Sheet.RefreshByDefault();
        QVERIFY(!desk.Sheet.Dirty());
    }

    void PressesOfOneVisitAreOneStep() {
        Desk desk;
        desk.Sheet.PressKey(2, 122, 0);  // "Used"
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Sheet.CommitShortcutRow(2);
        desk.Sheet.PressKey(2, 'L', Ctrl);
        QCOMPARE(desk.Sheet.Steps().count(), 2);
        QCOMPARE(desk.Sheet.Steps().undoText(), u"Change Disable"_s);
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(2), u"Ctrl+J"_s);
        QCOMPARE(desk.Listed(2), u"Ctrl+J"_s);
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(2), u"Ctrl+D"_s);
        QCOMPARE(desk.Listed(2), u"Ctrl+D"_s);
        QVERIFY(!desk.Sheet.Dirty());
        desk.Sheet.Steps().redo();
        QCOMPARE(desk.Cell(2), u"Ctrl+J"_s);
        QCOMPARE(desk.Listed(2), u"Ctrl+J"_s);
    }

    void TheOldKeyPressedAgainIsNoStep() {
        Desk desk;
        desk.Sheet.PressKey(2, 'D', Ctrl);
        QVERIFY(!desk.Sheet.Dirty());
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Sheet.CommitShortcutRow(2);
        desk.Sheet.PressKey(2, 'L', Ctrl);
        desk.Sheet.PressKey(2, 'J', Ctrl);
        QCOMPARE(desk.Sheet.Steps().count(), 1);
        desk.Sheet.PressKey(2, 'M', Ctrl);
        QCOMPARE(desk.Sheet.Steps().count(), 2);
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(2), u"Ctrl+J"_s);
    }

    void TheFirstKeyOfACommandIsUndone_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("done");
        QTest::newRow("nothing") << QString() << u"Ctrl+J"_s;
        QTest::newRow("choices behind a key") << u"F7,F5,F6"_s << u"Ctrl+J,F5,F6"_s;
    }
    void TheFirstKeyOfACommandIsUndone() {
        QFETCH(QString, value);
        QFETCH(QString, done);
        Desk desk;
        desk.Module.ShortcutList[2].Value = value;
        desk.Sheet.Open(desk.File(), u"Clock Shortcuts"_s);
        const QString cell = desk.Cell(2);
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Sheet.CommitShortcutRow(2);
        QCOMPARE(desk.Listed(2), done);
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Listed(2), value);
        QCOMPARE(desk.Cell(2), cell);
        QVERIFY(!desk.Sheet.Dirty());
        desk.Sheet.Steps().redo();
        QCOMPARE(desk.Listed(2), done);
        QCOMPARE(desk.Cell(2), u"Ctrl+J"_s);
    }

    void UndoBeforeTheCommit() {
        Desk desk;
        desk.Module.ShortcutList[2].Value.clear();
        desk.Sheet.Open(desk.File(), u"Clock Shortcuts"_s);
        desk.Sheet.PressKey(2, 122, 0);  // "Used"
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(2), QString());
        desk.Sheet.CommitShortcutRow(2);
        QCOMPARE(desk.Listed(2), QString());
        desk.Sheet.PressKey(2, 'L', Ctrl);  // another visit
        QCOMPARE(desk.Sheet.Steps().count(), 1);
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(2), QString());
    }

    void UndoGoesBehindASave() {
        Desk desk;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        QVERIFY(desk.Sheet.Save(2));
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Listed(2), u"Ctrl+D"_s);
        QVERIFY(desk.Sheet.Dirty());
    }

    void NothingToSaveAsksNothing() {
        Desk desk;
        QVERIFY(desk.Sheet.MayClose(2));
        QCOMPARE(desk.Asked, QStringList());
    }

    void YesAtTheEndSaves() {
        Desk desk;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Answers = {6};
        QVERIFY(desk.Sheet.MayClose(2));
        QCOMPARE(desk.Asked, QStringList{SaveQuestion});
        QVERIFY(desk.Stored().contains("Disable=Ctrl+J"));
    }

    void NoBringsTheKeysOfTheFileBack() {
        Desk desk;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Sheet.CommitShortcutRow(2);
        desk.Answers = {7};
        QVERIFY(desk.Sheet.MayClose(2));
        QCOMPARE(desk.Asked, QStringList{SaveQuestion});
        QCOMPARE(desk.Listed(2), u"Ctrl+D"_s);
        QCOMPARE(desk.Cell(2), u"Ctrl+D"_s);
        QVERIFY(desk.Stored().contains("Disable=Ctrl+D"));
        QVERIFY(desk.Sheet.MayClose(2));  // there is nothing left to ask for
    }

    void ADismissedQuestionChangesNothing() {
        Desk desk;
        desk.Sheet.PressKey(2, 'J', Ctrl);
        desk.Answers = {2};
        QVERIFY(!desk.Sheet.MayClose(2));
        QCOMPARE(desk.Cell(2), u"Ctrl+J"_s);
        QVERIFY(desk.Sheet.Dirty());
        QVERIFY(desk.Stored().contains("Disable=Ctrl+D"));
    }

    /// The first of two rows of one command is that of the key; each is shown and kept.
    void TheSameCommandTwice() {
        Desk desk;
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, "Clocks=F2\r\nClocks=F6\r\nDisable=F8\r\n");
        desk.Sheet.ReloadShortcuts();
        desk.Sheet.PressKey(2, 'J', Ctrl);
        QVERIFY(desk.Sheet.Save(2));
        QCOMPARE(desk.Stored(), "Clocks=F2\r\nClocks=Ctrl+J\r\nDisable=F8\r\n");
        desk.Sheet.PressKey(1, 'J', Ctrl);
        QCOMPARE(desk.Cell(1), u"Used"_s);
        desk.Sheet.Steps().undo();
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Cell(1), u"F2"_s);
        QCOMPARE(desk.Cell(2), u"F6"_s);
    }

    void ManyRows() {
        Desk desk;
        QByteArray content;
        for (int row = 1; row <= 5000; ++row) {
            content +=
                "Command " + QByteArray::number(row) + "=Alt+" + char('A' + row % 26) + "\r\n";
        }
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, content);
        desk.Sheet.ReloadShortcuts();
        QCOMPARE(desk.Grid.Rows(), 5001);
        QVERIFY(desk.Sheet.PressKey(5000, 'J', Ctrl));
        QVERIFY(desk.Sheet.Save(5000));
        QVERIFY(desk.Stored().endsWith("Command 4999=Alt+H\r\nCommand 5000=Ctrl+J\r\n"));
        QCOMPARE(desk.Stored().size(), content.size() + 1);
    }

    void ALongValue() {
        Desk desk;
        const QByteArray value(200'000, 'x');
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, "Clocks=" + value + "\r\nDisable=F8\r\n");
        desk.Sheet.ReloadShortcuts();
        QCOMPARE(desk.Cell(1).size(), 200'000);
        QVERIFY(desk.Sheet.RowInfo(1).endsWith(u" place of xxxxxxxxxxxxxxxxxxxx...."_s));
        desk.Sheet.PressKey(1, 'J', Ctrl);
        desk.Sheet.CommitShortcutRow(1);
        desk.Sheet.Steps().undo();
        QCOMPARE(desk.Listed(1), QString::fromLatin1(value));
    }

    void LineEndsAndTabsInAValue() {
        Desk desk;
        const QByteArray content = "Clocks=F2\tF3\r\nDisable=F8\rF9\r\nClock Style=\t\r\n";
        desk.Machine.WriteFile(u"Shortcuts.txt"_s, content);
        desk.Sheet.ReloadShortcuts();
        QCOMPARE(desk.Cell(1), u"F2\tF3"_s);
        QVERIFY(desk.Sheet.PressKey(1, 'J', Ctrl));
        QVERIFY(desk.Sheet.Save(1));
        QVERIFY(desk.Stored().startsWith("Clocks=Ctrl+J\r\nDisable=F8\r"));
        for (int row = 1; row < desk.Grid.Rows(); ++row) {
            QVERIFY(!desk.Sheet.RowInfo(row).contains(u'\r'));
            QVERIFY(!desk.Sheet.RowInfo(row).contains(u'\t'));
        }
    }

    void NoAndTheFileIsGone() {
        Desk desk;
        desk.Sheet.RefreshByDefault();
        desk.Machine.Files.Delete(desk.File());
        desk.Answers = {7};
        QVERIFY(desk.Sheet.MayClose(2));
        QCOMPARE(desk.Listed(2), u"Ctrl+D"_s);
    }
};

QTEST_APPLESS_MAIN(tst_ShortcutSheet)
#include "tst_ShortcutSheet.moc"
