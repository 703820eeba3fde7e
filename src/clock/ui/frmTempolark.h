#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>

#include "clock/ClockData.h"
#include "clock/ClockFiles.h"
#include "clock/ClockTick.h"
#include "clock/Face.h"
#include "clock/StyleFiles.h"
#include "clock/ui/MdiPlacement.h"
#include "drawing/CalculatorLines.h"
#include "drawing/Canvas.h"
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

class QHelpEvent;

/// One world clock: a window that shows a zone's time, driven by one property file. It is built in
/// two halves: `ShowMeMDIChild` reads the file and fills the zone, and the first tick finishes the
/// window. It owns its parts and routes the tick to them; it decides nothing itself.
class frmTempolark final : public QWidget,
                           public IClock,
                           private drawing::Canvas,
                           private clockcore::ClockWindow,
                           private clockcore::ClockStyles,
                           private clockcore::ClockMenus,
                           private timers::TimerHost,
                           private speech::SpeechHost {
public:
    /// @param shell the shell, or null for a clock that stands alone
    /// @param area the shell's frame for its children; null for a clock that stands alone
    frmTempolark(const Program& program, IShell* shell, QMdiArea* area);
    ~frmTempolark() override;

    // The ways in.
    bool ShowMeMDIChild(const QString& zoneName) override;
    /// The stand-alone way in: shows `CurrentPropertyFile` as it stands. @p wrapper gives a plain,
    /// undrawn window.
    void ShowMe(const QString& zoneName, bool refresh, bool wrapper);
    /// Opens another clock, sized like this one and with its parent; one that is open comes to the
    /// front.
    void LaunchMDITempolark(QString zoneName);

    // What the shell calls.
    QString Name() const override { return ClockWindowName; }
    QString Caption() const override;
    int hwnd() const override { return handle_; }
    int WindowState() const override { return placement_.WindowState(); }
    void SetWindowState(int state) override;
    bool IsEnabled() const override;
    void EnableWindow(bool enabled) override;
    void Show() override;
    void SetFocus() override;
    void Unload() override;
    void SetClocks(int mode) override;
    /// Applies a style file; an empty name or "More" asks for one.
    void SetClockStyle(const QString& styleFile) override;
    /// The same without a question: a tick may do it.
    void ApplyClockStyle(const QString& styleFile);
    void SetWindowBackColour(const QString& value, const QString& caption) override;
    /// Asks for a colour and makes it the window's.
    void PickWindowBackColour();
    void SaveCurrentStyle() override;
    /// Asks for a name and writes the clock's look there, without its zone.
    void SaveStyleAs();
    /// Gives the clock's properties to the property window.
    void SetProperty();
    void RefreshForm(const QString& fileName) override;
    void Refresh() override;
    void LayOutAgain() override;
    int DrawStyle() const override { return drawStyle_; }
    void SetBackColor(int colour) override;

    void SetParentForm(IShell* shell) { shell_ = shell; }
    QString IniFile() const { return data_.PropertyFileName; }
    QString DefaultIniFile() const { return program_.Module.Paths.ZoneDefaultFile(); }
    QString AppEXEName() const;
    QString GetLocation() const;
    void RefreshDefaultTimeZoneDetails(const QString& zoneName);
    /// Turns the clock backward: stores the property and draws nothing itself.
    void SetBackward();

    /// Gives the zone's record, the state and the controls to those who look from outside.
    const clockcore::ClockData& Data() const { return data_; }
    const mduUILib::ClockControls& Controls() const { return controls_; }
    const drawing::Surface& PaintedSurface() const { return *surface_; }
    /// The surface as it is seen: transparent outside the window's outline and, for a clock that
    /// stands alone, where the colour key lets the desktop through.
    QImage SeenPicture() const;
    /// A clock that nobody looks at lays its face out and never paints it.
    void SetLookedAt(bool lookedAt) { lookedAt_ = lookedAt; }
    /// Takes motions and wipes that are under way to their end.
    void FinishMotions();
    const QString& PendingMessage() const { return messages_.PendingMessage(); }
    // For those who watch a clock from outside: a script that tells its events.
    void WatchState(clockcore::WatchedState::Watcher watcher) {
        data_.State.Watch(std::move(watcher));
    }
    void WatchInterval(std::function<void(int)> watcher) { intervalWatcher_ = std::move(watcher); }
    void WatchFiring(timers::ClockTimers::Watcher watcher) {
        timers_.WatchFiring(std::move(watcher));
    }
    void WatchMessages(timers::ClockMessages::Watcher watcher) {
        messages_.Watch(std::move(watcher));
    }
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
    void LayOutTimerMarks();
    void FinishLoading();
    void Activate();
    bool HasBegun() const;
    void ApplyEnable();
    QSize SurfaceSize() const;
    void TakeSurface();
    bool SurfaceFitsTheScreen() const;
    void ShowToolTip(QHelpEvent& event);
    const mduUILib::Control* ControlAt(const mduUILib::ControlArray& array,
                                       const QPoint& position) const;
    bool IsOnAction(const QPoint& position) const;
    void SpeakAction();
    void Status(const QString& text);
    void TellSaved(const QString& what);

    // The canvas.
    drawing::Surface& Surface() override { return *surface_; }
    void Present(const QRegion& changed) override;
    bool CanBeSeen() const override;
    void StillChanged() override { face_.StillChanged(); }
    void ShowChanges() override;
    int BackColor() const override { return backColour_; }
    int ParentBackColor() const override;
    bool IsTransparent() const override { return drawStyle_ == 1; }
    void SetTransparent(bool transparent) override { drawStyle_ = transparent ? 1 : 0; }
    void SetColourKey(bool on) override;
    QSizeF OuterSize() const override { return placement_.OuterRect().size(); }
    QPoint SurfaceOffset() const override { return placement_.SurfaceOffset(); }
    void SetWindowRgn(const QRegion& outline) override;
    void SetIcon(const QImage& picture) override;
    void ShowStatus(const QString& text) override { Status(text); }

    // What timers and speech ask of their clock, beside what the canvas and the window offer.
    void SpeakMessage(const QString& text, int flags, bool force) override;
    void PurgeSpeech(bool force) override { voice_.PurgeSpeech(force); }
    void PlaySound(const QString& path) override { music_.PlaySound(path); }
    void StopMusic() override { music_.StopMusic(); }
    bool IsSpeaking() const override { return voice_.IsSpeaking(); }
    bool IsClosing() const override { return data_.State == clockcore::ClockState::Closing; }
    bool IsInSight() const override;
    void FitLabel(mduUILib::Control& label) override;
    void PlaceMark(int slot, int spot, int place) override;
    double DevicePixelRatio() const override { return surface_->DevicePixelRatio(); }
    int ScaleHeight() const override { return surface_->ScaleHeight(); }
    std::optional<QRectF> RowInOutline(double top, double height, double width) const override;
    ClockProperties& EditProperties() override { return data_.EditProperties(); }
    bool IsActiveClock() const override;
    void SetSpeakerPicture(int number) override;
    /// What timers and speech, each with its own kind of host, share.
    template <class Host>
    ClockContext<Host> Parts() {
        return {data_.Properties(), data_.Zone,      controls_,
                program_.Services,  program_.Module, *this};
    }
    void FillMenuArrays() override { actions_.FillActionMenu(); }
    void ShowMessageMenu(const QPoint& globalPosition);
    void ShowActionMenu(const QPoint& globalPosition);
    void ShowSpeakerMenu(const QPoint& globalPosition);
    void ShowFormMenu(const QPoint& globalPosition);
    void ShowDisabledMenu(const QPoint& globalPosition);
    void EnableByMenu();
    void SetByMenu(const QString& key, const QString& value);
    void PutSpeakerPosition();
    void SaveByMenu(const QStringList& keys);

    // Styles.
    void ApplyNextStyle() override;
    void StoreFontState();
    void RequestRedrawNow();
    void LayOutFace();
    drawing::FaceContext Context();

    // The window, as the tick sees it.
    bool IsMDIChild() const override { return area_ != nullptr; }
    bool IsActiveForm() const override;
    bool IsActiveWindow() const override { return QWidget::isActiveWindow(); }
    int TimerInterval() const override { return timClock_->Interval(); }
    void SetTimerInterval(int milliseconds) override;
    int ScaleLeft() const override { return 0; }
    int ScaleWidth() const override { return surface_->ScaleWidth(); }
    void Cls() override;
    void LockWindowUpdate(bool locked) override;
    void HideHandShapes() override;
    void CloseClock() override;

    Program program_;
    IShell* shell_;
    QMdiArea* area_;
    int handle_;
    std::unique_ptr<drawing::Surface> surface_;
    int backColour_ = 0xFFFFFF;
    int drawStyle_ = 0;
    bool colourKey_ = false;
    std::shared_ptr<const QImage> mouseIcon_;  ///< what the mouse shows; null for its arrow
    QRegion outline_;  ///< of the outer window, in device pixels; empty for a plain rectangle
    bool locked_ = false;
    bool lookedAt_ = true;
    std::function<void(int)> intervalWatcher_;
    QRegion lockedChanges_;
    QRegion presented_;  ///< changes of our own that wait to be painted

    clockcore::ClockData data_;
    mduUILib::ClockControls controls_;
    clockcore::ClockFiles files_;
    clockcore::StyleFiles styles_;
    std::unique_ptr<platform::Ticker> timClock_;

    clockcore::MdiPlacement placement_;
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
    clockcore::ClockTick tick_;
};
