#include "shell/ui/ShellLook.h"

#include <QCoreApplication>

#include "drawing/Surface.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/WindowBorder.h"
#include "platform/Dialogs.h"
#include "shell/ClockCommands.h"
#include "shell/ToolbarLook.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/HeaderArt.h"
#include "shell/ui/ShellFrame.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/ToolBar.h"

using namespace Qt::StringLiterals;

ShellLook::ShellLook(const Program& program, shell::ShellSettings& settings, const Parts& parts)
    : program_(program), settings_(settings), parts_(parts) {}

void ShellLook::AddTo(shell::MenuCommands& commands) {
    using shell::MenuItem;
    commands.Handle(u"BGColour"_s,
                    [this](int, const MenuItem& item) { SetBackgroundColour(item.Caption); });
    commands.Handle(u"ToolBarSize"_s,
                    [this](int, const MenuItem& item) { ChooseToolbarSize(item.Caption); });
    commands.Handle(u"ToolBarPositions"_s,
                    [this](int, const MenuItem& item) { ApplyToolbarPosition(item.Caption); });
    commands.Handle(u"HideStatusBar"_s,
                    [this](int, const MenuItem& item) { HideStatusBar(item.Tag); });
    commands.Handle(u"StatusBarAction"_s,
                    [this](int, const MenuItem& item) { HideStatusBarForNow(item.Tag); });
}

void ShellLook::ApplyCentralProperties() {
    parts_.Toolbar.ApplyToolbarSize(settings_.Setting(u"Toolbar Size"_s));
    ApplyToolbarPosition(settings_.Setting(u"Tool Bar"_s));
    ApplyStatusBarPosition(settings_.Setting(u"Status Bar"_s));
    // A picker belongs to a click; a file that asks for one leaves the colour as it is.
    const QString colour = settings_.Setting(u"Window Background Colour"_s);
    if (mduUILib::IsCustomColour(colour)) {
        ApplyBackColour();
    } else {
        SetBackgroundColour(colour);
    }
    ApplyWindowBorder(settings_.Setting(u"Window Border"_s));
    parts_.Header.SetVersionLocation(u"Version "_s + QCoreApplication::applicationVersion());
}

// The border that a frame around the clocks has: none, sunken, or a plain line.
void ShellLook::ApplyWindowBorder(const QString& border) {
    switch (mduUILib::ReadWindowBorder(border)) {
        case mduUILib::WindowBorder::Raised:
            parts_.Area.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
            break;
        case mduUILib::WindowBorder::Plain:
            parts_.Area.setFrameStyle(QFrame::Box | QFrame::Plain);
            break;
        default:
            parts_.Area.setFrameStyle(QFrame::NoFrame);
    }
}

void ShellLook::ApplyToolbarPosition(const QString& value) {
    const std::optional<shell::ToolbarPlace> place = shell::ToolbarPosition(value);
    if (!place) {
        return;
    }
    if (place->Align != shell::Align::Unsaid) {
        parts_.Toolbar.SetAlign(place->Align);
        parts_.Frame.PlaceToolbar(place->Align);
    }
    parts_.Toolbar.SetBorder(place->Border);
    parts_.Toolbar.setVisible(place->Visible);
}

// A bar that the settings have somewhere shows its new size, even when it was hidden for now.
void ShellLook::ChooseToolbarSize(const QString& sizeName) {
    parts_.Toolbar.ApplyToolbarSize(sizeName);
    const QString place = settings_.Setting(u"Tool Bar"_s);
    if (place != u"None"_s && place != u"Hide"_s) {
        parts_.Toolbar.show();
    }
}

void ShellLook::ApplyStatusBarPosition(const QString& value) {
    const shell::StatusBarPlace place = shell::StatusBarPosition(value);
    if (place.Align != shell::Align::Unsaid) {
        parts_.Status.SetAlign(place.Align);
        parts_.Frame.PlaceStatusBar(place.Align);
    }
    parts_.Status.setVisible(place.Visible);
}

void ShellLook::HideStatusBar(const QString& shown) {
    if (shown == u"Yes"_s) {
        ApplyStatusBarPosition(u"No"_s);
        settings_.WriteSetting(u"Status Bar"_s, u"No"_s);
    } else {
        ShowStatusBarAgain();
    }
}

void ShellLook::HideStatusBarForNow(const QString& shown) {
    if (shown == u"Yes"_s) {
        parts_.Status.hide();  // for now: the file does not hear of it
    } else {
        ShowStatusBarAgain();
    }
}

// Where the settings have it; settings that hide it change.
void ShellLook::ShowStatusBarAgain() {
    const QString stored = settings_.Setting(u"Status Bar"_s);
    if (shell::StatusBarPosition(stored).Visible) {
        ApplyStatusBarPosition(stored);
    } else {
        ApplyStatusBarPosition(u"Yes"_s);
        settings_.WriteSetting(u"Status Bar"_s, u"Yes"_s);
    }
}

void ShellLook::HideBars() {
    parts_.Toolbar.hide();
    parts_.Status.hide();
}

void ShellLook::ApplyBackgroundFile() {
    const QString stored = settings_.Setting(u"Window Background File"_s);
    const QString path = mduLib::ResolveAppPath(stored.trimmed(), program_.Module.Paths.AppFolder);
    std::shared_ptr<const QImage> picture;
    if (mduLib::FileExists(program_.Services.FileSystem, path)) {
        picture = program_.Module.Pictures.Load(program_.Services.FileSystem, path);
    }
    parts_.Area.SetPicture(picture ? QPixmap::fromImage(*picture) : QPixmap());
    parts_.Header.SetOverPicture(picture != nullptr);
}

void ShellLook::SetBackgroundColour(const QString& colourName) {
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
    if (name != settings_.Setting(u"Window Background Colour"_s)) {
        settings_.WriteSetting(u"Window Background Colour"_s, name);
    }
}

void ShellLook::ApplyBackColour() {
    parts_.Area.setBackground(QColor(drawing::ToRgb(backColour_)));
    parts_.Header.SetBackColour(backColour_);
    shell::SyncClockBackColours(program_.Windows, backColour_);
}

shell::CentralLook ShellLook::Look(int windowState) const {
    const ToolBar& bar = parts_.Toolbar;
    return {backColour_,
            bar.AlignCode(),
            bar.isVisibleTo(&parts_.Frame),
            bar.SizeName(),
            parts_.Status.isVisibleTo(&parts_.Frame),
            windowState};
}
