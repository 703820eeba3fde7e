#include "shell/ConfigSetup.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeDialogs.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

class tst_ConfigSetup : public QObject {
    Q_OBJECT

private:
    struct Desk : MachineWithZones {
        QStringList Told;
        std::function<void(const QString&)> Tell = [this](const QString& text) {
            if (!text.isEmpty()) {
                Told += text;
            }
        };
        shell::ShellSettings Settings{TheProgram, Tell};
        shell::UserLists Lists{TheProgram, Tell};
        bool Run(const QString& commandLine = {}) {
            Module.CommandLine = commandLine;
            return shell::ConfigSetup(TheProgram, Settings, Lists, Tell);
        }
    };

private Q_SLOTS:
    void CommandLines_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<bool>("namesAClock");
        QTest::addColumn<bool>("screenSaver");
        QTest::newRow("zone") << u" Tokyo Standard Time "_s << true << false;
        QTest::newRow("nothing") << QString() << false << false;
        QTest::newRow("blanks") << u"  "_s << false << false;
        QTest::newRow("screen saver") << u"/s"_s << false << true;
        QTest::newRow("nearly one") << u"/s "_s << true << false;
        QTest::newRow("a path") << u"../tokyo"_s << false << false;
    }

    void CommandLines() {
        QFETCH(QString, commandLine);
        QTEST(shell::NamesAClock(commandLine), "namesAClock");
        QTEST(shell::IsScreenSaverRun(commandLine), "screenSaver");
    }

    void LaysOutAndReads() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s, "Tool Bar=Left\r\n");
        QVERIFY(desk.Run());
        QCOMPARE(desk.Told, QStringList());
        QCOMPARE(desk.Settings.Setting(u"Tool Bar"_s), u"Left"_s);
        QVERIFY(desk.Machine.Files.Exists(desk.Machine.AppFolder() + u"/tester/TimeZones"_s));
    }

    void TellsWhatWentWrong() {
        Desk desk;
        const QString broken =
            desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s, "Dear Sir,\r\n");
        const QString list =
            desk.Machine.WriteFile(u"tester/AutoStart.txt"_s, QByteArray("GIF89a\0\0\xFF", 9));
        QVERIFY(desk.Run(u"../tokyo"_s));
        QCOMPARE(desk.Told.size(), 3);
        QCOMPARE(desk.Told[0], u"A time zone's name can't hold a path separator"_s);
        QCOMPARE(desk.Told[1], list + u" can't be read as a property file; it is left as it is"_s);
        QVERIFY(desk.Told[2].startsWith(broken + u" can't be read as settings;"_s));
    }

    void AFolderThatCantBeMade() {
        Desk desk;
        const QString inTheWay = desk.Machine.WriteFile(u"tester"_s, "in the way");
        QVERIFY(desk.Run());
        QVERIFY(desk.Told.contains(inTheWay + u" can't be made"_s));
    }

    void ClocksOfTheStart_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<QString>("refused");
        QTest::addColumn<QString>("launched");
        QTest::addColumn<bool>("any");
        QTest::newRow("no name") << QString() << QString() << u"B,A"_s << true;
        QTest::newRow("another") << u" C "_s << QString() << u"B,A,C"_s << true;
        QTest::newRow("one that starts by itself") << u"A"_s << QString() << u"B,A"_s << true;
        QTest::newRow("one that does no longer") << u"off"_s << QString() << u"B,A,off"_s << true;
        QTest::newRow("screen saver") << u"/s"_s << QString() << u"B,A"_s << true;
        QTest::newRow("only the named one") << u"C"_s << u"A,B"_s << u"B,A,C"_s << true;
        QTest::newRow("only the others") << u"C"_s << u"C"_s << u"B,A,C"_s << true;
        QTest::newRow("none") << u"C"_s << u"A,B,C"_s << u"B,A,C"_s << false;
    }

    void ClocksOfTheStart() {
        QFETCH(QString, commandLine);
        QFETCH(QString, refused);
        ModuleState module;
        module.CommandLine = commandLine;
        mduLib::PutProperty(u"B"_s, u"B"_s, module.AutoStartList);
        mduLib::PutProperty(u"off"_s, QString(), module.AutoStartList);
        mduLib::PutProperty(u"A"_s, u"A"_s, module.AutoStartList);
        QStringList launched;
        const bool any = shell::LaunchAtStart(module, [&](const QString& name) {
            launched += name;
            return !refused.split(u',').contains(name);
        });
        QTEST(launched.join(u','), "launched");
        QTEST(any, "any");
    }

    void EndsWithoutTheDefaultFile() {
        Desk desk;
        QVERIFY(QFile::remove(desk.Machine.AppFolder() + u"/ini/Tempolark.ini"_s));
        desk.Machine.Dialogs.BoxAnswers = {1};
        QVERIFY(!desk.Run());
    }
};

QTEST_GUILESS_MAIN(tst_ConfigSetup)
#include "tst_ConfigSetup.moc"
