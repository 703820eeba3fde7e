#pragma once

#include "support/FakeDevices.h"
#include "support/FakeServices.h"
#include "timers/TimerContext.h"

/// A clock of which actions ask nothing but the status bar.
class StatusHost final : public timers::TimerHost {
public:
    QStringList Status;

    void SpeakMessage(const QString&, int, Urgency) override {}
    void PurgeSpeech(Urgency) override {}
    void PlaySound(const QString&) override {}
    void StopMusic() override {}
    void ShowStatus(const QString& text) override { Status += text; }
    void FitLabel(mduUILib::Control&) override {}
    void PlaceMark(int, int, int) override {}
    int TimerInterval() const override { return 1000; }
    void SetTimerInterval(int) override {}
    int BackColor() const override { return 0; }
    double DevicePixelRatio() const override { return 1; }
    int ScaleHeight() const override { return 240; }
    ClockProperties& EditProperties() override { return properties_; }

private:
    ClockProperties properties_;
};

/// What actions are built on.
struct ActionDesk {
    ActionDesk() {
        Module.Paths.AppFolder = Machine.AppFolder();
        Module.Paths.ActionFile = Machine.AppFolder() + QStringLiteral("/Action.txt");
    }
    Q_DISABLE_COPY_MOVE(ActionDesk)

    FakeServices Machine;
    FakeDevices Devices;
    platform::Services Services = Devices.On(Machine.Services);
    ClockProperties Properties;
    TimeZoneRecord Zone;
    mduUILib::ClockControls Controls;
    ModuleState Module;
    StatusHost Host;

    timers::TimerContext Context() { return {Properties, Zone, Controls, Services, Module, Host}; }
};
