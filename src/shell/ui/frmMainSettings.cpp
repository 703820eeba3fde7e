// The shell's own settings: what it applies at its start and keeps at its end.
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>

#include "drawing/Surface.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SavedMessage.h"
#include "foundation/SettingsFile.h"
#include "foundation/Twips.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/SettingsStore.h"
#include "shell/CentralSettings.h"
#include "shell/ClockCommands.h"
#include "shell/ToolbarLook.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/HeaderArt.h"
#include "shell/ui/ShellFrame.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBar.h"
#include "shell/ui/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

/// The place moved so that enough of the window can be seen and taken hold of on some screen.
QRect WithinReach(QRect place) {
    constexpr int grip = 60;  // pixels
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect seen = place & screen->availableGeometry();
        if (seen.width() >= grip && seen.height() >= grip &&
            place.top() >= screen->availableGeometry().top()) {
            return place;
        }
    }
    const QRect whole = QGuiApplication::primaryScreen()->availableGeometry();
    const auto bring = [](int from, int extent, int least, int room) {
        return std::clamp(from, least, std::max(least, least + room - extent));
    };
    place.moveTo(bring(place.x(), place.width(), whole.left(), whole.width()),
                 bring(place.y(), place.height(), whole.top(), whole.height()));
    return place;
}

}  // namespace

void frmMain::ApplyCentralProperties(bool keepPlacement) {
    if (!keepPlacement) {
        ApplyPlacement();
    }
    toolbar_->ApplyToolbarSize(Setting(u"Toolbar Size"_s));
    ApplyToolbarPosition(Setting(u"Tool Bar"_s));
    ApplyStatusBarPosition(Setting(u"Status Bar"_s));
    // A picker belongs to a click; a file that asks for one leaves the colour as it is.
    const QString colour = Setting(u"Window Background Colour"_s);
    if (mduUILib::IsCustomColour(colour)) {
        ApplyBackColour();
    } else {
        SetBackgroundColour(colour);
    }
    ApplyWindowBorder(Setting(u"Window Border"_s));
    ApplyTitleBar(mduUILib::YesNoToBool(Setting(u"Window Title Bar"_s)));
    header_->SetVersionLocation(u"Version "_s + QCoreApplication::applicationVersion());
}

// The border that a frame around the clocks has: none, sunken, or a plain line.
void frmMain::ApplyWindowBorder(const QString& border) {
    switch (mduUILib::WindowBorderValue(border)) {
        case 3:
            area_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
            break;
        case 7:
            area_->setFrameStyle(QFrame::Box | QFrame::Plain);
            break;
        default:
            area_->setFrameStyle(QFrame::NoFrame);
    }
}

void frmMain::ApplyTitleBar(bool shown) {
    const bool has = !(windowFlags() & Qt::FramelessWindowHint);
    if (has == shown) {
        return;
    }
    // The window system takes the window off the screen to change this.
    const bool visible = isVisible();
    setWindowFlag(Qt::FramelessWindowHint, !shown);
    if (visible) {
        show();
    }
}

void frmMain::ApplyToolbarPosition(const QString& value) {
    const std::optional<shell::ToolbarPlace> place = shell::ToolbarPosition(value);
    if (!place) {
        return;
    }
    if (place->Align != shell::Align::Unsaid) {
        toolbar_->SetAlign(place->Align);
        frame_->PlaceToolbar(place->Align);
    }
    toolbar_->SetBorder(place->Border);
    toolbar_->setVisible(place->Visible);
}

void frmMain::ApplyStatusBarPosition(const QString& value) {
    const shell::StatusBarPlace place = shell::StatusBarPosition(value);
    if (place.Align != shell::Align::Unsaid) {
        statusBar_->SetAlign(place.Align);
        frame_->PlaceStatusBar(place.Align);
    }
    statusBar_->setVisible(place.Visible);
}

// Where the settings have it; settings that hide it change.
void frmMain::ShowStatusBarAgain() {
    const QString stored = Setting(u"Status Bar"_s);
    if (shell::StatusBarPosition(stored).Visible) {
        ApplyStatusBarPosition(stored);
    } else {
        ApplyStatusBarPosition(u"Yes"_s);
        WriteSetting(u"Status Bar"_s, u"Yes"_s);
    }
}

void frmMain::ApplyBackgroundFile() {
    const QString stored = Setting(u"Window Background File"_s);
    const QString path = mduLib::ResolveAppPath(stored.trimmed(), program_.Module.Paths.AppFolder);
    std::shared_ptr<const QImage> picture;
    if (mduLib::FileExists(program_.Services.FileSystem, path)) {
        picture = program_.Module.Pictures.Load(program_.Services.FileSystem, path);
    }
    area_->SetPicture(picture ? QPixmap::fromImage(*picture) : QPixmap());
    header_->SetOverPicture(picture != nullptr);
}

void frmMain::ApplyPlacement() {
    const auto number = [this](const QString& key) { return mduAPILib::Val(Setting(key)); };
    const QRect whole = screen()->availableGeometry();
    if (StoredWindowState() != 0) {
        // The place to come back to; the clocks that start by themselves are sized by the shell as
        // it will be seen.
        normalSize_ = whole.size() * 3 / 4;
        move(whole.topLeft() + QPoint(whole.width(), whole.height()) / 8);
        resize(StoredWindowState() == 2 ? whole.size() : normalSize_);
        return;
    }
    const auto extent = [](double twips, int present) {
        return twips > 0 ? mduAPILib::RoundToInteger(twips / TwipsPerPixel) : present / 4;
    };
    const QSize size(extent(number(u"Window Width"_s), whole.width()),
                     extent(number(u"Window Height"_s), whole.height()));
    resize(size.boundedTo(whole.size()).expandedTo({200, 150}));
    const auto place = [](double twips, int from, int room) {
        constexpr int farthest = 100'000;  // pixels: no screen reaches there
        return twips == -1 ? from + room / 2
                           : std::clamp(mduAPILib::RoundToInteger(twips / TwipsPerPixel), -farthest,
                                        farthest);
    };
    const QPoint corner(place(number(u"Window Left"_s), whole.left(), whole.width() - width()),
                        place(number(u"Window Top"_s), whole.top(), whole.height() - height()));
    move(WithinReach({corner, QWidget::size()}).topLeft());
    normalSize_ = QWidget::size();
}

int frmMain::StoredWindowState() const {
    return mduUILib::WindowStateValue(mduLib::GetProperty(u"Window State"_s, centralProperties_));
}

// A hidden window gives its inner parts no size until it has to be drawn. The clocks that start by
// themselves are placed before it is shown, so that it is drawn here, by a pixel.
void frmMain::LayOutHidden() {
    grab(QRect(0, 0, 1, 1));
}

bool frmMain::IsScreenSaverRun() const {
    return program_.Module.CommandLine == u"/s"_s;
}

// Over everything, as large as the screen, with nothing around the clocks.
void frmMain::ApplyScreenSaverLook() {
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setWindowFlag(Qt::FramelessWindowHint);
    toolbar_->hide();
    statusBar_->hide();
    menuBar()->hide();
    setGeometry(screen()->geometry());
}

void frmMain::ShowAtStart() {
    if (IsScreenSaverRun()) {
        SetWindowState(2);
        return;
    }
    resize(normalSize_);
    SetWindowState(StoredWindowState());
    if (StoredWindowState() == 0) {
        appliedPlace_ = QRect(pos(), size());
    }
}

// What the window manager puts around the window is known only once it is shown.
void frmMain::FitOnScreen() {
    const QRect whole = screen()->availableGeometry();
    const QSize over = frameGeometry().size() - whole.size();
    if (WindowState() != 0 || (over.width() <= 0 && over.height() <= 0)) {
        return;
    }
    const bool untouched = QRect(pos(), size()) == appliedPlace_;
    resize(size() - over.expandedTo({0, 0}));
    move(whole.topLeft());
    if (untouched) {
        appliedPlace_ = QRect(pos(), size());
    }
}

void frmMain::SetBackgroundColour(const QString& colourName) {
    QString name = colourName;
    if (mduUILib::IsCustomColour(colourName)) {
        const int picked = program_.Services.Dialog.PickColour(backColour_);
        if (picked < 0) {
            return;
        }
        backColour_ = picked;
        name = mduUILib::ColourName(picked);
    } else if (colourName.trimmed().toLower() != u"transparent"_s) {
        backColour_ = mduUILib::ColourValue(colourName, program_.Services.Random);
    }
    ApplyBackColour();
    if (name != Setting(u"Window Background Colour"_s)) {
        WriteSetting(u"Window Background Colour"_s, name);
    }
}

void frmMain::ApplyBackColour() {
    area_->setBackground(QColor(drawing::ToRgb(backColour_)));
    header_->SetBackColour(backColour_);
    shell::SyncClockBackColours(program_.Windows, backColour_);
}

// Toggles are written at once, so that they outlast a crash.
void frmMain::WriteSetting(const QString& key, const QString& value) {
    mduLib::PutProperty(key, value, centralProperties_);
    WriteSettings();
}

bool frmMain::WriteSettings() {
    if (!mduMain::ReplaceSettings(program_.Services.FileSystem, centralProperties_, IniFile(),
                                  DefaultIniFile())) {
        ShowStatusMsg(u"%1 can't be written"_s.arg(IniFile()));
        return false;
    }
    return true;
}

void frmMain::TellSaved(const QString& what) {
    ShowStatusMsg(mduLib::SavedMessage(what, program_.Services.Clock.Now()));
}

void frmMain::SaveCentralSettings() {
    shell::SaveCentralLook({backColour_, toolbar_->AlignCode(), toolbar_->isVisibleTo(frame_),
                            toolbar_->SizeName(), statusBar_->isVisibleTo(frame_), WindowState()},
                           centralProperties_);
    if (WriteSettings()) {
        TellSaved(u"the settings of Tempolark Central"_s);
    }
}

// Which buttons the user has kept. Every start sets the bar up from the catalogue all the same.
bool frmMain::SaveToolbarLayout() {
    return program_.Services.Settings.SetValue(u"TempolarkCentralToolbar"_s,
                                               program_.Module.Paths.UserName, toolbar_->Layout());
}

void frmMain::SaveWindowPlacement() {
    // What the property window saved meanwhile stays.
    const platform::Files& files = program_.Services.FileSystem;
    ClockProperties fresh;
    if (!mduMain::IsBrokenSettings(files, IniFile(), DefaultIniFile()) &&
        mduLib::ReadPropertyFile(files, IniFile(), fresh)) {
        centralProperties_ = mduMain::ReadSettings(files, IniFile(), DefaultIniFile());
    }
    if (WindowState() == 0) {
        // What nobody has changed keeps its number: a small screen may have cut it for this time.
        const auto store = [this](const QString& key, int pixels, int applied) {
            if (pixels != applied || mduAPILib::Val(Setting(key)) == -1) {
                const double twips = pixels * TwipsPerPixel;
                mduLib::PutProperty(key, mduAPILib::SingleText(static_cast<float>(twips)),
                                    centralProperties_);
            }
        };
        const bool known = !appliedPlace_.isNull();
        store(u"Window Top"_s, y(), known ? appliedPlace_.y() : y() - 1);
        store(u"Window Left"_s, x(), known ? appliedPlace_.x() : x() - 1);
        store(u"Window Width"_s, width(), appliedPlace_.width());
        store(u"Window Height"_s, height(), appliedPlace_.height());
    }
    // A screen-saver run hides the bar for its own time only.
    if (!IsScreenSaverRun()) {
        mduLib::PutProperty(
            u"Tool Bar"_s,
            mduUILib::ToolbarPositionName(toolbar_->AlignCode(), toolbar_->isVisibleTo(frame_)),
            centralProperties_);
        mduLib::PutProperty(u"Toolbar Size"_s, toolbar_->SizeName(), centralProperties_);
    }
    WriteSettings();
    SaveToolbarLayout();
}
