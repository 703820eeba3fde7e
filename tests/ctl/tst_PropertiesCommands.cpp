#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_PropertiesCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads();
    void readsWhatItCan_data();
    void readsWhatItCan();
    void writes();
    void writesNothingItCouldNotRead();
    void looksUp_data();
    void looksUp();
    void looksUpInAMissingFile();
    void puts_data();
    void puts();
    void putsIntoAFileThatIsNotThere();
    void putsNothingIntoAFileItCouldNotRead();
    void putsNothingIntoWhatIsNoText();
    void merges();
    void tellsOfAFailedMerge();
    void sorts_data();
    void sorts();

private:
    CompanionAnswer Run(const QStringList& arguments) const {
        return companion_.Run(QStringList{u"properties"_s} + arguments);
    }

    Companion companion_;
};

void tst_PropertiesCommands::reads() {
    companion_.Write(u"a.ini"_s, "Zone:Name=a=b\r\n[Clock]\r\n\r\nC=^Red,Red\r\n");
    const CompanionAnswer answer = Run({u"read"_s, u"a.ini"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Output,
             "[{\"Category\":\"Zone\",\"Name\":\"Name\",\"Value\":\"a=b\"},"
             "{\"Category\":\"\",\"Name\":\"[Clock]\",\"Value\":\"\"},"
             "{\"Category\":\"\",\"Name\":\"\",\"Value\":\"\"},"
             "{\"Category\":\"\",\"Name\":\"C\",\"Value\":\"^Red,Red\"}]\n"_ba);
}

void tst_PropertiesCommands::readsWhatItCan_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("rows");
    QTest::newRow("missing") << u"missing.ini"_s << 0;
    QTest::newRow("empty") << companion_.Write(u"empty.ini"_s, {}) << 0;
    QTest::newRow("a folder") << companion_.Folder.path() << 0;
    QTest::newRow("40,000 lines") << companion_.Write(u"long.ini"_s,
                                                      QByteArray("a=1\n").repeated(40000))
                                  << 32767;
}

void tst_PropertiesCommands::readsWhatItCan() {
    QFETCH(QString, path);
    const CompanionAnswer answer = Run({u"read"_s, path});
    QCOMPARE(answer.Status, 1);
    QVERIFY(answer.Json().isArray());
    QTEST(int(answer.Array().size()), "rows");
}

void tst_PropertiesCommands::writes() {
    companion_.Write(u"a.ini"_s, "A=^1,2\n\n[Clock]\n");
    const CompanionAnswer answer = Run({u"write"_s, u"a.ini"_s, u"out.ini"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Output, "{\"rows\":3}\n"_ba);
    QCOMPARE(companion_.Read(u"out.ini"_s), "A=1,2\r\n[Clock]=\r\n"_ba);
}

void tst_PropertiesCommands::writesNothingItCouldNotRead() {
    companion_.Write(u"kept.ini"_s, "A=1\r\n");
    const CompanionAnswer answer = Run({u"write"_s, u"missing.ini"_s, u"kept.ini"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output, "{\"rows\":0}\n"_ba);
    QCOMPARE(companion_.Read(u"kept.ini"_s), "A=1\r\n"_ba);
    QCOMPARE(Run({u"write"_s, u"kept.ini"_s, u"no/such/folder.ini"_s}).Status, 1);
}

void tst_PropertiesCommands::looksUp_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("value");
    QTest::newRow("get") << QStringList{u"get"_s, u"a.ini"_s, u"CLOCKS"_s} << u"Digital"_s;
    QTest::newRow("get a missing key") << QStringList{u"get"_s, u"a.ini"_s, u"X"_s} << u"0"_s;
    QTest::newRow("get in a category")
        << QStringList{u"get"_s, u"a.ini"_s, u"Colour"_s, u"--category"_s, u"b"_s} << u"Red"_s;
    QTest::newRow("raw") << QStringList{u"raw"_s, u"a.ini"_s, u"Colour"_s} << u"Blue,Red"_s;
    QTest::newRow("raw in a category")
        << QStringList{u"raw"_s, u"a.ini"_s, u"Colour"_s, u"--category"_s, u"B"_s} << u"Red,Blue"_s;
    QTest::newRow("raw of a missing key") << QStringList{u"raw"_s, u"a.ini"_s, u"X"_s} << QString();
    QTest::newRow("choices") << QStringList{u"choices"_s, u"a.ini"_s, u"Clocks"_s}
                             << u"Analogue,Digital"_s;
}

void tst_PropertiesCommands::looksUp() {
    companion_.Write(u"a.ini"_s,
                     "Clocks=Digital,Analogue,Digital\nA:Colour=Blue,Red\nB:Colour=Red,Blue\n");
    QFETCH(QStringList, arguments);
    const CompanionAnswer answer = Run(arguments);
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Object().value(u"value"_s).toString(), "value");
}

void tst_PropertiesCommands::looksUpInAMissingFile() {
    const CompanionAnswer answer = Run({u"get"_s, u"missing.ini"_s, u"A"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output, "{\"value\":\"0\"}\n"_ba);
}

void tst_PropertiesCommands::puts_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("keeps the choices")
        << QStringList{u"colour"_s, u" Red "_s} << "{\"rows\":2}\n"_ba
        << "A:Colour=Red,Red\r\nB:Colour=x\r\n"_ba;
    QTest::newRow("in a category")
        << QStringList{u"Colour"_s, u"y"_s, u"--category"_s, u"B"_s} << "{\"rows\":2}\n"_ba
        << "A:Colour=Blue,Red\r\nB:Colour=y\r\n"_ba;
    QTest::newRow("a new key makes two rows")
        << QStringList{u"New"_s, u"a=b:c,d"_s, u"--category"_s, u"C"_s} << "{\"rows\":4}\n"_ba
        << "A:Colour=Blue,Red\r\nB:Colour=x\r\nC:New=a=b:c,d\r\n"_ba;
}

void tst_PropertiesCommands::puts() {
    companion_.Write(u"a.ini"_s, "A:Colour=Blue,Red\nB:Colour=x\n");
    QFETCH(QStringList, arguments);
    const CompanionAnswer answer = Run(QStringList{u"put"_s, u"a.ini"_s} + arguments);
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Output, "output");
    QTEST(companion_.Read(u"a.ini"_s), "content");
}

void tst_PropertiesCommands::putsIntoAFileThatIsNotThere() {
    QCOMPARE(Run({u"put"_s, u"new.ini"_s, u"A"_s, u"1"_s}).Status, 0);
    QCOMPARE(companion_.Read(u"new.ini"_s), "A=1\r\n"_ba);
    companion_.Write(u"empty.ini"_s, {});
    QCOMPARE(Run({u"put"_s, u"empty.ini"_s, u"A"_s, u"1"_s}).Status, 0);
    QCOMPARE(companion_.Read(u"empty.ini"_s), "A=1\r\n"_ba);
}

void tst_PropertiesCommands::putsNothingIntoAFileItCouldNotRead() {
    const QByteArray content = QByteArray("a=1\n").repeated(40000);
    companion_.Write(u"long.ini"_s, content);
    const CompanionAnswer answer = Run({u"put"_s, u"long.ini"_s, u"A"_s, u"1"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output, "{\"rows\":32767}\n"_ba);
    QCOMPARE(companion_.Read(u"long.ini"_s), content);
    QCOMPARE(Run({u"put"_s, companion_.Folder.path(), u"A"_s, u"1"_s}).Status, 1);
}

void tst_PropertiesCommands::putsNothingIntoWhatIsNoText() {
    const QByteArray picture("GIF89a\0\nA=1\n", 12);
    companion_.Write(u"a.gif"_s, picture);
    QCOMPARE(Run({u"put"_s, u"a.gif"_s, u"A"_s, u"2"_s}).Status, 1);
    QCOMPARE(companion_.Read(u"a.gif"_s), picture);
}

void tst_PropertiesCommands::merges() {
    companion_.Write(u"old.ini"_s, "Clocks=Digital,Analogue,Digital");
    companion_.Write(u"new.ini"_s, "Clocks=Analogue,Analogue,Digital,Calculator");
    const CompanionAnswer answer = Run({u"merge"_s, u"old.ini"_s, u"new.ini"_s, u"out.ini"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Output, "{\"completed\":true}\n"_ba);
    QCOMPARE(companion_.Read(u"out.ini"_s), "Clocks=Digital,Analogue,Digital,Calculator\r\n"_ba);
}

void tst_PropertiesCommands::tellsOfAFailedMerge() {
    companion_.Write(u"old.ini"_s, "Title=1");
    companion_.Write(u"new.ini"_s, "Title");
    companion_.Write(u"out.ini"_s, "Kept=1");
    const CompanionAnswer answer = Run({u"merge"_s, u"old.ini"_s, u"new.ini"_s, u"out.ini"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output, "{\"completed\":false}\n"_ba);
    QCOMPARE(companion_.Read(u"out.ini"_s), "Kept=1"_ba);
    QCOMPARE(Run({u"merge"_s, u"old.ini"_s, u"missing.ini"_s, u"out.ini"_s}).Status, 1);
}

void tst_PropertiesCommands::sorts_data() {
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QByteArray>("rows");
    QTest::newRow("file order") << u"2"_s << u"0"_s << "[1,3,4]\n"_ba;
    QTest::newRow("negative direction") << u"2"_s << u"-1"_s << "[1,3,4]\n"_ba;
    QTest::newRow("category ascending") << u"1"_s << u"1"_s << "[3,4,1]\n"_ba;
    QTest::newRow("name descending") << u"2"_s << u"2"_s << "[3,1,4]\n"_ba;
    QTest::newRow("value ascending") << u"3"_s << u"1"_s << "[3,1,4]\n"_ba;
}

void tst_PropertiesCommands::sorts() {
    companion_.Write(u"a.ini"_s, "B:Z=2\n\nA:a=1\nA:Y=3\n");
    QFETCH(QString, column);
    QFETCH(QString, direction);
    const CompanionAnswer answer = Run({u"sort"_s, u"a.ini"_s, column, direction});
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Output, "rows");
}

QTEST_GUILESS_MAIN(tst_PropertiesCommands)
#include "tst_PropertiesCommands.moc"
