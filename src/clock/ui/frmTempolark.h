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
#include "clock/HeldOverlays.h"
#include "clock/LookDialogs.h"
#include "clock/MenuSettings.h"
#include "clock/PartMenus.h"
#include "clock/PropertyRedraw.h"
#include "clock/StyleFiles.h"
#include "clock/ZoneFollow.h"
#include "clock/ui/ClockInput.h"
#include "clock/ui/ClockMenuHandlers.h"
#include "clock/ui/DragInput.h"
#include "clock/ui/FormPopup.h"
#include "clock/ui/FormWindow.h"
#include "clock/ui/MdiPlacement.h"
#include "clock/ui/PartBalloon.h"
#include "clock/ui/TimersOnDial.h"
#include "clock/ui/WalkInput.h"
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
///
/// A clock in the shell has its own file, named after its zone, in the folder of zone files. It
/// ends by `Unload`, by its menu, by "Stay Time" or with the shell; it then stores its place and
/// its timers, and leaves the list of windows at once.
class frmTempolark final : public QWidget, public IClock {
public:
    /// @param shell the shell, or null for a clock that stands alone
    /// @param area the shell's frame for its children; null for a clock that stands alone
    frmTempolark(const Program& program, IShell* shell, QMdiArea* area);
    ~frmTempolark() override;

    // The ways in.
    /// The usual way in, also for a clock without a shell: brings the zone's file into being or up
    /// to date, reads it, and makes the window. Nothing is seen before the first tick, 10 ms later.
    /// @return false for a name that no file can have; the status bar tells why
    bool ShowMeMDIChild(const QString& zoneName) override;
    /// How the stand-alone way in departs from the usual.
    struct ShowOptions {
        bool RefreshZone = false;  ///< the file's zone keys are made anew first
        bool AsWrapper = false;    ///< a plain, undrawn window
    };
    /// The stand-alone way in: shows `PathTable::CurrentPropertyFile` as it stands, without a
    /// merge.
    /// @param zoneName the zone to show; the zone keys of the file go over it
    void ShowMe(const QString& zoneName, const ShowOptions& options);
    /// Opens another clock, sized like this one and with its parent; one that is open comes to the
    /// front. An empty name means the machine's own zone; for a name that no file can have nothing
    /// opens.
    void LaunchMDITempolark(QString zoneName);

    // What the shell calls.
    QString Name() const override { return ClockWindowName; }
    QString Caption() const override { return placement_.Caption(); }
    /// Given by `Forms::NewHandle` when the clock is made.
    int hwnd() const override { return handle_; }
    int WindowState() const override { return placement_.WindowState(); }
    /// Nothing before the first tick is over; the same goes for `Show` and `SetFocus`.
    void SetWindowState(int state) override;
    bool IsEnabled() const override { return window_.IsEnabled(); }
    void EnableWindow(bool enabled) override { window_.EnableWindow(enabled); }
    void Show() override;
    void SetFocus() override;
    /// The window takes its leave at once; in a shell it is deleted later.
    void Unload() override { window_.CloseClock(); }
    /// Any other number does nothing.
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
    void SetProperty() override { look_.SetPropertyWithPlace(); }
    void RefreshForm(const QString& fileName) override { look_.RefreshForm(fileName); }
    /// Paints the face anew, background and all.
    void Refresh() override;
    /// At the next tick, and only for a clock that is running.
    void LayOutAgain() override;
    void PreviewProperties(const ClockProperties& values) override {
        popup_.PreviewProperties(values);
    }
    /// 1 while the window's background colour is "Transparent".
    int DrawStyle() const override { return canvas_.IsTransparent() ? 1 : 0; }
    void SetBackColor(int colour) override { canvas_.SetBackColor(colour); }

    /// Null takes the shell away: status texts then go nowhere.
    void SetParentForm(IShell* shell) { screen_.SetShell(shell); }
    /// The full path of the clock's own file.
    QString IniFile() const override { return data_.PropertyFileName; }
    /// The full path of the file that every new clock's file is a copy of.
    QString DefaultIniFile() const { return program_.Module.Paths.ZoneDefaultFile(); }
    QString AppEXEName() const;
    /// What the label of the place says, be it shown or not.
    QString GetLocation() const;
    /// Makes the zone keys of the clock's file anew from the present rules of the zone of that
    /// name.
    void RefreshDefaultTimeZoneDetails(const QString& zoneName) override;
    /// Turns the clock backward: stores the property and draws nothing itself.
    void SetBackward() { look_.SetBackward(); }

    /// Fills `FormPopup` and opens it at the mouse.
    void FormRightClick() { popup_.FormRightClick(QCursor::pos()); }
    /// Shows the text of `lblClock` where the point, in device pixels of the surface, lies on it.
    void RightClick(double x, double y) { popup_.RightClick({x, y}); }
    /// See `DragInput::MouseMoveObj`.
    void MouseMoveObj(const mduUILib::Control& object, int button, int shift, double x, double y) {
        drag_.MouseMoveObj(object, button, shift, x, y);
    }

    /// Gives the zone's record, the state and the controls to those who look from outside.
    const clockcore::ClockData& Data() const { return data_; }
    const mduUILib::ClockControls& Controls() const { return controls_; }
    const drawing::Surface& PaintedSurface() const { return canvas_.Painted(); }
    /// The surface as it is seen: transparent outside the window's outline and, for a clock that
    /// stands alone, where the colour key lets the desktop through.
    QImage SeenPicture() const { return canvas_.SeenPicture(); }
    /// A clock that nobody looks at lays its face out and never paints it.
    void SetLookedAt(bool lookedAt) { canvas_.SetLookedAt(lookedAt); }
    /// Takes motions and wipes that are under way to their end, for a picture that has to stand
    /// still.
    void FinishMotions();
    /// The whole text of the message that runs; empty when none does.
    const QString& PendingMessage() const { return messages_.PendingMessage(); }
    /// Those who watch a clock from outside, such as a script that tells its events.
    struct Watchers {
        clockcore::WatchedState::Watcher State = {};
        std::function<void(int milliseconds)> Interval = {};  ///< of `timClock`
        timers::ClockTimers::Watcher Firing = {};
        timers::ClockMessages::Watcher Messages = {};
        std::shared_ptr<AskedNames> Keys = {};  ///< takes the names of the properties in use
    };
    /// From now on these watch, and nobody else; what is left empty watches no more.
    void Watch(const Watchers& watchers);
    /// One event of `timClock`, now. What messages and actions have moved is then painted.
    void Tick();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Keys, the double click, and the right click on a disabled clock.
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    /// Tab belongs to the calculator.
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// Both ways in: the file has been read. Makes the frame and starts `timClock`.
    void Load();
    /// The zone has been filled: the title, the label of the place, the patterns.
    void FinishLoading();
    /// Whether the window may close. Timers that are kept and could not be saved are asked about.
    bool MayEnd();
    /// The clock that comes to the front makes its file and its properties the current ones.
    void Activate();
    /// For another size, and for another screen.
    void TakeSurface();
    bool IsBound(const QKeyEvent& event) const;
    /// What timers and speech, each with its own kind of host, share.
    template <class Host>
    ClockContext<Host> Parts() {
        return {data_.Properties(), data_.Zone,      controls_,
                program_.Services,  program_.Module, host_};
    }
    /// What the parts of the face share. The parts hold references to fields that are made before
    /// them: so the order of the fields below matters.
    drawing::FaceContext Context();
    clockcore::HeldPart::Parts PartsToMove();
    /// Those who see mouse and keys before the window does.
    void InstallFilters();

    Program program_;
    /// Null for a clock that stands alone.
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
    clockcore::HeldOverlays heldOverlays_;
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
    clockcore::PropertyRedraw redraws_;
    clockcore::MenuSettings settings_;
    clockcore::ZoneOnClock zones_;
    clockcore::FormCommands commands_;
    clockcore::FormPopup popup_;
    clockcore::ClockKeys keys_;
    clockcore::PartMenus partMenus_;
    clockcore::TimersOnDial timersOnDial_;
    clockcore::ClockMenuHandlers menus_;
    clockcore::PartDrag partDrag_;
    clockcore::PartNudge partNudge_;
    clockcore::DragInput drag_;
    clockcore::PartBalloon hints_;
    clockcore::WalkInput walk_;
    clockcore::ClockInput input_;
    clockcore::ZoneFollow zoneFollow_;
    clockcore::ClockTick tick_;
    bool ticks_ = false;  ///< a tick is under way
};
