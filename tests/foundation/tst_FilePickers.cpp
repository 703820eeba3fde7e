#include "foundation/FilePickers.h"

#include <QTest>

using namespace Qt::StringLiterals;
using mduUILib::FilePicker;
using mduUILib::FilePickerOf;

namespace {

PathTable Paths() {
    PathTable paths;
    paths.AppFolder = u"/app"_s;
    paths.ImagesFolder = u"/app/Images/"_s;
    paths.SoundFilesFolder = u"/app/SoundFiles/"_s;
    paths.StylesFolder = u"/app/Styles/"_s;
    paths.MusicFolder = u"/app/Music/"_s;
    paths.ZoneFileFolder = u"/app/anna/TimeZones/"_s;
    return paths;
}

}  // namespace

class tst_FilePickers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PicksByKey_data();
    void PicksByKey();
    void KnowsItsKeys();
    void AnyOtherFileKeyTakesAnyFile();
    void AsksTheDialog();
    void StartsAtTheFile_data();
    void StartsAtTheFile();
    void StoresFiles_data();
    void StoresFiles();
    void RefusesWhatAValueCantHold_data();
    void RefusesWhatAValueCantHold();
};

void tst_FilePickers::PicksByKey_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    const QString icons = u"*.bmp;*.ico;*.gif;*.jpg"_s;
    const QString iconsName = u"Image (*.bmp;*.ico;*.gif;*.jpg)"_s;
    const QString pictures = u"*.bmp;*.gif;*.jpg"_s;
    const QString picturesName = u"Image (*.bmp;*.gif;*.jpg)"_s;
    const QString background = u"/app/Images/Background/"_s;
    const QString sounds = u"/app/SoundFiles/"_s;
    QTest::newRow("Flag File") << icons << iconsName << u"/app/Images/Flags/"_s;
    QTest::newRow("Timer Sound File") << u"*.wav"_s << u"Sound (*.wav)"_s << sounds;
    QTest::newRow("Second Sound File") << u"*.wav"_s << u"Sound (*.wav)"_s << sounds;
    QTest::newRow("Hour Sound File") << u"*.wav"_s << u"Sound (*.wav)"_s << sounds;
    QTest::newRow("Clock Image File") << pictures << picturesName << background;
    QTest::newRow("Window Background File") << pictures << picturesName << background;
    QTest::newRow(" window background FILE ") << pictures << picturesName << background;
    QTest::newRow("Minute Spot Image File") << icons << iconsName << u"/app/Images/"_s;
    QTest::newRow("Clock Styles") << u"*.ini"_s << u"Ini File (*.ini)"_s << u"/app/Styles/"_s;
    QTest::newRow("Time Zone") << u"*.ini"_s << u"Ini File (*.ini)"_s << u"/app/anna/TimeZones/"_s;
    QTest::newRow("Music File") << u"*.mp3;*.wma;*.wav"_s << u"Ini File (*.mp3;*.wma;*.wav)"_s
                                << u"/app/Music/"_s;
}

void tst_FilePickers::PicksByKey() {
    const auto picker = FilePickerOf(QString::fromLatin1(QTest::currentDataTag()), Paths());
    QVERIFY(picker);
    QTEST(picker->Filter, "filter");
    QTEST(picker->FilterName, "name");
    QTEST(picker->Folder, "folder");
}

void tst_FilePickers::KnowsItsKeys() {
    for (const QString& key : {u"Flag File"_s, u"profile"_s, u"FILE"_s, u"Sound File "_s}) {
        QVERIFY2(mduUILib::IsFileKey(key), qPrintable(key));
    }
    for (const QString& key : {u"File Name"_s, u"Files"_s, u"ile"_s, QString()}) {
        QVERIFY2(!mduUILib::IsFileKey(key), qPrintable(key));
    }
}

void tst_FilePickers::AnyOtherFileKeyTakesAnyFile() {
    QCOMPARE(FilePickerOf(u"Own File"_s, Paths()),
             (FilePicker{u"*"_s, u"All Files (*)"_s, u"/app/"_s}));
    QCOMPARE(FilePickerOf(u"Hour Hand Colour"_s, Paths()), std::nullopt);
    QCOMPARE(FilePickerOf(QString(), Paths()), std::nullopt);
}

void tst_FilePickers::AsksTheDialog() {
    const auto filter = [](const QString& key) {
        return FilePickerOf(key, Paths())->DialogFilter();
    };
    QCOMPARE(filter(u"Clock Image File"_s), u"Image (*.bmp *.gif *.jpg);;All Files (*)"_s);
    QCOMPARE(filter(u"Clock Styles"_s), u"Ini File (*.ini)"_s);
    QCOMPARE(filter(u"Own File"_s), u"All Files (*)"_s);
}

void tst_FilePickers::StartsAtTheFile_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("start");
    QTest::newRow("in the program folder") << u".\\Music\\a b.mp3"_s << u"/app/Music/a b.mp3"_s;
    QTest::newRow("elsewhere") << u"\\home\\anna\\a.mp3"_s << u"/home/anna/a.mp3"_s;
    QTest::newRow("native") << u" /home/anna/a.mp3 "_s << u"/home/anna/a.mp3"_s;
    QTest::newRow("none") << QString() << u"/app/Music/"_s;
    QTest::newRow("a word") << u"None"_s << u"/app/Music/"_s;
    QTest::newRow("a pattern") << u".\\Music\\*.*"_s << u"/app/Music/"_s;
}

void tst_FilePickers::StartsAtTheFile() {
    QFETCH(QString, value);
    QTEST(mduUILib::PickerStart(*FilePickerOf(u"Music File"_s, Paths()), value, Paths()), "start");
}

void tst_FilePickers::StoresFiles_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("stored");
    QTest::newRow("inside") << u"/app/Images/Flags/a b.gif"_s << u".\\Images\\Flags\\a b.gif"_s;
    QTest::newRow("beside") << u"/app2/a.gif"_s << u"\\app2\\a.gif"_s;
    QTest::newRow("outside") << u"/home/anna/a.gif"_s << u"\\home\\anna\\a.gif"_s;
}

void tst_FilePickers::StoresFiles() {
    QFETCH(QString, path);
    QTEST(mduUILib::StoredFile(path, u"/app"_s), "stored");
}

void tst_FilePickers::RefusesWhatAValueCantHold_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem");
    QTest::newRow("good") << u"/a/b=c^ d.gif"_s << QString();
    QTest::newRow("comma") << u"/a/b,c.gif"_s << u"File is not set /a/b,c.gif"_s;
    QTest::newRow("backslash") << u"/a/b\\c.gif"_s << u"File is not set /a/b\\c.gif"_s;
    QTest::newRow("line end") << u"/a/b\nc.gif"_s << u"File is not set /a/b\nc.gif"_s;
}

void tst_FilePickers::RefusesWhatAValueCantHold() {
    QFETCH(QString, path);
    QTEST(mduUILib::PickProblem(path), "problem");
    QCOMPARE(mduUILib::PickProblemTitle, u"Set File Error"_s);
}

QTEST_GUILESS_MAIN(tst_FilePickers)
#include "tst_FilePickers.moc"
