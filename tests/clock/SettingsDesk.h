#pragma once

#include "clock/LookDesk.h"
#include "clock/MenuSettings.h"
#include "support/FakeDevices.h"
#include "support/FakeSpeechHost.h"
#include "support/FakeTimerHost.h"

/// The settings of a clock whose voice and messages are its own, and whose other parts write down
/// what is asked of them.
struct SettingsDesk : LookDesk {
    FakeDevices Devices;
    platform::Services Speaking = Devices.On(Services);
    FakeSpeechHost SpeechHost{Data.EditProperties()};
    FakeTimerHost TimerHost;
    speech::SpeakerVoice Voice{
        {Data.Properties(), Data.Zone, Controls, Speaking, Module, SpeechHost}};
    timers::ClockMessages Messages{
        {Data.Properties(), Data.Zone, Controls, Speaking, Module, TimerHost},
        [](const QString&) {}};
    clockcore::PropertyRedraw Redraws{
        Data,
        {Parts.TheFace, Parts.TheDial, Parts.TheDigital, Parts.TheCalculator, Parts.TheOverlays,
         Messages, Voice, Parts.TheSpoken, Machine.Random}};
    clockcore::MenuSettings Settings{Data,
                                     {Files, Look, Parts.TheWindow, Parts.ThePlacement, Canvas,
                                      Messages, Parts.TheTimers, Voice, Redraws}};

    SettingsDesk() {
        Voice.PrepareSpeaker();
        Voice.FillVoiceMenu();
        Data.TimerFile = QStringLiteral("UTCTimer.txt");
    }
    QString InFile(const QString& key) const { return Stored(Data.PropertyFileName, key); }
};
