#include "shell/ToolRow.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The numbers of the buttons that can be seen.
static QString Seen(const shell::ToolRow& row) {
    QStringList numbers;
    for (int i = 1; i <= row.Count(); ++i) {
        if (row.IsVisible(i)) {
            numbers += QString::number(i);
        }
    }
    return numbers.join(u' ');
}

/// Six buttons of ten pixels; the fifth takes no part.
static shell::ToolRow Six() {
    std::vector<shell::ToolRow::Button> buttons(6, {10, true, false});
    buttons[4].Offered = false;
    return shell::ToolRow(buttons);
}

class tst_ToolRow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FitsWhatTheRoomHolds_data() {
        QTest::addColumn<int>("room");
        QTest::addColumn<QString>("seen");
        QTest::newRow("all") << 50 << u"1 2 3 4 6"_s;
        QTest::newRow("more than all") << 500 << u"1 2 3 4 6"_s;
        QTest::newRow("one less") << 49 << u"1 2 3 4"_s;
        QTest::newRow("exactly two") << 20 << u"1 2"_s;
        QTest::newRow("none") << 9 << QString();
        QTest::newRow("no room") << 0 << QString();
        QTest::newRow("less than none") << -5 << QString();
    }

    void FitsWhatTheRoomHolds() {
        QFETCH(int, room);
        shell::ToolRow row = Six();
        row.Fit(room);
        QTEST(Seen(row), "seen");
    }

    void OneButtonMovesAcrossTheEdge() {
        shell::ToolRow row = Six();
        row.Fit(25);
        QVERIFY(row.Scroll(true));
        QCOMPARE(Seen(row), u"2 3"_s);
        QVERIFY(row.Scroll(true));
        QVERIFY(row.Scroll(true));
        QCOMPARE(Seen(row), u"4 6"_s);
        QVERIFY(!row.Scroll(true));
        QCOMPARE(Seen(row), u"4 6"_s);
        QVERIFY(row.Scroll(false));
        QCOMPARE(Seen(row), u"3 4"_s);
        QVERIFY(row.Scroll(false));
        QVERIFY(row.Scroll(false));
        QVERIFY(!row.Scroll(false));
        QCOMPARE(Seen(row), u"1 2"_s);
    }

    void NothingMovesWhenAllFit() {
        shell::ToolRow row = Six();
        row.Fit(50);
        QVERIFY(!row.Scroll(true));
        QVERIFY(!row.Scroll(false));
    }

    void NothingMovesWithoutRoom() {
        shell::ToolRow row = Six();
        row.Fit(5);
        QVERIFY(!row.Scroll(true));
        QVERIFY(!shell::ToolRow().Scroll(true));
    }

    void ASeparatorMakesLessRoom() {
        shell::ToolRow row({{4, true, false}, {10, true, false}, {10, true, false}});
        row.Fit(15);
        QCOMPARE(Seen(row), u"1 2"_s);
        QVERIFY(row.Scroll(true));
        QCOMPARE(Seen(row), u"3"_s);
    }
};

QTEST_GUILESS_MAIN(tst_ToolRow)
#include "tst_ToolRow.moc"
