#include "shell/UserLists.h"

#include <QTest>

#include "foundation/PropertyFile.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

/// The lists of the user, in files of the test.
class tst_UserLists : public QObject {
    Q_OBJECT

private:
    struct Desk : MachineWithZones {
        QStringList Told;
        shell::UserLists Lists{TheProgram, [this](const QString& text) { Told += text; }};
        QString File(const QString& name, const QByteArray& content) {
            return Machine.WriteFile(name, content);
        }
        explicit Desk(const QByteArray& autoStart = {}) {
            Module.Paths.DataFolder = Machine.AppFolder() + u"/tester"_s;
            Module.Paths.AutoStartFile = File(u"tester/AutoStart.txt"_s, autoStart);
            mduLib::ReadPropertyFile(Machine.Files, Module.Paths.AutoStartFile,
                                     Module.AutoStartList);
        }
    };

private Q_SLOTS:
    void KeepsTheClocksOpenedLast() {
        Desk desk;
        desk.File(u"tester/OpenedForms.txt"_s, "UTC=\r\n");
        desk.Lists.LoadOpenedForms();
        desk.Lists.Opened().PushLastOpened(u"Tokyo Standard Time"_s);
        QVERIFY(desk.Lists.SaveOpenedForms());
        QCOMPARE(desk.Machine.ReadFile(u"tester/OpenedForms.txt"_s),
                 QByteArray("Tokyo Standard Time=\r\nUTC=\r\n"));
        QCOMPARE(desk.Told, QStringList());
    }

    void TellsWhatCantBeWritten() {
        Desk desk;
        const QString opened = desk.File(u"tester/OpenedForms.txt"_s, "UTC=\r\n");
        desk.Machine.Files.Unwritable += opened;
        desk.Machine.Files.Unwritable += desk.Module.Paths.AutoStartFile;
        QVERIFY(!desk.Lists.SaveOpenedForms());
        desk.Lists.SaveAutoStartList();
        QCOMPARE(desk.Told,
                 (QStringList{opened + u" can't be written"_s,
                              desk.Module.Paths.AutoStartFile + u" can't be written"_s}));
    }

    void TellsWhatCantBeRead() {
        Desk desk(QByteArray("GIF89a\0\0\xFF", 9));
        desk.File(u"tester/OpenedForms.txt"_s, "UTC=\r\n");
        desk.Lists.TellUnreadableLists();
        QCOMPARE(desk.Told,
                 QStringList{desk.Module.Paths.AutoStartFile +
                             u" can't be read as a property file; it is left as it is"_s});
    }

    void AClockTellsWhetherItStarts() {
        Desk desk("Tokyo=Tokyo\r\n");
        desk.Lists.SetAutoStart(u"Paris, Texas"_s, true);
        desk.Lists.SetAutoStart(u"Tokyo"_s, false);
        QCOMPARE(desk.Machine.ReadFile(u"tester/AutoStart.txt"_s),
                 QByteArray("Tokyo=\r\nParis, Texas=Paris, Texas\r\n"));
    }

    void AZoneThatIsGoneStartsNoMore() {
        Desk desk("UTC=UTC\r\nTokyo=Tokyo\r\n");
        desk.Lists.ForgetAutoStart(u"UTC"_s);
        QCOMPARE(desk.Machine.ReadFile(u"tester/AutoStart.txt"_s),
                 QByteArray("UTC=\r\nTokyo=Tokyo\r\n"));
    }

    void AZoneThatNeverStartedWritesNothing() {
        Desk desk("UTC=\r\n");
        const qsizetype before = desk.Machine.Files.Writes.size();
        desk.Lists.ForgetAutoStart(u"UTC"_s);
        QCOMPARE(desk.Machine.Files.Writes.size(), before);
        QCOMPARE(desk.Machine.ReadFile(u"tester/AutoStart.txt"_s), QByteArray("UTC=\r\n"));
    }
};

QTEST_GUILESS_MAIN(tst_UserLists)
#include "tst_UserLists.moc"
