#pragma once

#include "clock/DialTimers.h"
#include "clock/LookDesk.h"
#include "clock/MessageTyping.h"
#include "support/FakeTimerHost.h"

/// The timers of a clock without a window, which shows UTC at 12:00 on 15 June 2026 on a surface of
/// 300 by 200 pixels; its box for messages writes down what is asked of it.
struct DialDesk : LookDesk {
    struct Box final : clockcore::MessageBoxView {
        QStringList Log;
        Look Last;
        bool InFront = true;
        void Open(const Look& look) override {
            Last = look;
            Log += QStringLiteral("open ") + look.Text;
        }
        void Move(const QRectF& place) override { Last.Place = place; }
        void Close() override { Log += QStringLiteral("close"); }
        bool HasKeys() const override { return InFront; }
    };
    struct Lines final : drawing::CalculatorClock {
        int Presents = 0;
        void SetCalculatorClock(drawing::CalculatorTexts texts) override {
            Presents += texts == drawing::CalculatorTexts::PresentTime ? 1 : 0;
        }
    };

    FakeTimerHost Host;
    timers::TimerContext Context{Data.Properties(), Data.Zone, Controls, Services, Module, Host};
    timers::ClockMessages Messages{Context, [](const QString&) {}};
    timers::ClockTimers Timers{Context, Messages};
    Box View;
    Lines Calculator;
    clockcore::MessageTyping Typing{
        Data, {Controls, Timers, Host, Calculator, Canvas, Machine.Clock, View}};
    clockcore::DialTimers Dial{Data, {Timers, Typing, Canvas, Host}};

    DialDesk() {
        using namespace Qt::StringLiterals;
        Data.TimerFile = Machine.AppFolder() + u"/Timer.txt"_s;
        Timers.LoadTimers(Data.TimerFile);
        Timers.HoldWhile([this](int slot) { return Typing.IsTypedInto(slot); });
    }

    /// A timer on the dial, with nothing but its time and its message.
    int Add(const QString& time, const QString& message = {}) {
        const int slot = Timers.SetNewTimer(time);
        timers::ClockTimer timer = Timers.Timer(slot);
        timer.Message = message;
        timer.DisplayMinutes = QStringLiteral("5");
        timer.MessageColour = 0x0000FF;
        timer.SoundFile.clear();
        Timers.ChangeTimer(slot, timer);
        return slot;
    }
    QByteArray File() const { return Machine.ReadFile(QStringLiteral("Timer.txt")); }
    /// Puts the calculated time where a calculator has it.
    void Calculate(clockcore::ClockKind kind, const QString& moment) {
        Data.Tag = {kind, false};
        Controls.lblTimeOutput(1).Tag = moment;
    }
};
