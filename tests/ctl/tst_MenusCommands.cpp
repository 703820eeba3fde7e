#include <QDateTime>

#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_MenusCommands : public QObject {
    Q_OBJECT

    static QStringList Captions(const CompanionAnswer& answer) {
        QStringList captions;
        for (const QJsonValue& caption : answer.Array()) {
            captions += caption.toString();
        }
        return captions;
    }

    /// A file that was used on that day of June.
    static void Put(const Companion& companion, const QString& name, int day) {
        QFile file(companion.Write(u"Styles/"_s + name, "x"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime used(QDate(2026, 6, day), QTime(12, 0));
        QVERIFY(file.setFileTime(used, QFileDevice::FileModificationTime));
        QVERIFY(file.setFileTime(used, QFileDevice::FileAccessTime));
    }

private Q_SLOTS:
    void FilesByTheirLastUse() {
        const Companion companion;
        for (int day = 10; day <= 21; ++day) {
            Put(companion, u"Style %1.ini"_s.arg(day), day);
        }
        const CompanionAnswer ten =
            companion.Run({u"menus"_s, u"files"_s, u"Styles"_s, u"--limit"_s, u"10"_s});
        QCOMPARE(ten.Status, 0);
        QCOMPARE(Captions(ten).size(), 11);
        QCOMPARE(Captions(ten).first(), u"Style 21"_s);
        QCOMPARE(Captions(ten).value(9), u"Style 12"_s);
        QCOMPARE(Captions(ten).last(), u"More"_s);
        QCOMPARE(
            Captions(companion.Run({u"menus"_s, u"files"_s, u"Styles"_s, u"--filter"_s, u" 1"_s,
                                    u"--current"_s, u"Mine"_s, u"--limit"_s, u"3"_s})),
            QStringList({u"Mine"_s, u"Style 19"_s, u"Style 18"_s, u"More"_s}));
        QCOMPARE(Captions(companion.Run({u"menus"_s, u"files"_s, u"Styles"_s})).size(), 13);
    }

    void NoFiles() {
        const CompanionAnswer answer = Companion().Run({u"menus"_s, u"files"_s, u"None"_s});
        QCOMPARE(answer.Output, "[\"More\"]\n");
        QCOMPARE(answer.Status, 0);
    }

    void Times_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("ends");
        QTest::addColumn<int>("status");
        QTest::newRow("hour") << QStringList{u"times"_s, u"3"_s} << u"03:00 03:55"_s << 0;
        QTest::newRow("spot") << QStringList{u"times"_s, u"3:12"_s} << u"03:12 03:23"_s << 0;
        QTest::newRow("minutes") << QStringList{u"minutes"_s, u"5"_s} << u"5 16"_s << 0;
        QTest::newRow("below 0") << QStringList{u"minutes"_s, u"-3"_s} << u"-3 8"_s << 0;
        QTest::newRow("empty") << QStringList{u"times"_s, QString()} << u" "_s << 0;
        QTest::newRow("no time") << QStringList{u"times"_s, u"noon"_s} << u" "_s << 1;
    }

    void Times() {
        QFETCH(QStringList, arguments);
        const CompanionAnswer answer = Companion().Run(QStringList{u"menus"_s} + arguments);
        QTEST(answer.Status, "status");
        QVERIFY(answer.Json().isArray());
        const QStringList captions = Captions(answer);
        QTEST(captions.value(0) + u' ' + captions.value(captions.size() - 1), "ends");
        QCOMPARE(captions.size(), captions.isEmpty() ? 0 : 12);
    }

    void WrongArguments_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no folder") << QStringList{u"files"_s};
        QTest::newRow("limit of no number")
            << QStringList{u"files"_s, u"."_s, u"--limit"_s, u"ten"_s};
        QTest::newRow("limit below 0") << QStringList{u"files"_s, u"."_s, u"--limit"_s, u"-1"_s};
        QTest::newRow("start of no number") << QStringList{u"minutes"_s, u"five"_s};
        QTest::newRow("no time given") << QStringList{u"times"_s};
    }

    void WrongArguments() {
        QFETCH(QStringList, arguments);
        QCOMPARE(Companion().Run(QStringList{u"menus"_s} + arguments).Status, 2);
    }

    /// An entry of the clock's menu by its name; empty where there is none.
    static QJsonObject Entry(const CompanionAnswer& answer, const QString& name) {
        for (const QJsonValue& entry : answer.Array()) {
            if (entry[u"name"_s].toString() == name) {
                return entry.toObject();
            }
        }
        return {};
    }
    static QStringList Children(const QJsonObject& entry, bool tickedOnly = false) {
        QStringList captions;
        for (const QJsonValue& child : entry[u"children"_s].toArray()) {
            if (!tickedOnly || child[u"checked"_s].toBool()) {
                captions += child[u"caption"_s].toString();
            }
        }
        return captions;
    }

    void TheMenuOfAClock() {
        const Companion companion;
        Put(companion, u"Oak.ini"_s, 10);
        Put(companion, u"Elm.ini"_s, 12);
        companion.Write(u"app/tester/TimeZones/Tokyo.ini"_s, "x");
        companion.Write(u"India.ini"_s,
                        "Clock:Clocks=Digital,Analogue,Digital\r\nClock:Enable=No\r\n"
                        "Window:Window State=Maximized\r\n"
                        "Window:Window Background Colour=Transparent\r\n"
                        "Time Zone:Time Zone Label Size=0\r\n");
        const CompanionAnswer answer =
            companion.Run({u"--app-folder"_s, u"app"_s, u"--user"_s, u"tester"_s, u"menus"_s,
                           u"clock"_s, u"India.ini"_s, u"--style-folder"_s, u"Styles"_s});
        QCOMPARE(answer.Status, 0);
        QStringList names;
        for (const QJsonValue& entry : answer.Array()) {
            names +=
                entry[u"caption"_s].toString() == u"-"_s ? u"-"_s : entry[u"name"_s].toString();
        }
        QCOMPARE(names.join(u' '),
                 u"Clocks ClockStyle WindowState windowPositionMenu ClockColour Restore - "
                 "SelectCountry ChooseTimeZones ShowTimeZoneDetails - "
                 "AutoStart ScreenSaverMenu EnableActive - Help About Close - "
                 "SaveStyle SaveStyleAs PropertyMenu HiddenParts"_s);
        QCOMPARE(Children(Entry(answer, u"HiddenParts"_s)), QStringList(u"Zone Name"_s));
        QCOMPARE(Children(Entry(answer, u"ClockStyle"_s)),
                 QStringList({u"Elm"_s, u"Oak"_s, u"More"_s}));
        QCOMPARE(Children(Entry(answer, u"SelectCountry"_s)),
                 QStringList({u"India"_s, u"Tokyo"_s, u"More"_s}));
        const std::pair<QString, QString> ticks[] = {{u"Clocks"_s, u"Digital"_s},
                                                     {u"WindowState"_s, u"Maximized"_s},
                                                     {u"ClockColour"_s, u"Transparent"_s},
                                                     {u"ScreenSaverMenu"_s, u""_s}};
        for (const auto& [entry, ticked] : ticks) {
            QCOMPARE(Children(Entry(answer, entry), true).join(u'|'), ticked);
        }
        QCOMPARE(Entry(answer, u"AutoStart"_s)[u"caption"_s].toString(),
                 u"Enable India Auto Start"_s);
        QCOMPARE(Entry(answer, u"EnableActive"_s)[u"caption"_s].toString(), u"Enable Clock"_s);
        const QJsonObject help = Entry(answer, u"Help"_s);
        QCOMPARE(help, (QJsonObject{{u"name"_s, u"Help"_s},
                                    {u"caption"_s, u"Help"_s},
                                    {u"checked"_s, false},
                                    {u"enabled"_s, true},
                                    {u"children"_s, QJsonArray()}}));
    }

    void TheStylesOfTheFolder() {
        const Companion companion;
        companion.Write(u"app/Styles/Oak.ini"_s, "x");
        companion.Write(u"India.ini"_s, "Clock:Clocks=Analogue\r\n");
        const CompanionAnswer answer =
            companion.Run({u"--app-folder"_s, u"app"_s, u"menus"_s, u"clock"_s, u"India.ini"_s});
        QCOMPARE(Children(Entry(answer, u"ClockStyle"_s)), QStringList({u"Oak"_s, u"More"_s}));
    }

    void NoClockNoMenu() {
        const CompanionAnswer answer = Companion().Run({u"menus"_s, u"clock"_s, u"None.ini"_s});
        QCOMPARE(answer.Status, 1);
        QCOMPARE(answer.Output, "[]\n");
        QVERIFY(answer.Messages.contains("None.ini"));
    }
};

QTEST_GUILESS_MAIN(tst_MenusCommands)
#include "tst_MenusCommands.moc"
