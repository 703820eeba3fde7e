#include "clock/ui/frmTempolark.h"

#include <QCloseEvent>
#include <QCoreApplication>

#include "clock/ClockMode.h"
#include "clock/FormMenuState.h"
#include "drawing/StockPictures.h"
#include "drawing/TimerMarks.h"
#include "foundation/NamedValues.h"
#include "foundation/OpenClocks.h"
#include "foundation/PropertyLookup.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;
using clockcore::ClockState;

namespace {

constexpr int FirstShot = 10;  // milliseconds until the first tick

void LayOutTimerMarks(mduUILib::ControlArray& marks) {
    marks(1).Picture = drawing::GetStockPicture(drawing::StockPicture::TimerMark);
    marks(1).Left = static_cast<float>(drawing::UnplacedMark.x());
    marks(1).Top = static_cast<float>(drawing::UnplacedMark.y());
    for (int i = 2; i <= marks.Count(); ++i) {
        marks(i) = marks(i - 1);
    }
}

}  // namespace

frmTempolark::frmTempolark(const Program& program, IShell* shell, QMdiArea* area)
    : program_(program),
      area_(area),
      handle_(program.Windows.NewHandle()),
      screen_(*this, area, shell),
      placement_(*this, area, data_, &program.Services.Clock),
      canvas_(data_.State, screen_, placement_),
      window_(*this, area, placement_, canvas_, controls_,
              program.Services.Clock.MakeTicker([this] { Tick(); })),
      host_(data_, controls_, window_, screen_, canvas_),
      files_(data_, program, [this](const QString& text) { screen_.ShowStatus(text); }),
      styles_(program),
      dial_(Context()),
      digital_(Context()),
      calculator_(Context()),
      background_(Context()),
      overlays_(Context()),
      heldOverlays_(overlays_),
      actionRunner_(Parts<timers::TimerHost>()),
      messages_(Parts<timers::TimerHost>(),
                [this](const QString& action) { actionRunner_.RunAction(action); }),
      timers_(Parts<timers::TimerHost>(), messages_),
      actions_(Parts<timers::TimerHost>()),
      sounds_(Parts<timers::TimerHost>()),
      voice_(Parts<speech::SpeechHost>()),
      spoken_(Parts<speech::SpeechHost>(), voice_),
      music_(Parts<speech::SpeechHost>()),
      face_(data_, controls_, canvas_, {dial_, digital_, calculator_, background_, heldOverlays_},
            program.Services.Clock, program.Services.Random),
      look_(data_, controls_, program, files_, styles_,
            {screen_, canvas_, window_, placement_, face_, dial_, digital_, background_,
             heldOverlays_, voice_, spoken_, tick_}),
      dialogs_(*this, program, data_.State, canvas_, look_),
      redraws_(data_, {face_, dial_, digital_, calculator_, heldOverlays_, messages_, voice_,
                       spoken_, program.Services.Random}),
      settings_(data_, {files_, look_, window_, placement_, canvas_, messages_, timers_, voice_,
                        redraws_}),
      zones_(data_, program, screen_, look_),
      commands_(data_, program,
                {screen_, window_, placement_, files_, look_, dialogs_, settings_, zones_, voice_}),
      popup_(*this, data_, controls_, program,
             {screen_, window_, placement_, files_, styles_, look_, commands_, voice_}),
      keys_(data_, controls_, program, {window_, placement_, look_, commands_, zones_}),
      partMenus_(data_, program,
                 {controls_, window_, placement_, canvas_, settings_, dialogs_, messages_, voice_,
                  spoken_}),
      timersOnDial_(data_, program,
                    {*this, controls_, canvas_, host_, calculator_, timers_, actions_, partMenus_}),
      menus_({*this, controls_, canvas_, messages_, actions_, voice_, spoken_, popup_, commands_,
              keys_, partMenus_, timersOnDial_}),
      partDrag_(data_, PartsToMove()),
      partNudge_(data_, PartsToMove()),
      drag_({*this, area, placement_, data_, controls_, partDrag_, partNudge_}),
      hints_({*this, data_, controls_, timers_, menus_}, program.Services.Clock),
      walk_({*this, data_, controls_, canvas_, timers_, menus_, partNudge_}),
      input_(*this, data_, controls_, calculator_, menus_),
      zoneFollow_(data_, controls_, screen_, program.Services),
      tick_(data_,
            {window_, placement_, face_, dial_, digital_, calculator_, background_, heldOverlays_,
             timers_, messages_, sounds_, voice_, spoken_, music_, menus_, look_},
            program.Module, program.Services.Clock) {
    canvas_.SetFace(face_);
    host_.SetSpeech(voice_, music_);
    setObjectName(ClockWindowName);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    InstallFilters();
    program_.Windows.Add(*this);
}

// The one that is installed last is asked first. So whatever is dragged has the mouse and the keys
// to itself, the hint goes before a key or a press does something, and what nobody takes comes to
// `event`.
void frmTempolark::InstallFilters() {
    QObject* const lastToFirst[] = {&walk_, &hints_, &timersOnDial_.EventFilter(), &drag_};
    for (QObject* filter : lastToFirst) {
        installEventFilter(filter);
    }
}

drawing::FaceContext frmTempolark::Context() {
    return {data_.Properties(),
            data_.Zone,
            controls_,
            canvas_,
            program_.Services.Clock,
            program_.Services.FileSystem,
            program_.Services.Random,
            program_.Module.Pictures,
            program_.Module.Paths,
            program_.Services.Zones};
}

clockcore::HeldPart::Parts frmTempolark::PartsToMove() {
    return {controls_,   canvas_,       face_,   dial_,    digital_,
            background_, heldOverlays_, timers_, settings_};
}

frmTempolark::~frmTempolark() {
    program_.Windows.Remove(*this);
}

bool frmTempolark::ShowMeMDIChild(const QString& zoneName) {
    setWindowTitle(mduLib::ClockCaption(zoneName));  // while a merge lets other windows run
    if (!files_.LoadForShell(zoneName)) {
        return false;
    }
    Load();
    placement_.PlaceInTheMiddle();
    data_.Tag = {clockcore::GetClockType(data_.Properties()), false};
    files_.FillZone(zoneName);
    FinishLoading();
    return true;
}

void frmTempolark::ShowMe(const QString& zoneName, const ShowOptions& options) {
    files_.LoadCurrent();
    Load();
    data_.Tag = {clockcore::GetClockType(data_.Properties()), options.AsWrapper};
    files_.FillZone(zoneName);
    if (options.RefreshZone) {
        RefreshDefaultTimeZoneDetails(zoneName);
    }
    FinishLoading();
}

void frmTempolark::LaunchMDITempolark(QString zoneName) {
    if (zoneName.isEmpty()) {
        zoneName = mduTimeZones::GetLocalZone(program_.Services).StandardName;
    }
    if (IForm* open = mduLib::FindClock(program_.Windows, zoneName)) {
        mduLib::BringToFront(*open);
        return;
    }
    auto* other = new frmTempolark(program_, screen_.Shell(), area_);
    if (other->files_.NameCurrentFile(zoneName)) {
        const bool merged = other->files_.RefreshFile();
        other->ShowMe(zoneName, {.RefreshZone = !merged});
        other->placement_.SetOuterSize(placement_.OuterRect().size());
    } else {
        delete other;
    }
}

// The load event: the first touch of the window, with the properties already in place.
void frmTempolark::Load() {
    data_.State = ClockState::Loading;
    placement_.MakeFrame();
    if (QMdiSubWindow* frame = placement_.Frame()) {
        connect(frame, &QMdiSubWindow::aboutToActivate, this, [this] { Activate(); });
    }
    controls_.shpArea(1).Visible = false;
    if (!program_.Services.Zones.IsWindowsNT()) {
        controls_.imgSpeaker(1).Visible = false;
        controls_.imgSpeaker(1).ToolTipText.clear();
    }
    data_.StartTime = program_.Services.Clock.Now();
    placement_.Outer().raise();
    look_.ApplyEnable();
    LayOutTimerMarks(controls_.imgTimer);
    controls_.MusicPlayer(1).Tag = u"0"_s;
    data_.State = ClockState::FirstTickDue;
    placement_.SetOuterSize({0, 0});
    controls_.imgSpeaker(1).Visible = false;
    window_.SetTimerInterval(FirstShot);
    // From then on; the first shot comes all the same.
    window_.SetTimerInterval(timers::NormalInterval);
}

void frmTempolark::FinishLoading() {
    placement_.SetClockCaption();  // by which others find this clock from now on
    controls_.lblLocation(1).Caption = data_.Zone.CurrentName;
    controls_.imgAction(1).Picture = drawing::GetStockPicture(drawing::StockPicture::Action);
    spoken_.ReadPatterns();
    placement_.Outer().raise();
}

void frmTempolark::Activate() {
    if (data_.State != ClockState::Closing) {
        files_.MakeCurrent();
    }
}

// The message and the action move after the face has been painted. A change of the zone's time
// shows in this tick; what goes by the hour alone follows in the next.
void frmTempolark::Tick() {
    const bool zoneChanged = data_.State.IsDrawn() && zoneFollow_.Follow();
    ticks_ = true;
    tick_.Tick();
    ticks_ = false;
    if (data_.State == ClockState::Running) {
        canvas_.ShowChanges();
        timersOnDial_.Follow();
        if (zoneChanged) {
            tick_.RequestRedraw();
        }
    }
}

// A tick asks nobody.
bool frmTempolark::MayEnd() {
    if (data_.State == ClockState::Closing || ticks_ || !timers_.AsksBeforeItLoses()) {
        return true;
    }
    timersOnDial_.FinishMessage();
    timers_.SaveTimer(data_.TimerFile);
    return !timers_.AsksBeforeItLoses() ||
           timersOnDial_.Dialogs().MayLoseTimers(data_.TimerFile, placement_.Caption());
}

void frmTempolark::closeEvent(QCloseEvent* event) {
    if (!MayEnd()) {
        event->ignore();
        return;
    }
    const ClockState before = data_.State;
    data_.State = ClockState::Closing;
    if (before == ClockState::Closing) {
        event->accept();
        return;
    }
    window_.StopTimer();
    timersOnDial_.FinishMessage();
    voice_.FallSilent();
    messages_.HideMessage();
    program_.Module.Paths.CurrentPropertyFile = data_.PropertyFileName;
    // Before its first tick a clock has not taken the place that its file holds.
    if (const auto place = placement_.PlaceToStore(); place && before != ClockState::FirstTickDue) {
        files_.SavePosition(*place);
    }
    timers_.SaveTimer(data_.TimerFile);
    placement_.ShowClockWindow(false);
    program_.Windows.Remove(*this);
    event->accept();
    if (area_ == nullptr) {
        QCoreApplication::quit();  // a clock that stands alone is the whole program
    }
}

void frmTempolark::SetWindowState(int state) {
    if (data_.State.HasBegun()) {
        placement_.SetWindowState(state);
    }
}

void frmTempolark::Show() {
    if (data_.State.HasBegun()) {
        placement_.Show();
    }
}

void frmTempolark::SetFocus() {
    if (data_.State.HasBegun()) {
        window_.Activate();
    }
}

QString frmTempolark::AppEXEName() const {
    return clockcore::ClockProgram(program_.Module.Paths);
}

QString frmTempolark::GetLocation() const {
    return controls_.lblLocation(1).Caption;
}

void frmTempolark::RefreshDefaultTimeZoneDetails(const QString& zoneName) {
    files_.RefreshDefaultTimeZoneDetails(zoneName);
}

void frmTempolark::SetClocks(int mode) {
    look_.SetClocks(clockcore::NumberedClockKind(mode));
}

void frmTempolark::SetWindowBackColour(const QString& value, const QString& caption) {
    look_.SetWindowBackColour(value, caption);
}

void frmTempolark::Refresh() {
    face_.StillChanged();
    face_.DrawClockFace();
}

void frmTempolark::LayOutAgain() {
    if (data_.State == ClockState::Running) {
        tick_.RequestRedraw();
    }
}

void frmTempolark::Watch(const Watchers& watchers) {
    data_.State.Watch(watchers.State);
    window_.WatchInterval(watchers.Interval);
    timers_.WatchFiring(watchers.Firing);
    messages_.Watch(watchers.Messages);
    data_.CollectAskedNames(watchers.Keys);
}

void frmTempolark::FinishMotions() {
    digital_.FinishMotion();
    background_.FinishWipe();
}
