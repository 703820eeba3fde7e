#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_ShellCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pushesAName();
    void keepsAFileThatItCantTakeIn_data();
    void keepsAFileThatItCantTakeIn();
    void showsTheStatusQueue_data();
    void showsTheStatusQueue();

private:
    CompanionAnswer Push(const QString& file) const {
        return companion_.Run({u"shell"_s, u"push-opened"_s, file, u"Oslo"_s});
    }

    Companion companion_;
};

void tst_ShellCommands::pushesAName() {
    companion_.Write(u"opened.txt"_s, "Tokyo=\r\n");
    const CompanionAnswer answer = Push(u"opened.txt"_s);
    QCOMPARE(answer.Status, 0);
    QCOMPARE(answer.Output, "[\"Oslo\",\"Tokyo\"]\n"_ba);
    QCOMPARE(companion_.Read(u"opened.txt"_s), "Oslo=\r\nTokyo=\r\n"_ba);
}

void tst_ShellCommands::keepsAFileThatItCantTakeIn_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no text") << QByteArray("GIF89a\0\nTokyo=\n", 15);
    QTest::newRow("40,000 lines") << QByteArray("Tokyo=\n").repeated(40000);
}

void tst_ShellCommands::keepsAFileThatItCantTakeIn() {
    QFETCH(QByteArray, content);
    companion_.Write(u"opened.txt"_s, content);
    const CompanionAnswer answer = Push(u"opened.txt"_s);
    QCOMPARE(answer.Status, 1);
    QVERIFY(answer.Json().isArray());
    QCOMPARE(companion_.Read(u"opened.txt"_s), content);
}

void tst_ShellCommands::showsTheStatusQueue_data() {
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QByteArray>("panels");
    QTest::newRow("one rests at once") << QStringList{u"A"_s} << "[\"A\",\"A\"]\n"_ba;
    // The newest stands at the left and goes first, a character at a tick; then the separator.
    QTest::newRow("two") << QStringList{u"A"_s, u"B"_s}
                         << "[\"B << A\",\" << A\",\"A\",\"A\"]\n"_ba;
    QTest::newRow("twice the same") << QStringList{u"A"_s, u"A"_s} << "[\"A\",\"A\"]\n"_ba;
    QTest::newRow("a part of another") << QStringList{u"ABC"_s, u"B"_s} << "[\"ABC\",\"ABC\"]\n"_ba;
    QTest::newRow("three") << QStringList{u"1"_s, u"2"_s, u"\u00e93"_s}
                           << "[\"\u00e93 << 2 << 1\",\"3 << 2 << 1\",\" << 2 << 1\",\"2 << "
                              "1\",\" << 1\",\"1\",\"1\"]\n"_ba;
    QTest::newRow("an empty one first") << QStringList{QString(), u"A"_s} << "[\"A\",\"A\"]\n"_ba;
    QTest::newRow("an empty one last") << QStringList{u"A"_s, QString()} << "[\"A\",\"A\"]\n"_ba;
}

void tst_ShellCommands::showsTheStatusQueue() {
    QFETCH(QStringList, texts);
    const CompanionAnswer answer =
        companion_.Run(QStringList{u"shell"_s, u"status-queue"_s} + texts);
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Output, "panels");
}

QTEST_GUILESS_MAIN(tst_ShellCommands)
#include "tst_ShellCommands.moc"
