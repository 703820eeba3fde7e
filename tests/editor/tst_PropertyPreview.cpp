#include "editor/PropertyPreview.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeForms.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

namespace {

struct PreviewDesk {
    FakeServices Machine;
    ModuleState Module;
    Forms Windows;
    Program TheProgram{Machine.Services, Module, Windows};
    QStringList Log;
    FakeClock Clock{Windows, u"Oslo"_s, Log};
    editor::PropertyOwner Owner{TheProgram, nullptr, Clock.hwnd(), [] { return u"Oslo.ini"_s; }};
    editor::PropertyRecords Records{Properties()};
    editor::PropertyPreview Preview{Owner, Records};

    PreviewDesk() { Clock.File = u"Oslo.ini"_s; }

    static ClockProperties Properties() {
        ClockProperties properties;
        mduLib::AppendProperty({}, u"Hand"_s, u"Red,Red,Blue,Green"_s, properties);
        mduLib::AppendProperty({}, u"Face"_s, u"White"_s, properties);
        return properties;
    }
    /// What the clock was told since the last call.
    QString Told() {
        const QString told = Log.join(u'|');
        Log.clear();
        return told;
    }
};

}  // namespace

class tst_PropertyPreview : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsWhatIsNotStored() {
        PreviewDesk desk;
        desk.Preview.Show();
        QCOMPARE(desk.Told(), QString());
        desk.Records.Commit(1, u"Blue"_s);
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Oslo: preview Hand=Blue"_s);
        desk.Preview.Show();  // it knows
        QCOMPARE(desk.Told(), QString());
        desk.Records.Commit(2, u"Black"_s);
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Oslo: preview Hand=Blue;Face=Black"_s);
        desk.Records.Undo().undo();
        desk.Records.Undo().undo();
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Oslo: preview "_s);
    }

    void ShowsTheHighlightedEntry() {
        PreviewDesk desk;
        desk.Records.Commit(2, u"Black"_s);
        desk.Preview.Highlight(1, u"Green"_s);
        QCOMPARE(desk.Told(), u"Oslo: preview Hand=Green;Face=Black"_s);
        desk.Preview.Highlight(1, u"Red"_s);  // the stored one
        QCOMPARE(desk.Told(), u"Oslo: preview Face=Black"_s);
        desk.Preview.Highlight(2, u"White"_s);
        QCOMPARE(desk.Told(), u"Oslo: preview "_s);
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Oslo: preview Face=Black"_s);
    }

    void EndsAndForgets() {
        PreviewDesk desk;
        desk.Preview.End();
        QCOMPARE(desk.Told(), QString());
        desk.Records.Commit(1, u"Blue"_s);
        desk.Preview.Show();
        desk.Told();
        desk.Preview.End();
        QCOMPARE(desk.Told(), u"Oslo: preview "_s);
        desk.Preview.Show();
        desk.Told();
        desk.Preview.Forget();
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Oslo: preview Hand=Blue"_s);
    }

    void WhatIsStoredIsNoNews() {
        PreviewDesk desk;
        desk.Records.Commit(1, u"Blue"_s);
        desk.Records.MarkWritten();
        desk.Preview.Show();
        QCOMPARE(desk.Told(), QString());
    }

    void FollowsKeysThatHaveOtherNumbers() {
        PreviewDesk desk;
        ClockProperties moved;
        mduLib::AppendProperty({}, u"New"_s, u"1"_s, moved);
        mduLib::AppendProperty({}, u"Hand"_s, u"Red"_s, moved);
        mduLib::AppendProperty({}, u"Face"_s, u"Black"_s, moved);
        desk.Records.Replace(moved, u"Reload"_s);
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Oslo: preview New=1;Face=Black"_s);
    }

    void TheFirstOfTwoCounts() {
        PreviewDesk desk;
        ClockProperties twice = PreviewDesk::Properties();
        mduLib::AppendProperty({}, u"Hand"_s, u"Red"_s, twice);
        desk.Records.Replace(twice, u"Twice"_s);
        desk.Records.MarkWritten();
        desk.Records.Commit(3, u"Green"_s);
        desk.Preview.Show();
        QCOMPARE(desk.Told(), QString());
        desk.Records.Commit(1, u"Blue"_s);
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Oslo: preview Hand=Blue"_s);
    }

    void AClockThatIsOpenedAgainIsTold() {
        PreviewDesk desk;
        desk.Records.Commit(1, u"Blue"_s);
        desk.Preview.Show();
        desk.Clock.Unload();
        desk.Preview.Show();
        desk.Told();
        FakeClock again(desk.Windows, u"Again"_s, desk.Log);
        again.File = u"Oslo.ini"_s;
        desk.Preview.Show();
        QCOMPARE(desk.Told(), u"Again: preview Hand=Blue"_s);
        desk.Preview.End();
        QCOMPARE(desk.Told(), u"Again: preview "_s);
    }

    void AClosedClockAndTheShellAreToldNothing() {
        PreviewDesk desk;
        desk.Records.Commit(1, u"Blue"_s);
        desk.Clock.Unload();
        desk.Told();
        desk.Preview.Show();
        desk.Preview.End();
        QCOMPARE(desk.Told(), QString());
        const editor::PropertyOwner shell(desk.TheProgram, nullptr, 0, [] { return QString(); });
        editor::PropertyPreview none(shell, desk.Records);
        none.Show();
        none.End();
        QCOMPARE(desk.Told(), QString());
    }
};

QTEST_GUILESS_MAIN(tst_PropertyPreview)
#include "tst_PropertyPreview.moc"
