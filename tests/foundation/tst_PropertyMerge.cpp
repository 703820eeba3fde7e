#include <QTest>

#include "foundation/PropertyMerge.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

class tst_PropertyMerge : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void merges_data();
    void merges();
    void fails_data();
    void fails();
    void takesDefaultsWithoutAnOldFile();
    void takesDefaultsWhenTheOldFileCantBeRead();
    void failsWithoutANewFile();
    void leavesTheOldFileWholeWhenWritingFails();
    void mergesIntoTheOldFile();
    void mergesManyLines();
    void yieldsAfterEachLine();
    void survivesEveryByteValue();
    void leavesWhatIsNoTextOrCantBeRead();
};

void tst_PropertyMerge::merges_data() {
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("fresh");
    QTest::addColumn<QByteArray>("out");
    const auto row = [](const char* name, const QByteArray& old, const QByteArray& fresh,
                        const QByteArray& out) {
        QTest::newRow(name) << old << fresh << out + "\r\n";
    };
    row("user's value, new choices", "Clocks=Digital,Analogue,Digital",
        "Clocks=Analogue,Analogue,Digital,Calculator",
        "Clocks=Digital,Analogue,Digital,Calculator");
    row("forced", "Speak=No", "Speak=^Yes", "Speak=Yes");
    row("forced list", "C=Red,Red", "C=^Blue,Red,Blue", "C=Blue,Red,Blue");
    row("forced behind a blank", "C=Red", "C= ^Blue ", "C=Blue");
    row("category gained", "Size=3", "Look:Size=2", "Look:Size=3");
    row("category changed", "Old:Size=3", "Look:Size=2", "Look:Size=2");
    row("category kept", "Look:Size=3", "Look:Size=2", "Look:Size=3");
    row("category lost", "Look:Size=3", "Size=2", "Size=2");
    row("old value without a comma", "C=Pink", "C=Red,Red,Blue", "C=Pink");
    row("new value without a comma", "C=Red,Red,Blue", "C=7", "C=Red,Red,Blue");
    row("same choices", "C=Blue,Red,Blue", "C=Red,Red,Blue", "C=Blue,Red,Blue");
    row("the old line as it stands", "c =Blue,Red,Blue", "c =Red,Red,Blue", "c =Blue,Red,Blue");
    row("key of the new file, trimmed", " size = 3 , a", " Size =2,b", "Size= 3 ,b");
    row("letter case aside", "SIZE=3", "Size=2", "SIZE=3");
    row("blanks of a key count", "Size =3", "Size=2", "Size=2");
    row("later = in both", "C=a=b,c", "C=x,y=z", "C=a=b,c");
    row("later = behind the choices", "C=a,b=c", "C=x,y=z", "C=a,y");
    row("new key", "A=1", "B=2", "B=2");
    row("new forced key keeps its mark", "A=1", "B=^2", "B=^2");
    row("dropped key", "A=1\r\nB=2", "B=3", "B=2");
    row("blank lines stay", "A=1", "\r\n   \r\nA=2", "\r\n\r\nA=1");
    row("header and what follows it", "A=1\r\nB=1", "A=2\r\n[H]\r\nB=2", "A=1\r\n[H]\r\nB=2");
    row("old header is no prefix of old lines", "[H]\r\nA=1", "A=2", "A=1");
    row("category gained keeps up to the second =", "Size=3=4", "Look:Size=2", "Look:Size=3");
    row("category gained, key trimmed", "Size=3", " Look:Size=2", "Look:Size=3");
    row("category gained in another case", "size=3", "Look:Size=2", "Look:Size=2");
    row("category gained in another case, forced", "size=3", "Look:Size=^2", "Look:Size=2");
    row("category gained beats forced", "Size=3", "Look:Size=^2", "Look:Size=3");
    row("short name left by an earlier line", "Size=3", "Look:Size=1\r\nMore=^2",
        "Look:Size=3\r\nMore=2");
    row("second old line of a key ends the old pass", "A=1\r\nB=1\r\na=2\r\nC=1",
        "A=9\r\nB=9\r\nC=9", "A=1\r\nB=1\r\nC=9");
    row("blank old lines are no keys", "A=1\r\n\r\n\r\nB=1", "A=9\r\nB=9", "A=1\r\nB=1");
    row("line without = that is new", "A=1", "Title", "Title");
    row("line without = behind a short name that is found", "Size=3", "Look:Size=2\r\nOther",
        "Look:Size=3\r\nOther");
    row("line without =, found by a short name in another case", "size=1", "Look:Size",
        "Look:Size");
    row("colon in a value", "T=12:30", "T=1:00", "T=12:30");
    row("non-ASCII letter case", "GR\xC3\x96SSE=3", "gr\xC3\xB6sse=2", "GR\xC3\x96SSE=3");
}

void tst_PropertyMerge::merges() {
    FakeServices machine;
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, fresh);
    const QString out = machine.AppFolder() + u"/out.ini"_s;
    QVERIFY(mduLib::MergePropertyFile(machine.Files, machine.WriteFile(u"old.ini"_s, old),
                                      machine.WriteFile(u"new.ini"_s, fresh), out));
    QTEST(machine.ReadFile(u"out.ini"_s), "out");
    QCOMPARE(machine.ReadFile(u"old.ini"_s), old);
}

void tst_PropertyMerge::fails_data() {
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("fresh");
    QTest::newRow("new line without = that is found") << "Title=1"_ba
                                                      << "A=1\r\nTitle"_ba;
    QTest::newRow("old line without = that is found") << "Title"_ba
                                                      << "Title=1"_ba;
    QTest::newRow("old line without = behind a category") << "Size"_ba
                                                          << "Look:Size=1"_ba;
}

void tst_PropertyMerge::fails() {
    FakeServices machine;
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, fresh);
    const QString oldFile = machine.WriteFile(u"old.ini"_s, old);
    QVERIFY(!mduLib::MergePropertyFile(machine.Files, oldFile,
                                       machine.WriteFile(u"new.ini"_s, fresh), oldFile));
    QCOMPARE(machine.ReadFile(u"old.ini"_s), old);
}

void tst_PropertyMerge::takesDefaultsWithoutAnOldFile() {
    FakeServices machine;
    const QString out = machine.AppFolder() + u"/out.ini"_s;
    const QString fresh = machine.WriteFile(u"new.ini"_s, "A=^1\nB=2");
    QVERIFY(mduLib::MergePropertyFile(machine.Files, out, fresh, out));
    QCOMPARE(machine.ReadFile(u"out.ini"_s), "A=^1\r\nB=2\r\n"_ba);
}

void tst_PropertyMerge::takesDefaultsWhenTheOldFileCantBeRead() {
    FakeServices machine;
    const QString old = machine.WriteFile(u"old.ini"_s, "A=1");
    const QString fresh = machine.WriteFile(u"new.ini"_s, "A=2");
    machine.Files.Unreadable = {old};
    QVERIFY(
        mduLib::MergePropertyFile(machine.Files, old, fresh, machine.AppFolder() + u"/out.ini"_s));
    QCOMPARE(machine.ReadFile(u"out.ini"_s), "A=2\r\n"_ba);
}

void tst_PropertyMerge::failsWithoutANewFile() {
    FakeServices machine;
    const QString old = machine.WriteFile(u"old.ini"_s, "A=1");
    const QString fresh = machine.WriteFile(u"new.ini"_s, "A=2");
    QVERIFY(
        !mduLib::MergePropertyFile(machine.Files, old, machine.AppFolder() + u"/missing"_s, old));
    machine.Files.Unreadable = {fresh};
    QVERIFY(!mduLib::MergePropertyFile(machine.Files, old, fresh, old));
    QCOMPARE(machine.ReadFile(u"old.ini"_s), "A=1"_ba);
}

void tst_PropertyMerge::leavesTheOldFileWholeWhenWritingFails() {
    FakeServices machine;
    const QString old = machine.WriteFile(u"old.ini"_s, "A=1");
    machine.Files.Unwritable = {old};
    QVERIFY(!mduLib::MergePropertyFile(machine.Files, old,
                                       machine.WriteFile(u"new.ini"_s, "A=2\r\nB=2"), old));
    QCOMPARE(machine.ReadFile(u"old.ini"_s), "A=1"_ba);
}

void tst_PropertyMerge::mergesIntoTheOldFile() {
    FakeServices machine;
    const QString old = machine.WriteFile(u"old.ini"_s, "A=1\r\nGone=1");
    QVERIFY(mduLib::MergePropertyFile(machine.Files, old,
                                      machine.WriteFile(u"new.ini"_s, "B=2\r\nA=2"), old));
    QCOMPARE(machine.ReadFile(u"old.ini"_s), "B=2\r\nA=1\r\n"_ba);
}

void tst_PropertyMerge::mergesManyLines() {
    FakeServices machine;
    QByteArray old;
    QByteArray fresh;
    for (int line = 0; line < 40000; ++line) {
        old += "K" + QByteArray::number(line) + "=old\r\n";
        fresh += "K" + QByteArray::number(line) + "=new\r\n";
    }
    const QString oldFile = machine.WriteFile(u"old.ini"_s, old);
    QVERIFY(mduLib::MergePropertyFile(machine.Files, oldFile,
                                      machine.WriteFile(u"new.ini"_s, fresh), oldFile));
    QCOMPARE(machine.ReadFile(u"old.ini"_s), old);
}

void tst_PropertyMerge::yieldsAfterEachLine() {
    FakeServices machine;
    const QString old = machine.WriteFile(u"old.ini"_s, "A=1");
    int yields = 0;
    QVERIFY(mduLib::MergePropertyFile(machine.Files, old,
                                      machine.WriteFile(u"new.ini"_s, "A=2\r\n\r\n[H]\r\nB=1"), old,
                                      [&yields] { ++yields; }));
    QCOMPARE(yields, 4);
}

void tst_PropertyMerge::survivesEveryByteValue() {
    FakeServices machine;
    QByteArray content;
    for (int byte = 1; byte < 256; ++byte) {
        content += static_cast<char>(byte);
    }
    const QString old = machine.WriteFile(u"old.ini"_s, content);
    const QString fresh = machine.WriteFile(u"new.ini"_s, "A=2");
    QVERIFY(mduLib::MergePropertyFile(machine.Files, old, fresh, old));
    QCOMPARE(machine.ReadFile(u"old.ini"_s), "A=2\r\n"_ba);
}

void tst_PropertyMerge::leavesWhatIsNoTextOrCantBeRead() {
    FakeServices machine;
    const QByteArray picture("GIF89a\0\0A=1", 11);
    const QString old = machine.WriteFile(u"old.ini"_s, picture);
    const QString fresh = machine.WriteFile(u"new.ini"_s, "A=2");
    QVERIFY(!mduLib::MergePropertyFile(machine.Files, old, fresh, old));
    QCOMPARE(machine.ReadFile(u"old.ini"_s), picture);

    const QString closed = machine.WriteFile(u"closed.ini"_s, "A=1");
    machine.Files.Unreadable = {closed};
    QVERIFY(!mduLib::MergePropertyFile(machine.Files, closed, fresh, closed));
    QCOMPARE(machine.ReadFile(u"closed.ini"_s), "A=1"_ba);
}

QTEST_GUILESS_MAIN(tst_PropertyMerge)
#include "tst_PropertyMerge.moc"
