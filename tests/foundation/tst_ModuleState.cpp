#include <QTest>

#include "foundation/ModuleState.h"

using namespace Qt::StringLiterals;

class tst_ModuleState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void derivesNames();
    void startsWithTwoRows();
};

void tst_ModuleState::derivesNames() {
    PathTable paths;
    paths.AppFolder = u"/app"_s;
    QCOMPARE(paths.ZoneDefaultFile(), u"/app/ini/Tempolark.ini"_s);
    QCOMPARE(paths.CentralDefaultFile(), u"/app/ini/TempolarkCentral.ini"_s);
    QCOMPARE(paths.DefaultShortcutsFile(), u"/app/ini/Shortcuts.txt"_s);
    QCOMPARE(paths.DefaultActionFile(), u"/app/ini/Action.txt"_s);
    QCOMPARE(paths.OpenedFormsFile(), u"/app/OpenedForms.txt"_s);
    paths.DataFolder = u"/app/user"_s;
    QCOMPARE(paths.OpenedFormsFile(), u"/app/user/OpenedForms.txt"_s);
}

void tst_ModuleState::startsWithTwoRows() {
    const ModuleState state;
    QCOMPARE(state.ShortcutList.UpperBound(), 1);
    QCOMPARE(state.AutoStartList.UpperBound(), 1);
    QCOMPARE(state.CurrentProperties.UpperBound(), 1);
    QVERIFY(!state.NewPropertyFileCreated);
}

QTEST_GUILESS_MAIN(tst_ModuleState)
#include "tst_ModuleState.moc"
