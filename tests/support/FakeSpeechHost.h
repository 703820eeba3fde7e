#pragma once

#include "foundation/PropertyLookup.h"
#include "speech/SpeechContext.h"
#include "support/FakeDevices.h"
#include "support/FakeServices.h"

/// A clock that writes down what its voice asks of it.
class FakeSpeechHost final : public speech::SpeechHost {
public:
    explicit FakeSpeechHost(ClockProperties& properties) : properties_(properties) {}

    bool Active = true;
    QStringList Log;     ///< "picture 5", "show", in order
    QStringList Status;  ///< what the status bar was told

    bool IsActiveClock() const override { return Active; }
    void SetSpeakerPicture(int number) override { Log += QStringLiteral("picture %1").arg(number); }
    void ShowChanges() override { Log += QStringLiteral("show"); }
    void ShowStatus(const QString& text) override { Status += text; }
    ClockProperties& EditProperties() override { return properties_; }

private:
    ClockProperties& properties_;
};

/// All that the speaking parts of a clock are built on, each piece open to the test. Of the
/// properties only those exist that the test sets.
struct SpeechDesk {
    SpeechDesk() { Module.Paths.AppFolder = Machine.AppFolder(); }
    Q_DISABLE_COPY_MOVE(SpeechDesk)

    FakeServices Machine;
    FakeDevices Devices;
    platform::Services Services = Devices.On(Machine.Services);
    ClockProperties Properties;
    TimeZoneRecord Zone;
    mduUILib::ClockControls Controls;
    ModuleState Module;
    FakeSpeechHost Host{Properties};

    speech::SpeechContext Context() { return {Properties, Zone, Controls, Services, Module, Host}; }

    void Set(const QString& name, const QString& rawValue) {
        mduLib::PutPropertyRaw(name, rawValue, Properties);
    }
    QString Raw(const QString& name) const { return mduLib::GetPropertyRaw(name, Properties); }

    /// The machine's local time, which is the clock's too unless `Zone.HoursFromLocal` is set.
    void SetTime(int day, int hour, int minute, int second) {
        Machine.Clock.SetNow(QDateTime(QDate(2026, 6, day), QTime(hour, minute, second), Qt::UTC));
    }
};
