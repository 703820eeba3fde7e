#include <QTest>

#include "foundation/OpenClocks.h"
#include "support/FakeForms.h"

using namespace Qt::StringLiterals;

class tst_OpenClocks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Captions() {
        QCOMPARE(mduLib::ClockCaption(u"UTC"_s), u"UTC"_s);
        QCOMPARE(mduLib::ClockCaption(u"UTC.ini"_s), u"UTC"_s);
        QCOMPARE(mduLib::ClockCaption(u"UTC.INI"_s), u"UTC"_s);
        QCOMPARE(mduLib::ClockCaption(u"St. Petersburg"_s), u"St. Petersburg"_s);
        QCOMPARE(mduLib::ClockCaption(u"/s"_s), u"s"_s);
    }

    void Finds() {
        Forms windows;
        QStringList log;
        const FakeForm shell(windows, u"frmMain"_s, u"UTC"_s, log);
        const FakeClock utc(windows, u"UTC"_s, log);
        const FakeClock tokyo(windows, u"Tokyo Standard Time"_s, log);
        QCOMPARE(mduLib::FindClock(windows, u"UTC"_s), &utc);
        QCOMPARE(mduLib::FindClock(windows, u"UTC.ini"_s), &utc);
        QCOMPARE(mduLib::FindClock(windows, u"Tokyo Standard Time"_s), &tokyo);
        QCOMPARE(mduLib::FindClock(windows, u"utc"_s), nullptr);  // another file
        QCOMPARE(mduLib::FindClock(windows, u"Tokyo"_s), nullptr);
        QCOMPARE(mduLib::FindClock(windows, {}), nullptr);
    }
};

QTEST_APPLESS_MAIN(tst_OpenClocks)
#include "tst_OpenClocks.moc"
