#include <QTest>

#include "foundation/FileMenu.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// Files are told by their times of modification here: the fakes keep no others.
class tst_FileMenu : public QObject {
    Q_OBJECT

    std::unique_ptr<FakeServices> machine_;

    void Put(const QString& name, int day, int month, int second = 0) {
        const QString path = machine_->WriteFile(u"Styles/"_s + name, "x");
        const QDateTime used(QDate(2026, month, day), QTime(12, 0, second));
        QVERIFY(machine_->Files.SetModifiedSeconds(path, used.toSecsSinceEpoch()));
    }
    QStringList Menu(const QString& filter, const QString& current, int limit) const {
        return mduUILib::FillFileMenu(machine_->Files, machine_->AppFolder() + u"/Styles"_s, filter,
                                      current, limit);
    }

private Q_SLOTS:
    void init() { machine_ = std::make_unique<FakeServices>(); }

    void ByTheTextOfTheDate() {
        Put(u"January.ini"_s, 31, 1);
        Put(u"February.ini"_s, 2, 2);
        Put(u"June.ini"_s, 15, 6);
        Put(u"Later.ini"_s, 15, 6, 30);
        QCOMPARE(Menu({}, {}, 0),
                 QStringList({u"January"_s, u"Later"_s, u"June"_s, u"February"_s}));
    }

    void TheCurrentOneGoesFirst() {
        Put(u"A.ini"_s, 20, 6);
        Put(u"B.ini"_s, 10, 6);
        QCOMPARE(Menu({}, u"B"_s, 0), QStringList({u"B"_s, u"A"_s}));
        QCOMPARE(Menu({}, u"b"_s, 0), QStringList({u"b"_s, u"A"_s, u"B"_s}));
        QCOMPARE(Menu({}, u"Gone"_s, 2), QStringList({u"Gone"_s, u"A"_s}));
    }

    void NoMoreThanTheLimit() {
        for (int number = 10; number <= 21; ++number) {
            Put(u"Style %1.ini"_s.arg(number), number, 6);
        }
        const QStringList ten = Menu({}, {}, 10);
        QCOMPARE(ten.size(), 10);
        QCOMPARE(ten.first(), u"Style 21"_s);
        QCOMPARE(ten.last(), u"Style 12"_s);
        QCOMPARE(Menu({}, u"Style 10"_s, 10).mid(0, 2),
                 QStringList({u"Style 10"_s, u"Style 21"_s}));
        QCOMPARE(Menu({}, {}, 1), QStringList(u"Style 21"_s));
        QCOMPARE(Menu({}, {}, 0).size(), 12);
    }

    void TheFilterIsAPartOfTheName() {
        Put(u"Paris.ini"_s, 10, 6);
        Put(u"Paris.txt"_s, 11, 6);
        Put(u"ini Lima.txt"_s, 12, 6);
        QCOMPARE(Menu(u".ini"_s, {}, 0), QStringList(u"Paris"_s));
        QCOMPARE(Menu(u".INI"_s, {}, 0), QStringList());
        QCOMPARE(Menu(u"ini"_s, {}, 0), QStringList({u"ini Lima"_s, u"Paris"_s}));
    }

    void Names() {
        Put(u"No Extension"_s, 20, 6);
        Put(u"a.b.ini"_s, 19, 6);
        Put(u"Zürich & Köln.ini"_s, 18, 6);
        QCOMPARE(Menu({}, {}, 0), QStringList({u"No Extension"_s, u"a.b"_s, u"Zürich & Köln"_s}));
    }

    void NothingThere() {
        QCOMPARE(Menu({}, {}, 10), QStringList());
        QCOMPARE(Menu({}, u"Paris"_s, 10), QStringList(u"Paris"_s));
    }
};

QTEST_GUILESS_MAIN(tst_FileMenu)
#include "tst_FileMenu.moc"
