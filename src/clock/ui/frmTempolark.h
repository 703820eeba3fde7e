#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>

#include "clock/ClockData.h"
#include "clock/ClockFiles.h"
#include "clock/ClockHost.h"
#include "clock/ClockLook.h"
#include "clock/ClockTick.h"
#include "clock/Face.h"
#include "clock/LookDialogs.h"
#include "clock/MenuSettings.h"
#include "clock/StyleFiles.h"
#include "clock/ui/ClockInput.h"
#include "clock/ui/ClockMenuHandlers.h"
#include "clock/ui/FormWindow.h"
#include "clock/ui/MdiPlacement.h"
#include "clock/ui/WidgetScreen.h"
#include "drawing/CalculatorLines.h"
#include "drawing/ClockBackground.h"
#include "drawing/ClockDial.h"
#include "drawing/ClockOverlays.h"
#include "drawing/DigitalReadOut.h"
#include "foundation/Controls.h"
#include "foundation/Program.h"
#include "platform/WallClock.h"
#include "speech/PlayerMusic.h"
#include "speech/SpeakerVoice.h"
#include "speech/SpokenPatterns.h"
#include "timers/ActionList.h"
#include "timers/ClockMessages.h"
#include "timers/ClockTimers.h"
#include "timers/HourAndSecondSounds.h"
#include "timers/SystemActions.h"

/// One world clock: a window that shows a zone's time, driven by one property file. It is built in
/// two halves: `ShowMeMDIChild` reads the file and fills the zone, and the first tick finishes the
/// window. It owns its parts and routes the tick to them; it decides nothing itself.
class frmTempolark final : public QWidget, public IClock {
public:
    /// @param shell the shell, or null for a clock that stands alone
    /// @param area the shell's frame for its children; null for a clock that stands alone
    frmTempolark(const Program& program, IShell* shell, QMdiArea* area);
    ~frmTempolark() override;

    // The ways in.
    bool ShowMeMDIChild(const QString& zoneName) override;
    /// How the stand-alone way in departs from the usual.
    struct ShowOptions {
        bool RefreshZone = false;  ///< the file's zone keys are made anew first
        bool AsWrapper = false;    ///< a plain, undrawn window
    };
    /// The stand-alone way in: shows `CurrentPropertyFile` as it stands.
    void ShowMe(const QString& zoneName, const ShowOptions& options);
    /// Opens another clock, sized like this one and with its parent; one that is open comes to the
    /// front.
    void LaunchMDITempolark(QString zoneName);

    // What the shell calls.
    QString Name() const override { return ClockWindowName; }
    QString Caption() const override { return placement_.Caption(); }
    int hwnd() const override { return handle_; }
    int WindowState() const override { return placement_.WindowState(); }
    void SetWindowState(int state) override;
    bool IsEnabled() const override { return window_.IsEnabled(); }
    void EnableWindow(bool enabled) override { window_.EnableWindow(enabled); }
    void Show() override;
    void SetFocus() override;
    void Unload() override { window_.CloseClock(); }
    void SetClocks(int mode) override;
    /// Applies a style file; an empty name or "More" asks for one.
    void SetClockStyle(const QString& styleFile) override { dialogs_.SetClockStyle(styleFile); }
    void SetWindowBackColour(const QString& value, const QString& caption) override;
    /// Asks for a colour and makes it the window's.
    void PickWindowBackColour() { dialogs_.PickWindowBackColour(); }
    void SaveCurrentStyle() override { look_.SaveCurrentStyle(); }
    /// Asks for a name and writes the clock's look there, without its zone.
    void SaveStyleAs() { dialogs_.SaveStyleAs(); }
    /// Gives the clock's properties to the property window.
    void SetProperty() { look_.SetProperty(); }
    void RefreshForm(const QString& fileName) override { look_.RefreshForm(fileName); }
    void Refresh() override;
    void LayOutAgain() override;
    int DrawStyle() const override { return canvas_.IsTransparent() ? 1 : 0; }
    void SetBackColor(int colour) override { canvas_.SetBackColor(colour); }

    void SetParentForm(IShell* shell) { screen_.SetShell(shell); }
    QString IniFile() const { return data_.PropertyFileName; }
    QString DefaultIniFile() const { return program_.Module.Paths.ZoneDefaultFile(); }
    QString AppEXEName() const;
    QString GetLocation() const;
    void RefreshDefaultTimeZoneDetails(const QString& zoneName);
    /// Turns the clock backward: stores the property and draws nothing itself.
    void SetBackward() { look_.SetBackward(); }

    /// Gives the zone's record, the state and the controls to those who look from outside.
    const clockcore::ClockData& Data() const { return data_; }
    const mduUILib::ClockControls& Controls() const { return controls_; }
    const drawing::Surface& PaintedSurface() const { return canvas_.Painted(); }
    /// The surface as it is seen: transparent outside the window's outline and, for a clock that
    /// stands alone, where the colour key lets the desktop through.
    QImage SeenPicture() const { return canvas_.SeenPicture(); }
    /// A clock that nobody looks at lays its face out and never paints it.
    void SetLookedAt(bool lookedAt) { canvas_.SetLookedAt(lookedAt); }
    /// Takes motions and wipes that are under way to their end.
    void FinishMotions();
    const QString& PendingMessage() const { return messages_.PendingMessage(); }
    /// Those who watch a clock from outside, such as a script that tells its events.
    struct Watchers {
        clockcore::WatchedState::Watcher State = {};
        std::function<void(int milliseconds)> Interval = {};  ///< of `timClock`
        timers::ClockTimers::Watcher Firing = {};
        timers::ClockMessages::Watcher Messages = {};
        std::shared_ptr<AskedNames> Keys = {};  ///< takes the names of the properties in use
    };
    /// From now on these watch, and nobody else.
    void Watch(const Watchers& watchers);
    /// One event of `timClock`, now.
    void Tick();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    /// Tab belongs to the calculator.
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Load();
    void FinishLoading();
    void Activate();
    void TakeSurface();
    /// What timers and speech, each with its own kind of host, share.
    template <class Host>
    ClockContext<Host> Parts() {
        return {data_.Properties(), data_.Zone,      controls_,
                program_.Services,  program_.Module, host_};
    }
    drawing::FaceContext Context();

    Program program_;
    QMdiArea* area_;
    int handle_;

    clockcore::ClockData data_;
    mduUILib::ClockControls controls_;
    clockcore::WidgetScreen screen_;
    clockcore::MdiPlacement placement_;
    clockcore::ClockCanvas canvas_;
    clockcore::FormWindow window_;
    clockcore::ClockHost host_;
    clockcore::ClockFiles files_;
    clockcore::StyleFiles styles_;
    drawing::ClockDial dial_;
    drawing::DigitalReadOut digital_;
    drawing::CalculatorLines calculator_;
    drawing::ClockBackground background_;
    drawing::ClockOverlays overlays_;
    timers::ActionRunner actionRunner_;
    timers::ClockMessages messages_;
    timers::ClockTimers timers_;
    timers::ActionList actions_;
    timers::HourAndSecondSounds sounds_;
    speech::SpeakerVoice voice_;
    speech::SpokenPatterns spoken_;
    speech::PlayerMusic music_;
    clockcore::Face face_;
    clockcore::ClockLook look_;
    clockcore::LookDialogs dialogs_;
    clockcore::MenuSettings settings_;
    clockcore::ClockMenuHandlers menus_;
    clockcore::ClockInput input_;
    clockcore::ClockTick tick_;
};
