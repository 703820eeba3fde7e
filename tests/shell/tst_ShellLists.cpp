#include <QTest>

#include "shell/FileList.h"
#include "shell/StatusMessages.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

static QStringList Captions(const shell::MenuArray& menu) {
    QStringList captions;
    for (int i = 1; i <= menu.Count(); ++i) {
        captions += menu(i).Caption;
    }
    return captions;
}

class tst_ShellLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FilesAreSortedAndFiltered() {
        FakeServices machine;
        for (const QString& name :
             {u"b.ini"_s, u"A.INI"_s, u"Tempolark.ini"_s, u"notes.txt"_s, u"ini"_s}) {
            machine.WriteFile(u"zones/"_s + name, "x=1\r\n");
        }
        shell::MenuArray menu;
        shell::FillFileList(menu, machine.Files, machine.AppFolder() + u"/zones"_s, u"All"_s, 15);
        QCOMPARE(Captions(menu), (QStringList{u"A"_s, u"b"_s, u"All"_s}));
        QCOMPARE(menu(2).Tag, u"b"_s);
        QCOMPARE(menu(3).Tag, QString());
    }

    void MoreOnlyWhereThereAreMore() {
        FakeServices machine;
        for (int i = 1; i <= 3; ++i) {
            machine.WriteFile(u"zones/%1.ini"_s.arg(i), "x=1\r\n");
        }
        const QString folder = machine.AppFolder() + u"/zones"_s;
        shell::MenuArray menu;
        shell::FillFileList(menu, machine.Files, folder, u"More"_s, 3);
        QCOMPARE(Captions(menu), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
        shell::FillFileList(menu, machine.Files, folder, u"More"_s, 2);
        QCOMPARE(Captions(menu), (QStringList{u"1"_s, u"2"_s, u"More"_s}));
        QCOMPARE(menu(3).Tag, QString());
        shell::FillFileList(menu, machine.Files, folder, QString(), 2);
        QCOMPARE(Captions(menu), (QStringList{u"1"_s, u"2"_s}));
    }

    void EmptyFolderIsNone() {
        FakeServices machine;
        shell::MenuArray menu;
        menu.Load(4);
        shell::FillFileList(menu, machine.Files, machine.AppFolder() + u"/gone"_s, u"All"_s, 15);
        QCOMPARE(Captions(menu), QStringList{u"None"_s});
    }

    void NewestMessageStandsLeft() {
        shell::StatusMessages status;
        status.ShowStatusMsg(u"A"_s);
        status.ShowStatusMsg(u"B"_s);
        QCOMPARE(status.Panel(), u"B << A"_s);
        status.ShowStatusMsg(u"A"_s);  // held already
        status.ShowStatusMsg(QString());
        QCOMPARE(status.Panel(), u"B << A"_s);
    }

    void OldMessagesScrollAway() {
        shell::StatusMessages status;
        status.ShowStatusMsg(u"One"_s);
        status.ShowStatusMsg(u"Two"_s);
        QStringList seen;
        for (int tick = 0; tick < 5; ++tick) {
            status.Tick();
            seen += status.Panel();
        }
        QCOMPARE(seen,
                 (QStringList{u"wo << One"_s, u"o << One"_s, u" << One"_s, u"One"_s, u"One"_s}));
    }
};

QTEST_GUILESS_MAIN(tst_ShellLists)
#include "tst_ShellLists.moc"
