#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_EditorCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commits_data();
    void commits();
    void findsNoRecord_data();
    void findsNoRecord();

private:
    Companion companion_;
};

namespace {

const QByteArray File =
    "Clock:Size=A,A,B\nClock:Form=A,A\nClock:Music File=a.mp3,b,c\nClock:Name=x\n\nClock:Size=Z\n";

}  // namespace

void tst_EditorCommands::commits_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("a choice") << u"Size"_s << u"B"_s
                              << R"({"dirty":true,"editor":"combo","value":"B,A,B"})"_ba;
    QTest::newRow("the same choice")
        << u"SIZE"_s << u"A"_s << R"({"dirty":false,"editor":"combo","value":"A,A,B"})"_ba;
    QTest::newRow("an empty cell")
        << u" Size "_s << QString() << R"({"dirty":false,"editor":"combo","value":"A,A,B"})"_ba;
    QTest::newRow("one choice") << u"Form"_s << u"C"_s
                                << R"({"dirty":true,"editor":"text","value":"C,A"})"_ba;
    QTest::newRow("an empty file")
        << u"Music File"_s << QString() << R"({"dirty":true,"editor":"combo","value":",b,c"})"_ba;
    QTest::newRow("a text") << u"Name"_s << u"\u00e9\r\ny"_s
                            << "{\"dirty\":true,\"editor\":\"text\",\"value\":\"\xc3\xa9 y\"}"_ba;
    QTest::newRow("a new choice") << u"Name"_s << u"a,b,c"_s
                                  << R"({"dirty":true,"editor":"combo","value":"a,b,c"})"_ba;
}

void tst_EditorCommands::commits() {
    QFETCH(QString, key);
    QFETCH(QString, cell);
    companion_.Write(u"a.ini"_s, File);
    const CompanionAnswer answer =
        companion_.Run({u"editor"_s, u"commit"_s, u"a.ini"_s, key, cell});
    QCOMPARE(answer.Status, 0);
    QFETCH(QByteArray, output);
    QCOMPARE(answer.Output, output + '\n');
    QCOMPARE(companion_.Read(u"a.ini"_s), File);
}

void tst_EditorCommands::findsNoRecord_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("key");
    QTest::newRow("no such key") << u"a.ini"_s << u"Colour"_s;
    QTest::newRow("no key") << u"a.ini"_s << QString();
    QTest::newRow("no such file") << u"b.ini"_s << u"Size"_s;
}

void tst_EditorCommands::findsNoRecord() {
    QFETCH(QString, file);
    QFETCH(QString, key);
    companion_.Write(u"a.ini"_s, File);
    const CompanionAnswer answer = companion_.Run({u"editor"_s, u"commit"_s, file, key, u"B"_s});
    QCOMPARE(answer.Status, 1);
    QCOMPARE(answer.Output, "{\"dirty\":false,\"editor\":\"text\",\"value\":\"\"}\n"_ba);
}

QTEST_GUILESS_MAIN(tst_EditorCommands)
#include "tst_EditorCommands.moc"
