#include "platform/SystemRandom.h"

#include <QTest>

namespace {

QList<double> NextOf(platform::SystemRandom& random, int count) {
    QList<double> numbers;
    for (int i = 0; i < count; ++i) {
        numbers += random.Next();
    }
    return numbers;
}

}  // namespace

class tst_SystemRandom : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NumbersLieFromZeroToBelowOne() {
        platform::SystemRandom random;
        for (const double number : NextOf(random, 1000)) {
            QVERIFY(number >= 0 && number < 1);
        }
    }

    void ASeedGivesTheSameNumbersAtEachRun() {
        platform::SystemRandom one(7);
        platform::SystemRandom again(7);
        platform::SystemRandom other(8);
        const QList<double> numbers = NextOf(one, 5);
        QCOMPARE(NextOf(again, 5), numbers);
        QVERIFY(NextOf(other, 5) != numbers);
    }

    void AChosenSeedGoesOnAsOneSequence() {
        platform::SystemRandom one(7);
        platform::SystemRandom seeded(7);
        QCOMPARE(seeded.Next(), one.Next());
        seeded.Seed();
        QCOMPARE(NextOf(seeded, 5), NextOf(one, 5));
    }

    void TheMachinesOwnNumbersAreNeverTheSame() {
        platform::SystemRandom one;
        platform::SystemRandom other;
        const QList<double> numbers = NextOf(one, 5);
        QVERIFY(NextOf(other, 5) != numbers);
        one.Seed();
        QVERIFY(NextOf(one, 5) != numbers);
    }
};

QTEST_APPLESS_MAIN(tst_SystemRandom)
#include "tst_SystemRandom.moc"
