#include <QTest>
#include <map>

#include "editor/KeyNotes.h"
#include "foundation/PropertyFile.h"
#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;
using editor::KeyNotes;

namespace {

KeyNotes Built(const QString& defaultFile) {
    return {platform::LocalFiles(), editor::KeyNotesPath(QStringLiteral(TEMPOLARK_BIN_DIR)),
            defaultFile};
}

ClockProperties Defaults(const QString& name) {
    ClockProperties defaults;
    mduLib::ReadPropertyFile(
        platform::LocalFiles(),
        QStringLiteral(TEMPOLARK_SOURCE_DIR) + u"/data/ini/"_s + name + u".ini"_s, defaults);
    return defaults;
}

}  // namespace

/// The notes that the build makes for the program.
class tst_HelpKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyKeyIsTold_data();
    void everyKeyIsTold();
    void theyArePlainText();
    void unitsAreThoseOfTheKeys();
};

void tst_HelpKeys::everyKeyIsTold_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("keys");
    QTest::newRow("clock") << u"Tempolark"_s << 50;
    QTest::newRow("shell") << u"TempolarkCentral"_s << 10;
}

void tst_HelpKeys::everyKeyIsTold() {
    QFETCH(QString, file);
    QFETCH(int, keys);
    const ClockProperties defaults = Defaults(file);
    QVERIFY(defaults.UpperBound() >= keys);
    const KeyNotes notes = Built(file);
    for (int row = 1; row <= defaults.UpperBound(); ++row) {
        const QString key = defaults[row].Name;
        QVERIFY2(!notes.Of(key).isEmpty(), qPrintable(key));
    }
}

void tst_HelpKeys::theyArePlainText() {
    QCOMPARE(Built(u"Tempolark"_s).Of(u"Flag File"_s),
             u"The picture of a flag. Images/Flags has one for every country."_s);
    QCOMPARE(Built(u"Tempolark"_s).Of(u"Clocks"_s),
             u"What the clock shows: a dial, digits, a calculator, or dial and digits together."_s);
    QVERIFY(Built(u"TempolarkCentral"_s)
                .Of(u"Start Message"_s)
                .contains(u"<Morning/Afternoon/Evening> the part of the day"_s));
}

void tst_HelpKeys::unitsAreThoseOfTheKeys() {
    const ClockProperties defaults = Defaults(u"Tempolark"_s);
    const KeyNotes notes = Built(u"Tempolark"_s);
    std::map<QString, QStringList> units;
    for (int row = 1; row <= defaults.UpperBound(); ++row) {
        const QString unit = RowInfoOf(defaults[row], notes).Unit;
        if (!unit.isEmpty()) {
            units[unit] += defaults[row].Name;
        }
    }
    QCOMPARE(units[u"milliseconds"_s], QStringList{u"Window Open/Close Animation Rate"_s});
    QCOMPARE(units[u"seconds"_s], (QStringList{u"Stay Time"_s, u"Auto Background Display"_s}));
    QCOMPARE(units[u"minutes"_s], QStringList{u"Message Display Time"_s});
    QCOMPARE(units[u"twips"_s], (QStringList{u"Window Top"_s, u"Window Left"_s, u"Window Width"_s,
                                             u"Window Height"_s, u"Message Display Speed"_s}));
    QCOMPARE(units[u"points"_s],
             (QStringList{u"Hour Number Size"_s, u"Digital Font Size"_s,
                          u"Calculator Local Time Font Size"_s, u"Calculator Time Font Size"_s,
                          u"Time Zone Label Size"_s}));
    QCOMPARE(units[u"pixels"_s], (QStringList{u"Transparent Icon Left"_s, u"Transparent Icon Top"_s,
                                              u"Time Zone Name Left"_s, u"Time Zone Name Top"_s,
                                              u"Speaker Image Left"_s, u"Speaker Image Top"_s}));
    for (const QString& key : units[u"percent"_s]) {
        QVERIFY2(key.endsWith("(%)"_L1), qPrintable(key));
    }
    QCOMPARE(units[u"percent"_s].size(), 11);
    QCOMPARE(units.size(), std::size_t(7));
}

QTEST_GUILESS_MAIN(tst_HelpKeys)
#include "tst_HelpKeys.moc"
