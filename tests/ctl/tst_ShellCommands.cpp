#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_ShellCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pushesAName();
    void keepsAFileThatItCantTakeIn_data();
    void keepsAFileThatItCantTakeIn();

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

QTEST_GUILESS_MAIN(tst_ShellCommands)
#include "tst_ShellCommands.moc"
