#pragma once

#include "ctl/Command.h"
#include "timers/ClockTimers.h"

namespace ctl {

/// A clock without a window: it tells of failures on standard error, unless it is told not to; all
/// else is silent.
class QuietHost final : public timers::TimerHost {
public:
    bool Complains = true;
    bool Failed = false;

    void SpeakMessage(const QString&, int, Urgency) override {}
    void PurgeSpeech(Urgency) override {}
    void PlaySound(const QString&) override {}
    void StopMusic() override {}
    void ShowStatus(const QString& text) override {
        Failed = true;
        if (Complains) {
            Complain(text);
        }
    }
    void FitLabel(mduUILib::Control&) override {}
    void PlaceMark(int, int, int) override {}
    int TimerInterval() const override { return 1000; }
    void SetTimerInterval(int) override {}
    int BackColor() const override { return 0; }
    double DevicePixelRatio() const override { return 1; }
    int ScaleHeight() const override { return 0; }
    ClockProperties& EditProperties() override { return Properties; }

    ClockProperties Properties;
};

/// The timers of one clock; `Timers.LoadTimers` brings them.
struct LoadedTimers {
    QuietHost Host;
    mduUILib::ClockControls Controls;
    TimeZoneRecord Zone;
    timers::TimerContext Shared;
    timers::ClockMessages Messages;
    timers::ClockTimers Timers;

    /// @param services outlive the timers
    /// @param zone of the clock, with its present offset
    /// @param properties of the clock; by the rules of the dial where there are none
    LoadedTimers(const platform::Services& services, const ModuleState& state,
                 const TimeZoneRecord& zone, const ClockProperties& properties)
        : Zone(zone),
          Shared{Host.Properties, Zone, Controls, services, state, Host},
          Messages(Shared, [](const QString&) {}),
          Timers(Shared, Messages) {
        Host.Properties = properties;
    }
    Q_DISABLE_COPY_MOVE(LoadedTimers)
};

}  // namespace ctl
