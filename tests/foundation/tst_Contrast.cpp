#include "foundation/Contrast.h"

#include <QTest>

class tst_Contrast : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Ratios_data() {
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<double>("hundredths");
        QTest::newRow("black on white") << QColor(0, 0, 0) << QColor(255, 255, 255) << 2100.0;
        QTest::newRow("white on black") << QColor(255, 255, 255) << QColor(0, 0, 0) << 2100.0;
        QTest::newRow("the same") << QColor(9, 99, 199) << QColor(9, 99, 199) << 100.0;
        // 1.05 / 0.7652, 1.05 / 0.2626, 1.05 / 0.1222
        QTest::newRow("white on green") << QColor(255, 255, 255) << QColor(0, 255, 0) << 137.0;
        QTest::newRow("white on red") << QColor(255, 255, 255) << QColor(255, 0, 0) << 400.0;
        QTest::newRow("white on blue") << QColor(255, 255, 255) << QColor(0, 0, 255) << 859.0;
        // 118 / 255 gives 0.1812: (0.1812 + 0.05) / 0.05
        QTest::newRow("black on grey") << QColor(0, 0, 0) << QColor(118, 118, 118) << 462.0;
        // The straight part of the curve: 10 / 255 / 12.92 = 0.003035.
        QTest::newRow("black on almost black") << QColor(0, 0, 0) << QColor(10, 10, 10) << 106.0;
    }

    void Ratios() {
        QFETCH(QColor, text);
        QFETCH(QColor, ground);
        QTEST(std::round(mduUILib::ContrastRatio(text, ground) * 100), "hundredths");
    }

    void InkOnAGround_data() {
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<QColor>("ink");
        QTest::newRow("green") << QColor(0, 255, 0) << QColor(Qt::black);
        QTest::newRow("red") << QColor(255, 0, 0) << QColor(Qt::black);
        QTest::newRow("blue") << QColor(0, 0, 255) << QColor(Qt::white);
        QTest::newRow("cyan") << QColor(0, 255, 255) << QColor(Qt::black);
        QTest::newRow("white") << QColor(255, 255, 255) << QColor(Qt::black);
        QTest::newRow("black") << QColor(0, 0, 0) << QColor(Qt::white);
        QTest::newRow("grey 117") << QColor(117, 117, 117) << QColor(Qt::white);
        QTest::newRow("grey 118") << QColor(118, 118, 118) << QColor(Qt::black);
    }

    void InkOnAGround() {
        QFETCH(QColor, ground);
        QTEST(mduUILib::ReadableOn(ground), "ink");
    }

    // Yellow has a contrast of 1.05 with that ground, white of 1.02, red of 3.9.
    void AShadeKeepsItsHue_data() {
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("ground");
        QTest::addColumn<bool>("changes");
        const QColor paper(255, 255, 220);
        QTest::newRow("yellow on paper") << QColor(255, 255, 0) << paper << true;
        QTest::newRow("red on paper") << QColor(255, 0, 0) << paper << true;
        QTest::newRow("cyan on white") << QColor(0, 255, 255) << QColor(Qt::white) << true;
        QTest::newRow("blue on paper") << QColor(0, 0, 255) << paper << false;
        QTest::newRow("blue on black") << QColor(0, 0, 255) << QColor(Qt::black) << true;
        QTest::newRow("yellow on black") << QColor(255, 255, 0) << QColor(Qt::black) << false;
    }

    void AShadeKeepsItsHue() {
        QFETCH(QColor, text);
        QFETCH(QColor, ground);
        QFETCH(bool, changes);
        const QColor shade = mduUILib::ReadableShade(text, ground);
        QCOMPARE(shade != text, changes);
        QVERIFY(mduUILib::ContrastRatio(shade, ground) >= 4.5);
        QVERIFY(!changes ||
                mduUILib::ContrastRatio(shade, ground) < 5.5);  // no further than needed
        QVERIFY(qAbs(shade.hsvHue() - text.hsvHue()) <= 2);
    }

    void WhiteOnPaperBecomesGrey() {
        const QColor shade = mduUILib::ReadableShade(Qt::white, QColor(255, 255, 220));
        QCOMPARE(shade.red(), shade.blue());
        QCOMPARE(shade.red(), shade.green());
        QVERIFY(shade.red() > 90 && shade.red() < 118);
    }

    void EveryGroundIsReadable() {
        for (int red = 0; red < 256; red += 15) {
            for (int green = 0; green < 256; green += 15) {
                for (int blue = 0; blue < 256; blue += 15) {
                    const QColor ground(red, green, blue);
                    const QColor ink = mduUILib::ReadableOn(ground);
                    QVERIFY2(mduUILib::ContrastRatio(ink, ground) >= 4.5,
                             qPrintable(ground.name()));
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
