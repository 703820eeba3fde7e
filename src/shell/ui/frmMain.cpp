#include "shell/ui/frmMain.h"

#include <QCloseEvent>
#include <QLayout>
#include <QMdiSubWindow>
#include <QScreen>
#include <QStatusBar>

#include "clock/ui/frmTempolark.h"
#include "drawing/Surface.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "foundation/Twips.h"
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
    const QString screenSaverRun = u"/s"_s;
    return !name.isEmpty() && name != screenSaverRun && mduLib::ZoneNameProblem(name).isEmpty() &&
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

void frmMain::ApplyCentralProperties(bool keepPlacement) {
    if (!keepPlacement) {
        ApplyPlacement();
    }
    const auto value = [this](const QString& key) {
        return mduLib::GetProperty(key, centralProperties_);
    };
    statusBar()->setVisible(mduUILib::YesNoToBool(value(u"Status Bar"_s)));
    SetBackgroundColour(value(u"Window Background Colour"_s));
}

void frmMain::ApplyPlacement() {
    const auto number = [this](const QString& key) {
        return mduAPILib::Val(mduLib::GetProperty(key, centralProperties_));
    };
    const QRect whole = screen()->availableGeometry();
    const auto extent = [](double twips, int present) {
        return twips > 0 ? mduAPILib::RoundToInteger(twips / TwipsPerPixel) : present / 4;
    };
    const QSize size(extent(number(u"Window Width"_s), whole.width()),
                     extent(number(u"Window Height"_s), whole.height()));
    resize(size.boundedTo(whole.size()).expandedTo({200, 150}));
    const auto place = [](double twips, int from, int room) {
        return twips == -1 ? from + room / 2 : mduAPILib::RoundToInteger(twips / TwipsPerPixel);
    };
    move(place(number(u"Window Left"_s), whole.left(), whole.width() - width()),
         place(number(u"Window Top"_s), whole.top(), whole.height() - height()));
    normalSize_ = QWidget::size();
    // The clocks that start by themselves are sized by the shell as it will be seen.
    if (StoredWindowState() == 2) {
        resize(whole.size());
    }
    layout()->activate();
}

int frmMain::StoredWindowState() const {
    return mduUILib::WindowStateValue(mduLib::GetProperty(u"Window State"_s, centralProperties_));
}

void frmMain::ShowAtStart() {
    resize(normalSize_);
    SetWindowState(StoredWindowState());
}

void frmMain::SetBackgroundColour(const QString& colourName) {
    if (colourName.trimmed().toLower() != u"transparent"_s) {
        backColour_ = mduUILib::ColourValue(QString(colourName), program_.Services.Random);
    }
    const QColor colour(drawing::ToRgb(backColour_));
    area_->setBackground(colour);
    QPalette palette = header_->palette();
    palette.setColor(QPalette::WindowText,
                     colour.lightness() > 128 ? QColor(40, 50, 65) : QColor(225, 230, 238));
    header_->setPalette(palette);
    shell::SyncClockBackColours(program_.Windows, backColour_);
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

void frmMain::SaveWindowPlacement() {
    platform::Files& files = program_.Services.FileSystem;
    const QString file = IniFile();
    // What the property window saved meanwhile stays.
    ClockProperties fresh;
    if (mduLib::ReadPropertyFile(files, file, fresh)) {
        centralProperties_ = fresh;
    }
    if (WindowState() == 0) {
        const auto store = [this](const QString& key, int pixels) {
            mduLib::PutProperty(key,
                                mduAPILib::SingleText(static_cast<float>(pixels * TwipsPerPixel)),
                                centralProperties_);
        };
        store(u"Window Top"_s, y());
        store(u"Window Left"_s, x());
        store(u"Window Width"_s, width());
        store(u"Window Height"_s, height());
    }
    mduLib::RewritePropertyFile(files, centralProperties_, file);
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

int frmMain::RefreshForm(const QString&) {
    centralProperties_ = program_.Module.CurrentProperties;
    ApplyCentralProperties(true);
    return 0;
}

// The shell's own voice comes with the voices.
void frmMain::SpeakMessage(const QString&) {}
void frmMain::PurgeSpeech() {}
