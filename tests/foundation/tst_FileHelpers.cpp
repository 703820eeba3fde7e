#include <QTest>

#include "foundation/FileHelpers.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

class tst_FileHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void mapsPaths();
    void findsFiles();
    void trimsPaths();
    void makesOneFolder();
    void copies();
    void tellsOfAFailedCopy();
    void deletes();
    void tellsTheModifiedTime();
    void addsTheExtension_data();
    void addsTheExtension();
    void stripsTheExtension_data();
    void stripsTheExtension();
    void takesBaseNames_data();
    void takesBaseNames();
    void resolvesPaths_data();
    void resolvesPaths();
    void writesText();
    void listsFolders();
    void comparesAges();
    void checksZoneNames_data();
    void checksZoneNames();
    void namesTheFilesOfAZone();
};

void tst_FileHelpers::mapsPaths() {
    QCOMPARE(mduLib::ToNativePath(u".\\Music\\a/b.mp3"_s), u"./Music/a/b.mp3"_s);
    QCOMPARE(mduLib::ToStoredPath(u"./Music/a.mp3"_s), u".\\Music\\a.mp3"_s);
}

void tst_FileHelpers::findsFiles() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a.txt"_s, "a");
    QVERIFY(mduLib::FileExists(machine.Files, path));
    QVERIFY(!mduLib::FileExists(machine.Files, path + u' '));
    QVERIFY(!mduLib::FileExists(machine.Files, machine.WriteFile(u"-1"_s, "a")));
    QVERIFY(mduLib::FileExists(machine.Files, machine.WriteFile(u"x-1"_s, "a")));
    QVERIFY(!mduLib::FileExists(machine.Files, machine.AppFolder()));
    QVERIFY(!mduLib::FileExists(machine.Files, machine.AppFolder() + u"/missing"_s));
    QVERIFY(!mduLib::FileExists(machine.Files, QString()));
}

void tst_FileHelpers::trimsPaths() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"-1"_s, "a");
    QString asked = u"  "_s + path + u' ';
    QVERIFY(mduLib::TrimmedFileExists(machine.Files, asked));
    QCOMPARE(asked, path);
    asked = u"   "_s;
    QVERIFY(!mduLib::TrimmedFileExists(machine.Files, asked));
    QCOMPARE(asked, QString());
}

void tst_FileHelpers::makesOneFolder() {
    FakeServices machine;
    const QString folder = machine.AppFolder() + u"/One/"_s;
    mduLib::EnsureFolder(machine.Files, u" "_s + folder);
    QVERIFY(QDir(folder).exists());
    mduLib::EnsureFolder(machine.Files, folder);
    mduLib::EnsureFolder(machine.Files, machine.AppFolder() + u"/Two/Three/"_s);
    QVERIFY(!QDir(machine.AppFolder() + u"/Two"_s).exists());
    mduLib::EnsureFolder(machine.Files, machine.WriteFile(u"plain"_s, "a"));
    QCOMPARE(machine.ReadFile(u"plain"_s), "a"_ba);
}

void tst_FileHelpers::copies() {
    FakeServices machine;
    const QString from = machine.WriteFile(u"from"_s, "new");
    const QString to = machine.WriteFile(u"to"_s, "old");
    QVERIFY(!mduLib::CopyFileTo(machine.Files, from, to, false));
    QCOMPARE(machine.ReadFile(u"to"_s), "old"_ba);
    QVERIFY(mduLib::CopyFileTo(machine.Files, from, to, true));
    QCOMPARE(machine.ReadFile(u"to"_s), "new"_ba);
    QVERIFY(mduLib::CopyFileTo(machine.Files, from, machine.AppFolder() + u"/other"_s, false));
    QCOMPARE(machine.ReadFile(u"other"_s), "new"_ba);
}

void tst_FileHelpers::tellsOfAFailedCopy() {
    FakeServices machine;
    const QString from = machine.WriteFile(u"from"_s, "new");
    const QString to = machine.WriteFile(u"to"_s, "old");
    QVERIFY(!mduLib::CopyFileTo(machine.Files, machine.AppFolder() + u"/missing"_s, to, true));
    machine.Files.Unwritable = {to};
    QVERIFY(!mduLib::CopyFileTo(machine.Files, from, to, true));
    QCOMPARE(machine.ReadFile(u"to"_s), "old"_ba);
    QVERIFY(!mduLib::CopyFileTo(machine.Files, from, machine.AppFolder() + u"/no/file"_s, true));
}

void tst_FileHelpers::deletes() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a"_s, "a");
    mduLib::DeleteFileNow(machine.Files, path);
    QVERIFY(!QFile::exists(path));
    mduLib::DeleteFileNow(machine.Files, path);
}

void tst_FileHelpers::tellsTheModifiedTime() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a"_s, "a");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2008, 3, 25), QTime(9, 5, 7), Qt::UTC),
                             QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(mduLib::FileModifiedTime(machine.Files, path, 4), u"25/03/2008 9:05:07"_s);
    QCOMPARE(mduLib::FileModifiedTime(machine.Files, path, 3), QString());
    QCOMPARE(mduLib::FileModifiedTime(machine.Files, path + u'x', 4), QString());
}

void tst_FileHelpers::addsTheExtension_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::newRow("plain") << u"Tokyo"_s << u"Tokyo.ini"_s;
    QTest::newRow("there") << u"Tokyo.INI"_s << u"Tokyo.INI"_s;
    QTest::newRow("anywhere") << u"a.ini.bak"_s << u"a.ini.bak"_s;
    QTest::newRow("another") << u"a.txt"_s << u"a.txt.ini"_s;
    QTest::newRow("empty") << QString() << u".ini"_s;
}

void tst_FileHelpers::addsTheExtension() {
    QFETCH(QString, name);
    QTEST(mduLib::AddIniExtension(name), "file");
}

void tst_FileHelpers::stripsTheExtension_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stem");
    QTest::newRow("there") << u"Tokyo.Ini"_s << u"Tokyo"_s;
    QTest::newRow("not at the end") << u"a.ini.bak"_s << u"a.ini.bak"_s;
    QTest::newRow("none") << u"Tokyo"_s << u"Tokyo"_s;
    QTest::newRow("one alone") << u"a.ini.ini"_s << u"a.ini"_s;
}

void tst_FileHelpers::stripsTheExtension() {
    QFETCH(QString, name);
    QTEST(mduLib::StripIniExtension(name), "stem");
}

void tst_FileHelpers::takesBaseNames_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stem");
    QTest::newRow("slash") << u"/a/b/c.ini"_s << u"c.ini"_s << u"c"_s;
    QTest::newRow("backslash") << u"C:\\a\\c.ini"_s << u"c.ini"_s << u"c"_s;
    QTest::newRow("slash wins") << u"/a/b\\c.ini"_s << u"b\\c.ini"_s << u"b\\c"_s;
    QTest::newRow("name alone") << u"c.ini"_s << u"c.ini"_s << u"c"_s;
    QTest::newRow("no extension") << u"/a.b/c"_s << u"c"_s << u"c"_s;
    QTest::newRow("last point") << u"W. Europe Standard Time.ini"_s
                                << u"W. Europe Standard Time.ini"_s << u"W. Europe Standard Time"_s;
    QTest::newRow("folder") << u"/a/"_s << QString() << QString();
}

void tst_FileHelpers::takesBaseNames() {
    QFETCH(QString, path);
    QTEST(mduLib::FileBaseName(path, true), "name");
    QTEST(mduLib::FileBaseName(path, false), "stem");
}

void tst_FileHelpers::resolvesPaths_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("resolved");
    QTest::newRow("relative") << u".\\Images\\a.gif"_s << u"/app/Images/a.gif"_s;
    QTest::newRow("the folder itself") << u".\\"_s << u"/app/"_s;
    QTest::newRow("full") << u"/home/a.gif"_s << u"/home/a.gif"_s;
    QTest::newRow("of another system") << u"C:\\a.gif"_s << u"C:/a.gif"_s;
    QTest::newRow("slash is no prefix") << u"./a.gif"_s << u"./a.gif"_s;
    QTest::newRow("two points") << u"..\\a.gif"_s << u"../a.gif"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_FileHelpers::resolvesPaths() {
    QFETCH(QString, path);
    QTEST(mduLib::ResolveAppPath(path, u"/app"_s), "resolved");
}

void tst_FileHelpers::writesText() {
    FakeServices machine;
    const QString path = machine.WriteFile(u"a"_s, "longer than the new one");
    QVERIFY(mduLib::WriteTextFile(machine.Files, u"é,b,"_s, path));
    QCOMPARE(machine.ReadFile(u"a"_s), "\xC3\xA9,b,\r\n"_ba);
    machine.Files.Unwritable = {path};
    QVERIFY(!mduLib::WriteTextFile(machine.Files, u"x"_s, path));
}

void tst_FileHelpers::listsFolders() {
    FakeServices machine;
    machine.WriteFile(u"f/one.ini"_s, "");
    machine.WriteFile(u"f/two.ini"_s, "");
    machine.WriteFile(u"f/three.txt"_s, "");
    machine.WriteFile(u"f/four.ini/five"_s, "");
    const QString folder = machine.AppFolder() + u"/f/"_s;
    QStringList names =
        mduLib::ListFolderFiles(machine.Files, folder, u".ini"_s, u"@"_s).split(u'@');
    names.sort();
    QCOMPARE(names, (QStringList{QString(), u"one.ini"_s, u"two.ini"_s}));
    QCOMPARE(mduLib::ListFolderFiles(machine.Files, folder, QString(), u"@"_s).count(u'@'), 3);
    QCOMPARE(mduLib::ListFolderFiles(machine.Files, folder, u"three"_s, u", "_s), u"three.txt, "_s);
    QCOMPARE(mduLib::ListFolderFiles(machine.Files, folder + u"missing"_s, QString(), u"@"_s),
             QString());
}

void tst_FileHelpers::comparesAges() {
    FakeServices machine;
    const QString user = machine.WriteFile(u"user"_s, "a");
    const QString standard = machine.WriteFile(u"default"_s, "a");
    machine.SetAge(u"user"_s, 100);
    machine.SetAge(u"default"_s, 99);
    QVERIFY(mduLib::IsOlderThan(machine.Files, user, standard));
    machine.SetAge(u"default"_s, 200);
    QVERIFY(!mduLib::IsOlderThan(machine.Files, user, standard));
    QVERIFY(!mduLib::IsOlderThan(machine.Files, user, user));
    QVERIFY(!mduLib::IsOlderThan(machine.Files, user, machine.AppFolder() + u"/missing"_s));
    QVERIFY(!mduLib::IsOlderThan(machine.Files, machine.AppFolder() + u"/missing"_s, standard));
}

void tst_FileHelpers::checksZoneNames_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("good");
    QTest::newRow("plain") << u"Pacific Standard Time"_s << true;
    QTest::newRow("points and brackets") << u"W. Europe (Montréal)"_s << true;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("screen saver") << u"/s"_s << true;
    QTest::newRow("slash") << u"a/b"_s << false;
    QTest::newRow("more than the screen saver") << u"/s/x"_s << false;
    QTest::newRow("backslash") << u"a\\b"_s << false;
    QTest::newRow("parent") << u".."_s << false;
    QTest::newRow("two points") << u"a..b"_s << false;
    QTest::newRow("line end") << u"a\nb"_s << false;
    QTest::newRow("NUL") << QString(QChar::Null) << false;
    QTest::newRow("delete") << u"a\u007F"_s << false;
    QTest::newRow("200 bytes") << QString(200, u'a') << true;
    QTest::newRow("201 bytes") << QString(201, u'a') << false;
    QTest::newRow("101 letters of two bytes") << QString(101, u'é') << false;
}

void tst_FileHelpers::checksZoneNames() {
    QFETCH(QString, name);
    QTEST(mduLib::ZoneNameProblem(name).isEmpty(), "good");
}

void tst_FileHelpers::namesTheFilesOfAZone() {
    QCOMPARE(mduLib::ZoneFileStem(u"Tokyo"_s), u"Tokyo"_s);
    QCOMPARE(mduLib::ZoneFileStem(u"/s"_s), u"s"_s);
}

QTEST_GUILESS_MAIN(tst_FileHelpers)
#include "tst_FileHelpers.moc"
