#include <QTest>

#include "platform/devices/SpokenText.h"

using namespace Qt::StringLiterals;
using platform::PieceBound;
using platform::SpeechPieces;

class tst_SpokenText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cutsAtSentences_data();
    void cutsAtSentences();
    void cutsHugeTexts();
    void boundsByLength_data();
    void boundsByLength();
    void boundsWholeMessages();
    void knowsWhatCanBeHeard_data();
    void knowsWhatCanBeHeard();
};

void tst_SpokenText::cutsAtSentences_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("pieces");
    QTest::newRow("short") << u"It is noon"_s << QStringList(u"It is noon"_s);
    QTest::newRow("sentence") << u"One two. Three four"_s
                              << QStringList({u"One two."_s, u"Three four"_s});
    QTest::newRow("last sentence that fits")
        << u"A. B. C. D. E. F"_s << QStringList({u"A. B. C. D."_s, u"E. F"_s});
    QTest::newRow("blank") << u"one two three four"_s
                           << QStringList({u"one two"_s, u"three four"_s});
    QTest::newRow("no blank") << u"abcdefghijklmnop"_s
                              << QStringList({u"abcdefghijkl"_s, u"mnop"_s});
    QTest::newRow("no sound") << u"one two thr ... ... ... ..."_s << QStringList(u"one two thr"_s);
    QTest::newRow("pair kept whole")
        << u"abcdefghijk\U0001F600z"_s << QStringList({u"abcdefghijk"_s, u"\U0001F600z"_s});
    QTest::newRow("empty") << QString() << QStringList();
}

void tst_SpokenText::cutsAtSentences() {
    QFETCH(QString, text);
    QTEST(SpeechPieces(text, 12), "pieces");
}

void tst_SpokenText::cutsHugeTexts() {
    const QStringList pieces = SpeechPieces(u"word "_s.repeated(20'000));
    QCOMPARE(pieces.size(), 400);  // 50 words of five characters make 250
    for (const QString& piece : pieces) {
        QCOMPARE(piece.size(), 249);
    }
}

void tst_SpokenText::boundsByLength_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("bound");
    QTest::newRow("letters") << u"It is noon"_s << 0 << 4500;
    QTest::newRow("digits") << u"12:59"_s << 0 << 6000;
    QTest::newRow("fast is not shorter") << u"It is noon"_s << 10 << 4500;
    QTest::newRow("slow") << u"It is noon"_s << -10 << 9000;
    QTest::newRow("half as slow") << u"It is noon"_s << -5 << 6750;
    QTest::newRow("no longer than the whole") << u"7"_s.repeated(250) << 0 << 120'000;
}

void tst_SpokenText::boundsByLength() {
    QFETCH(QString, text);
    QFETCH(int, rate);
    QTEST(PieceBound(text, rate, {}), "bound");
}

// Ten seconds of hand-over for each piece.
void tst_SpokenText::boundsWholeMessages() {
    QCOMPARE(platform::MessageBound({}, 0, {}), 0);
    QCOMPARE(platform::MessageBound({u"It is noon"_s}, 0, {}), 14'500);
    QCOMPARE(platform::MessageBound({u"It is noon"_s, u"12:59"_s}, 0, {}), 30'500);
    QCOMPARE(platform::MessageBound({u"It is noon"_s}, -10, {}), 19'000);
    QCOMPARE(platform::MessageBound(QStringList(9, u"It is noon"_s), 0, {}), 120'000);
}

void tst_SpokenText::knowsWhatCanBeHeard_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("audible");
    QTest::newRow("letter") << u"..a"_s << true;
    QTest::newRow("digit") << u"7"_s << true;
    QTest::newRow("symbol") << u"$"_s << true;
    QTest::newRow("points") << u" ...!"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_SpokenText::knowsWhatCanBeHeard() {
    QFETCH(QString, text);
    QTEST(platform::IsAudible(text), "audible");
}

QTEST_GUILESS_MAIN(tst_SpokenText)
#include "tst_SpokenText.moc"
