#pragma once

#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

#include "support/FakeServices.h"
#include "timers/ClockMessages.h"
#include "timers/ClockTimers.h"
#include "timers/TimerContext.h"

/// A clock that records what its timers ask of it. A label is as wide as 10 for each character.
class FakeTimerHost final : public timers::TimerHost {
public:
    struct Mark {
        int Slot = 0, Spot = 0, Place = 0;
        bool operator==(const Mark&) const = default;
    };

    QStringList Events;  ///< "speak:text", "purge", "sound:path", "stop-music", "status:text"
    std::vector<Mark> Marks;
    int Interval = 1000;
    int Colour = 0xC0C0C0;
    double Ratio = 1;
    int Height = 300;
    bool Speaking = false, Closing = false, InSight = true;
    ClockProperties Properties;
    std::function<void()> WhileSpeaking;  ///< what the user does in the meantime
    std::function<std::optional<QRectF>(double top, double height, double width)> Outline;

    void SpeakMessage(const QString& text, int flags, Urgency urgency) override {
        Events += QStringLiteral("speak:") + text;
        Forced = Forced && urgency == Urgency::Urgent && flags == 0;
        if (WhileSpeaking) {
            WhileSpeaking();
        }
    }
    void PurgeSpeech(Urgency urgency) override {
        Events += QStringLiteral("purge");
        Forced = Forced && urgency == Urgency::Urgent;
    }
    void PlaySound(const QString& path) override { Events += QStringLiteral("sound:") + path; }
    void StopMusic() override { Events += QStringLiteral("stop-music"); }
    void ShowStatus(const QString& text) override { Events += QStringLiteral("status:") + text; }
    bool IsSpeaking() const override { return Speaking; }
    bool IsClosing() const override { return Closing; }
    bool IsInSight() const override { return InSight; }
    void FitLabel(mduUILib::Control& label) override {
        label.Width = static_cast<float>(10 * label.Caption.size());
        label.Height = 20;
    }
    void PlaceMark(int slot, int spot, int place) override { Marks.push_back({slot, spot, place}); }
    int TimerInterval() const override { return Interval; }
    void SetTimerInterval(int milliseconds) override { Interval = milliseconds; }
    int BackColor() const override { return Colour; }
    double DevicePixelRatio() const override { return Ratio; }
    int ScaleHeight() const override { return Height; }
    std::optional<QRectF> RowInOutline(double top, double height, double width) const override {
        return Outline ? Outline(top, height, width) : std::nullopt;
    }
    ClockProperties& EditProperties() override { return Properties; }

    bool Forced = true;  ///< all speech was forced, with the flags 0

    /// The events since the last call.
    QStringList TakeEvents() { return std::exchange(Events, {}); }
};

/// The timers of a clock that shows the machine's own time: 2026-06-15 12:00:00, unless it is set.
struct TimerDesk {
    FakeServices Machine;
    ModuleState Module;
    FakeTimerHost Host;
    TimeZoneRecord Zone;
    mduUILib::ClockControls Controls;
    timers::TimerContext Context{Host.Properties, Zone, Controls, Machine.Services, Module, Host};
    timers::ClockMessages Messages{
        Context, [this](const QString& action) { Host.Events += QStringLiteral("run:") + action; }};
    timers::ClockTimers Timers{Context, Messages};

    TimerDesk() { Module.Paths.AppFolder = Machine.AppFolder(); }

    void SetNow(const QString& moment) {
        Machine.Clock.SetNow(QDateTime::fromString(moment + QStringLiteral("Z"), Qt::ISODate));
    }
};
