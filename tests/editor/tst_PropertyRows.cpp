#include "editor/PropertyRows.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::CommitRow;
using editor::RowCommit;

class tst_PropertyRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsValues_data();
    void ShowsValues();
    void KnowsItsRecords();
    void Commits_data();
    void Commits();
    void CommitsNothingWithoutARecord();
    void CommitsTheRecordOfThatNumber();
};

void tst_PropertyRows::ShowsValues_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QStringList>("choices");
    QTest::addColumn<bool>("picked");
    QTest::newRow("plain") << u"Red"_s << u"Red"_s << QStringList() << false;
    QTest::newRow("empty") << QString() << QString() << QStringList() << false;
    QTest::newRow("two choices") << u"A,A,B"_s << u"A"_s << QStringList{u"A"_s, u"B"_s} << true;
    QTest::newRow("one choice") << u"A,A"_s << u"A"_s << QStringList{u"A"_s} << false;
    QTest::newRow("an empty choice")
        << u"A,,"_s << u"A"_s << QStringList{QString(), QString()} << true;
    QTest::newRow("no value") << u",A,B"_s << QString() << QStringList{u"A"_s, u"B"_s} << true;
    QTest::newRow("blanks stay") << u" A , B"_s << u" A "_s << QStringList{u" B"_s} << false;
}

void tst_PropertyRows::ShowsValues() {
    QFETCH(QString, value);
    QTEST(editor::PropertyCell(value), "cell");
    QTEST(editor::ValueChoices(value), "choices");
    QTEST(editor::IsPicked(value), "picked");
}

void tst_PropertyRows::KnowsItsRecords() {
    ClockProperties properties;
    properties.Resize(3);
    QVERIFY(!editor::HasRecord(properties, 0));
    QVERIFY(editor::HasRecord(properties, 1));
    QVERIFY(editor::HasRecord(properties, 3));
    QVERIFY(!editor::HasRecord(properties, 4));
    QVERIFY(!editor::HasRecord(properties, -1));
}

void tst_PropertyRows::Commits_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QString>("after");
    QTest::addColumn<RowCommit>("commit");
    const auto row = [](const char* name, const QString& key, const QString& before,
                        const QString& cell, const QString& after, const RowCommit& commit) {
        QTest::newRow(name) << key << before << cell << after << commit;
    };
    const QString none;
    row("a choice", u"Size"_s, u"A,A,B"_s, u"B"_s, u"B,A,B"_s, {u"B"_s, true});
    row("the same choice", u"Size"_s, u"A,A,B"_s, u"A"_s, u"A,A,B"_s, {u"A"_s, false});
    row("no choice", u"Size"_s, u"A,A,B"_s, none, u"A,A,B"_s, {u"A"_s, false});
    row("blanks for a choice", u"Size"_s, u"A,A,B"_s, u"  "_s, u"A,A,B"_s, {u"A"_s, false});
    row("a word of its own", u"Size"_s, u"A,A,B"_s, u"C"_s, u"C,A,B"_s, {u"C"_s, true});
    row("one choice, emptied", u"Size"_s, u"A,A"_s, none, u"A,A"_s, {u"A"_s, false});
    row("a plain text", u"Size"_s, u"A"_s, u"B"_s, u"B"_s, {u"B"_s, true});
    row("a plain text, emptied", u"Size"_s, u"A"_s, none, none, {none, true});
    row("an empty text that stays", u"Size"_s, none, none, none, {none, false});
    row("blanks around", u"Size"_s, u"A,A,B"_s, u" B "_s, u"B,A,B"_s, {u"B"_s, true});
    row("blanks around the same", u"Size"_s, u"A,A,B"_s, u" A "_s, u"A,A,B"_s, {u"A"_s, false});
    row("blanks that were there", u"Size"_s, u" A ,B,C"_s, u" A "_s, u" A ,B,C"_s,
        {u" A "_s, false});
    row("a file", u"Music File"_s, u"a.mp3,b,c"_s, none, u",b,c"_s, {none, true});
    row("a file among words", u"A File b"_s, u"a,b,c"_s, none, u",b,c"_s, {none, true});
    row("no file", u"Profile"_s, u"a,b,c"_s, none, u"a,b,c"_s, {u"a"_s, false});
    row("an emptied file", u"Music File"_s, u",b,c"_s, none, u",b,c"_s, {none, false});
    row("a comma", u"Size"_s, u"A"_s, u"x,y"_s, u"x,y"_s, {u"x"_s, true});
    row("a comma before choices", u"Size"_s, u"A,A,B"_s, u"x,y"_s, u"x,y,A,B"_s, {u"x"_s, true});
    row("line ends and a tab", u"Size"_s, u"A"_s, u"a\r\nb\rc\nd\te"_s, u"a b c d e"_s,
        {u"a b c d e"_s, true});
    row("a nothing within", u"Size"_s, u"A"_s, u"a\u0000b"_s, u"a b"_s, {u"a b"_s, true});
    row("line ends alone", u"Size"_s, u"A,A,B"_s, u"\r\n"_s, u"A,A,B"_s, {u"A"_s, false});
    row("other letters", u"\u00c9"_s, u"A,A,B"_s, u"\u65e5"_s, u"\u65e5,A,B"_s,
        {u"\u65e5"_s, true});
    row("a key with blanks", u" Size "_s, u"A,A,B"_s, u"B"_s, u"B,A,B"_s, {u"B"_s, true});
}

void tst_PropertyRows::Commits() {
    QFETCH(QString, key);
    QFETCH(QString, before);
    QFETCH(QString, cell);
    ClockProperties properties;
    properties[1] = {u"Zone"_s, key, before};
    QTEST(CommitRow(properties, 1, cell), "commit");
    QTEST(properties[1].Value, "after");
    QCOMPARE(properties[1].Category, u"Zone"_s);
    QCOMPARE(properties[1].Name, key);
    QCOMPARE(properties.UpperBound(), 1);
}

void tst_PropertyRows::CommitsNothingWithoutARecord() {
    ClockProperties properties;
    properties[1] = {u"Zone"_s, u"Size"_s, u"A"_s};
    const ClockProperties before = properties;
    QCOMPARE(CommitRow(properties, 2, u"B"_s), (RowCommit{u"B"_s, false}));
    QCOMPARE(CommitRow(properties, 0, u"B"_s), (RowCommit{u"B"_s, false}));
    QCOMPARE(CommitRow(properties, -1, u"B"_s), (RowCommit{u"B"_s, false}));
    QVERIFY(properties == before);
}

void tst_PropertyRows::CommitsTheRecordOfThatNumber() {
    ClockProperties properties;
    properties.Resize(2);
    properties[1] = {u"Hour"_s, u"Colour"_s, u"Red,Red,Blue"_s};
    properties[2] = {u"Minute"_s, u"Colour"_s, u"Blue,Red,Blue"_s};
    QCOMPARE(CommitRow(properties, 2, u"Red"_s), (RowCommit{u"Red"_s, true}));
    QCOMPARE(properties[1].Value, u"Red,Red,Blue"_s);
    QCOMPARE(properties[2].Value, u"Red,Red,Blue"_s);
}

QTEST_GUILESS_MAIN(tst_PropertyRows)
#include "tst_PropertyRows.moc"
