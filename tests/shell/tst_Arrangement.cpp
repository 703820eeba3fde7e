#include <QTest>

#include "shell/Arrangement.h"

using Places = std::vector<QRect>;

class tst_Arrangement : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Nothing() {
        QVERIFY(shell::TilePlaces(0, {100, 100}, false).empty());
        QVERIFY(shell::IconPlaces(0, {100, 100}, {}).empty());
    }

    void OneTakesAll() {
        QCOMPARE(shell::TilePlaces(1, {100, 80}, false), Places{QRect(0, 0, 100, 80)});
    }

    void TwoByRowsAreWide() {
        QCOMPARE(shell::TilePlaces(2, {100, 80}, false),
                 (Places{QRect(0, 0, 100, 40), QRect(0, 40, 100, 40)}));
    }

    void TwoByColumnsAreTall() {
        QCOMPARE(shell::TilePlaces(2, {100, 80}, true),
                 (Places{QRect(0, 0, 50, 80), QRect(50, 0, 50, 80)}));
    }

    void FiveLeaveNoGap() {
        QCOMPARE(shell::TilePlaces(5, {120, 90}, false),
                 (Places{QRect(0, 0, 60, 45), QRect(0, 45, 60, 45), QRect(60, 0, 60, 30),
                         QRect(60, 30, 60, 30), QRect(60, 60, 60, 30)}));
    }

    void IconsStandInRowsFromTheBottom() {
        QCOMPARE(shell::IconPlaces(3, {100, 90}, {45, 20}),
                 (Places{QRect(0, 70, 45, 20), QRect(45, 70, 45, 20), QRect(0, 50, 45, 20)}));
    }

    void IconsWiderThanTheArea() {
        QCOMPARE(shell::IconPlaces(2, {30, 90}, {45, 20}),
                 (Places{QRect(0, 70, 45, 20), QRect(0, 50, 45, 20)}));
    }
};

QTEST_APPLESS_MAIN(tst_Arrangement)
#include "tst_Arrangement.moc"
