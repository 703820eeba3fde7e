#include <QTest>

#include "foundation/PropertyFile.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

class tst_PropertyFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesOfAFile_data();
    void linesOfAFile();
    void parsesALine_data();
    void parsesALine();
    void decodesText_data();
    void decodesText();
    void readsEveryByteValue();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void refusesAnUnreadableFile();
    void countsLinesInSixteenBits_data();
    void countsLinesInSixteenBits();
    void keepsOldRowsBehindTheLastLine();
    void keepsTheCategoryARowHeld();
    void writesRows_data();
    void writesRows();
    void comesBackUnchanged();
    void keepsAMarkThatBelongsToAName();
    void leavesTheOldFileWholeWhenWritingFails();
    void writesAnewWhatItHasReadWhole();

private:
    FakeServices machine_;
};

void tst_PropertyFile::linesOfAFile_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("nothing") << ""_ba << QStringList{};
    QTest::newRow("CR LF") << "a\r\nb\r\n"_ba << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("LF alone") << "a\nb\n"_ba << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("no end behind the last line") << "a\r\nb"_ba << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("blank lines") << "\r\n\r\n"_ba << QStringList{QString(), QString()};
    QTest::newRow("a lone CR is text") << "a\rb\r\n"_ba << QStringList{u"a\rb"_s};
    QTest::newRow("CR at the end of the file") << "a\r"_ba << QStringList{u"a\r"_s};
    QTest::newRow("only the CR before the LF goes") << "a\r\r\n"_ba << QStringList{u"a\r"_s};
}

void tst_PropertyFile::linesOfAFile() {
    QFETCH(QByteArray, content);
    QTEST(mduLib::FileLines(content), "lines");
}

void tst_PropertyFile::parsesALine_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    const QString held = u"held"_s;
    QTest::newRow("later = belongs to the value")
        << u"Zone:Name=a=b"_s << u"Zone"_s << u"Name"_s << u"a=b"_s;
    QTest::newRow("no category") << u"Name=a"_s << held << u"Name"_s << u"a"_s;
    QTest::newRow("no =") << u"Zone:Name"_s << held << u"Zone:Name"_s << QString();
    QTest::newRow("header") << u"[Clock]"_s << held << u"[Clock]"_s << QString();
    QTest::newRow("second : belongs to the name") << u"A:B:C=1"_s << u"A"_s << u"B:C"_s << u"1"_s;
    QTest::newRow(": in the value") << u"Time=12:30"_s << held << u"Time"_s << u"12:30"_s;
    QTest::newRow("comma and choices stay")
        << u"C:N=Red,Red,Blue"_s << u"C"_s << u"N"_s << u"Red,Red,Blue"_s;
    QTest::newRow("mark stays") << u"N=^Red"_s << held << u"N"_s << u"^Red"_s;
    QTest::newRow("blanks stay") << u" C : N = v "_s << u" C "_s << u" N "_s << u" v "_s;
    QTest::newRow("empty key") << u"=v"_s << held << QString() << u"v"_s;
    QTest::newRow("empty category") << u":N=v"_s << QString() << u"N"_s << u"v"_s;
    QTest::newRow("blank line") << QString() << held << QString() << QString();
}

void tst_PropertyFile::parsesALine() {
    QFETCH(QString, line);
    ClockProperty row{u"held"_s, u"held"_s, u"held"_s};
    mduLib::ParsePropertyLine(line, row);
    QTEST(row.Category, "category");
    QTEST(row.Name, "name");
    QTEST(row.Value, "value");
}

void tst_PropertyFile::decodesText_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("value");
    QTest::newRow("UTF-8") << "N=Montr\xC3\xA9"
                              "al\r\n"_ba
                           << u"Montréal"_s;
    QTest::newRow("UTF-8 with a mark") << "\xEF\xBB\xBFN=\xE2\x82\xAC\r\n"_ba << u"€"_s;
    QTest::newRow("Windows-1252") << "N=Montr\xE9"
                                     "al \x80 \x93quoted\x94 \x9F\r\n"_ba
                                  << u"Montréal € “quoted” Ÿ"_s;
    QTest::newRow("cut off UTF-8") << "N=\xC3"_ba << u"Ã"_s;
}

void tst_PropertyFile::decodesText() {
    QFETCH(QByteArray, content);
    ClockProperties array;
    QVERIFY(
        mduLib::ReadPropertyFile(machine_.Files, machine_.WriteFile(u"a.ini"_s, content), array));
    QCOMPARE(array[1].Name, u"N"_s);
    QTEST(array[1].Value, "value");
}

void tst_PropertyFile::readsEveryByteValue() {
    QByteArray content;
    for (int byte = 0; byte < 256; ++byte) {
        content += static_cast<char>(byte);
    }
    ClockProperties array;
    QVERIFY(
        mduLib::ReadPropertyFile(machine_.Files, machine_.WriteFile(u"a.ini"_s, content), array));
    QCOMPARE(array.UpperBound(), 2);  // the byte 10 ends the first line
    QCOMPARE(array[1].Name.size(), 10);
    QCOMPARE(array[2].Category.size(), 47);  // the bytes 11 to 57; 58 is ":", 61 is "="
    QCOMPARE(array[2].Name, u";<"_s);
    QCOMPARE(array[2].Value.size(), 194);
}

void tst_PropertyFile::refusesWhatIsNoFile_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("empty path") << QString();
    QTest::newRow("missing") << machine_.AppFolder() + u"/missing.ini"_s;
    QTest::newRow("a folder") << machine_.AppFolder();
    QTest::newRow("empty") << machine_.WriteFile(u"empty.ini"_s, {});
    QTest::newRow("named -1") << machine_.WriteFile(u"-1"_s, "a=b");
}

void tst_PropertyFile::refusesWhatIsNoFile() {
    QFETCH(QString, path);
    ClockProperties array;
    array[1] = {u"C"_s, u"N"_s, u"V"_s};
    const ClockProperties before = array;
    QVERIFY(!mduLib::ReadPropertyFile(machine_.Files, path, array));
    QCOMPARE(array, before);
}

void tst_PropertyFile::refusesAnUnreadableFile() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a.ini"_s, "a=b");
    machine.Files.Unreadable = {path};
    ClockProperties array;
    QVERIFY(!mduLib::ReadPropertyFile(machine.Files, path, array));
    QCOMPARE(array, ClockProperties());
}

void tst_PropertyFile::countsLinesInSixteenBits_data() {
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("read");
    QTest::addColumn<int>("upperBound");
    QTest::newRow("32,767") << 32767 << true << 32767;
    QTest::newRow("32,768") << 32768 << false << 32767;
    QTest::newRow("40,000") << 40000 << false << 32767;
}

void tst_PropertyFile::countsLinesInSixteenBits() {
    QFETCH(int, lines);
    QByteArray content;
    for (int line = 1; line <= lines; ++line) {
        content += "K" + QByteArray::number(line) + "=v\r\n";
    }
    ClockProperties array;
    const QString path = machine_.WriteFile(u"long.ini"_s, content);
    QTEST(mduLib::ReadPropertyFile(machine_.Files, path, array), "read");
    QTEST(array.UpperBound(), "upperBound");
    QCOMPARE(array[32767].Name, u"K32767"_s);
}

void tst_PropertyFile::keepsOldRowsBehindTheLastLine() {
    ClockProperties array;
    array.Resize(3);
    array[3] = {u"C"_s, u"Old"_s, u"V"_s};
    mduLib::ReadPropertyFile(machine_.Files, machine_.WriteFile(u"a.ini"_s, "a=1\r\nb=2\r\n"),
                             array);
    QCOMPARE(array.UpperBound(), 3);
    QCOMPARE(array[2].Name, u"b"_s);
    QCOMPARE(array[3].Name, u"Old"_s);
}

void tst_PropertyFile::keepsTheCategoryARowHeld() {
    ClockProperties array;
    array[1].Category = u"Held"_s;
    mduLib::ReadPropertyFile(machine_.Files, machine_.WriteFile(u"a.ini"_s, "a=1\r\n"), array);
    QCOMPARE(array[1].Category, u"Held"_s);
}

void tst_PropertyFile::writesRows_data() {
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QByteArray>("written");
    QTest::newRow("as it was") << "Zone:Name=a=b\r\n"_ba
                               << "Zone:Name=a=b\r\n"_ba;
    QTest::newRow("one mark goes") << "N=^^Red,Red\r\n"_ba
                                   << "N=^Red,Red\r\n"_ba;
    QTest::newRow("a header gains =") << "[Clock]\r\n"_ba
                                      << "[Clock]=\r\n"_ba;
    QTest::newRow("blank lines go") << "a=1\r\n\r\nb=2\r\n"_ba
                                    << "a=1\r\nb=2\r\n"_ba;
    QTest::newRow("a line of blanks is a name") << "  \r\n"_ba
                                                << "  =\r\n"_ba;
    QTest::newRow("an empty name is skipped") << "=1\r\nC:=2\r\na=3\r\n"_ba
                                              << "a=3\r\n"_ba;
    QTest::newRow("LF becomes CR LF") << "a=1\nb=2"_ba
                                      << "a=1\r\nb=2\r\n"_ba;
    QTest::newRow("Windows-1252 becomes UTF-8") << "a=\xE9\r\n"_ba
                                                << "a=\xC3\xA9\r\n"_ba;
    QTest::newRow("the mark of the file goes") << "\xEF\xBB\xBF"
                                                  "a=1\r\n"_ba
                                               << "a=1\r\n"_ba;
}

void tst_PropertyFile::writesRows() {
    QFETCH(QByteArray, read);
    const QString path = machine_.WriteFile(u"a.ini"_s, read);
    ClockProperties array;
    QVERIFY(mduLib::ReadPropertyFile(machine_.Files, path, array));
    QVERIFY(mduLib::WritePropertyFile(machine_.Files, array, path));
    QTEST(machine_.ReadFile(u"a.ini"_s), "written");
}

void tst_PropertyFile::comesBackUnchanged() {
    ClockProperties array;
    array.Resize(3);
    array[1] = {u"C"_s, u"Name"_s, u"a,b:c=d"_s};
    array[2] = {QString(), u"Zeit"_s, u"übermorgen €"_s};
    array[3] = {u"C"_s, u"Empty"_s, QString()};
    const QString path = machine_.AppFolder() + u"/back.ini"_s;
    QVERIFY(mduLib::WritePropertyFile(machine_.Files, array, path));
    ClockProperties back;
    QVERIFY(mduLib::ReadPropertyFile(machine_.Files, path, back));
    QCOMPARE(back, array);
}

void tst_PropertyFile::keepsAMarkThatBelongsToAName() {
    ClockProperties array;
    array[1] = {QString(), u"\uFEFFN"_s, u"1"_s};
    const QStringList lines = mduLib::FileLines(mduLib::PropertyFileContent(array));
    QCOMPARE(lines, QStringList{u"\uFEFFN=1"_s});
}

void tst_PropertyFile::leavesTheOldFileWholeWhenWritingFails() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a.ini"_s, "old=1\r\n");
    machine.Files.Unwritable = {path};
    ClockProperties array;
    array[1] = {QString(), u"new"_s, u"2"_s};
    QVERIFY(!mduLib::WritePropertyFile(machine.Files, array, path));
    QCOMPARE(machine.ReadFile(u"a.ini"_s), "old=1\r\n"_ba);
    QVERIFY(!mduLib::WritePropertyFile(machine.Files, array, machine.AppFolder()));
    QVERIFY(!mduLib::WritePropertyFile(machine.Files, array,
                                       machine.AppFolder() + u"/missing/a.ini"_s));
}

void tst_PropertyFile::writesAnewWhatItHasReadWhole() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a.ini"_s, "old=1\r\n");
    ClockProperties array;
    array[1] = {QString(), u"new"_s, u"2"_s};
    QVERIFY(mduLib::RewritePropertyFile(machine.Files, array, path));
    QCOMPARE(machine.ReadFile(u"a.ini"_s), "new=2\r\n"_ba);
    QVERIFY(mduLib::RewritePropertyFile(machine.Files, array, machine.AppFolder() + u"/b.ini"_s));
    QCOMPARE(machine.ReadFile(u"b.ini"_s), "new=2\r\n"_ba);
    const QByteArray picture("GIF\0\0\0", 6);
    machine.WriteFile(u"a.ini"_s, picture);
    QVERIFY(!mduLib::RewritePropertyFile(machine.Files, array, path));
    QCOMPARE(machine.ReadFile(u"a.ini"_s), picture);
    machine.WriteFile(u"a.ini"_s, "old=1\r\n");
    machine.Files.Unwritable = {path};
    QVERIFY(!mduLib::RewritePropertyFile(machine.Files, array, path));
    QCOMPARE(machine.ReadFile(u"a.ini"_s), "old=1\r\n"_ba);
}

QTEST_GUILESS_MAIN(tst_PropertyFile)
#include "tst_PropertyFile.moc"
