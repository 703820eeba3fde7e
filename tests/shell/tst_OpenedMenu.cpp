#include <QTest>

#include "shell/OpenedMenu.h"
#include "support/FakeForms.h"

using namespace Qt::StringLiterals;

static QStringList Captions(const shell::MenuArray& menu) {
    QStringList captions;
    for (int i = 1; i <= menu.Count(); ++i) {
        captions += menu(i).Caption;
    }
    return captions;
}

class tst_OpenedMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Filters_data() {
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("listed");
        QTest::newRow("no filter") << u"0"_s << u"normal,disabled,small,large,All"_s;
        QTest::newRow("Disable: the enabled ones") << u"8000000"_s << u"normal,small,large,All"_s;
        QTest::newRow("Enable: the disabled ones") << u"1"_s << u"disabled,All"_s;
        QTest::newRow("Maximize") << u"1000000"_s << u"normal,disabled,small,All"_s;
        QTest::newRow("Minimize") << u"20000000"_s << u"normal,disabled,large,All"_s;
        QTest::newRow("Restore") << u"2"_s << u"small,large,All"_s;
        QTest::newRow("never") << u"3"_s << u"None"_s;
    }

    void Filters() {
        QFETCH(QString, mask);
        Forms windows;
        QStringList log;
        FakeForm shellWindow(windows, u"frmMain"_s, u"shell"_s, log);
        FakeClock normal(windows, u"normal"_s, log);
        FakeClock disabled(windows, u"disabled"_s, log);
        disabled.Enabled = false;
        FakeClock small(windows, u"small"_s, log);
        small.State = 1;
        FakeClock large(windows, u"large"_s, log);
        large.State = 2;
        shell::MenuArray menu;
        shell::FillOpenedMenu(menu, windows, u"frmTempolark"_s, mask.toUInt(nullptr, 16));
        QTEST(Captions(menu).join(u','), "listed");
    }

    void ItemsCarryTheHandle() {
        Forms windows;
        QStringList log;
        FakeClock clock(windows, u"India"_s, log);
        shell::MenuArray menu;
        menu(1) = {u"old"_s, u"7"_s, false, false, true};
        menu.Load(5);
        shell::FillOpenedMenu(menu, windows, u"frmTempolark"_s, 0);
        QCOMPARE(menu.Count(), 2);
        QCOMPARE(menu(1),
                 (shell::MenuItem{u"India"_s, QString::number(clock.hwnd()), true, true, false}));
        QCOMPARE(menu(2), (shell::MenuItem{u"All"_s, u"0"_s, true, true, false}));
        QCOMPARE(int(shell::FindOpenedMenuIndex(menu, clock.hwnd())), 1);
        QCOMPARE(int(shell::FindOpenedMenuIndex(menu, 0)), 2);
        QCOMPARE(int(shell::FindOpenedMenuIndex(menu, 5)), -1);
    }

    void NoWindowIsOneDisabledNone() {
        shell::MenuArray menu;
        menu.Load(4);
        shell::FillOpenedMenu(menu, Forms(), u"frmTempolark"_s, 0);
        QCOMPARE(menu.Count(), 1);
        QCOMPARE(menu(1).Caption, u"None"_s);
        QVERIFY(!menu(1).Enabled);
    }

    void SeveralWindowNames() {
        Forms windows;
        QStringList log;
        FakeForm shellWindow(windows, u"frmMain"_s, u"shell"_s, log);
        FakeForm properties(windows, u"frmProperties"_s, u"Properties"_s, log);
        FakeClock clock(windows, u"India"_s, log);
        shell::MenuArray menu;
        shell::FillOpenedMenu(menu, windows, u"frmTempolarkfrmPropertiesfrmTimeZones"_s, 0);
        QCOMPARE(Captions(menu), (QStringList{u"Properties"_s, u"India"_s, u"All"_s}));
    }

    void OpenItemsAreMarked() {
        Forms windows;
        QStringList log;
        FakeClock clock(windows, u"India"_s, log);
        shell::MenuArray menu;
        menu(1).Caption = u"India"_s;
        menu.Load(2) = {u"india"_s, {}, true, true, true};
        shell::MarkOpenItems(menu, windows);
        QVERIFY(menu(1).Checked);
        QVERIFY(!menu(2).Checked);
        QVERIFY(shell::IsClockWindowOpen(windows, u"India"_s));
    }
};

QTEST_APPLESS_MAIN(tst_OpenedMenu)
#include "tst_OpenedMenu.moc"
