#include <QTest>

#include "timezones/TransitionText.h"

using namespace Qt::StringLiterals;
using namespace mduTimeZones;
using platform::SYSTEMTIME;

namespace {

const QDate Today(2026, 6, 15);

SYSTEMTIME OnWeekday(std::int16_t weekday) {
    SYSTEMTIME transition;
    transition.wDayOfWeek = weekday;
    return transition;
}

}  // namespace

class tst_TransitionText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Writes_data() {
        QTest::addColumn<SYSTEMTIME>("transition");
        QTest::addColumn<QString>("text");
        QTest::newRow("first Sunday of April")
            << SYSTEMTIME{0, 4, 0, 1, 2, 0, 0, 0} << u"1.0.4 2:00:00"_s;
        QTest::newRow("last Sunday of October")
            << SYSTEMTIME{0, 10, 0, 5, 3, 0, 0, 0} << u"5.0.10 3:00:00"_s;
        QTest::newRow("without daylight time") << SYSTEMTIME{} << u"0.0.0 0:00:00"_s;
        QTest::newRow("two digits") << SYSTEMTIME{0, 3, 5, 2, 23, 9, 7, 500} << u"2.5.3 23:09:07"_s;
        QTest::newRow("date") << SYSTEMTIME{2008, 3, 2, 25, 2, 0, 0, 0} << u"25/03/2008 2:00:00"_s;
        QTest::newRow("date and time")
            << SYSTEMTIME{2008, 12, 2, 1, 14, 5, 59, 0} << u"01/12/2008 14:05:59"_s;
        QTest::newRow("date that is none")
            << SYSTEMTIME{2026, 2, 0, 30, 2, 0, 0, 0} << u"15/06/2026 2:00:00"_s;
        QTest::newRow("year -1") << SYSTEMTIME{-1, 4, 0, 1, 2, 0, 0, 0} << u"15/06/2026 2:00:00"_s;
    }
    void Writes() {
        QFETCH(SYSTEMTIME, transition);
        QTEST(TransitionText(transition, Today), "text");
    }

    void ReadsRules_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<SYSTEMTIME>("over");
        QTest::addColumn<SYSTEMTIME>("read");
        // The occurrence is lost: the last such weekday of the month.
        QTest::newRow("first Sunday")
            << u"1.0.4 2:00:00"_s << OnWeekday(0) << SYSTEMTIME{2026, 4, 0, 26, 2, 0, 0, 0};
        QTest::newRow("last Sunday")
            << u"5.0.10 3:00:00"_s << OnWeekday(0) << SYSTEMTIME{2026, 10, 0, 25, 3, 0, 0, 0};
        QTest::newRow("the weekday is the record's")
            << u"1.0.4 2:00:00"_s << OnWeekday(4) << SYSTEMTIME{2026, 4, 4, 30, 2, 0, 0, 0};
        // The second number stands for the occurrence.
        QTest::newRow("Friday finds the last")
            << u"5.5.10 0:00:00"_s << OnWeekday(5) << SYSTEMTIME{2026, 10, 5, 30, 0, 0, 0, 0};
        QTest::newRow("Thursday finds the fourth")
            << u"5.4.10 0:00:00"_s << OnWeekday(4) << SYSTEMTIME{2026, 10, 4, 22, 0, 0, 0, 0};
        QTest::newRow("Monday finds the first")
            << u"5.1.10 0:00:00"_s << OnWeekday(1) << SYSTEMTIME{2026, 10, 1, 5, 0, 0, 0, 0};
        QTest::newRow("the second is lost")
            << u"1.0.4 2:30:15"_s << OnWeekday(0) << SYSTEMTIME{2026, 4, 0, 26, 2, 30, 0, 0};
        QTest::newRow("a delimiter more keeps it")
            << u"1.0.4 2:30:15:"_s << OnWeekday(0) << SYSTEMTIME{2026, 4, 0, 26, 2, 30, 15, 0};
        QTest::newRow("the old year goes")
            << u"1.0.4 2:00:00"_s << SYSTEMTIME{1999, 9, 0, 9, 9, 9, 9, 0}
            << SYSTEMTIME{2026, 4, 0, 26, 2, 0, 0, 0};
        QTest::newRow("zeros") << u"0.0.0 0:00:00"_s << OnWeekday(0) << SYSTEMTIME{};
        QTest::newRow("zeros over a date")
            << u"0.0.0 0:00:00"_s << SYSTEMTIME{2026, 4, 0, 5, 2, 0, 0, 0} << SYSTEMTIME{};
        QTest::newRow("zeros over a weekday")
            << u"0.0.0 0:00:00"_s << OnWeekday(3) << SYSTEMTIME{2026, 8, 3, 5, 0, 0, 0, 0};
    }
    void ReadsRules() { CheckRead(); }

    void ReadsGarbage_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<SYSTEMTIME>("over");
        QTest::addColumn<SYSTEMTIME>("read");
        QTest::newRow("empty") << QString() << OnWeekday(0) << SYSTEMTIME{};
        QTest::newRow("delimiters") << u":::"_s << OnWeekday(0) << SYSTEMTIME{};
        QTest::newRow("words") << u"a.b.c d:e:f"_s << OnWeekday(0) << SYSTEMTIME{};
        QTest::newRow("a time") << u"25:07"_s << OnWeekday(0)
                                << SYSTEMTIME{0, 0, 0, 0, 25, 0, 0, 0};
        QTest::newRow("no time") << u"1.0.4"_s << OnWeekday(0) << SYSTEMTIME{};
        QTest::newRow("too large")
            << u"1.40000.4 70000:00:00"_s << OnWeekday(0) << SYSTEMTIME{2026, 4, 0, 26, 0, 0, 0, 0};
        QTest::newRow("month 13") << u"1.0.13 2:00:00"_s << OnWeekday(0)
                                  << SYSTEMTIME{2026, 8, 0, 2, 2, 0, 0, 0};
        QTest::newRow("negative") << u"-1.-1.-1 -1:-1:-1"_s << OnWeekday(0)
                                  << SYSTEMTIME{2026, 8, 0, 2, -1, -1, 0, 0};
        QTest::newRow("blanks first")
            << u"  1.0.4 2:00:00"_s << OnWeekday(0) << SYSTEMTIME{2026, 4, 0, 26, 2, 0, 0, 0};
    }
    void ReadsGarbage() { CheckRead(); }

    void ReadsDates_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isNT");
        QTest::addColumn<SYSTEMTIME>("read");
        QTest::newRow("date and time")
            << u"25/03/2008 2:05:09"_s << true << SYSTEMTIME{2008, 3, 0, 25, 2, 5, 9, 0};
        QTest::newRow("date") << u"25/03/2008"_s << true << SYSTEMTIME{2008, 3, 0, 25, 0, 0, 0, 0};
        QTest::newRow("no year") << u"5/3 1:00"_s << true << SYSTEMTIME{2026, 3, 0, 5, 1, 0, 0, 0};
        QTest::newRow("not NT") << u"25/03/2008 2:05:09"_s << false << SYSTEMTIME{};
        QTest::newRow("rule") << u"5.0.10 3:00:00"_s << true << SYSTEMTIME{};
        QTest::newRow("rule, not NT") << u"5.0.10 3:00:00"_s << false << SYSTEMTIME{};
        QTest::newRow("dots") << u"25.03.2008 2:00:00"_s << true << SYSTEMTIME{};
        QTest::newRow("time only") << u"2:00:00"_s << true << SYSTEMTIME{};
        QTest::newRow("no such date") << u"31/04/2008 2:00:00"_s << true << SYSTEMTIME{};
        QTest::newRow("empty") << QString() << true << SYSTEMTIME{};
    }
    void ReadsDates() {
        QFETCH(QString, text);
        QFETCH(bool, isNT);
        QTEST(ParseTransitionDate(text, isNT, Today), "read");
    }

private:
    void CheckRead() {
        QFETCH(QString, text);
        QFETCH(SYSTEMTIME, over);
        QTEST(ParseTransitionText(text, over, Today), "read");
    }
};

QTEST_GUILESS_MAIN(tst_TransitionText)
#include "tst_TransitionText.moc"
