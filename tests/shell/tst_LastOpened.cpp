#include <QTest>

#include "shell/LastOpened.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

static QStringList Names(const shell::LastOpened& opened) {
    QStringList names;
    for (int row = 1; row <= opened.List().UpperBound(); ++row) {
        names += opened.List()[row].Name;
    }
    while (!names.isEmpty() && names.last().isEmpty()) {
        names.removeLast();
    }
    return names;
}

static shell::LastOpened Pushed(const QStringList& names) {
    shell::LastOpened opened;
    for (const QString& name : names) {
        opened.PushLastOpened(name);
    }
    return opened;
}

class tst_LastOpened : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Pushes_data() {
        QTest::addColumn<QStringList>("pushed");
        QTest::addColumn<QStringList>("list");
        QTest::newRow("one") << QStringList{u"A"_s} << QStringList{u"A"_s};
        QTest::newRow("most recent first")
            << QStringList{u"A"_s, u"B"_s, u"C"_s} << QStringList{u"C"_s, u"B"_s, u"A"_s};
        QTest::newRow("the same twice") << QStringList{u"A"_s, u"A"_s} << QStringList{u"A"_s};
        QTest::newRow("the third moves to the first")
            << QStringList{u"D"_s, u"C"_s, u"B"_s, u"A"_s, u"C"_s}
            << QStringList{u"C"_s, u"A"_s, u"B"_s, u"D"_s};
        QTest::newRow("case counts") << QStringList{u"a"_s, u"A"_s} << QStringList{u"A"_s, u"a"_s};
        QTest::newRow("prefix is cut") << QStringList{u"Tempolark Central India Standard Time"_s}
                                       << QStringList{u"India Standard Time"_s};
        // The prefix stands elsewhere: as many characters go from the left all the same.
        QTest::newRow("prefix inside") << QStringList{u"0123456789012345Tempolark Central X"_s}
                                       << QStringList{u"mpolark Central X"_s};
    }

    void Pushes() {
        QFETCH(QStringList, pushed);
        QTEST(Names(Pushed(pushed)), "list");
    }

    void FullListDropsItsLast() {
        QStringList names;
        for (int i = 1; i <= 31; ++i) {
            names += QString::number(i);
        }
        const QStringList list = Names(Pushed(names));
        QCOMPARE(list.size(), 30);
        QCOMPARE(list.first(), u"31"_s);
        QCOMPARE(list.last(), u"2"_s);
    }

    void NoneIsReplaced() {
        FakeServices machine;
        const QString path = machine.WriteFile(u"OpenedForms.txt"_s, "None=\r\n");
        shell::LastOpened opened;
        opened.LoadOpenedForms(machine.Files, path);
        opened.PushLastOpened(u"A"_s);
        // "None" was the last entry, so it moved to the second place first.
        QCOMPARE(Names(opened), (QStringList{u"A"_s, u"None"_s}));
    }

    void FileFormat() {
        FakeServices machine;
        const QString path = machine.AppFolder() + u"/OpenedForms.txt"_s;
        QVERIFY(Pushed({u"B"_s, u"A"_s}).SaveOpenedForms(machine.Files, path));
        QCOMPARE(machine.ReadFile(u"OpenedForms.txt"_s), QByteArray("A=\r\nB=\r\n"));
    }

    void ReadsWhatItFinds() {
        FakeServices machine;
        const QString path =
            machine.WriteFile(u"OpenedForms.txt"_s, "A\r\nB=x\r\n\r\ngroup:C=^y=z\r\n");
        shell::LastOpened opened;
        opened.LoadOpenedForms(machine.Files, path);
        QCOMPARE(Names(opened), (QStringList{u"A"_s, u"B"_s, QString(), u"C"_s}));
        QCOMPARE(opened.List()[4].Category, u"group"_s);
        QVERIFY(opened.SaveOpenedForms(machine.Files, path));
        QCOMPARE(machine.ReadFile(u"OpenedForms.txt"_s),
                 QByteArray("A=\r\nB=x\r\ngroup:C=y=z\r\n"));
    }

    void MissingFileIsAnEmptyList() {
        FakeServices machine;
        shell::LastOpened opened;
        opened.LoadOpenedForms(machine.Files, machine.AppFolder() + u"/none"_s);
        QCOMPARE(Names(opened), QStringList());
        QCOMPARE(opened.List().UpperBound(), 30);
    }

    void UnwritableFileIsTold() {
        FakeServices machine;
        const QString path = machine.WriteFile(u"OpenedForms.txt"_s, "Old=\r\n");
        machine.Files.Unwritable += path;
        QVERIFY(!Pushed({u"A"_s}).SaveOpenedForms(machine.Files, path));
        QCOMPARE(machine.ReadFile(u"OpenedForms.txt"_s), QByteArray("Old=\r\n"));
    }

    void EmptyMenuIsNone() {
        FakeServices machine;
        shell::MenuArray menu;
        menu.Load(3);
        shell::LastOpened().FillLastOpenedMenu(menu, machine.Files, PathTable());
        QCOMPARE(menu.Count(), 1);
        QCOMPARE(menu(1).Caption, u"None"_s);
    }

    void MenuOffersFilesThatExist() {
        FakeServices machine;
        machine.WriteFile(u"TimeZones/A.ini"_s, "x=1\r\n");
        machine.WriteFile(u"TimeZones/C.ini"_s, "x=1\r\n");
        PathTable paths;
        paths.ZoneFileFolder = machine.AppFolder() + u"/TimeZones/"_s;
        shell::MenuArray menu;
        Pushed({u"C.ini"_s, u"B"_s, u"A"_s}).FillLastOpenedMenu(menu, machine.Files, paths);
        QCOMPARE(menu.Count(), 3);
        QCOMPARE(menu(1).Caption, u"A"_s);
        QCOMPARE(menu(2).Tag, u"C.ini"_s);
        QCOMPARE(menu(3).Caption, u"All"_s);
    }

    /// A zone was removed since the menu was filled last.
    void MenuKeepsNothingOfALongerOne() {
        FakeServices machine;
        PathTable paths;
        paths.ZoneFileFolder = machine.AppFolder() + u"/TimeZones/"_s;
        for (const QString& name : {u"A"_s, u"B"_s, u"C"_s}) {
            machine.WriteFile(u"TimeZones/"_s + name + u".ini"_s, "x=1\r\n");
        }
        const shell::LastOpened opened = Pushed({u"C"_s, u"B"_s, u"A"_s});
        shell::MenuArray menu;
        opened.FillLastOpenedMenu(menu, machine.Files, paths);
        QCOMPARE(menu.Count(), 4);
        menu(2).Checked = true;
        QVERIFY(QFile::remove(paths.ZoneFileFolder + u"A.ini"_s));
        QVERIFY(QFile::remove(paths.ZoneFileFolder + u"C.ini"_s));
        opened.FillLastOpenedMenu(menu, machine.Files, paths);
        QCOMPARE(menu.Count(), 2);
        QCOMPARE(menu(1), (shell::MenuItem{u"B"_s, u"B"_s, true, true, false}));
        QCOMPARE(menu(2), (shell::MenuItem{u"All"_s, {}, true, true, false}));
    }

    void MenuEndsAtFifteen() {
        FakeServices machine;
        PathTable paths;
        paths.ZoneFileFolder = machine.AppFolder() + u"/TimeZones/"_s;
        QStringList names;
        for (int i = 20; i >= 1; --i) {
            names += u"Z%1"_s.arg(i);
            machine.WriteFile(u"TimeZones/Z%1.ini"_s.arg(i), "x=1\r\n");
        }
        shell::MenuArray menu;
        Pushed(names).FillLastOpenedMenu(menu, machine.Files, paths);
        QCOMPARE(menu.Count(), 16);
        QCOMPARE(menu(15).Caption, u"Z15"_s);
        QCOMPARE(menu(16).Caption, u"All"_s);
    }
};

QTEST_GUILESS_MAIN(tst_LastOpened)
#include "tst_LastOpened.moc"
