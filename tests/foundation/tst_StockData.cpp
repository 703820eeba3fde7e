#include <QDir>
#include <QFontDatabase>
#include <QImage>
#include <QTest>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;

namespace {

QDir Data(const QString& folder) {
    return QDir(folder == "Styles"_L1 ? QStringLiteral(TEMPOLARK_STYLES_DIR)
                                      : QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/") + folder);
}

QStringList StyleNames() {
    QStringList names;
    for (const QFileInfo& file : Data(u"Styles"_s).entryInfoList({u"*.ini"_s}, QDir::Files)) {
        names += file.completeBaseName();
    }
    return names;
}

ClockProperties Load(const QString& path) {
    ClockProperties array;
    mduLib::ReadPropertyFile(platform::LocalFiles(), path, array);
    return array;
}

ClockProperties LoadStyle(const QString& name) {
    return Load(Data(u"Styles"_s).filePath(name + u".ini"_s));
}

ClockProperties LoadDefault() {
    return Load(Data(u"ini"_s).filePath(u"Tempolark.ini"_s));
}

QStringList Keys(const ClockProperties& array) {
    QStringList keys;
    for (int row = 1; row <= array.UpperBound(); ++row) {
        keys += array[row].Category + u':' + array[row].Name;
    }
    return keys;
}

/// The choices of a key in the default file; none when it offers no list.
QStringList Choices(const QString& name) {
    const ClockProperties array = LoadDefault();
    const QString raw = mduLib::GetPropertyRaw(name, array);
    return raw.contains(u',') ? mduLib::GetPropertyChoices(name, array).split(u',') : QStringList();
}

/// The values that the styles give these keys between them.
QSet<QString> Used(const QStringList& names) {
    QSet<QString> used;
    for (const QString& style : StyleNames()) {
        const ClockProperties array = LoadStyle(style);
        for (const QString& name : names) {
            used += mduLib::GetProperty(name, array);
        }
    }
    return used;
}

bool IsNumber(const QString& text) {
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber;
}

void AddStyles() {
    QTest::addColumn<QString>("style");
    for (const QString& style : StyleNames()) {
        QTest::newRow(qPrintable(style)) << style;
    }
}

}  // namespace

class tst_StockData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thereAreManyStyles();
    void aStyleHasTheDefaultsRows_data() { AddStyles(); }
    void aStyleHasTheDefaultsRows();
    void aStyleKeepsTheDefaultsChoices_data() { AddStyles(); }
    void aStyleKeepsTheDefaultsChoices();
    void aStyleNamesNoZone_data() { AddStyles(); }
    void aStyleNamesNoZone();
    void aStyleIsPlacedBySystem_data() { AddStyles(); }
    void aStyleIsPlacedBySystem();
    void aStyleTakesItsValuesFromTheChoices_data() { AddStyles(); }
    void aStyleTakesItsValuesFromTheChoices();
    void aStyleFindsItsPictures_data() { AddStyles(); }
    void aStyleFindsItsPictures();
    void aStyleIsWrittenAsTheSystemWrites_data() { AddStyles(); }
    void aStyleIsWrittenAsTheSystemWrites();
    void stylesUseEveryWord_data();
    void stylesUseEveryWord();
    void stylesAreSetInInstalledFonts();
    void backgroundsAreLarge();
    void marksAreSeeThrough();
};

void tst_StockData::thereAreManyStyles() {
    QVERIFY(StyleNames().size() >= 24);
}

void tst_StockData::aStyleHasTheDefaultsRows() {
    QFETCH(QString, style);
    QCOMPARE(Keys(LoadStyle(style)), Keys(LoadDefault()));
}

void tst_StockData::aStyleKeepsTheDefaultsChoices() {
    QFETCH(QString, style);
    const ClockProperties array = LoadStyle(style);
    const ClockProperties defaults = LoadDefault();
    for (int row = 1; row <= defaults.UpperBound(); ++row) {
        const auto behind = [](const QString& raw) {
            const qsizetype comma = raw.indexOf(u',');
            return comma < 0 ? QString() : raw.sliced(comma);
        };
        QCOMPARE(behind(array[row].Value), behind(defaults[row].Value));
    }
}

void tst_StockData::aStyleNamesNoZone() {
    QFETCH(QString, style);
    const ClockProperties array = LoadStyle(style);
    for (const char* key : {"Time Zone Standard Name", "Time Zone Standard Start Time",
                            "Time Zone Standard GMT (Minutes)", "Time Zone Daylight Name",
                            "Time Zone Daylight Start Time", "Time Zone Daylight GMT (Minutes)"}) {
        QCOMPARE(mduLib::GetPropertyRaw(QString::fromLatin1(key), array), QString());
    }
}

void tst_StockData::aStyleIsPlacedBySystem() {
    QFETCH(QString, style);
    const ClockProperties array = LoadStyle(style);
    QCOMPARE(mduLib::GetProperty(u"Window Top"_s, array), u"-1"_s);
    QCOMPARE(mduLib::GetProperty(u"Window Left"_s, array), u"-1"_s);
}

// A number may be any: the choices are there to pick from. A font may be any that is installed.
void tst_StockData::aStyleTakesItsValuesFromTheChoices() {
    QFETCH(QString, style);
    const ClockProperties array = LoadStyle(style);
    for (int row = 1; row <= array.UpperBound(); ++row) {
        const QString& name = array[row].Name;
        const QString value = mduLib::GetProperty(name, array);
        const QStringList choices = Choices(name);
        if (choices.isEmpty() || IsNumber(value) || name.endsWith(u" Font"_s) ||
            name == "Message Action Colour"_L1) {
            continue;
        }
        QVERIFY2(choices.contains(value), qPrintable(name + u": "_s + value));
    }
}

void tst_StockData::aStyleFindsItsPictures() {
    QFETCH(QString, style);
    const ClockProperties array = LoadStyle(style);
    for (const QString& key : {u"Clock Image File"_s, u"Window Background File"_s,
                               u"Minute Spot Image File"_s, u"Flag File"_s}) {
        QString path = mduLib::GetProperty(key, array);
        // The flags are made by the build.
        if (path.isEmpty() || path.startsWith(u".\\Images\\Flags\\"_s)) {
            continue;
        }
        QVERIFY2(path.startsWith(u".\\Images\\"_s), qPrintable(path));
        path = path.sliced(2).replace(u'\\', u'/');
        QVERIFY2(QFile::exists(Data(u"."_s).filePath(path)), qPrintable(path));
    }
}

void tst_StockData::aStyleIsWrittenAsTheSystemWrites() {
    QFETCH(QString, style);
    const QString path = Data(u"Styles"_s).filePath(style + u".ini"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(mduLib::PropertyFileContent(Load(path)), file.readAll());
}

void tst_StockData::stylesUseEveryWord_data() {
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("kinds") << QStringList{u"Clocks"_s};
    QTest::newRow("specials") << QStringList{u"Clock Special"_s};
    QTest::newRow("clock shapes") << QStringList{u"Clock Shape"_s};
    QTest::newRow("window shapes") << QStringList{u"Window Shape"_s};
    QTest::newRow("borders") << QStringList{u"Window Border"_s};
    QTest::newRow("numbers") << QStringList{u"Hour Number Style"_s};
    QTest::newRow("spots") << QStringList{u"Minute Spot Style"_s};
    QTest::newRow("hands") << QStringList{u"Hour Hand Style"_s, u"Minute Hand Style"_s,
                                          u"Second Hand Style"_s};
}

void tst_StockData::stylesUseEveryWord() {
    QFETCH(QStringList, keys);
    const QSet<QString> used = Used(keys);
    const QStringList choices = Choices(keys.first());
    QVERIFY(choices.size() > 2);
    for (const QString& word : choices) {
        QVERIFY2(used.contains(word), qPrintable(word));
    }
}

// Arial is drawn with the font that stands in for it.
void tst_StockData::stylesAreSetInInstalledFonts() {
    const QSet<QString> fonts = Used({u"Hour Number Font"_s, u"Digital Clock Font"_s,
                                      u"Calculator Local Time Font"_s, u"Calculator Time Font"_s});
    QVERIFY(fonts.size() > 5);
    for (const QString& font : fonts) {
        QVERIFY2(font == "Arial"_L1 || QFontDatabase::hasFamily(font), qPrintable(font));
    }
}

void tst_StockData::backgroundsAreLarge() {
    const QFileInfoList files =
        Data(u"Images/Background"_s).entryInfoList({u"*.jpg"_s}, QDir::Files);
    QVERIFY(files.size() >= 12);
    for (const QFileInfo& file : files) {
        const QImage image(file.filePath());
        QVERIFY2(image.width() >= 800 && image.height() >= 800, qPrintable(file.fileName()));
    }
}

void tst_StockData::marksAreSeeThrough() {
    const QFileInfoList files = Data(u"Images"_s).entryInfoList({u"*.ico"_s}, QDir::Files);
    QVERIFY(files.size() >= 6);
    for (const QFileInfo& file : files) {
        const QImage image(file.filePath());
        QVERIFY2(!image.isNull(), qPrintable(file.fileName()));
        QCOMPARE(image.width(), image.height());
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QVERIFY(qAlpha(image.pixel(image.width() / 2, image.height() / 2)) > 250);
    }
}

QTEST_MAIN(tst_StockData)
#include "tst_StockData.moc"
