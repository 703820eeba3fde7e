#pragma once

#include <QStringList>
#include <functional>

#include "clock/ClockTick.h"

/// The parts of a clock, all of which write down each call in one list, in order.
class RecordingParts {
    /// The calls so far. A test may act upon one of them.
    struct Calls {
        QStringList List;
        std::function<void(const QString& call)> OnCall;
        void operator+=(const QString& call) {
            List += call;
            if (OnCall) {
                OnCall(call);
            }
        }
    };

    struct Window final : clockcore::ClockWindow {
        Calls* Log = nullptr;
        bool MDIChild = true, ActiveForm = true, ActiveWindow = true, Enabled = true;
        int Interval = 1000;
        bool IsMDIChild() const override { return MDIChild; }
        bool IsActiveForm() const override { return ActiveForm; }
        bool IsActiveWindow() const override { return ActiveWindow; }
        bool IsEnabled() const override { return Enabled; }
        void EnableWindow(bool enabled) override {
            Enabled = enabled;
            *Log += enabled ? QStringLiteral("enable") : QStringLiteral("disable");
        }
        int TimerInterval() const override { return Interval; }
        void SetTimerInterval(int milliseconds) override {
            Interval = milliseconds;
            *Log += QStringLiteral("interval %1").arg(milliseconds);
        }
        int ScaleLeft() const override { return 3; }
        int ScaleWidth() const override { return 240; }
        void Cls() override { *Log += QStringLiteral("Cls"); }
        void LockWindowUpdate(bool locked) override {
            *Log += locked ? QStringLiteral("lock") : QStringLiteral("unlock");
        }
        void HideHandShapes() override { *Log += QStringLiteral("HideHandShapes"); }
        void CloseClock() override { *Log += QStringLiteral("CloseClock"); }
    };

// A part whose calls without arguments are written down by their names.
#define RECORD(operation)                   \
    void operation() override {             \
        *Log += QStringLiteral(#operation); \
    }

    struct Placement final : clockcore::ClockPlacement {
        Calls* Log = nullptr;
        RECORD(ApplyWindowState)
        RECORD(ApplyWindowRect)
        RECORD(ApplyWindowBorder)
        RECORD(ApplyTitleBar)
        RECORD(SetClockCaption)
        void ShowClockWindow(bool show) override {
            *Log += show ? QStringLiteral("ShowClockWindow") : QStringLiteral("hide");
        }
        QRectF Outer;   ///< twips
        QPoint Offset;  ///< of the surface in the outer window
        std::optional<QRectF> ToStore;
        int State = 0;
        bool Shown = false;
        std::vector<QRegion> Outlines;  ///< every region given to `SetWindowRgn`
        std::vector<QImage> Icons;
        bool ColourKey = false;
        bool IsShown() const override { return Shown; }
        QString Caption() const override { return QStringLiteral("India"); }
        int WindowState() const override { return State; }
        void SetWindowState(int state) override {
            State = state;
            *Log += QStringLiteral("SetWindowState %1").arg(state);
        }
        void MoveTo(const QString& caption) override {
            *Log += QStringLiteral("MoveTo ") + caption;
        }
        void SetOuterSize(const QSizeF& twips) override {
            *Log += QStringLiteral("size %1 x %2").arg(twips.width()).arg(twips.height());
        }
        QRectF OuterRect() const override { return Outer; }
        std::optional<QRectF> PlaceToStore() const override { return ToStore; }
        QPoint SurfaceOffset() const override { return Offset; }
        void SetWindowRgn(const QRegion& outline) override { Outlines.push_back(outline); }
        void SetColourKey(bool on) override { ColourKey = on; }
        void SetIcon(const QImage& picture) override { Icons.push_back(picture); }
    };

    struct Face final : clockcore::ClockFace {
        Calls* Log = nullptr;
        RECORD(ApplyWindowBackground)
        RECORD(ReadDigitalFormat)
        RECORD(PrepareClockFace)
        RECORD(DrawClockFace)
        RECORD(ShowChanges)
        RECORD(Invalidate)
        RECORD(StillChanged)
    };

    struct Dial final : drawing::Dial {
        Calls* Log = nullptr;
        std::vector<drawing::DialParts> Drawn;
        void DrawDialNumbers(drawing::DialParts parts) override {
            Drawn.push_back(parts);
            *Log += QStringLiteral("DrawDialNumbers");
        }
        void ShowMinuteSpots(int hour) override {
            *Log += QStringLiteral("ShowMinuteSpots %1").arg(hour);
        }
        RECORD(ApplyClockSpecial)
    };

    struct Digital final : drawing::DigitalClock {
        Calls* Log = nullptr;
        RECORD(SetDigitalLayout)
    };

    struct Calculator final : drawing::CalculatorClock {
        Calls* Log = nullptr;
        RECORD(SetCalculatorLayout)
        RECORD(ApplyCalculatorLook)
    };

    struct Background final : drawing::Background {
        Calls* Log = nullptr;
        RECORD(LoadClockPicture)
        RECORD(ApplyTransparency)
        RECORD(LoadWindowPicture)
        RECORD(SetWindowShape)
        RECORD(SetClockShape)
        RECORD(ApplySurface)
        RECORD(ShowAutoBackground)
    };

    struct Overlays final : drawing::Overlays {
        Calls* Log = nullptr;
        RECORD(LayOutOverlays)
        RECORD(LoadFlag)
        RECORD(SetSunMoon)
        RECORD(SetSpeakerPosition)
        RECORD(SetTransparentIconPosition)
    };

    struct Timers final : timers::TimerSlots {
        Calls* Log = nullptr;
        RECORD(SetTemplate)
        RECORD(PlaceTimerMarks)
        void LoadTimers(const QString& path) override {
            *Log += QStringLiteral("LoadTimers ") + path;
        }
        void SaveTimer(const QString& path) override {
            *Log += QStringLiteral("SaveTimer ") + path;
        }
        void CheckTimers(const QString& clockTime) override {
            *Log += QStringLiteral("CheckTimers ") + clockTime;
        }
    };

    struct Messages final : timers::MessageChannel {
        Calls* Log = nullptr;
        void RunMessage(int left, int width) override {
            *Log += QStringLiteral("RunMessage %1 %2").arg(left).arg(width);
        }
    };

    struct Sounds final : timers::ClockSounds {
        Calls* Log = nullptr;
        bool Busy = false;
        bool PlayHourSound() override {
            *Log += QStringLiteral("PlayHourSound");
            return Busy;
        }
        RECORD(PlaySecondSound)
    };

    struct Voice final : speech::ClockVoice {
        Calls* Log = nullptr;
        RECORD(PrepareSpeaker)
        RECORD(FillVoiceMenu)
    };

    struct Spoken final : speech::SpokenTime {
        Calls* Log = nullptr;
        RECORD(CheckSpokenTime)
        RECORD(ReadPatterns)
        RECORD(SpeakTimeNow)
    };

    struct Music final : speech::ClockMusic {
        Calls* Log = nullptr;
        RECORD(CheckMusic)
    };

    struct Menus final : clockcore::ClockMenus {
        Calls* Log = nullptr;
        RECORD(FillMenuArrays)
    };

    struct Styles final : clockcore::ClockStyles {
        Calls* Log = nullptr;
        RECORD(ApplyNextStyle)
        RECORD(RecordProgramFolder)
    };
#undef RECORD

public:
    RecordingParts() {
        const auto record = [this](auto&... parts) { ((parts.Log = &Made), ...); };
        record(TheWindow, ThePlacement, TheFace, TheDial, TheDigital, TheCalculator, TheBackground,
               TheOverlays, TheTimers, TheMessages, TheSounds, TheVoice, TheSpoken, TheMusic,
               TheMenus, TheStyles);
    }
    Q_DISABLE_COPY_MOVE(RecordingParts)

    clockcore::ClockParts All() {
        return {TheWindow,     ThePlacement, TheFace,   TheDial,     TheDigital, TheCalculator,
                TheBackground, TheOverlays,  TheTimers, TheMessages, TheSounds,  TheVoice,
                TheSpoken,     TheMusic,     TheMenus,  TheStyles};
    }

    Calls Made;
    QStringList& Log = Made.List;
    Window TheWindow;
    Placement ThePlacement;
    Face TheFace;
    Dial TheDial;
    Digital TheDigital;
    Calculator TheCalculator;
    Background TheBackground;
    Overlays TheOverlays;
    Timers TheTimers;
    Messages TheMessages;
    Sounds TheSounds;
    Voice TheVoice;
    Spoken TheSpoken;
    Music TheMusic;
    Menus TheMenus;
    Styles TheStyles;
};
