#include "shell/ui/frmMain.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QStatusBar>

#include "clock/ui/frmTempolark.h"
#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "shell/AutoStart.h"
#include "shell/ClockCommands.h"
#include "shell/ui/MessagePanel.h"
#include "timezones/StartZone.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int BusyInterval = 400;  // milliseconds, while the message line holds something
constexpr int IdleInterval = 10000;

}  // namespace

frmMain::frmMain(const Program& program)
    : program_(program),
      handle_(program.Windows.NewHandle()),
      launcher_(
          program, lastOpened_, [this] { return new frmTempolark(program_, this, area_); },
          [this](const QString& text) { ShowStatusMsg(text); }),
      timerCtrl_(program.Services.Clock.MakeTicker([this] { TimerCtrl(); })) {
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Tempolark Central"_s);
    program_.Windows.Add(*this);
    MakeInnerParts();
}

frmMain::~frmMain() {
    // The clocks go first: they still take leave of the window list and of the shell.
    delete area_;
    program_.Windows.Remove(*this);
}

void frmMain::MakeInnerParts() {
    area_ = new QMdiArea(this);
    area_->setObjectName(u"area"_s);
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);

    header_ = new QLabel(u"Press Launch to open a clock"_s, area_->viewport());
    header_->setObjectName(u"header"_s);
    header_->setAlignment(Qt::AlignCenter);
    header_->setAttribute(Qt::WA_TransparentForMouseEvents);
    area_->viewport()->installEventFilter(this);

    messagePanel_ = new MessagePanel(this);
    messagePanel_->setObjectName(u"messagePanel"_s);
    timePanel_ = new QLabel(this);
    timePanel_->setObjectName(u"timePanel"_s);
    statusBar()->addWidget(messagePanel_, 1);
    statusBar()->addPermanentWidget(timePanel_);
    MakeToolbar();
}

bool frmMain::Load() {
    if (!ConfigSetup()) {
        return false;
    }
    Arrange(shell::Arrangement::Cascade);
    lastOpened_.LoadOpenedForms(program_.Services.FileSystem,
                                program_.Module.Paths.OpenedFormsFile());
    lastOpened_.FillLastOpenedMenu(fileItem_, program_.Services.FileSystem, program_.Module.Paths);
    ApplyCentralProperties(false);
    if (IsScreenSaverRun()) {
        ApplyScreenSaverLook();
    }
    LayOutHidden();
    bool launchedAny = shell::LaunchAutoStartClocks(
        program_.Module.AutoStartList,
        [this](const QString& name) { return LaunchTempolark(name) != 0; });
    launchedAny = LaunchNamedClock() || launchedAny;
    SetHeaderVisible(!launchedAny);
    timerCtrl_->SetInterval(BusyInterval);
    ShowAtStart();
    return true;
}

// A zone that the command line names is what the user wants to see, too.
bool frmMain::LaunchNamedClock() {
    const QString name = program_.Module.CommandLine.trimmed();
    return !name.isEmpty() && !IsScreenSaverRun() && mduLib::ZoneNameProblem(name).isEmpty() &&
           mduLib::GetPropertyRaw(name, program_.Module.AutoStartList) != name &&
           LaunchTempolark(name) != 0;
}

bool frmMain::ConfigSetup() {
    const mduTimeZones::StartZone zone =
        mduTimeZones::ChooseStartZone(program_.Services, program_.Module.CommandLine);
    if (!zone.Problem.isEmpty()) {
        ShowStatusMsg(zone.Problem);
    }
    const mduMain::SetupResult result =
        mduMain::SetupFiles(program_.Module, program_.Services, zone.Name, centralProperties_);
    if (result == mduMain::SetupResult::Incomplete) {
        ShowStatusMsg(u"%1 can't be made"_s.arg(program_.Module.FailedSetupPath));
    }
    TellUnreadableLists();
    return result != mduMain::SetupResult::DefaultFileLost;
}

// Told now: what is not read is not written at the end either, when nobody sees a message.
void frmMain::TellUnreadableLists() {
    const PathTable& paths = program_.Module.Paths;
    for (const QString& file : {paths.CentralFile, paths.AutoStartFile, paths.OpenedFormsFile()}) {
        if (!mduLib::MayRewrite(program_.Services.FileSystem, file)) {
            ShowStatusMsg(u"%1 can't be read as a property file; it is left as it is"_s.arg(file));
        }
    }
}

void frmMain::SetHeaderVisible(bool visible) {
    header_->setVisible(visible);
    PlaceHeader();
}

void frmMain::PlaceHeader() {
    QFont font = header_->font();
    font.setPointSize(18);
    header_->setFont(font);
    header_->setGeometry(area_->viewport()->rect());
    header_->lower();
}

bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == area_->viewport()) {
        PlaceHeader();
    }
    return QMainWindow::eventFilter(watched, event);
}

int frmMain::LaunchTempolark(const QString& name) {
    const int handle = launcher_.LaunchTempolark(name);
    if (handle != 0) {
        SetHeaderVisible(false);
    }
    return handle;
}

void frmMain::closeEvent(QCloseEvent* event) {
    shell::CloseAllChildren(program_.Windows);
    ExitShell();
    event->accept();
}

void frmMain::ExitShell() {
    SaveOpenedForms();
    SaveWindowPlacement();
    SaveAutoStartList();
}

void frmMain::SaveAutoStartList() {
    const QString& file = program_.Module.Paths.AutoStartFile;
    if (!mduLib::RewritePropertyFile(program_.Services.FileSystem, program_.Module.AutoStartList,
                                     file)) {
        ShowStatusMsg(u"%1 can't be written"_s.arg(file));
    }
}

bool frmMain::SaveOpenedForms() {
    const QString file = program_.Module.Paths.OpenedFormsFile();
    const bool saved = lastOpened_.SaveOpenedForms(program_.Services.FileSystem, file);
    if (!saved) {
        ShowStatusMsg(u"%1 can't be written"_s.arg(file));
    }
    return saved;
}

QString frmMain::AppEXEName() const {
    return program_.Module.Paths.AppEXEName();
}

void frmMain::SetWindowState(int state) {
    switch (state) {
        case 1:
            showMinimized();
            break;
        case 2:
            showMaximized();
            break;
        default:
            showNormal();
    }
}

void frmMain::ShowStatusMsg(const QString& text) {
    status_.ShowStatusMsg(text);
    timerCtrl_->SetInterval(BusyInterval);
    RefreshPanels();
}

int frmMain::ShowMsgbox(const QString& text, int flags, const QString& title) {
    return program_.Services.Dialog.MessageBox(text, flags, title);
}

void frmMain::TimerCtrl() {
    status_.Tick();
    timerCtrl_->SetInterval(status_.Panel().isEmpty() ? IdleInterval : BusyInterval);
    RefreshPanels();
}

void frmMain::RefreshPanels() {
    messagePanel_->SetText(status_.Panel());
    const QString time = program_.Services.Clock.Now().time().toString(u"hh:mm"_s);
    if (timePanel_->text() != time) {
        timePanel_->setText(time);
    }
}

QString frmMain::Setting(const QString& name) const {
    return mduLib::GetProperty(name, centralProperties_);
}

int frmMain::RefreshForm(const QString&) {
    centralProperties_ = program_.Module.CurrentProperties;
    ApplyCentralProperties(true);
    return 0;
}

// The shell's own voice comes with the voices.
void frmMain::SpeakMessage(const QString&) {}
void frmMain::PurgeSpeech() {}
