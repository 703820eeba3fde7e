#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/TzFolder.h"

using namespace Qt::StringLiterals;

namespace {

int OffsetIn(const QTimeZone& zone, const QDate& date) {
    return zone.offsetFromUtc(QDateTime(date, QTime(12, 0), Qt::UTC));
}

}  // namespace

class tst_TzFolder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { qputenv("TZDIR", zones_); }
    void cleanupTestCase() { qputenv("TZDIR", zones_); }

    void ReadsTheNamedFolder();
    void FollowsALinkToTheFolder();
    void RefusesWhatTheFolderLacks_data();
    void RefusesWhatTheFolderLacks();
    void ReadsTheMachinesFolder();
    void NoIdentifierIsTheMachinesZone();
    void TellsTheEdition_data();
    void TellsTheEdition();

private:
    QByteArray zones_ = qgetenv("TZDIR");
};

// The fast of Ramadan is in the tests' database for 2026 alone.
void tst_TzFolder::ReadsTheNamedFolder() {
    QCOMPARE(OffsetIn(platform::TzZone("Africa/Casablanca"), QDate(2026, 3, 1)), 0);
    QCOMPARE(OffsetIn(platform::TzZone("Africa/Casablanca"), QDate(2024, 3, 20)), 3600);
    QVERIFY(platform::TzFile(u"zone.tab"_s).startsWith("# Where the cities of the tests'"));
    QCOMPARE(platform::TzFile(u"no.tab"_s), QByteArray());
}

void tst_TzFolder::FollowsALinkToTheFolder() {
    const QTemporaryDir folder;
    const QString link = folder.filePath(u"a link, with blanks"_s);
    QVERIFY(QFile::link(QFile::decodeName(zones_), link));
    qputenv("TZDIR", QFile::encodeName(link));
    QCOMPARE(OffsetIn(platform::TzZone("Asia/Tokyo"), QDate(2026, 6, 15)), 32400);
}

void tst_TzFolder::RefusesWhatTheFolderLacks_data() {
    QTest::addColumn<QByteArray>("iana");
    QTest::newRow("zone of the machine alone") << "America/Thule"_ba;
    QTest::newRow("folder") << "America"_ba;
    QTest::newRow("no zone") << "zone.tab"_ba;
    QTest::newRow("unknown") << "Nowhere/Land"_ba;
    QTest::newRow("garbage") << "\xff\x01/.."_ba;
}

void tst_TzFolder::RefusesWhatTheFolderLacks() {
    QFETCH(QByteArray, iana);
    QVERIFY(!platform::TzZone(iana).isValid());
}

void tst_TzFolder::ReadsTheMachinesFolder() {
    qunsetenv("TZDIR");
    QCOMPARE(platform::TzZone("Asia/Tokyo"), QTimeZone("Asia/Tokyo"));
    QVERIFY(platform::TzZone("America/Thule").isValid());
    QVERIFY(!platform::TzZone("Nowhere/Land").isValid());
    QVERIFY(platform::TzFile(u"zone.tab"_s).contains("America/Thule"));
}

void tst_TzFolder::NoIdentifierIsTheMachinesZone() {
    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", "America/Vancouver");
    const QDate winter(2026, 12, 1);
    const QTimeZone own = platform::TzZone({});
    qputenv("TZ", "Nowhere/Land");
    const QTimeZone odd = platform::TzZone({});
    qunsetenv("TZDIR");
    const QTimeZone machine = platform::TzZone({});
    before.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", before);
    QCOMPARE(OffsetIn(own, winter), -25200);
    QCOMPARE(odd, machine);
}

void tst_TzFolder::TellsTheEdition_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("edition");
    QTest::newRow("as text") << "tzdata.zi"_ba
                             << "# version 2019c\n# This zic input file\nR d 1916 o\n"_ba
                             << u"2019c"_s;
    QTest::newRow("other lines") << "tzdata.zi"_ba
                                 << "\xef\xbb\xbf"
                                    "# version\n"_ba
                                 << QString();
    QTest::newRow("by itself") << "+VERSION"_ba
                               << "2018i\n"_ba << u"2018i"_s;
    QTest::newRow("without an end") << "+VERSION"_ba
                                    << "2018i"_ba << u"2018i"_s;
    QTest::newRow("nothing") << "other"_ba
                             << "2018i"_ba << QString();
}

void tst_TzFolder::TellsTheEdition() {
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    QFile edition(folder.filePath(QString::fromLatin1(file)));
    QVERIFY(edition.open(QIODevice::WriteOnly) && edition.write(content) == content.size());
    edition.close();
    qputenv("TZDIR", QFile::encodeName(folder.path()));
    QTEST(platform::TzEdition(), "edition");
}

QTEST_GUILESS_MAIN(tst_TzFolder)
#include "tst_TzFolder.moc"
