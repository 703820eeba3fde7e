#include "shell/HeaderLetters.h"

#include <QTest>

#include "support/FakeRandom.h"

using namespace Qt::StringLiterals;

class tst_HeaderLetters : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SeventeenLetters() { QCOMPARE(shell::HeaderText.size(), 17); }

    void Codes_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<int>("code");
        QTest::newRow("Rotation") << u"Rotation"_s << -1;
        QTest::newRow("Random") << u"Random"_s << 1;
        QTest::newRow("Up Down") << u"Up Down"_s << 2;
        QTest::newRow("Bend Down") << u"Bend Down"_s << 3;
        QTest::newRow("Bend Up") << u"Bend Up"_s << 4;
        QTest::newRow("None") << u"None"_s << 0;
        QTest::newRow("unknown") << u"Sideways"_s << 0;
        QTest::newRow("empty") << QString() << 0;
    }

    void Codes() {
        QFETCH(QString, value);
        QTEST(shell::HeadingVariationCode(value), "code");
    }

    void Places_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QList<double>>("offsets");  // of five letters, in twips
        QTest::newRow("on a line") << 0 << QList<double>{0, 0, 0, 0, 0};
        // Numbers 0, 0.25, 0.5, 0.75 of a thousand, half of it above the line.
        QTest::newRow("random") << 1 << QList<double>{-500, -250, 0, 250, -500};
        QTest::newRow("up down") << 2 << QList<double>{-500, 500, -500, 500, -500};
        // sin 0, 45, 90, 135, 180 degrees.
        QTest::newRow("bend down") << 3 << QList<double>{-500, 207.107, 500, 207.107, -500};
        QTest::newRow("bend up") << 4 << QList<double>{500, -207.107, -500, -207.107, 500};
        QTest::newRow("by chance keeps the places") << 5 << QList<double>{};
        QTest::newRow("rotation keeps the places") << -1 << QList<double>{};
    }

    void Places() {
        QFETCH(int, code);
        QFETCH(QList<double>, offsets);
        FakeRandom random;
        random.Numbers = {0, 0.25, 0.5, 0.75};
        const auto placed = shell::PlaceHeader(code, 5, random);
        QCOMPARE(placed.has_value(), !offsets.isEmpty());
        for (int i = 0; i < offsets.size(); ++i) {
            QVERIFY(qAbs((*placed)[static_cast<std::size_t>(i)] - offsets[i]) < 0.001);
        }
    }

    void NoLetterAndOneLetter() {
        FakeRandom random;
        QCOMPARE(shell::ArrangeHeaderLetters(3, 1000, 0, random)->size(), std::size_t(0));
        QVERIFY(qAbs(shell::ArrangeHeaderLetters(3, 1000, 1, random)->front() - 500) < 0.001);
    }

    void ColoursKeepAwayFromTheGround() {
        FakeRandom random;
        // 0.5 of 255 is 127: 0x7F7F7F, 8355711.
        random.Numbers = {0.5};
        // Below the darkest colour there is nothing.
        random.Numbers = {0};
        QCOMPARE(shell::RandomHeaderColours(1, 100, random), std::vector<int>{500});
        random.Numbers = {0.5};
        QCOMPARE(shell::RandomHeaderColours(2, 0, random), (std::vector<int>{8355711, 8355711}));
        QCOMPARE(shell::RandomHeaderColours(1, 8355711, random), std::vector<int>{8356211});
        QCOMPARE(shell::RandomHeaderColours(1, 8355711 + 500, random), std::vector<int>{8355211});
        QCOMPARE(shell::RandomHeaderColours(1, 8355711 - 501, random), std::vector<int>{8355711});
    }

    void TheShowComesToItsEnd() {
        shell::HeaderShow show({{100, 60}, {130, 60}}, {200, 300});
        // The first begins at the mirrored place above the area, the second below it.
        QCOMPARE(show.Places()[0], QPointF(100, -50));
        QCOMPARE(show.Places()[1], QPointF(70, 300));
        QVERIFY(show.Step());
        // A two-hundredth of 200 across, a three-hundredth of 300 down.
        QCOMPARE(show.Places()[0], QPointF(100, -49));
        QCOMPARE(show.Places()[1], QPointF(71, 299));
        int steps = 1;
        while (show.Step() && steps < 1000) {
            ++steps;
        }
        QCOMPARE(steps, 239);  // the second has 240 pixels to rise
        QCOMPARE(show.Places()[0], QPointF(100, 60));
        QCOMPARE(show.Places()[1], QPointF(130, 60));
    }

    void AnEmptyShowIsOver() { QVERIFY(!shell::HeaderShow().Step()); }
};

QTEST_GUILESS_MAIN(tst_HeaderLetters)
#include "tst_HeaderLetters.moc"
