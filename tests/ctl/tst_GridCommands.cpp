#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_GridCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void runsEachOperation_data();
    void runsEachOperation();
    void answersLineByLine();
    void goesOnBehindARefusal();
    void knowsItsOperations_data();
    void knowsItsOperations();
    void needsItsScript();
    void edits_data();
    void edits();
    void knowsItsKeys_data();
    void knowsItsKeys();
    void standsInTheHelp();

private:
    /// The answers, one a line, to a script on a grid with a heading.
    CompanionAnswer RunScript(const QByteArray& lines) const {
        companion_.Write(u"grid.txt"_s, lines);
        return companion_.Run({u"grid"_s, u"run"_s, u"grid.txt"_s});
    }

    Companion companion_;
};

namespace {

// Headings, then 1 a x, 2 b y, 3 c z, and an empty row.
QByteArray FilledGrid() {
    QByteArray lines = "[\"Setup\",5,3,1,0]\n";
    const char* const cells[] = {"N", "T", "U", "1", "a", "x", "2", "b", "y", "3", "c", "z"};
    int index = 0;
    for (const char* const cell : cells) {
        lines += "[\"TextArray\"," + QByteArray::number(index++) + ",\"" + cell + "\"]\n";
    }
    return lines;
}

constexpr int FilledLines = 13;

}  // namespace

void tst_GridCommands::runsEachOperation_data() {
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QByteArray>("last");
    const auto row = [](const char* name, const char* lines, const char* last) {
        QTest::newRow(name) << QByteArray(lines) << QByteArray(last);
    };
    row("Rows", R"(["Rows"])", "5");
    row("Rows set", R"(["Rows",3]
["Rows"])",
        "3");
    row("Cols", R"(["Cols"])", "3");
    row("Cols set", R"(["Cols",2]
["Cols"])",
        "2");
    row("FixedRows", R"(["FixedRows"])", "1");
    row("FixedRows set", R"(["FixedRows",2]
["FixedRows"])",
        "2");
    row("FixedCols", R"(["FixedCols"])", "0");
    row("FixedCols set", R"(["FixedCols",1]
["FixedCols"])",
        "1");
    row("Row", R"(["Row"])", "1");
    row("Row set", R"(["Row",4]
["Row"])",
        "4");
    row("Col", R"(["Col"])", "0");
    row("Col set", R"(["Col",2]
["Col"])",
        "2");
    row("RowSel", R"(["RowSel",3]
["RowSel"])",
        "3");
    row("GetSelRow", R"(["RowSel",3]
["GetSelRow"])",
        "3");
    row("ColSel", R"(["ColSel",2]
["ColSel"])",
        "2");
    row("SelectionMode", R"(["SelectionMode",1]
["SelectionMode"])",
        "1");
    row("SelectionMode refused", R"(["SelectionMode",3]
["SelectionMode"])",
        "0");
    row("SelectionMode behind Grid2Str", R"(["Grid2Str",";"]
["SelectionMode"])",
        "2");
    row("TextMatrix", R"(["TextMatrix",2,2])", "\"y\"");
    row("TextMatrix set", R"(["TextMatrix",4,1,"\u00e9\"\r\n"]
["TextMatrix",4,1])",
        "\"\xc3\xa9\\\"\\r\\n\"");
    row("TextMatrix set to a number", R"(["TextMatrix",4,1,2.5]
["TextMatrix",4,1])",
        "\"2.5\"");
    row("TextArray", R"(["TextArray",5])", "\"x\"");
    row("RowData", R"(["RowData",2,-4]
["RowData",2])",
        "-4");
    row("RowHeight", R"(["RowHeight",2,300]
["RowHeight",2])",
        "300");
    row("SetRowHeight", R"(["SetRowHeight",2,300]
["RowHeight",2])",
        "300");
    row("RemoveItem", R"(["RemoveItem",1]
["RowToStr",1])",
        "\"2,b,y\"");
    row("GetGridClip", R"(["RowSel",2]
["ColSel",1]
["GetGridClip"])",
        "\"1\\ta\\r2\\tb\"");
    row("SetGridClip", R"(["ColSel",1]
["SetGridClip","p\tq"]
["RowToStr",1])",
        "\"p,q,x\"");
    row("Grid2Str", R"(["Grid2Str"," | "])", "\"1\\ta\\tx|2\\tb\\ty|3\\tc\\tz|\\t\\t|\"");
    row("Str2Gird", R"(["Str2Gird","p"]
["RowToStr",1])",
        "\"p,a,x\"");
    row("CurrentRowStr", R"(["Row",2]
["CurrentRowStr"])",
        "\"2\\tb\\ty\"");
    row("RowToStr", R"(["RowToStr",3,2])", "\"3,c\"");
    row("StrToRow", R"(["StrToRow","9,p,q",2]
["RowToStr",2])",
        "\"2,p,q\"");
    row("Clear", R"(["Clear"]
["RowToStr",0])",
        "\",,\"");
    row("GridClear", R"(["GridClear"]
["RowToStr",1])",
        "\",,\"");
    row("GridClear keeps the heading", R"(["GridClear"]
["RowToStr",0])",
        "\"N,T,U\"");
    row("ClearRow", R"(["ClearRow",2]
["RowToStr",2])",
        "\",,\"");
    row("CopyRow", R"(["CopyRow",1,4]
["RowToStr",4])",
        "\"2,a,x\"");
    row("InsertOneLine", R"(["Row",2]
["InsertOneLine",true])",
        "2");
    row("InsertOneLine below", R"(["Row",2]
["InsertOneLine",false])",
        "3");
    row("InsertOneLine with a place for its answer", R"(["Row",2]
["InsertOneLine",false,0])",
        "3");
    row("InsertOneLine moves the current row", R"(["Row",2]
["InsertOneLine",true]
["RowToStr",3])",
        "\"3,b,y\"");
    row("Duplicate", R"(["Duplicate"]
["RowToStr",2])",
        "\"2,a,x\"");
    row("RowOperation -2", R"(["RowOperation",-2])", "true");
    row("RowOperation -1", R"(["RowOperation",-1])", "false");
    row("RowOperation -1 behind a copy", R"(["RowOperation",4]
["RowOperation",-1])",
        "true");
    row("RowOperation with a place for its answer", R"(["RowOperation",-1,true])", "false");
    row("RowOperation 1 and 5", R"(["RowData",3,30]
["Row",3]
["RowOperation",1]
["Row",1]
["RowOperation",5]
["Grid2Str",";"])",
        "\"1\\tc\\tz;2\\ta\\tx;3\\tb\\ty;\\t\\t;\"");
    row("RowOperation 6", R"(["RowOperation",6]
["Grid2Str",";"])",
        "\"2\\tb\\ty;3\\tc\\tz;\\t\\t;\"");
    row("AddItem", R"(["AddItem","4\td"]
["RowToStr",5])",
        "\"4,d,\"");
    row("AddItem at a row", R"(["AddItem","4\td",1]
["RowToStr",1])",
        "\"4,d,\"");
    row("AddRowDetail", R"(["AddRowDetail","4\td"]
["RowToStr",4])",
        "\"4,d,\"");
    row("RemoveItemByName", R"(["RemoveItemByName","2"]
["RowToStr",2])",
        "\"3,c,z\"");
    row("DeleteGridRows", R"(["RowSel",2]
["DeleteGridRows"]
["Grid2Str",";"])",
        "\"3\\tc\\tz;\\t\\t;\"");
    row("DeleteGridRows keeps the rows", R"(["RowSel",2]
["DeleteGridRows"]
["Rows"])",
        "5");
    row("GetHightLightValue", R"(["ColSel",2]
["GetHightLightValue"])",
        "\"x\"");
    row("Sort", R"(["Col",1]
["Sort",8]
["RowToStr",1])",
        "\"3,c,z\"");
    row("RefreshItemNumber", R"(["TextMatrix",2,0,"*"]
["RefreshItemNumber"]
["TextMatrix",2,0])",
        "\"2\"");
    row("SetLineNumber", R"(["SetLineNumber",2,"*"]
["TextMatrix",2,0])",
        "\"*\"");
    row("SetLastLineNumber", R"(["SetLastEditRow",3]
["SetLastLineNumber","*"]
["LastLineNumber"])",
        "\"*\"");
    row("LastEditRow", R"(["LastEditRow",3]
["GetLastEditRow"])",
        "3");
    row("GetLastEditRow", R"(["LastEditRow"])", "0");
    for (const char* const name : {"Editable", "MoveToNextOnEnter", "RowChanges"}) {
        const QByteArray set = "[\"" + QByteArray(name) + "\",";
        const QByteArray get = "\n[\"" + QByteArray(name) + "\"]";
        row(name, (set + "true]" + get).constData(), "true");
        row((name + " off"_ba).constData(), (set + "false]" + get).constData(), "false");
    }
    row("AddComboEditItem", R"(["SetCellCtl",1,4]
["AddComboEditItem",1,"Red"])",
        "null");
    row("Editable at first", R"(["Editable"])", "true");
    row("MoveToNextOnEnter at first", R"(["MoveToNextOnEnter"])", "false");
    row("RowChanges at first", R"(["RowChanges"])", "false");
    row("SetRowStrikeThrough", R"(["SetRowStrikeThrough",true]
["IsRowStrikeThrough"])",
        "true");
    row("ToggleRowStrikeThrough", R"(["SetRowStrikeThrough",true]
["ToggleRowStrikeThrough"]
["IsRowStrikeThrough"])",
        "false");
    row("ColTotal", R"(["ColTotal",0])", "6");
    row("SetColComboOption", R"(["SetColComboOption","10"])",
        R"(["Sort None","Generic Ascending","Find"])");
    row("SetColComboOption without any", R"(["SetColComboOption",""])", "[]");
    row("CellForeColor", R"(["CellForeColor",1,1])", "-1");
    row("CellForeColor of no cell", R"(["CellForeColor",1,9])", "null");
    row("SetCellForeColor", R"(["SetCellForeColor",1,1,255]
["CellForeColor",1,1])",
        "255");
    row("SetRowForeColor", R"(["SetRowForeColor",2,7]
["CellForeColor",2,2])",
        "7");
    row("SetCellDefault", R"(["SetRowForeColor",1,7]
["SetCellDefault"]
["CellForeColor",1,0])",
        "-1");
    row("SetEditableRow", R"(["SetEditableRow",1,false])", "null");
    row("ColWidth", R"(["ColWidth",1,900]
["ColWidth",1])",
        "900");
    row("ColWidth of no column", R"(["ColWidth",3,900]
["ColWidth",3])",
        "null");
    row("ColData", R"(["ColData",2,5]
["ColData",2])",
        "5");
    row("FormatString", R"(["FormatString","No|>Text"]
["TextMatrix",0,1])",
        R"("Text")");
    row("RowPosition", R"(["RowPosition",1,3]
["TextMatrix",3,1])",
        R"("a")");
    row("RowPosition of a heading", R"(["RowPosition",0,3]
["TextMatrix",0,1])",
        R"("T")");
    row("ColPosition", R"(["ColData",1,5]
["ColPosition",1,2]
["RowToStr",1])",
        R"("1,x,a")");
    row("ColPosition and its data", R"(["ColData",1,5]
["ColPosition",1,2]
["ColData",2])",
        "5");
    row("CompactColumn", R"(["TextMatrix",1,1,""]
["Col",1]
["CompactColumn"]
["RowToStr",1])",
        "\"2,b,y\"");
    row("MoveToNextCell", R"(["SetCellCtl",1,3]
["Col",2]
["MoveToNextCell"]
["GetHightLightValue"])",
        "\"b\"");
    row("MoveToNextCell past a hidden editor", R"(["SetCellCtlID",1,3]
["SetCellCtlVisible",1,false]
["Col",2]
["MoveToNextCell"]
["Col"])",
        "0");
    row("SetColFormat", R"(["SetColFormat",",0"])", "null");
    row("Setup", R"(["Setup"])", "null");
    row("SelectOneRow", R"(["SelectOneRow",3]
["GetGridClip"])",
        "\"3\\tc\\tz\"");
    row("SelectGridAll", R"(["SelectGridAll"]
["GetHightLightValue"])",
        "\"\"");
    row("SelectGridNone", R"(["ColSel",2]
["SelectGridNone"]
["ColSel"])",
        "0");
}

void tst_GridCommands::runsEachOperation() {
    QFETCH(QByteArray, lines);
    const CompanionAnswer answer = RunScript(FilledGrid() + lines);
    QCOMPARE(answer.Status, 0);
    const QList<QByteArray> answers = answer.Output.split('\n');
    QCOMPARE(answers.size(), FilledLines + lines.count('\n') + 2);
    QTEST(answers[answers.size() - 2], "last");
}

void tst_GridCommands::answersLineByLine() {
    const CompanionAnswer answer = RunScript(
        "\r\n[\"Setup\",2,1,1,0]\r\n\r\n [\"TextMatrix\",1,0,\"x\"]\r\n[\"TextMatrix\",1,0]");
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Output, "null\nnull\n\"x\"\n"_ba);
    QCOMPARE(answer.Messages, QByteArray());
}

void tst_GridCommands::goesOnBehindARefusal() {
    const CompanionAnswer answer = RunScript(R"(["Setup",2,2,1,0]
["StrToRow","a",1]
["Row",7]
["Row",99999999999]
["TextMatrix",9,0]
["TextMatrix",9,0,"x"]
["RowData",-1]
["RowToStr",2]
["Rows",-1]
["Rows",2000000000]
["Sort",9]
["Row",0]
["InsertOneLine",true]
["Row"]
["Rows"]
["Setup",-1,2,0,0]
["Rows"]
)");
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Output, QByteArray("null\n").repeated(13) + "0\n2\nnull\n2\n");
}

void tst_GridCommands::knowsItsOperations_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no such name") << "[\"Nope\"]"_ba;
    QTest::newRow("another letter case") << "[\"rows\"]"_ba;
    QTest::newRow("too few") << "[\"TextMatrix\",1]"_ba;
    QTest::newRow("too many") << "[\"Rows\",1,2]"_ba;
    QTest::newRow("a text for a number") << "[\"Rows\",\"x\"]"_ba;
    QTest::newRow("a fraction") << "[\"Row\",1.5]"_ba;
    QTest::newRow("a text for a flag") << "[\"InsertOneLine\",\"true\"]"_ba;
    QTest::newRow("a list for a text") << "[\"Str2Gird\",[]]"_ba;
    QTest::newRow("half a size") << "[\"Setup\",2,2]"_ba;
    QTest::newRow("no name") << "[]"_ba;
    QTest::newRow("no list") << "{\"Rows\":1}"_ba;
    QTest::newRow("no JSON") << "Rows"_ba;
}

void tst_GridCommands::knowsItsOperations() {
    QFETCH(QByteArray, line);
    const CompanionAnswer answer =
        RunScript("[\"Setup\",2,2,1,0]\n[\"Cols\"]\n" + line + "\n[\"Cols\"]\n");
    QCOMPARE(answer.Status, 2);
    QCOMPARE(answer.Output, "null\n2\n"_ba);
    QVERIFY(answer.Messages.contains(line));
}

void tst_GridCommands::needsItsScript() {
    const CompanionAnswer missing = companion_.Run({u"grid"_s, u"run"_s, u"missing.txt"_s});
    QCOMPARE(missing.Status, 1);
    QCOMPARE(missing.Output, QByteArray());
    QVERIFY(missing.Messages.contains("missing.txt"));
    QCOMPARE(RunScript("[\"Rows\"]\n").Status, 2);
    QCOMPARE(RunScript("[\"Setup\"]\n").Status, 2);
    QCOMPARE(RunScript({}).Status, 0);
}

void tst_GridCommands::edits_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");
    const auto row = [](const char* name, const QStringList& arguments, const char* cell,
                        bool editing) {
        QTest::newRow(name) << arguments
                            << QByteArray("{\"cell\":\"") + cell +
                                   "\",\"editing\":" + (editing ? "true" : "false") + "}\n";
    };
    row("no key", {u"3"_s, u"abc"_s}, "abc", false);
    row("a letter", {u"3"_s, u"abc"_s, u"x"_s}, "abc", true);
    row("a letter, entered", {u"3"_s, u"abc"_s, u"x"_s, u"Enter"_s}, "x", false);
    row("a letter, cancelled", {u"3"_s, u"abc"_s, u"x"_s, u"Escape"_s}, "abc", false);
    row("the old text", {u"3"_s, u"abc"_s, u"Enter"_s, u"x"_s, u"Enter"_s}, "abcx", false);
    row("an arrow enters and acts", {u"3"_s, u"abc"_s, u"Left"_s, u"x"_s, u"Enter"_s}, "abxc",
        false);
    row("an arrow spins", {u"2"_s, u"1.50"_s, u"Up"_s, u"Enter"_s}, "2.50", false);
    row("an arrow chooses", {u"1"_s, u"Red,Red,Green"_s, u"Down"_s, u"Enter"_s}, "Green", false);
    row("an arrow opens no empty list", {u"1"_s, u"Red"_s, u"Down"_s}, "Red", false);
    row("backspace enters", {u"3"_s, u"abc"_s, u"Backspace"_s, u"x"_s, u"Enter"_s}, "abcx", false);
    row("a page key enters and ends", {u"3"_s, u"abc"_s, u"PageUp"_s}, "abc", false);
    row("tab does not", {u"3"_s, u"abc"_s, u"Tab"_s}, "abc", false);
    row("tab finds no other cell", {u"3"_s, u"abc"_s, u"Tab"_s, u"x"_s, u"Enter"_s}, "x", false);
    row("escape does not", {u"3"_s, u"abc"_s, u"Escape"_s}, "abc", false);
    row("an arrow enters first alone", {u"3"_s, u"abc"_s, u"Enter"_s, u"Enter"_s, u"Left"_s}, "abc",
        false);
    row("edited again", {u"3"_s, u"abc"_s, u"x"_s, u"Enter"_s, u"y"_s}, "x", true);
    row("keys within",
        {u"3"_s, u"abc"_s, u"Enter"_s, u"Home"_s, u"Delete"_s, u"End"_s, u"Backspace"_s, u"Left"_s,
         u"Right"_s, u"z"_s, u"PageDown"_s},
        "bz", false);
    row("other letters", {u"3"_s, u"abc"_s, u"\u00e9"_s, u"\U0001F600"_s, u"Enter"_s},
        "\xc3\xa9\xf0\x9f\x98\x80", false);
    row("a comma is text", {u"3"_s, u"a,b"_s, u"Enter"_s, u"PageUp"_s}, "a,b", false);
    row("a number up", {u"2"_s, u"1.50"_s, u"Enter"_s, u"Up"_s, u"Enter"_s}, "2.50", false);
    row("a number down", {u"2"_s, u"3"_s, u"Enter"_s, u"Down"_s, u"Enter"_s}, "2", false);
    row("a date up", {u"2"_s, u"31/12/2025"_s, u"Enter"_s, u"Up"_s, u"Enter"_s}, "01/01/2026",
        false);
    row("a word up", {u"2"_s, u"word"_s, u"Enter"_s, u"Up"_s, u"Enter"_s}, "word", false);
    row("a choice down", {u"1"_s, u"Red,Red,Green"_s, u"Enter"_s, u"Down"_s, u"Enter"_s}, "Green",
        false);
    row("a choice by its initial", {u"1"_s, u"Red,Red,Green"_s, u"x"_s, u"g"_s, u"Enter"_s},
        "Green", false);
    row("a choice, open", {u"1"_s, u"Red,Red,Green"_s, u"Enter"_s, u"Down"_s}, "Red", true);
    row("no choices", {u"1"_s, u"Red"_s, u"Enter"_s}, "Red", false);
    row("a choice let go", {u"1"_s, u"Red,Red,Green"_s, u"Enter"_s, u"Delete"_s, u"Enter"_s}, "",
        false);
    row("typed ahead", {u"4"_s, u"Red,Red,Green"_s, u"G"_s, u"r"_s, u"Enter"_s}, "Green", false);
    row("typed", {u"4"_s, u"Red,Red,Green"_s, u"G"_s, u"Enter"_s}, "G", false);
}

void tst_GridCommands::edits() {
    QFETCH(QStringList, arguments);
    const CompanionAnswer answer = companion_.Run(QStringList{u"grid"_s, u"key"_s} + arguments);
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Output, "output");
}

void tst_GridCommands::knowsItsKeys_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("kind 0") << QStringList{u"0"_s, u"a"_s, u"x"_s};
    QTest::newRow("kind 5") << QStringList{u"5"_s, u"a"_s, u"x"_s};
    QTest::newRow("no kind") << QStringList{u"text"_s, u"a"_s, u"x"_s};
    QTest::newRow("a word") << QStringList{u"3"_s, u"a"_s, u"x"_s, u"F13"_s};
    QTest::newRow("an empty key") << QStringList{u"3"_s, u"a"_s, QString()};
    QTest::newRow("no text") << QStringList{u"3"_s};
}

void tst_GridCommands::knowsItsKeys() {
    QFETCH(QStringList, arguments);
    const CompanionAnswer answer = companion_.Run(QStringList{u"grid"_s, u"key"_s} + arguments);
    QCOMPARE(answer.Status, 2);
    QCOMPARE(answer.Output, QByteArray());
    QVERIFY(answer.Messages.contains("grid key KIND TEXT KEYS..."));
}

void tst_GridCommands::standsInTheHelp() {
    const QByteArray help = companion_.Run({u"--help"_s}).Output;
    QVERIFY(help.contains("grid run SCRIPT\n"));
    QVERIFY(help.contains("grid key KIND TEXT KEYS...\n"));
    QVERIFY(help.contains("editor commit FILE KEY CELL\n"));
}

QTEST_GUILESS_MAIN(tst_GridCommands)
#include "tst_GridCommands.moc"
