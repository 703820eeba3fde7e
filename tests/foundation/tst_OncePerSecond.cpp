#include <QTest>

#include "foundation/OncePerSecond.h"

class tst_OncePerSecond : public QObject {
    Q_OBJECT

    static QDateTime At(int hour, int minute, int second, int milliseconds) {
        return {QDate(2026, 6, 15), QTime(hour, minute, second, milliseconds), Qt::UTC};
    }

private Q_SLOTS:
    void TheFirstOfAllIsNew() { QVERIFY(OncePerSecond().IsNew(At(0, 0, 0, 0))); }

    void OnceInASecond() {
        OncePerSecond turn;
        QVERIFY(turn.IsNew(At(12, 0, 0, 10)));
        QVERIFY(!turn.IsNew(At(12, 0, 0, 10)));
        QVERIFY(!turn.IsNew(At(12, 0, 0, 999)));
        QVERIFY(turn.IsNew(At(12, 0, 1, 0)));
        QVERIFY(!turn.IsNew(At(12, 0, 1, 1)));
    }

    void TheSameSecondOfAnotherMinuteOrDayIsNew() {
        OncePerSecond turn;
        QVERIFY(turn.IsNew(At(12, 0, 7, 0)));
        QVERIFY(turn.IsNew(At(12, 1, 7, 0)));
        QVERIFY(turn.IsNew(At(12, 1, 7, 0).addDays(1)));
    }

    void AClockSetBackBeginsAnother() {
        OncePerSecond turn;
        QVERIFY(turn.IsNew(At(12, 0, 1, 0)));
        QVERIFY(turn.IsNew(At(12, 0, 0, 500)));
    }
};

QTEST_APPLESS_MAIN(tst_OncePerSecond)
#include "tst_OncePerSecond.moc"
