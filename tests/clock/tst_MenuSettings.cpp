#include <QTest>

#include "clock/SettingsDesk.h"

using namespace Qt::StringLiterals;
using clockcore::Redraw;

namespace {

const QStringList Saved = {u"Saved the settings of India at 12:00:00"_s};

}  // namespace

class tst_MenuSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void VolumeAndRateGoToTheVoice() {
        SettingsDesk desk;
        desk.Settings.Put({u"Speaker Volume"_s}, u"3"_s, Redraw::SpeakerVolume);
        QCOMPARE(desk.InFile(u"Speaker Volume"_s), u"3"_s);
        QCOMPARE(desk.Screen.Status, Saved);
        QCOMPARE(desk.Controls.imgSpeaker(1).Tag, u"3"_s);
        desk.Settings.Put({u"Speak Rate"_s}, u"-4"_s, Redraw::SpeakRate);
        QCOMPARE(desk.InFile(u"Speak Rate"_s), u"-4"_s);
        QCOMPARE(desk.Calls(), u"SaveTimer UTCTimer.txt|SaveTimer UTCTimer.txt"_s);
        QCOMPARE(desk.Canvas.Shows, 2);
    }

    void APatternIsReadAnew() {
        SettingsDesk desk;
        desk.Settings.Put({u"Speech Hour Pattern"_s}, u"It is <Hour>"_s, Redraw::Speech);
        QCOMPARE(desk.InFile(u"Speech Hour Pattern"_s), u"It is <Hour>"_s);
        QCOMPARE(desk.Calls(), u"ReadPatterns|SaveTimer UTCTimer.txt"_s);
    }

    // What a menu lists stays there for the next time.
    void ChoicesWithoutAValueAreKept() {
        SettingsDesk desk;
        mduLib::PutPropertyRaw(u"Speech Day Pattern"_s, u",None,<LongDate>"_s,
                               desk.Data.EditProperties());
        desk.Settings.Put({u"Speech Day Pattern"_s}, u"<LongDate>"_s, Redraw::Speech);
        QCOMPARE(mduLib::GetPropertyRaw(u"Speech Day Pattern"_s, desk.Data.Properties()),
                 u"<LongDate>,None,<LongDate>"_s);
    }

    void AKeyThatIsMissingIsAdded() {
        SettingsDesk desk;
        desk.Settings.Put({u"Sundial Colour"_s}, u" Red "_s, Redraw::Nothing);
        QCOMPARE(desk.Value(u"Sundial Colour"_s), u"Red"_s);
        QCOMPARE(desk.InFile(u"Sundial Colour"_s), u"Red"_s);
    }

    void AVoiceIsKept() {
        SettingsDesk desk;
        desk.Settings.SetVoice(2);
        QCOMPARE(desk.InFile(u"Speaker Voice"_s), u"Bob"_s);
        QCOMPARE(desk.Screen.Status, Saved);
    }

    void TheSpeakerFindsItsPlace() {
        SettingsDesk desk;
        desk.Set(u"Speaker Image Left"_s, u"30"_s);
        desk.Set(u"Speaker Image Top"_s, u"40"_s);
        desk.Look.SaveCurrentStyle();
        QCOMPARE(desk.InFile(u"Speaker Image Top"_s), u"40"_s);
        desk.Calls();
        desk.Settings.Put({u"Speaker Image Left"_s, u"Speaker Image Top"_s}, u"-1"_s,
                          Redraw::SpeakerPlace);
        QCOMPARE(desk.InFile(u"Speaker Image Left"_s), u"-1"_s);
        QCOMPARE(desk.InFile(u"Speaker Image Top"_s), u"-1"_s);
        QCOMPARE(desk.Calls(), u"SetSpeakerPosition|SaveTimer UTCTimer.txt"_s);
    }

    void EnablesAtOnce() {
        SettingsDesk desk;
        desk.Set(u"Enable"_s, u"No"_s);
        desk.Settings.SetEnabled(true);
        QCOMPARE(desk.InFile(u"Enable"_s), u"Yes"_s);
        QCOMPARE(desk.Calls(), u"enable|SaveTimer UTCTimer.txt"_s);
        QCOMPARE(desk.Screen.Status, Saved);
    }

    void DisablesAtOnce() {
        SettingsDesk desk;
        desk.Settings.SetEnabled(false);
        QCOMPARE(desk.InFile(u"Enable"_s), u"No"_s);
        QCOMPARE(desk.Calls(), u"disable|SaveTimer UTCTimer.txt"_s);
    }

    void AnActionsColourIsKeptWhileItCountsDown() {
        SettingsDesk desk;
        desk.Messages.SetPendingAction(u"Lock Workstation"_s);
        QVERIFY(desk.Messages.StartCountdown(desk.Machine.Clock.Now(), 5));
        desk.TimerHost.Properties = desk.Data.Properties();
        desk.Settings.SetActionColour(u"Green"_s);
        QCOMPARE(desk.Controls.lblActionMsg(1).ForeColor, 0x00FF00);
        QVERIFY(mduLib::GetPropertyRaw(u"Message Action Colour"_s, desk.TimerHost.Properties)
                    .contains(u"Lock Workstation:Green"_s));
        QCOMPARE(desk.Calls(), u"SaveTimer UTCTimer.txt"_s);
    }

    void WhatIsNotSavedIsTold() {
        SettingsDesk desk;
        const QString path = desk.Data.PropertyFileName;
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(4, '\0'));
        file.close();
        desk.Settings.SetEnabled(true);
        QCOMPARE(desk.Screen.Status,
                 QStringList{path + u" can't be read as a property file; it is left as it is"_s});
        QCOMPARE(desk.Calls(), u"enable|SaveTimer UTCTimer.txt"_s);
    }
};

QTEST_MAIN(tst_MenuSettings)
#include "tst_MenuSettings.moc"
