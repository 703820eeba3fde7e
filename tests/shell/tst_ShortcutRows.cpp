#include "shell/ShortcutRows.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ShortcutRows : public QObject {
    Q_OBJECT

private:
    static ClockProperties List(const std::vector<std::pair<QString, QString>>& records) {
        ClockProperties list;
        list.Resize(static_cast<int>(records.size()));
        for (int i = 1; i <= list.UpperBound(); ++i) {
            const auto& [name, value] = records[static_cast<std::size_t>(i - 1)];
            list[i] = {{}, name, value};
        }
        return list;
    }
    static QStringList Texts(const editor::EditGridData& grid) {
        QStringList texts;
        for (int row = 0; row < grid.Rows(); ++row) {
            texts += grid.RowClipText(row);
        }
        return texts;
    }
    static editor::EditGridData Filled() {
        editor::EditGridData grid({2, 2, 1, 0});
        shell::FillShortcutGrid(
            List({{u"Clocks"_s, u"F2"_s}, {u"Disable"_s, u"Ctrl+D"_s}, {u"Window Border"_s, {}}}),
            grid);
        return grid;
    }

private Q_SLOTS:
    void OneRowForEachCommand() {
        editor::EditGridData grid({2, 2, 1, 0});
        shell::FillShortcutGrid(
            List({{u"Clocks"_s, u"F2,F2,F3"_s}, {{}, u"of nobody"_s}, {u"Disable"_s, u"Ctrl+D"_s}}),
            grid);
        QCOMPARE(Texts(grid),
                 (QStringList{u"Shortcut\tValue"_s, u"Clocks\tF2"_s, u"Disable\tCtrl+D"_s}));
        QCOMPARE(grid.RowData(1), 1);
        QCOMPARE(grid.RowData(2), 3);
    }

    /// A shorter list leaves nothing of a longer one.
    void AnotherListTakesItsPlace() {
        editor::EditGridData grid = Filled();
        shell::FillShortcutGrid(List({{u"Disable"_s, u"F9"_s}}), grid);
        QCOMPARE(Texts(grid), (QStringList{u"Shortcut\tValue"_s, u"Disable\tF9"_s}));
        shell::FillShortcutGrid(ClockProperties(), grid);
        QCOMPARE(Texts(grid), (QStringList{u"Shortcut\tValue"_s, u"\t"_s}));
    }

    void KeysAreFoundToTheLetter() {
        const editor::EditGridData grid = Filled();
        QCOMPARE(shell::FindKeyRow(grid, u"Ctrl+D"_s), 2);
        QCOMPARE(shell::FindKeyRow(grid, u"F2"_s), 1);
        QCOMPARE(shell::FindKeyRow(grid, u"Ctrl+d"_s), 0);
        QCOMPARE(shell::FindKeyRow(grid, u"Value"_s), 0);
    }

    void NoFurtherThanARowWithoutACommand() {
        editor::EditGridData grid = Filled();
        grid.SetTextMatrix(1, 0, {});
        QCOMPARE(shell::FindKeyRow(grid, u"Ctrl+D"_s), 0);
        grid.SetTextMatrix(3, 1, u"F9"_s);
        grid.SetTextMatrix(1, 0, u"Clocks"_s);
        QCOMPARE(shell::FindKeyRow(grid, u"F9"_s), 3);
    }

    void WhatAKeyPuts_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("shift");
        QTest::addColumn<QString>("text");
        QTest::newRow("a letter with Ctrl") << 1 << 75 << 2 << u"Ctrl+K"_s;
        QTest::newRow("with Alt") << 1 << 75 << 4 << u"Alt+K"_s;
        QTest::newRow("Alt wins") << 1 << 75 << 6 << u"Alt+K"_s;
        QTest::newRow("a letter alone") << 1 << 75 << 0 << u"Invalid"_s;
        QTest::newRow("with Shift") << 1 << 75 << 1 << u"+K"_s;
        QTest::newRow("F1") << 1 << 112 << 0 << u"Invalid"_s;
        QTest::newRow("Ctrl and F1") << 1 << 112 << 2 << u"Ctrl+F1"_s;
        QTest::newRow("F2 of the same row") << 1 << 113 << 0 << u"F2"_s;
        QTest::newRow("F2 of another row") << 2 << 113 << 0 << u"Used"_s;
        QTest::newRow("F12") << 1 << 123 << 0 << u"F12"_s;
        QTest::newRow("behind F12") << 1 << 124 << 0 << u"Invalid"_s;
        QTest::newRow("Ctrl+D of another row") << 3 << 68 << 2 << u"Used"_s;
        QTest::newRow("Alt+D") << 3 << 68 << 4 << u"Alt+D"_s;
        QTest::newRow("the first code") << 1 << 33 << 2 << u"Ctrl+!"_s;
        QTest::newRow("below the range") << 1 << 31 << 2 << u""_s;
        QTest::newRow("the last code") << 1 << 126 << 2 << u"Ctrl+~"_s;
        QTest::newRow("above the range") << 1 << 127 << 2 << u""_s;
        QTest::newRow("no key") << 1 << 0 << 2 << u""_s;
        QTest::newRow("the blank") << 1 << 32 << 2 << u"Invalid"_s;
        QTest::newRow("the comma") << 1 << 44 << 2 << u"Invalid"_s;
        QTest::newRow("the plus") << 1 << 43 << 2 << u"Invalid"_s;
        QTest::newRow("the equals sign") << 1 << 61 << 2 << u"Ctrl+="_s;
    }
    void WhatAKeyPuts() {
        QFETCH(int, row);
        QFETCH(int, code);
        QFETCH(int, shift);
        const editor::EditGridData grid = Filled();
        QTEST(shell::RecordedKey(grid, row, code, shift), "text");
    }

    /// Those of the shell's own menus are not refused: Alt+E opens "Edit", Ctrl+Z undoes.
    void TheKeysOfTheMenusMayBeTaken() {
        QCOMPARE(shell::RecordedKey(Filled(), 1, 'E', 4), u"Alt+E"_s);
        QCOMPARE(shell::RecordedKey(Filled(), 1, 'Z', 2), u"Ctrl+Z"_s);
    }
};

QTEST_APPLESS_MAIN(tst_ShortcutRows)
#include "tst_ShortcutRows.moc"
