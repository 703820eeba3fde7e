#include "shell/ui/frmMain.h"

#include <QCloseEvent>
#include <QMenuBar>

#include "clock/ui/frmTempolark.h"
#include "foundation/FileHelpers.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SettingsFile.h"
#include "foundation/SetupPaths.h"
#include "shell/AutoStart.h"
#include "shell/ClockCommands.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/HeaderArt.h"
#include "shell/ui/ShellFrame.h"
#include "shell/ui/ShellMenus.h"
#include "shell/ui/ShellPictures.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBar.h"
#include "timezones/StartZone.h"
#include "timezones/UnknownZone.h"
#include "timezones/ZoneEdition.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstInterval = 1;  // milliseconds: the first tick comes when the window stands

/// The pictures of the eye, of which the status bar shows one at a time.
std::vector<QIcon> EyeFrames(const platform::Files& files, const QString& folder) {
    std::vector<QIcon> frames;
    for (int i = 1; i <= shell::Eye::Frames; ++i) {
        frames.push_back(
            ShellPicture(files, u"%1/eye-%2.svg"_s.arg(folder).arg(i, 2, 10, QChar(u'0'))));
    }
    return frames;
}

}  // namespace

frmMain::frmMain(const Program& program)
    : program_(program),
      handle_(program.Windows.NewHandle()),
      launcher_(
          program, lastOpened_, [this] { return new frmTempolark(program_, this, area_); },
          [this](const QString& text) { ShowStatusMsg(text); }),
      timerCtrl_(program.Services.Clock.MakeTicker([this] { TimerCtrl(); })),
      balloonTips_{CBalloonToolTip(program.Services.Clock),
                   CBalloonToolTip(program.Services.Clock)} {
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Tempolark Central"_s);
    program_.Windows.Add(*this);
    MakeInnerParts();
}

frmMain::~frmMain() {
    // The clocks go first: they still take leave of the window list and of the shell. What happens
    // to their area meanwhile is nobody's business any more.
    area_->viewport()->removeEventFilter(this);
    disconnect(area_, nullptr, this, nullptr);
    header_ = nullptr;
    delete area_;
    program_.Windows.Remove(*this);
}

void frmMain::MakeInnerParts() {
    const QString pictures = program_.Module.Paths.AppFolder + u"/Images"_s;
    menus_ =
        new ShellMenus(this, menuState_,
                       {[this](const QString& menu) { RefreshMenu(menu); },
                        [this](const QString& name, int index) { commands_.Click(name, index); }});
    menus_->AddTo(*menuBar());
    menuBar()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(menuBar(), &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { menus_->Popup(u"BarsMenu"_s, menuBar()->mapToGlobal(at)); });
    HandleFileMenus();
    HandleCentralMenus();
    HandleClockMenus();
    HandleWindowMenus();
    toolbar_ = new ToolBar(
        program_.Services.FileSystem, pictures,
        {[this](int index) { HandleToolButton(index); }, [this](int index) { ShowToolTip(index); },
         [this](const QPoint& at) { menus_->Popup(u"ToolBarMenu"_s, at); }},
        this);
    area_ = new ClockArea(this);
    statusBar_ =
        new StatusBar(EyeFrames(program_.Services.FileSystem, pictures + u"/Shell"_s), this);
    statusBar_->OnMenu = [this](const QPoint& at) { menus_->Popup(u"StatusBarMenu"_s, at); };
    frame_ = new ShellFrame(area_, toolbar_, statusBar_, this);
    setCentralWidget(frame_);
    MakeHeader();
    area_->viewport()->installEventFilter(this);
    connect(area_, &QMdiArea::subWindowActivated, this, [this] { ShowHeaderWhenEmpty(); });
}

void frmMain::MakeHeader() {
    header_ = new HeaderArt(program_,
                            {[this] { OpenTimeZones(); },
                             [this](const QPoint& at) { menus_->Popup(u"MainMenu"_s, at); },
                             [this] {
                                 if (!area_->subWindowList().isEmpty()) {
                                     SetHeaderVisible(false);
                                 }
                             }},
                            area_->viewport());
}

bool frmMain::Load() {
    shellStage_ = 2;
    if (!ConfigSetup()) {
        return false;
    }
    Arrange(shell::Arrangement::Cascade);
    lastOpened_.LoadOpenedForms(program_.Services.FileSystem,
                                program_.Module.Paths.OpenedFormsFile());
    lastOpened_.FillLastOpenedMenu(menuState_[u"FileItem"_s], program_.Services.FileSystem,
                                   program_.Module.Paths);
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
    timerCtrl_->SetInterval(FirstInterval);
    ShowAtStart();
    if (!launchedAny) {
        header_->ShowHeaderAnimation(Setting(u"Heading Variation"_s));
    }
    return true;
}

// A zone that the command line names is what the user wants to see, too.
bool frmMain::LaunchNamedClock() {
    const QString& commandLine = program_.Module.CommandLine;
    const QString name = commandLine.trimmed();
    const bool launched = NamesAClock(commandLine) &&
                          mduLib::GetPropertyRaw(name, program_.Module.AutoStartList) != name &&
                          LaunchTempolark(name) != 0;
    ShowStatusMsg(NoticeOf(commandLine));
    return launched;
}

QString frmMain::NoticeOf(const QString& commandLine) const {
    return NamesAClock(commandLine)
               ? mduTimeZones::UnknownClockNotice(program_.Services, program_.Module.Paths,
                                                  commandLine.trimmed())
               : QString();
}

bool frmMain::NamesAClock(const QString& commandLine) {
    const QString name = commandLine.trimmed();
    return !name.isEmpty() && commandLine != u"/s"_s && mduLib::ZoneNameProblem(name).isEmpty();
}

bool frmMain::ConfigSetup() {
    const mduTimeZones::StartZone zone =
        mduTimeZones::ChooseStartZone(program_.Services, program_.Module.CommandLine);
    if (!zone.Problem.isEmpty()) {
        ShowStatusMsg(zone.Problem);
    }
    ShowStatusMsg(mduTimeZones::OldEditionNotice(program_.Services.Zones.Edition(),
                                                 program_.Services.Clock.Now().date()));
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
    for (const QString& file : {paths.AutoStartFile, paths.OpenedFormsFile()}) {
        if (!mduLib::MayRewrite(program_.Services.FileSystem, file)) {
            ShowStatusMsg(u"%1 can't be read as a property file; it is left as it is"_s.arg(file));
        }
    }
    TellBrokenSettings();
}

// They are kept when the shell writes its own, at the end or before.
void frmMain::TellBrokenSettings() {
    const platform::Files& files = program_.Services.FileSystem;
    if (!mduMain::IsBrokenSettings(files, IniFile(), DefaultIniFile())) {
        return;
    }
    const QString kept = files.Read(IniFile())
                             ? u"kept as "_s + mduMain::NameToKeep(files, IniFile())
                             : u"left as it is"_s;
    ShowStatusMsg(
        u"%1 can't be read as settings; the defaults hold, and it is %2"_s.arg(IniFile(), kept));
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

int frmMain::ShowMsgbox(const QString& text, int flags, const QString& title) {
    return program_.Services.Dialog.MessageBox(text, flags, title);
}

QString frmMain::Setting(const QString& name) const {
    return mduLib::GetProperty(name, centralProperties_);
}

int frmMain::RefreshForm(const QString& zoneName) {
    // "True" and "False" both count as 0: a new clock is launched by the property window's own
    // button, and what was saved always reaches the shell.
    int handle = 0;
    if (!zoneName.isEmpty() && mduAPILib::Val(newClockTag_) != 0) {
        handle = LaunchTempolark(zoneName);
        newClockTag_ = u"False"_s;
    } else {
        centralProperties_ = program_.Module.CurrentProperties;
        ApplyCentralProperties(true);
        header_->ApplyHeaderStyle(Setting(u"Heading Variation"_s));
    }
    return handle;
}

void frmMain::SpeakMessage(const QString& text) {
    if (!voice_) {
        voice_ = program_.Services.Speech.MakeVoice();
    }
    constexpr int atOnce = 1;  // the shell goes on while its voice speaks
    if (voice_ && !text.isEmpty() && !voice_->Speak(text, atOnce)) {
        ShowStatusMsg(voice_->LastError());
    }
}

void frmMain::PurgeSpeech() {
    constexpr int purge = 2;
    if (voice_) {
        voice_->Speak(u"."_s, purge);
    }
}
