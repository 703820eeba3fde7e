#include "shell/HeaderLayout.h"

#include <QTest>

/// An area of that height with an invitation of 40, lines of 16, letters of 50 with 30 up and down:
/// these want 80 above their line and 40 below.
static shell::HeaderLayout LayOut(int height) {
    return shell::LayOutHeader({height, 40, 16, 50, 10, 30, 50});
}

class tst_HeaderLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Layouts_data() {
        QTest::addColumn<int>("height");
        QTest::addColumn<double>("baseline");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("invitation");
        QTest::addColumn<bool>("foot");
        // The foot begins 36 above the lower edge.
        QTest::newRow("high") << 500 << 180.0 << 1.0 << 290 << true;
        QTest::newRow("a little low") << 250 << 90.0 << 1.0 << 174 << true;
        // The invitation at 124 leaves 116 of 120; the line is pressed up to 116 - 40 * 116/120.
        QTest::newRow("low") << 200 << 77.33 << 0.9667 << 124 << true;
        QTest::newRow("lower") << 140 << 37.33 << 0.4667 << 64 << true;
        QTest::newRow("the smallest letters") << 108 << 16.0 << 0.2 << 32 << true;
        QTest::newRow("no room for letters") << 107 << 15.33 << 0.0 << 31 << true;
        QTest::newRow("just room for the foot") << 84 << 0.0 << 0.0 << 8 << true;
        QTest::newRow("the invitation alone") << 83 << 8.67 << 0.0 << 21 << false;
        QTest::newRow("exactly the invitation") << 40 << 0.0 << 0.0 << 0 << false;
        QTest::newRow("less than the invitation") << 10 << 0.0 << 0.0 << 0 << false;
        QTest::newRow("nothing") << 0 << 0.0 << 0.0 << 0 << false;
    }

    void Layouts() {
        QFETCH(int, height);
        QFETCH(double, baseline);
        QFETCH(double, scale);
        const shell::HeaderLayout layout = LayOut(height);
        QVERIFY2(qAbs(layout.Baseline - baseline) < 0.01,
                 qPrintable(QString::number(layout.Baseline)));
        QVERIFY2(qAbs(layout.LetterScale - scale) < 0.0001,
                 qPrintable(QString::number(layout.LetterScale)));
        QTEST(layout.InvitationTop, "invitation");
        QTEST(layout.ShowsFoot, "foot");
    }

    void NothingLiesOnAnything() {
        for (int height = 0; height < 700; ++height) {
            const shell::HeaderLayout layout = LayOut(height);
            const double lettersEnd = layout.Baseline + 40 * layout.LetterScale;
            const bool letters = layout.LetterScale > 0;
            QVERIFY(!letters || layout.Baseline - 80 * layout.LetterScale >= -0.001);
            QVERIFY(!letters || lettersEnd + 8 <= layout.InvitationTop + 0.001);
            QVERIFY(!layout.ShowsFoot || layout.InvitationTop + 40 + 8 <= height - 12 - 16);
            QVERIFY(height < 40 || layout.InvitationTop + 40 <= height);
            QVERIFY(layout.InvitationTop >= 0);
        }
    }
};

QTEST_GUILESS_MAIN(tst_HeaderLayout)
#include "tst_HeaderLayout.moc"
