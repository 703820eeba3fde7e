#include <QTest>

#include "drawing/DialStyles.h"

using namespace Qt::StringLiterals;
using drawing::NumberStyle;
using drawing::SpotStyle;

class tst_DialStyles : public QObject {
    Q_OBJECT

    /// The hours that a style numbers, as text.
    static QString HoursOf(const QString& style) {
        QStringList hours;
        for (int hour = 1; hour <= 12; ++hour) {
            if (NumberStyle(style).IsNumbered(hour * 5)) {
                hours += QString::number(hour);
            }
        }
        return hours.join(u' ');
    }

private Q_SLOTS:
    void Hours_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("hours");
        const QString all = u"1 2 3 4 5 6 7 8 9 10 11 12"_s;
        QTest::newRow("all") << u"Number 12"_s << all;
        QTest::newRow("letter case") << u"  true roman CROSS 4 "_s << u"3 6 9 12"_s;
        QTest::newRow("cross") << u"Number Cross 4"_s << u"3 6 9 12"_s;
        QTest::newRow("level") << u"3D Horizontal 2"_s << u"3 9"_s;
        QTest::newRow("upright") << u"Roman Vertical 2"_s << u"6 12"_s;
        QTest::newRow("bare word") << u"12"_s << all;
        QTest::newRow("none") << u"No Numbers"_s << QString();
        QTest::newRow("none, letter case") << u"no numbers"_s << QString();
        QTest::newRow("unknown") << u"Numerals"_s << QString();
        QTest::newRow("painted without hours") << u"True Roman"_s << QString();
        QTest::newRow("missing key") << u"0"_s << QString();
    }

    void Hours() {
        QFETCH(QString, style);
        QTEST(HoursOf(style), "hours");
    }

    void IndexesGoWithTheNearestHour() {
        const NumberStyle cross(u"Number Cross 4"_s);
        QString taking;
        for (int index = 1; index <= 60; ++index) {
            if (cross.IsNumbered(index)) {
                taking += QString::number(index) + u' ';
            }
        }
        QCOMPARE(taking, u"13 14 15 16 17 28 29 30 31 32 43 44 45 46 47 58 59 60 "_s);
    }

    void Look_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("look");
        QTest::addColumn<bool>("shadow");
        const auto row = [](const char* style, NumberStyle::Look look, bool shadow) {
            QTest::newRow(style) << QString::fromLatin1(style) << static_cast<int>(look) << shadow;
        };
        row("Number 12", NumberStyle::Look::Caption, false);
        row("True Roman Cross 4", NumberStyle::Look::TrueRoman, false);
        row("roman vertical 2", NumberStyle::Look::Roman, false);
        row("3d Horizontal 2", NumberStyle::Look::Digits3D, true);
        row("3D True Roman 12", NumberStyle::Look::TrueRoman, true);
    }

    void Look() {
        QFETCH(QString, style);
        QFETCH(int, look);
        const NumberStyle read(style);
        QCOMPARE(static_cast<int>(read.NumberLook()), look);
        QCOMPARE(read.IsPainted(), look != static_cast<int>(NumberStyle::Look::Caption));
        QTEST(read.HasShadow(), "shadow");
    }

    void CaptionsHiddenByStyle() {
        QVERIFY(NumberStyle(u"Number 12"_s).ShowsCaption(1));
        QVERIFY(NumberStyle(u"Number Cross 4"_s).ShowsCaption(6));
        QVERIFY(!NumberStyle(u"number cross 4"_s).ShowsCaption(5));
        QVERIFY(!NumberStyle(u"Number Horizontal 2"_s).ShowsCaption(12));
        QVERIFY(NumberStyle(u"Number Horizontal 2"_s).ShowsCaption(9));
        QVERIFY(!NumberStyle(u"Number Vertical 2"_s).ShowsCaption(3));
        QVERIFY(NumberStyle(u"Number Vertical 2"_s).ShowsCaption(6));
        QVERIFY(!NumberStyle(u"No Numbers"_s).ShowsCaption(3));
    }

    void Spots_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("indexes");
        QTest::newRow("12") << u"Spot 12"_s << u"5 10 15 20 25 30 35 40 45 50 55 60"_s;
        QTest::newRow("8") << u" spot 8 "_s << u"5 10 20 25 35 40 50 55"_s;
        QTest::newRow("cross") << u"Cross 4"_s << u"15 30 45 60"_s;
        QTest::newRow("level") << u"Horizontal 2"_s << u"15 45"_s;
        QTest::newRow("upright") << u"Vertical 2"_s << u"30 60"_s;
        QTest::newRow("two words") << u"Spot 8, Vertical 2"_s << u"5 10 20 25 30 35 40 50 55 60"_s;
        QTest::newRow("none") << u"No Spots"_s << QString();
        QTest::newRow("none goes first") << u"Spot 60, No Spots"_s << QString();
        QTest::newRow("missing key") << u"0"_s << QString();
        QTest::newRow("unknown") << u"Dots"_s << QString();
    }

    void Spots() {
        QFETCH(QString, style);
        const SpotStyle read(style);
        QStringList indexes;
        for (int index = 1; index <= 60; ++index) {
            if (read.Wants(index)) {
                indexes += QString::number(index);
            }
        }
        QTEST(indexes.join(u' '), "indexes");
    }

    void EveryMinuteHasASpot() {
        for (int index = 1; index <= 60; ++index) {
            QVERIFY(SpotStyle(u"Spot 60"_s).Wants(index));
        }
    }

    void NamesOfNumbers() {
        QStringList names = drawing::NumberStyleNames();
        QCOMPARE(names.size(), 17);
        QCOMPARE(names.last(), u"No Numbers"_s);
        names.sort();
        QCOMPARE(names.first(), u"3D 12"_s);
        QVERIFY(names.contains(u"Number 12"_s));
        QVERIFY(names.contains(u"True Roman Cross 4"_s));
        QVERIFY(names.contains(u"Roman Horizontal 2"_s));
        QVERIFY(names.contains(u"Number Vertical 2"_s));
    }

    void NamesOfSpots() {
        QCOMPARE(drawing::SpotStyleNames(),
                 QStringList({u"No Spots"_s, u"Spot 8"_s, u"Spot 12"_s, u"Spot 60"_s, u"Cross 4"_s,
                              u"Horizontal 2"_s, u"Vertical 2"_s}));
    }
};

QTEST_GUILESS_MAIN(tst_DialStyles)
#include "tst_DialStyles.moc"
