#include <QTest>

#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/PropertyMerge.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

namespace {

QStringList CommandNames() {
    return QStringLiteral(
               "Property Window|TimeZones Window|Shortcut Window|Clocks|Window Normal|"
               "Window Maximized|Window Minimized|Window Background Colour|Disable|"
               "Hour Number Style|Save Style As|Save Current Style|Window Border|"
               "Window Title Bar|Window Shape|Clock Shape|Time Zone with Style|Time Zone Only|"
               "Clock Style|Clock Special")
        .split(u'|');
}

QString DefaultFile(const QString& name) {
    return QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/") + name;
}

ClockProperties Load(const QString& name) {
    ClockProperties array;
    mduLib::ReadPropertyFile(platform::LocalFiles(), DefaultFile(name), array);
    return array;
}

QStringList Names(const ClockProperties& array) {
    QStringList names;
    for (int row = 1; row <= array.UpperBound(); ++row) {
        names += array[row].Name;
    }
    return names;
}

}  // namespace

class tst_DefaultFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void haveEveryKeyOnce_data();
    void haveEveryKeyOnce();
    void offerTheirDefaults_data();
    void offerTheirDefaults();
    void areLaidOutForMerging_data();
    void areLaidOutForMerging();
    void survivesAMergeWithItself_data();
    void survivesAMergeWithItself();
    void bindEachKeyOnce();
    void clockFileIsLargeEnough();
    void clockFileHasNoZone();
    void offerTheWordsOfTheClock_data();
    void offerTheWordsOfTheClock();
};

void tst_DefaultFiles::haveEveryKeyOnce_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("shortcuts") << u"Shortcuts.txt"_s << CommandNames();
}

void tst_DefaultFiles::haveEveryKeyOnce() {
    QFETCH(QString, file);
    QFETCH(QStringList, keys);
    QStringList names = Names(Load(file));
    names.sort();
    keys.sort();
    QCOMPARE(names, keys);
}

void tst_DefaultFiles::offerTheirDefaults_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("clock") << u"Tempolark.ini"_s;
    QTest::newRow("shell") << u"TempolarkCentral.ini"_s;
}

void tst_DefaultFiles::offerTheirDefaults() {
    QFETCH(QString, file);
    const ClockProperties array = Load(file);
    for (const QString& name : Names(array)) {
        const QString raw = mduLib::GetPropertyRaw(name, array);
        if (!raw.contains(u',') || name == "Message Action Colour"_L1) {
            continue;
        }
        const QStringList choices = mduLib::GetPropertyChoices(name, array).split(u',');
        const QString value = mduLib::GetProperty(name, array);
        const bool isColour = choices.contains(u"Magenta"_s);  // names, or any number
        QVERIFY2(choices.contains(value) || (isColour && mduAPILib::IsNumeric(value)),
                 qPrintable(name));
        QVERIFY2(choices.size() > 1, qPrintable(name));
        QVERIFY2(QSet<QString>(choices.begin(), choices.end()).size() == choices.size(),
                 qPrintable(name));
    }
}

void tst_DefaultFiles::areLaidOutForMerging_data() {
    QTest::addColumn<QString>("file");
    for (const QString& file :
         {u"Tempolark.ini"_s, u"TempolarkCentral.ini"_s, u"Shortcuts.txt"_s}) {
        QTest::newRow(qPrintable(file)) << file;
    }
}

// Behind a header line all keys would take their defaults at each merge.
void tst_DefaultFiles::areLaidOutForMerging() {
    QFETCH(QString, file);
    const QByteArray content = *platform::LocalFiles().Read(DefaultFile(file));
    QVERIFY(content.endsWith("\r\n"));
    QCOMPARE(content.count('\n'), content.count("\r\n"));
    for (const QString& line : mduLib::FileLines(content)) {
        QVERIFY2(!line.contains(u'[') && !line.contains(u']'), qPrintable(line));
        QVERIFY2(line.count(u'=') == 1, qPrintable(line));
        QVERIFY2(!line.contains(u'^'), qPrintable(line));
    }
}

void tst_DefaultFiles::survivesAMergeWithItself_data() {
    areLaidOutForMerging_data();
}

void tst_DefaultFiles::survivesAMergeWithItself() {
    QFETCH(QString, file);
    FakeServices machine;
    const QByteArray content = *machine.Files.Read(DefaultFile(file));
    const QString user = machine.WriteFile(u"user"_s, content);
    QVERIFY(mduLib::MergePropertyFile(machine.Files, user, DefaultFile(file), user));
    QCOMPARE(machine.ReadFile(u"user"_s), content);
}

void tst_DefaultFiles::bindEachKeyOnce() {
    const ClockProperties shortcuts = Load(u"Shortcuts.txt"_s);
    QSet<QString> keys;
    for (const QString& name : Names(shortcuts)) {
        const QString key = mduLib::GetProperty(name, shortcuts);
        static const QRegularExpression form(u"\\A(Ctrl\\+[A-Z]|F([2-9]|1[0-2]))\\z"_s);
        QVERIFY2(form.match(key).hasMatch(), qPrintable(key));
        keys += key;
    }
    QCOMPARE(keys.size(), 20);
    // Desktops take Ctrl with F1 to F12; these are the clock's own and those of the menu "Edit".
    for (const QString& taken : {u"Ctrl+E"_s, u"Ctrl+W"_s, u"Ctrl+R"_s, u"Ctrl+Z"_s, u"Ctrl+Y"_s,
                                 u"Ctrl+X"_s, u"Ctrl+C"_s, u"Ctrl+V"_s, u"Ctrl+A"_s, u"Ctrl+F"_s}) {
        QVERIFY2(!keys.contains(taken), qPrintable(taken));
    }
}

// A clock with less than 25 rows is reported as damaged.
void tst_DefaultFiles::clockFileIsLargeEnough() {
    QVERIFY(Load(u"Tempolark.ini"_s).UpperBound() > 25);
}

void tst_DefaultFiles::clockFileHasNoZone() {
    const ClockProperties array = Load(u"Tempolark.ini"_s);
    for (const QString& half : {u"Standard"_s, u"Daylight"_s}) {
        for (const QString& key : {u"Name"_s, u"Start Time"_s, u"GMT (Minutes)"_s}) {
            const QString name = u"Time Zone "_s + half + u' ' + key;
            QVERIFY2(mduLib::FindPropertyRow(name, array) > 0, qPrintable(name));
            QCOMPARE(mduLib::GetPropertyRaw(name, array), QString());
        }
    }
}

void tst_DefaultFiles::offerTheWordsOfTheClock_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("choices");
    QTest::newRow("mode") << u"Clocks"_s << u"Analogue,Digital,Calculator,Analogue and Digital"_s;
    QTest::newRow("shape") << u"Window Shape"_s
                           << u"Normal,Circle,Ellips,Diamond,Pentagon,Hexagon,Octagon"_s;
    QTest::newRow("border") << u"Window Border"_s << u"No Border,3D Border,Classic"_s;
    QTest::newRow("hand") << u"Second Hand Style"_s
                          << u"Line,Frame,3D Metal Simple,3D Gold Simple,3D Metal,3D Gold,3D"_s;
    QTest::newRow("spots") << u"Minute Spot Style"_s
                           << u"No Spots,Spot 8,Spot 12,Spot 60,Cross 4,Horizontal 2,Vertical 2"_s;
    QTest::newRow("format") << u"Digital Clock Format"_s
                            << u"hh:mm,hh:mm:ss,hh:mm:ss ampm,mm:ss,hh:mm ampm"_s;
    QTest::newRow("special")
        << u"Clock Special"_s
        << u"None,Analogue Backward,Analogue Hour Number Random Colour,Analogue Left Half,"
           "Analogue Right Half,Analogue Hour Font Even,Analogue Hour Font Triangle,"
           "Analogue Hour Font Quarter,Analogue Hour Font Small to Big,"
           "Analogue Hour Font Big to Small,Digital Backward,Digital Up Down,Digital Wave,"
           "Digital Up Down Wave,Digital Vertical,World Map"_s;
}

void tst_DefaultFiles::offerTheWordsOfTheClock() {
    QFETCH(QString, key);
    QFETCH(QString, choices);
    // Words of our own stand behind these.
    const QString all = mduLib::GetPropertyChoices(key, Load(u"Tempolark.ini"_s)) + u',';
    QVERIFY2(all.startsWith(choices + u','), qPrintable(all));
}

QTEST_GUILESS_MAIN(tst_DefaultFiles)
#include "tst_DefaultFiles.moc"
