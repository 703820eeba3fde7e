#include "editor/PropertyDefaults.h"

#include <QTest>

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using editor::PropertyDefaults;

namespace {

/// Records from lines "Category:Name=value".
ClockProperties Properties(const QStringList& lines) {
    ClockProperties properties;
    for (const QString& line : lines) {
        const QString key = line.section(u'=', 0, 0);
        mduLib::AppendProperty(key.section(u':', 0, 0), key.section(u':', 1), line.section(u'=', 1),
                               properties);
    }
    return properties;
}

QStringList Lines(const ClockProperties& properties) {
    QStringList lines;
    for (int row = 1; row <= properties.UpperBound(); ++row) {
        lines +=
            properties[row].Category + u':' + properties[row].Name + u'=' + properties[row].Value;
    }
    return lines;
}

}  // namespace

class tst_PropertyDefaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FindsTheDefault_data();
    void FindsTheDefault();
    void ComparesWhatIsShown_data();
    void ComparesWhatIsShown();
    void MergesOver();
    void KeepsZoneKeysThatTheDefaultLeavesEmpty();
    void MergesOverAnEmptyFile();
};

void tst_PropertyDefaults::FindsTheDefault_data() {
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("its own") << u"Clock"_s << u"Size"_s << u"1"_s;
    QTest::newRow("of its category") << u"Hands"_s << u"Size"_s << u"2"_s;
    QTest::newRow("letter case and blanks") << u" hands "_s << u" SIZE "_s << u"2"_s;
    QTest::newRow("another category") << u"Window"_s << u"Size"_s << u"1"_s;
    QTest::newRow("no category") << QString() << u"Size"_s << u"1"_s;
    QTest::newRow("a mark") << u"Clock"_s << u"Forced"_s << u"Yes,Yes,No"_s;
    QTest::newRow("the first of two") << u"Clock"_s << u"Twice"_s << u"a"_s;
    QTest::newRow("none") << u"Clock"_s << u"Siz"_s << QString();
    QTest::newRow("no key") << u"Clock"_s << QString() << QString();
}

void tst_PropertyDefaults::FindsTheDefault() {
    const PropertyDefaults defaults(
        Properties({u"Clock:Size=1"_s, u"Hands:Size=2"_s, u"Clock:Forced=^Yes,Yes,No"_s,
                    u"Clock:Twice=a"_s, u"Clock:Twice=b"_s}));
    QFETCH(QString, category);
    QFETCH(QString, key);
    QTEST(defaults.ValueOf({category, key, {}}), "value");
}

void tst_PropertyDefaults::ComparesWhatIsShown_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("differs");
    QTest::newRow("same") << u"Colour"_s << u"Red,Red,Green"_s << false;
    QTest::newRow("other choices") << u"Colour"_s << u"Red,White"_s << false;
    QTest::newRow("another value") << u"Colour"_s << u"Green,Red,Green"_s << true;
    QTest::newRow("forced here") << u"Colour"_s << u"^Red,Red"_s << false;
    QTest::newRow("forced there") << u"Forced"_s << u"Yes"_s << false;
    QTest::newRow("emptied") << u"Colour"_s << QString() << true;
    QTest::newRow("unknown") << u"Other"_s << u"x"_s << false;
    QTest::newRow("a clock's own zone") << u"Time Zone Standard Name"_s << u"Tokyo"_s << false;
    QTest::newRow("and its identifier") << u"Time Zone Id"_s << u"Asia/Tokyo"_s << false;
    QTest::newRow("a zone of all clocks") << u"Time Zone Daylight Name"_s << u"x"_s << true;
}

void tst_PropertyDefaults::ComparesWhatIsShown() {
    const PropertyDefaults defaults(
        Properties({u"Clock:Colour=Red,Red,Green"_s, u"Clock:Forced=^Yes"_s,
                    u"Clock:Time Zone Standard Name="_s, u"Clock:Time Zone Daylight Name=Summer"_s,
                    u"Clock:Time Zone Id="_s}));
    QFETCH(QString, key);
    QFETCH(QString, value);
    QTEST(defaults.Differs({u"Clock"_s, key, value}), "differs");
}

void tst_PropertyDefaults::MergesOver() {
    const PropertyDefaults defaults(
        Properties({u"Clock:Colour=^Red,Red,Green"_s, u"Clock:New=1,1,2"_s, u"Clock: ="_s}));
    const ClockProperties merged = defaults.MergedOver(
        Properties({u"Own:Mine=5"_s, u"Clock:Colour=Blue,Blue"_s, u"Clock:Colour=White"_s}));
    QCOMPARE(Lines(merged), (QStringList{u"Own:Mine=5"_s, u"Clock:Colour=Red,Red,Green"_s,
                                         u"Clock:Colour=Red,Red,Green"_s, u"Clock:New=1,1,2"_s}));
}

void tst_PropertyDefaults::KeepsZoneKeysThatTheDefaultLeavesEmpty() {
    const QString name = u"Time Zone:Time Zone Standard Name="_s;
    const QString summer = u"Time Zone:Time Zone Daylight Name="_s;
    const PropertyDefaults defaults(
        Properties({name, summer + u"Summer"_s, u"Sound:Hour Sound File="_s}));
    QCOMPARE(Lines(defaults.MergedOver(Properties(
                 {name + u"Tokyo"_s, summer + u"None"_s, u"Sound:Hour Sound File=a.wav"_s}))),
             (QStringList{name + u"Tokyo"_s, summer + u"Summer"_s, u"Sound:Hour Sound File="_s}));
}

void tst_PropertyDefaults::MergesOverAnEmptyFile() {
    const PropertyDefaults defaults(Properties({u"Clock:Size=1"_s}));
    QCOMPARE(Lines(defaults.MergedOver({})), QStringList{u"Clock:Size=1"_s});
    QCOMPARE(Lines(PropertyDefaults().MergedOver(Properties({u"Clock:Size=1"_s}))),
             QStringList{u"Clock:Size=1"_s});
}

QTEST_GUILESS_MAIN(tst_PropertyDefaults)
#include "tst_PropertyDefaults.moc"
