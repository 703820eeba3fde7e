#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_CommandLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answersQuestions();
    void refusesWrongArguments_data();
    void refusesWrongArguments();
    void refusesAWordTooManyOrTooFew_data();
    void refusesAWordTooManyOrTooFew();
    void takesOptionsInBothForms();
    void takesNothingForAnOptionBehindTwoDashes();
    void printsOneDocument();
    void fillsNoProgramFolderThatItDoesNotUse();
};

void tst_CommandLine::answersQuestions() {
    const Companion companion;
    const CompanionAnswer help = companion.Run({u"--help"_s});
    QCOMPARE(help.Status, 0);
    QVERIFY(help.Output.contains("properties merge OLD NEW OUT"));
    QVERIFY(help.Output.contains("--app-folder DIR"));
    QCOMPARE(help.Messages, QByteArray());
    const CompanionAnswer version = companion.Run({u"--version"_s});
    QCOMPARE(version.Status, 0);
    QCOMPARE(version.Output,
             "tempolarkctl " TEMPOLARK_VERSION "\nTime zone database: edition 2026a\n"_ba);
}

void tst_CommandLine::refusesWrongArguments_data() {
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char* line) {
        QTest::newRow(line) << QString::fromLatin1(line).split(u' ', Qt::SkipEmptyParts);
    };
    row("");
    row("properties");
    row("properties frobnicate a");
    row("frobnicate read a");
    row("properties read");
    row("properties read a b");
    row("properties read a --category C");
    row("properties get a b --category");
    row("properties get a b --frob");
    row("properties put a b");
    row("properties merge a b");
    row("properties sort a b c");
    row("properties sort a 0 1");
    row("properties sort a 4 1");
    row("values colour");
    row("values colour-name red");
    row("values colour-name 1.5");
    row("values wrap text wide");
    row("files setup a b");
    row("--now yesterday values colour red");
    row("--now 2026-02-30T00:00:00 values colour red");
    row("--local-zone Nowhere/Land values colour red");
    row("--seed many values colour red");
    row("--frob values colour red");
    row("--seed");
    row("--app-folder= values colour red");
}

void tst_CommandLine::refusesWrongArguments() {
    QFETCH(QStringList, arguments);
    const CompanionAnswer answer = Companion().Run(arguments);
    QCOMPARE(answer.Status, 2);
    QCOMPARE(answer.Output, QByteArray());
    QVERIFY(answer.Messages.contains("tempolarkctl [options]"));
}

void tst_CommandLine::refusesAWordTooManyOrTooFew_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("words");
    const auto row = [](const char* command, int words) {
        QTest::newRow(command) << QString::fromLatin1(command) << words;
    };
    row("properties read", 1);
    row("properties write", 2);
    row("properties get", 2);
    row("properties raw", 2);
    row("properties choices", 2);
    row("properties put", 3);
    row("properties merge", 3);
    row("properties sort", 3);
    row("values colour", 1);
    row("values colour-name", 1);
    row("values yes-no", 1);
    row("values wrap", 2);
    row("clock render", 2);
    row("clock drop", 3);
    row("clock mark", 2);
    row("clock run", 1);
    row("menus files", 1);
    row("menus times", 1);
    row("menus minutes", 1);
    row("shell push-opened", 2);
    row("shortcuts match", 3);
    row("shortcuts text", 2);
    row("zones list", 0);
    row("zones local", 0);
    row("zones show", 1);
    row("zones describe", 1);
    row("zones name-at", 2);
    row("zones convert", 2);
    row("zones rule", 3);
    row("timers load", 1);
    row("timers save", 2);
    row("speech expand", 1);
}

void tst_CommandLine::refusesAWordTooManyOrTooFew() {
    QFETCH(QString, command);
    QFETCH(int, words);
    const Companion companion;
    const auto run = [&](int count) {
        QStringList arguments = command.split(u' ');
        for (int i = 0; i < count; ++i) {
            arguments += u"x"_s;
        }
        return companion.Run(arguments);
    };
    for (const int count : {words + 1, words - 1}) {
        const CompanionAnswer answer = count < 0 ? run(words + 1) : run(count);
        QCOMPARE(answer.Status, 2);
        QVERIFY(answer.Messages.contains("Usage: tempolarkctl"));
        QCOMPARE(answer.Output, QByteArray());
    }
}

void tst_CommandLine::takesOptionsInBothForms() {
    const Companion companion;
    const QString file = companion.Write(u"a.ini"_s, "A:N=1\nB:N=2\n");
    for (const QStringList& option :
         {QStringList{u"--category"_s, u"B"_s}, QStringList{u"--category=B"_s}}) {
        const CompanionAnswer answer =
            companion.Run(QStringList{u"--seed=1"_s, u"--user"_s, QString(), u"properties"_s,
                                      u"get"_s, file, u"N"_s} +
                          option);
        QCOMPARE(answer.Status, 0);
        QCOMPARE(answer.Output, "{\"value\":\"2\"}\n"_ba);
    }
}

void tst_CommandLine::takesNothingForAnOptionBehindTwoDashes() {
    const CompanionAnswer answer =
        Companion().Run({u"values"_s, u"colour"_s, u"--"_s, u"--category"_s});
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Object().value(u"text"_s).toString(), u"--category"_s);
}

void tst_CommandLine::printsOneDocument() {
    const CompanionAnswer answer = Companion().Run({u"values"_s, u"wrap"_s, u"Größe €"_s, u"3"_s});
    QCOMPARE(answer.Output,
             "{\"value\":\"Gr\xC3\xB6\xC3\x9F"
             "e \xE2\x82\xAC\"}\n"_ba);
}

void tst_CommandLine::fillsNoProgramFolderThatItDoesNotUse() {
    const Companion companion;
    qputenv("XDG_DATA_HOME", QFile::encodeName(companion.Folder.filePath(u"xdg"_s)));
    const QString file = companion.Write(u"a.ini"_s, "N=1\n");
    QCOMPARE(companion.Run({u"values"_s, u"yes-no"_s, u"no"_s}).Status, 0);
    QCOMPARE(companion.Run({u"properties"_s, u"read"_s, file}).Status, 0);
    QCOMPARE(companion.Run({u"shell"_s, u"push-opened"_s, file, u"Oslo"_s}).Status, 0);
    QVERIFY(!QFileInfo::exists(companion.Folder.filePath(u"xdg"_s)));
    qunsetenv("XDG_DATA_HOME");
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
