#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_ValuesCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void repeatsARandomColourBySeed();
};

void tst_ValuesCommands::answers_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("colour") << QStringList{u"colour"_s, u" White "_s}
                            << "{\"text\":\"white\",\"value\":16777213}\n"_ba;
    QTest::newRow("colour number")
        << QStringList{u"colour"_s, u"-5"_s} << "{\"text\":\"-5\",\"value\":-5}\n"_ba;
    QTest::newRow("no colour") << QStringList{u"colour"_s, QString()}
                               << "{\"text\":\"\",\"value\":0}\n"_ba;
    QTest::newRow("colour name") << QStringList{u"colour-name"_s, u"16777215"_s}
                                 << "{\"value\":\"White\"}\n"_ba;
    QTest::newRow("number of no name")
        << QStringList{u"colour-name"_s, u"-7"_s} << "{\"value\":\"-7\"}\n"_ba;
    QTest::newRow("transparent") << QStringList{u"colour-name"_s, u"16777218"_s}
                                 << "{\"value\":\"Transparent\"}\n"_ba;
    QTest::newRow("no") << QStringList{u"yes-no"_s, u" nO "_s} << "{\"value\":false}\n"_ba;
    QTest::newRow("maybe") << QStringList{u"yes-no"_s, u"Maybe"_s} << "{\"value\":true}\n"_ba;
    QTest::newRow("wrap") << QStringList{u"wrap"_s, u"aa bb c"_s, u"5"_s}
                          << "{\"value\":\"aa\\r\\nbb c\"}\n"_ba;
    QTest::newRow("wrap at nothing")
        << QStringList{u"wrap"_s, u"a b"_s, u"-1"_s} << "{\"value\":\"a b\"}\n"_ba;
}

void tst_ValuesCommands::answers() {
    QFETCH(QStringList, arguments);
    const CompanionAnswer answer = Companion().Run(QStringList{u"values"_s} + arguments);
    QCOMPARE(answer.Status, 0);
    QTEST(answer.Output, "output");
}

void tst_ValuesCommands::repeatsARandomColourBySeed() {
    const Companion companion;
    const auto colour = [&companion](const QString& seed) {
        const CompanionAnswer answer =
            companion.Run({u"--seed"_s, seed, u"values"_s, u"colour"_s, u"Random"_s});
        return answer.Object().value(u"value"_s).toInt(-1);
    };
    const int first = colour(u"7"_s);
    QVERIFY(first >= 0 && first <= 0xFEFEFE);
    QCOMPARE(colour(u"7"_s), first);
    QVERIFY(colour(u"8"_s) != first);
}

QTEST_GUILESS_MAIN(tst_ValuesCommands)
#include "tst_ValuesCommands.moc"
