#include <QTest>

#include "foundation/PropertyLookup.h"
#include "shell/ShellDesk.h"
#include "shell/ui/ToolBar.h"

static const QString Settings = u"TempolarkCentral.ini"_s;
static const QString Kept = u"TempolarkCentral.ini.broken"_s;

/// The shell whose settings came to harm.
class tst_BrokenSettings : public QObject {
    Q_OBJECT

private:
    static void Harm_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("binary") << QByteArray("GIF89a\0\0\xFF", 9);
        QTest::newRow("another text") << QByteArray("Dear Sir,\r\n");
        QTest::newRow("too long") << QByteArray("Status Bar=No\r\n").repeated(40000);
    }

private Q_SLOTS:
    void TheDefaultsHold_data() { Harm_data(); }

    void TheDefaultsHold() {
        QFETCH(QByteArray, content);
        Desk desk;
        const QString path = desk.Machine.WriteFile(u"tester/"_s + Settings, content);
        QVERIFY(desk.Start());
        QCOMPARE(desk.Status(), path +
                                    u" can't be read as settings; the defaults hold, and it is "
                                    "kept as "_s +
                                    path + u".broken"_s);
        const auto* bar = desk.Shell->findChild<ToolBar*>();
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->SizeName(), u"Large Size"_s);
        QVERIFY(desk.Shell->findChild<StatusBar*>()->isVisible());
        QCOMPARE(desk.Shell->BackColor(), 8411709);
        QCOMPARE(desk.Shell->size(), QSize(800, 700));
        QVERIFY(desk.User(Settings) == content);  // nothing has been written yet

        desk.Stop();
        QVERIFY(desk.User(Kept) == content);
        const QString saved = QString::fromUtf8(desk.User(Settings));
        QVERIFY(saved.contains(u"Toolbar Size=Large Size,Small Size,"_s));
        QVERIFY(saved.contains(u"Heading Variation=Bend Up,Rotation,"_s));
        QCOMPARE(saved.count(u'\n'), 16);

        QVERIFY(desk.Start());
        QCOMPARE(desk.Status(), QString());
        desk.Stop();
        QVERIFY(!desk.Machine.Files.Exists(desk.Machine.AppFolder() + u"/tester/"_s + Kept + u'2'));
    }

    /// The default is newer here: a merge would make a whole file, and nobody would hear of it.
    void AnOldOneIsNotMerged() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/"_s + Settings, "Dear Sir,\r\n");
        desk.Machine.SetAge(u"tester/"_s + Settings, 7200);
        QVERIFY(desk.Start());
        QVERIFY(desk.Status().contains(Kept));
        desk.Stop();
        QCOMPARE(desk.User(Kept), QByteArray("Dear Sir,\r\n"));
    }

    void ASettingIsSavedAtOnce() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/"_s + Settings, "Dear Sir,\r\n");
        QVERIFY(desk.Start());
        desk.ClickItem(u"HideStatusBar"_s, 1);
        QVERIFY(desk.User(Settings).contains("Status Bar=No,Yes,No\r\n"));
        QCOMPARE(desk.User(Kept), QByteArray("Dear Sir,\r\n"));
    }

    void HarmDuringTheRun() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.ClickItem(u"HideStatusBar"_s, 1);
        desk.Machine.WriteFile(u"tester/"_s + Settings, "Dear Sir,\r\n");
        desk.Stop();
        QVERIFY(desk.User(Settings).contains("Status Bar=No,Yes,No\r\n"));
        QCOMPARE(desk.User(Kept), QByteArray("Dear Sir,\r\n"));
    }

    void WhatCantBeReadIsLeft() {
        Desk desk;
        const QString path =
            desk.Machine.WriteFile(u"tester/"_s + Settings, "Toolbar Size=Small Size\r\n");
        desk.Machine.Files.Unreadable += path;
        QVERIFY(desk.Start());
        QCOMPARE(
            desk.Status(),
            path + u" can't be read as settings; the defaults hold, and it is left as it is"_s);
        QCOMPARE(desk.Shell->findChild<ToolBar*>()->SizeName(), u"Large Size"_s);
        desk.Stop();
        QCOMPARE(desk.User(Settings), QByteArray("Toolbar Size=Small Size\r\n"));
        QVERIFY(!desk.Machine.Files.Exists(path + u".broken"_s));
    }
};

QTEST_MAIN(tst_BrokenSettings)
#include "tst_BrokenSettings.moc"
