#include "foundation/FilePickers.h"

#include <QTest>

#include "support/FakeDialogs.h"

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
    void AsksForAProperty();
    void AsksForAFileOfAKind();
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
    QTest::addColumn<QString>("value");
    QTest::newRow("good") << u"/a/b=c^ d.gif"_s << u"\\a\\b=c^ d.gif"_s;
    QTest::newRow("comma") << u"/a/b,c.gif"_s << u"old"_s;
    QTest::newRow("backslash") << u"/a/b\\c.gif"_s << u"old"_s;
    QTest::newRow("line end") << u"/a/b\nc.gif"_s << u"old"_s;
}

void tst_FilePickers::RefusesWhatAValueCantHold() {
    QFETCH(QString, path);
    QFETCH(QString, value);
    FakeDialogs dialogs;
    dialogs.FileAnswers = {path};
    dialogs.BoxAnswers = {1};
    QCOMPARE(mduUILib::PickPropertyFile(dialogs, u"Flag File"_s, u"old"_s, Paths()), value);
    if (value == u"old"_s) {
        QCOMPARE(dialogs.Boxes.size(), std::size_t(1));
        QCOMPARE(dialogs.Boxes[0].Text, u"File is not set "_s + path);
        QCOMPARE(dialogs.Boxes[0].Title, u"Set File Error"_s);
        QCOMPARE(dialogs.Boxes[0].Flags, 48);
    } else {
        QVERIFY(dialogs.Boxes.empty());
    }
}

void tst_FilePickers::AsksForAProperty() {
    FakeDialogs dialogs;
    dialogs.FileAnswers = {u"/app/Images/Flags/se.gif"_s, QString()};
    QCOMPARE(mduUILib::PickPropertyFile(dialogs, u" Flag File"_s, u".\\Images\\no.gif"_s, Paths()),
             u".\\Images\\Flags\\se.gif"_s);
    QCOMPARE(mduUILib::PickPropertyFile(dialogs, u"Flag File"_s, u"old"_s, Paths()), u"old"_s);
    QCOMPARE(dialogs.PickerTitles, (QStringList{u"Flag File"_s, u"Flag File"_s}));
    QCOMPARE(dialogs.PickerFolders,
             (QStringList{u"/app/Images/no.gif"_s, u"/app/Images/Flags/"_s}));
    QCOMPARE(mduUILib::PickPropertyFile(dialogs, u"Size"_s, u"3"_s, Paths()), u"3"_s);
    QCOMPARE(dialogs.PickerTitles.size(), 2);
}

void tst_FilePickers::AsksForAFileOfAKind() {
    FakeDialogs dialogs;
    dialogs.FileAnswers = {u"/b,c.ini"_s};
    QCOMPARE(mduUILib::PickFile(dialogs, u"Launch"_s, u"Time Zone"_s, Paths()), u"/b,c.ini"_s);
    QCOMPARE(dialogs.PickerTitles, QStringList{u"Launch"_s});
    QCOMPARE(dialogs.PickerFolders, QStringList{u"/app/anna/TimeZones/"_s});
    QCOMPARE(mduUILib::PickFile(dialogs, u"Launch"_s, u"Size"_s, Paths()), QString());
}

QTEST_GUILESS_MAIN(tst_FilePickers)
#include "tst_FilePickers.moc"
