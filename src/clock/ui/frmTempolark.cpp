#include "clock/ui/frmTempolark.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "clock/ClockMode.h"
#include "drawing/StockPictures.h"
#include "foundation/NamedValues.h"
#include "foundation/OpenClocks.h"
#include "foundation/PropertyLookup.h"
#include "platform/ZoneDatabase.h"
#include "timezones/ZoneKeys.h"
#include "timezones/ZoneSources.h"

using namespace Qt::StringLiterals;
using clockcore::ClockState;

namespace {

constexpr int FirstShot = 10;         // milliseconds until the first tick
constexpr float FirstTimerMark = 13;  // left and top of the first timer's mark

}  // namespace

frmTempolark::frmTempolark(const Program& program, IShell* shell, QMdiArea* area)
    : program_(program),
      shell_(shell),
      area_(area),
      handle_(program.Windows.NewHandle()),
      surface_(std::make_unique<drawing::Surface>(1, 1, 1.0)),
      files_(data_, program, [this](const QString& text) { Status(text); }),
      styles_(program),
      timClock_(program.Services.Clock.MakeTicker([this] { Tick(); })),
      placement_(*this, area, data_, &program.Services.Clock),
      dial_(Context()),
      digital_(Context()),
      calculator_(Context()),
      background_(Context()),
      overlays_(Context()),
      actionRunner_(Parts<timers::TimerHost>()),
      messages_(Parts<timers::TimerHost>(),
                [this](const QString& action) { actionRunner_.RunAction(action); }),
      timers_(Parts<timers::TimerHost>(), messages_),
      actions_(Parts<timers::TimerHost>()),
      sounds_(Parts<timers::TimerHost>()),
      voice_(Parts<speech::SpeechHost>()),
      spoken_(Parts<speech::SpeechHost>(), voice_),
      music_(Parts<speech::SpeechHost>()),
      face_(data_, controls_, *this, {dial_, digital_, calculator_, background_, overlays_},
            program.Services.Clock, program.Services.Random),
      tick_(data_,
            {*this, placement_, face_, dial_, digital_, calculator_, background_, overlays_,
             timers_, messages_, sounds_, voice_, spoken_, music_, *this, *this},
            program.Module, program.Services.Clock) {
    setObjectName(ClockWindowName);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    program_.Windows.Add(*this);
}

drawing::FaceContext frmTempolark::Context() {
    return {data_.Properties(),
            data_.Zone,
            controls_,
            *this,
            program_.Services.Clock,
            program_.Services.FileSystem,
            program_.Services.Random,
            program_.Module.Pictures,
            program_.Module.Paths};
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
    data_.Tag = QString::number(clockcore::GetClockType(data_.Properties()));
    files_.FillZone(zoneName);
    FinishLoading();
    return true;
}

void frmTempolark::ShowMe(const QString& zoneName, bool refresh, bool wrapper) {
    files_.LoadCurrent();
    Load();
    const int mode = clockcore::GetClockType(data_.Properties());
    data_.Tag = QString::number(wrapper ? mode + clockcore::Wrapper : mode);
    files_.FillZone(zoneName);
    if (refresh) {
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
    auto* other = new frmTempolark(program_, shell_, area_);
    if (other->files_.NameCurrentFile(zoneName)) {
        const bool merged = other->files_.RefreshFile();
        other->ShowMe(zoneName, !merged, false);
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
    ApplyEnable();
    LayOutTimerMarks();
    controls_.MusicPlayer(1).Tag = u"0"_s;
    data_.State = ClockState::FirstTickDue;
    placement_.SetOuterSize({0, 0});
    controls_.imgSpeaker(1).Visible = false;
    SetTimerInterval(FirstShot);
    SetTimerInterval(timers::NormalInterval);  // from then on; the first shot comes all the same
}

void frmTempolark::LayOutTimerMarks() {
    mduUILib::ControlArray& marks = controls_.imgTimer;
    marks(1).Picture = drawing::GetStockPicture(drawing::StockPicture::TimerMark);
    marks(1).Left = FirstTimerMark;
    marks(1).Top = FirstTimerMark;
    for (int i = 2; i <= marks.Count(); ++i) {
        marks(i) = marks(i - 1);
    }
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

void frmTempolark::ApplyEnable() {
    EnableWindow(mduUILib::YesNoToBool(mduLib::GetProperty(u"Enable"_s, data_.Properties())));
}

void frmTempolark::closeEvent(QCloseEvent* event) {
    const ClockState before = data_.State;
    data_.State = ClockState::Closing;
    if (before == ClockState::Closing) {
        event->accept();
        return;
    }
    timClock_->SetInterval(0);
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
    if (!IsMDIChild()) {
        QCoreApplication::quit();  // a clock that stands alone is the whole program
    }
}

void frmTempolark::CloseClock() {
    Unload();
}

void frmTempolark::Unload() {
    placement_.Outer().close();
}

QString frmTempolark::Caption() const {
    return placement_.Outer().windowTitle();
}

bool frmTempolark::IsEnabled() const {
    return placement_.Outer().isEnabled();
}

void frmTempolark::EnableWindow(bool enabled) {
    placement_.Outer().setEnabled(enabled);
    for (mduUILib::ControlArray* array : controls_.All()) {
        for (mduUILib::Control& control : array->Members) {
            control.Enabled = enabled;
        }
    }
}

// Before its first tick a clock has nothing to show yet, nor any state to change.
bool frmTempolark::HasBegun() const {
    return data_.State != ClockState::Loading && data_.State != ClockState::FirstTickDue;
}

void frmTempolark::SetWindowState(int state) {
    if (HasBegun()) {
        placement_.SetWindowState(state);
    }
}

void frmTempolark::Show() {
    if (HasBegun()) {
        placement_.Show();
    }
}

void frmTempolark::SetFocus() {
    if (!HasBegun()) {
        return;
    }
    if (area_ != nullptr) {
        area_->setActiveSubWindow(placement_.Frame());
        placement_.Frame()->Place().ScrollTo();
    }
    setFocus();
}

bool frmTempolark::IsActiveForm() const {
    return area_ != nullptr ? area_->activeSubWindow() == placement_.Frame() : isActiveWindow();
}

QString frmTempolark::AppEXEName() const {
    return program_.Module.Paths.AppFolder + u"/Tempolark.exe"_s;
}

QString frmTempolark::GetLocation() const {
    return controls_.lblLocation(1).Caption;
}

void frmTempolark::RefreshDefaultTimeZoneDetails(const QString& zoneName) {
    files_.RefreshDefaultTimeZoneDetails(zoneName);
}

void frmTempolark::SetBackward() {
    mduLib::PutProperty(u"Clock Special"_s, u"Analogue Backward"_s, data_.EditProperties());
}

void frmTempolark::Status(const QString& text) {
    if (shell_ != nullptr) {
        shell_->ShowStatusMsg(text);
    }
}
