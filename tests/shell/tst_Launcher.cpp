#include <QTest>

#include "shell/Launcher.h"
#include "support/FakeDialogs.h"
#include "support/FakeForms.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

class tst_Launcher : public QObject {
    Q_OBJECT

    struct Desk {
        FakeServices Machine;
        ModuleState Module;
        Forms Windows;
        QStringList Log, Status;
        std::vector<std::unique_ptr<FakeClock>> Clocks;
        shell::LastOpened LastOpened;
        bool Launches = true;
        shell::Launcher Launcher{{Machine.Services, Module, Windows},
                                 LastOpened,
                                 [this] {
                                     auto* clock = new FakeClock(Windows, u"new"_s, Log);
                                     clock->Launches = Launches;
                                     return clock;
                                 },
                                 [this](const QString& text) { Status += text; }};

        ~Desk() {
            while (Windows.Count() > 0) {
                delete &Windows[0];
            }
        }
    };

private Q_SLOTS:
    void SuccessIsTold() {
        Desk desk;
        desk.Module.CurrentProperties.Resize(25);
        const int handle = desk.Launcher.LaunchTempolark(u"India Standard Time"_s);
        QCOMPARE(handle, desk.Windows[0].hwnd());
        QCOMPARE(desk.Log, QStringList{u"India Standard Time: launch"_s});
        QCOMPARE(desk.Status,
                 (QStringList{QString(),
                              u"Launched Tempolark for India Standard Time successfully."_s}));
        QCOMPARE(desk.LastOpened.List()[1].Name, u"India Standard Time"_s);
    }

    void ShortFileIsTold() {
        Desk desk;
        desk.Module.CurrentProperties.Resize(24);
        QVERIFY(desk.Launcher.LaunchTempolark(u"A"_s) > 0);
        QCOMPARE(desk.Status.last(),
                 u"The property file of the time zone has been corrupted, please open the "
                 "property window and then refresh it by default"_s);
        QCOMPARE(desk.Windows.Count(), 1);
    }

    void FailureIsTold() {
        Desk desk;
        desk.Launches = false;
        QCOMPARE(desk.Launcher.LaunchTempolark(u"A"_s), 0);
        QCOMPARE(desk.Status,
                 QStringList{u"Failed to launch Tempolark for A due to run of memory."_s});
        QCOMPARE(desk.Windows.Count(), 0);
        QCOMPARE(desk.LastOpened.List()[1].Name, QString());
    }

    void OpenClockComesToTheFront() {
        Desk desk;
        const int handle = desk.Launcher.LaunchTempolark(u"UTC"_s);
        desk.Launcher.LaunchTempolark(u"Tokyo"_s);
        desk.Log.clear();
        desk.Status.clear();
        QCOMPARE(desk.Launcher.LaunchTempolark(u"UTC.ini"_s), handle);
        QCOMPARE(desk.Windows.Count(), 2);
        QCOMPARE(desk.Log, (QStringList{u"UTC: show"_s, u"UTC: focus"_s}));
        QCOMPARE(desk.Status, QStringList{u"Tempolark for UTC.ini is open already."_s});
        QCOMPARE(desk.LastOpened.List()[1].Name, u"UTC.ini"_s);
    }

    void EmptyNameIsTheMachinesZone() {
        Desk desk;
        desk.Machine.Zones.Local = {
            1, 480, u"Pacific Standard Time"_s, {}, 0, u"Pacific Daylight Time"_s, {}, -60};
        desk.Launcher.LaunchTempolark({});
        QCOMPARE(desk.Log, QStringList{u"Pacific Standard Time: launch"_s});
    }

    void FileDialog_data() {
        QTest::addColumn<QString>("picked");
        QTest::addColumn<QStringList>("log");
        QTest::newRow("a file") << u"/x/y/Tokyo.ini"_s << QStringList{u"Tokyo: launch"_s};
        QTest::newRow("capitals") << u"/x/Tokyo.INI"_s << QStringList{u"Tokyo: launch"_s};
        QTest::newRow("cancelled") << QString() << QStringList{};
        QTest::newRow("no property file") << u"/x/Tokyo.txt"_s << QStringList{};
    }

    void FileDialog() {
        QFETCH(QString, picked);
        Desk desk;
        desk.Module.Paths.ZoneFileFolder = u"/zones/"_s;
        desk.Machine.Dialogs.FileAnswers = {picked};
        desk.Launcher.LaunchFromFileDialog();
        QTEST(desk.Log, "log");
        QCOMPARE(desk.Machine.Dialogs.PickerTitles, QStringList{u"Launch Tempolark"_s});
        QCOMPARE(desk.Machine.Dialogs.PickerFolders, QStringList{u"/zones/"_s});
    }
};

QTEST_GUILESS_MAIN(tst_Launcher)
#include "tst_Launcher.moc"
