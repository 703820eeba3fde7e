#include <QTest>

#include "clock/LookDesk.h"
#include "clock/LookDialogs.h"
#include "support/FakeDialogs.h"

using namespace Qt::StringLiterals;
using clockcore::ClockState;

namespace {

/// What is asked for a clock of that name.
struct DialogDesk : LookDesk {
    std::unique_ptr<QObject> Clock = std::make_unique<QObject>();
    clockcore::LookDialogs Dialogs{*Clock, TheProgram, Data.State, Canvas, Look};
};

}  // namespace

class tst_LookDialogs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ThePickedColourIsTheWindows() {
        DialogDesk desk;
        desk.Canvas.Colour = 0x112233;
        desk.Machine.Dialogs.ColourAnswers = {255};
        desk.Dialogs.PickWindowBackColour();
        QCOMPARE(desk.Value(u"Window Background Colour"_s), u"255"_s);
    }

    void NoColourIsNoChange() {
        DialogDesk desk;
        desk.Machine.Dialogs.ColourAnswers = {-1};
        desk.Dialogs.PickWindowBackColour();
        QCOMPARE(desk.Calls(), QString());
    }

    void ANamedStyleIsNotAskedFor() {
        DialogDesk desk;
        desk.Dialogs.SetClockStyle(
            desk.WriteStyle(u"A.ini"_s, u"Hour Hand Colour"_s, u"Magenta"_s));
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Magenta"_s);
    }

    void MoreAndNothingAskForAStyle() {
        for (const QString& name : {u"More"_s, QString()}) {
            DialogDesk desk;
            desk.Machine.Dialogs.FileAnswers = {
                desk.WriteStyle(u"A.ini"_s, u"Hour Hand Colour"_s, u"Magenta"_s)};
            desk.Dialogs.SetClockStyle(name);
            QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Magenta"_s);
        }
    }

    void SavesUnderTheNameGiven() {
        DialogDesk desk;
        const QString path = desk.Machine.AppFolder() + u"/Mine.ini"_s;
        desk.Machine.Dialogs.FileAnswers = {path, QString()};
        desk.Dialogs.SaveStyleAs();
        QCOMPARE(desk.Stored(path, u"Clocks"_s), u"Analogue"_s);
        desk.Dialogs.SaveStyleAs();  // cancelled
        QCOMPARE(desk.Screen.Status, QStringList{u"Saved the style Mine at 12:00:00"_s});
    }

    void AsksAndIsAnswered() {
        DialogDesk desk;
        desk.Machine.Dialogs.BoxAnswers = {6, 7, 6};
        QVERIFY(desk.Dialogs.Confirms(u"Sure?"_s, u"Question"_s));
        QVERIFY(!desk.Dialogs.Confirms(u"Sure?"_s, u"Question"_s));
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Text, u"Sure?"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Title, u"Question"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Flags, 36);
        desk.Data.State = clockcore::ClockState::Closing;
        QVERIFY(!desk.Dialogs.Confirms(u"Sure?"_s, u"Question"_s));
    }

    void AClosingClockTakesNoAnswer() {
        DialogDesk desk;
        const QString path = desk.Machine.AppFolder() + u"/Mine.ini"_s;
        desk.Data.State = ClockState::Closing;
        desk.Machine.Dialogs.ColourAnswers = {255};
        desk.Machine.Dialogs.FileAnswers = {
            desk.WriteStyle(u"A.ini"_s, u"Hour Hand Colour"_s, u"Magenta"_s), path};
        desk.Dialogs.PickWindowBackColour();
        desk.Dialogs.SetClockStyle(u"More"_s);
        desk.Dialogs.SaveStyleAs();
        QCOMPARE(desk.Calls(), QString());
        QCOMPARE(desk.Screen.Status, QStringList());
        QVERIFY(!QFile::exists(path));
    }
};

QTEST_MAIN(tst_LookDialogs)
#include "tst_LookDialogs.moc"
