#include "shell/ShellDesk.h"
#include "support/FakeHelp.h"

/// Which help the shell asks for, and what it says when there is none.
class tst_ShellHelp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theButtonAsksForTheShellsHelp();
    void theMenuAsksForTheShellsHelp();
    void theWindowOfZonesHasAPageOfItsOwn();
    void aClockInFrontLeavesItAtTheShells();
    void theClocksHelpHasItsOwnFile();
    void anotherFileMayBeNamed();
    void aRefusalStandsInTheStatusBar();
    void shownHelpLeavesTheStatusBarAlone();

private:
    static QString File(const Desk& desk, const QString& name) {
        return desk.Machine.AppFolder() + u"/Help/"_s + name;
    }
    static QString Message(const Desk& desk) {
        return desk.Shell->findChild<StatusBar*>()->Message();
    }
};

void tst_ShellHelp::theButtonAsksForTheShellsHelp() {
    Desk desk;
    QVERIFY(desk.Start());
    QTest::mouseClick(desk.Button(u"Help"_s), Qt::LeftButton);
    QCOMPARE(desk.Machine.Help.Pages,
             (std::vector<FakeHelp::Page>{{File(desk, u"TempolarkCentral.chm"_s), 100}}));
    desk.Stop();
}

void tst_ShellHelp::theMenuAsksForTheShellsHelp() {
    Desk desk;
    QVERIFY(desk.Start());
    Desk::Click(desk.Menu(u"MainMenu"_s), u"Help"_s);
    QCOMPARE(desk.Machine.Help.Pages,
             (std::vector<FakeHelp::Page>{{File(desk, u"TempolarkCentral.chm"_s), 100}}));
    desk.Stop();
}

void tst_ShellHelp::theWindowOfZonesHasAPageOfItsOwn() {
    Desk desk;
    QVERIFY(desk.Start());
    QTest::mouseClick(desk.Button(u"Timezone"_s), Qt::LeftButton);
    QTest::mouseClick(desk.Button(u"Help"_s), Qt::LeftButton);
    QCOMPARE(desk.Machine.Help.Pages,
             (std::vector<FakeHelp::Page>{{File(desk, u"TempolarkCentral.chm"_s), 200}}));
    desk.Stop();
}

void tst_ShellHelp::aClockInFrontLeavesItAtTheShells() {
    Desk desk;
    QVERIFY(desk.Start());
    QVERIFY(desk.Shell->LaunchTempolark(u"UTC"_s) != 0);
    QTest::mouseClick(desk.Button(u"Help"_s), Qt::LeftButton);
    QCOMPARE(desk.Machine.Help.Pages,
             (std::vector<FakeHelp::Page>{{File(desk, u"TempolarkCentral.chm"_s), 100}}));
    desk.Stop();
}

void tst_ShellHelp::theClocksHelpHasItsOwnFile() {
    Desk desk;
    QVERIFY(desk.Start());
    desk.Shell->ShowClockHelp();
    QCOMPARE(desk.Machine.Help.Pages,
             (std::vector<FakeHelp::Page>{{File(desk, u"Tempolark.chm"_s), 600}}));
    desk.Stop();
}

void tst_ShellHelp::anotherFileMayBeNamed() {
    Desk desk;
    QVERIFY(desk.Start());
    desk.Shell->ShowHelp(u"Other.chm"_s);
    QCOMPARE(desk.Machine.Help.Pages,
             (std::vector<FakeHelp::Page>{{File(desk, u"Other.chm"_s), 100}}));
    desk.Stop();
}

void tst_ShellHelp::aRefusalStandsInTheStatusBar() {
    Desk desk;
    QVERIFY(desk.Start());
    desk.Machine.Help.Refusal = u"No browser anywhere"_s;
    QTest::mouseClick(desk.Button(u"Help"_s), Qt::LeftButton);
    QVERIFY2(Message(desk).startsWith(u"No browser anywhere"_s), qPrintable(Message(desk)));
    desk.Stop();
}

void tst_ShellHelp::shownHelpLeavesTheStatusBarAlone() {
    Desk desk;
    QVERIFY(desk.Start());
    const QString before = Message(desk);
    QTest::mouseClick(desk.Button(u"Help"_s), Qt::LeftButton);
    QCOMPARE(Message(desk), before);
    desk.Stop();
}

QTEST_MAIN(tst_ShellHelp)
#include "tst_ShellHelp.moc"
