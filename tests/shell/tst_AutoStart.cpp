#include <QTest>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "shell/AutoStart.h"

using namespace Qt::StringLiterals;

static shell::MenuArray Menu(const QStringList& captions) {
    shell::MenuArray menu;
    for (int i = 0; i < captions.size(); ++i) {
        menu.Load(i + 1).Caption = captions[i];
    }
    return menu;
}

static QByteArray Content(const ClockProperties& list) {
    return mduLib::PropertyFileContent(list);
}

class tst_AutoStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TogglesOne() {
        ClockProperties list;
        const shell::MenuArray menu = Menu({u"India"_s, u"All"_s});
        shell::SetAutoStartEntry(list, menu, u"India"_s, false);
        QCOMPARE(Content(list), QByteArray("India=India\r\n"));
        shell::SetAutoStartEntry(list, menu, u"India"_s, true);
        QCOMPARE(Content(list), QByteArray("India=\r\n"));
    }

    void AllFollowsTheStateGiven() {
        ClockProperties list;
        const shell::MenuArray menu = Menu({u"India"_s, u"Nepal"_s, u"All"_s});
        shell::SetAutoStartEntry(list, menu, u"Nepal"_s, false);
        shell::SetAutoStartEntry(list, menu, u"All"_s, false);
        QCOMPARE(mduLib::GetProperty(u"India"_s, list), u"India"_s);
        QCOMPARE(mduLib::GetProperty(u"Nepal"_s, list), u"Nepal"_s);
        shell::SetAutoStartEntry(list, menu, u"All"_s, true);
        QCOMPARE(mduLib::GetProperty(u"India"_s, list), QString());
        QCOMPARE(mduLib::GetProperty(u"Nepal"_s, list), QString());
        QCOMPARE(mduLib::FindPropertyRow(u"All"_s, list), 0);
    }

    void Marks() {
        ClockProperties list;
        mduLib::PutProperty(u"on"_s, u"on"_s, list);
        mduLib::PutProperty(u"off"_s, QString(), list);
        mduLib::PutProperty(u"zero"_s, u"0"_s, list);
        shell::MenuArray menu = Menu({u"on"_s, u"off"_s, u"zero"_s, u"unknown"_s, u"All"_s});
        shell::MarkAutoStartItems(menu, list);
        QVERIFY(menu(1).Checked);
        for (int i = 2; i <= 5; ++i) {
            QVERIFY(!menu(i).Checked);
        }
    }

    void LaunchesInFileOrder() {
        ClockProperties list;
        mduLib::PutProperty(u"B"_s, u"B"_s, list);
        mduLib::PutProperty(u"off"_s, QString(), list);
        mduLib::PutProperty(u"A"_s, u"A"_s, list);
        QStringList launched;
        QVERIFY(shell::LaunchAutoStartClocks(list, [&launched](const QString& name) {
            launched += name;
            return true;
        }));
        QCOMPARE(launched, (QStringList{u"B"_s, u"A"_s}));
    }

    void NothingToLaunch() {
        ClockProperties list;
        mduLib::PutProperty(u"off"_s, QString(), list);
        QVERIFY(!shell::LaunchAutoStartClocks(list, [](const QString&) { return true; }));
    }

    void AFailedLaunchDoesNotCount() {
        ClockProperties list;
        mduLib::PutProperty(u"A"_s, u"A"_s, list);
        QVERIFY(!shell::LaunchAutoStartClocks(list, [](const QString&) { return false; }));
    }

    void ANameMayHoldAComma() {
        ClockProperties list;
        const shell::MenuArray menu = Menu({u"Paris, France"_s, u"All"_s});
        shell::SetAutoStartEntry(list, menu, u"Paris, France"_s, false);
        shell::SetAutoStartEntry(list, menu, u"Paris, France"_s, true);
        QCOMPARE(Content(list), QByteArray("Paris, France=\r\n"));
    }

    void ALaunchMayChangeTheList() {
        ClockProperties list;
        mduLib::PutProperty(u"A"_s, u"A"_s, list);
        mduLib::PutProperty(u"B"_s, u"B"_s, list);
        QStringList launched;
        shell::LaunchAutoStartClocks(list, [&](const QString& name) {
            launched += name;
            list.Reset();
            return true;
        });
        QCOMPARE(launched, (QStringList{u"A"_s, u"B"_s}));
    }
};

QTEST_APPLESS_MAIN(tst_AutoStart)
#include "tst_AutoStart.moc"
