#include "shell/ShellSettings.h"

#include <QTest>

#include "shell/SettingsDesk.h"

using namespace Qt::StringLiterals;

/// The settings by themselves, in a file of the test.
class tst_ShellSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ValuesOfKeys() {
        SettingsDesk desk;
        desk.Hold({{u"Tool Bar"_s, u"Left"_s},
                   {u"Window Title Bar"_s, u"no"_s},
                   {u"Window Left"_s, u"-1.5 twips"_s}});
        QCOMPARE(desk.Settings.Setting(u"Tool Bar"_s), u"Left"_s);
        QCOMPARE(desk.Settings.Setting(u"Status Bar"_s), u"0"_s);
        QVERIFY(!desk.Settings.Says(u"Window Title Bar"_s));
        QVERIFY(desk.Settings.Says(u"Tool Bar"_s));
        QCOMPARE(desk.Settings.Number(u"Window Left"_s), -1.5);
        QCOMPARE(desk.Settings.Number(u"Tool Bar"_s), 0.0);
    }

    void WhatIsPutIsWrittenLater() {
        SettingsDesk desk;
        desk.Store("Tool Bar=Top\r\n");
        desk.Hold({{u"Tool Bar"_s, u"Top"_s}});
        desk.Settings.Put(u"Tool Bar"_s, u"Left"_s);
        QCOMPARE(desk.Stored(), QByteArray("Tool Bar=Top\r\n"));
        desk.Settings.WriteSetting(u"Status Bar"_s, u"No"_s);
        QCOMPARE(desk.Stored(), QByteArray("Tool Bar=Left\r\nStatus Bar=No\r\n"));
        QCOMPARE(desk.Told, QStringList());
    }

    void AFileThatCantBeWrittenIsTold() {
        SettingsDesk desk;
        desk.Store("Tool Bar=Top\r\n");
        desk.Machine.Files.Unwritable += desk.Module.Paths.CentralFile;
        desk.Settings.SaveCentralSettings({});
        QVERIFY(!desk.Settings.WriteSettings());
        const QString message = desk.Module.Paths.CentralFile + u" can't be written"_s;
        QCOMPARE(desk.Told, (QStringList{message, message}));
    }

    void TheLookIsSaved() {
        SettingsDesk desk;
        desk.Store("Tool Bar=Top\r\n");
        desk.Settings.SaveCentralSettings({0x0000FF, 3, false, u"Small Size"_s, false, 2});
        QCOMPARE(desk.Stored(), QByteArray("Window Background Colour=Red\r\nTool Bar=Left:Hide\r\n"
                                           "Toolbar Size=Small Size\r\nStatus Bar=No\r\n"
                                           "Window State=Maximized\r\n"));
        QCOMPARE(desk.Told, QStringList{u"Saved the settings of Tempolark Central at 12:00:00"_s});
    }

    void TheToolbarAlone() {
        SettingsDesk desk;
        desk.Store("Tool Bar=Top\r\n");
        desk.Settings.PutToolbar({0, 2, true, u"Large Size"_s, false, 2});
        QVERIFY(desk.Settings.WriteSettings());
        QCOMPARE(desk.Stored(), QByteArray("Tool Bar=Bottom\r\nToolbar Size=Large Size\r\n"));
    }

    void WhatOthersWroteIsTakenOver() {
        SettingsDesk desk;
        desk.Hold({{u"Tool Bar"_s, u"Top"_s}});
        desk.Settings.ReadAgain();  // there is no file
        QCOMPARE(desk.Settings.Setting(u"Tool Bar"_s), u"Top"_s);
        desk.Store("Dear Sir,\r\n");
        desk.Settings.ReadAgain();
        QCOMPARE(desk.Settings.Setting(u"Tool Bar"_s), u"Top"_s);
        desk.Store("Tool Bar=Right\r\n");
        desk.Settings.ReadAgain();
        QCOMPARE(desk.Settings.Setting(u"Tool Bar"_s), u"Right"_s);
    }

    void ABrokenFileIsTold() {
        SettingsDesk desk;
        desk.Settings.TellBrokenSettings();
        desk.Store("Tool Bar=Right\r\n");
        desk.Settings.TellBrokenSettings();
        QCOMPARE(desk.Told, QStringList());
        desk.Store("Dear Sir,\r\n");
        desk.Settings.TellBrokenSettings();
        const QString path = desk.Module.Paths.CentralFile;
        QCOMPARE(desk.Told, QStringList{path +
                                        u" can't be read as settings; the defaults hold, and it is "
                                        "kept as "_s +
                                        path + u".broken"_s});
        desk.Machine.Files.Unreadable += path;
        desk.Settings.TellBrokenSettings();
        QVERIFY(desk.Told.last().endsWith(u"the defaults hold, and it is left as it is"_s));
    }
};

QTEST_GUILESS_MAIN(tst_ShellSettings)
#include "tst_ShellSettings.moc"
