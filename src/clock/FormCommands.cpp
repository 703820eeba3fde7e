#include "clock/FormCommands.h"

#include "clock/FormMenuState.h"
#include "clock/HiddenParts.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SystemSettings.h"
#include "platform/Dialogs.h"
#include "platform/HelpViewer.h"
#include "timezones/ExactDescription.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int ClockHelp = 600;  // help context number

}  // namespace

const FormCommands::Row FormCommands::Rows[] = {
    {u"ClocksMenu", &FormCommands::SetKind},
    {u"ClockStyles", &FormCommands::ChooseStyle},
    {u"WindowStateMenu", &FormCommands::ChooseWindowState},
    {u"WindowPosition", &FormCommands::ChoosePosition},
    {u"ClockColourMenu", &FormCommands::ChooseColour},
    {u"Restore", &FormCommands::Restore},
    {u"CountryTimeZone", &FormCommands::ChooseZone},
    {u"ChooseTimeZones", &FormCommands::ChooseTimeZones},
    {u"ShowTimeZoneDetails", &FormCommands::ShowZoneDetails},
    {u"AutoStart", &FormCommands::ToggleAutoStart},
    {u"ScreenSaverTime", &FormCommands::ChooseScreenSaver},
    {u"EnableActive", &FormCommands::ToggleEnabled},
    {u"Help", &FormCommands::Help},
    {u"About", &FormCommands::About},
    {u"Close", &FormCommands::Close},
    {u"SaveStyle", &FormCommands::Save},
    {u"SaveStyleAs", &FormCommands::SaveAs},
    {u"PropertyMenu", &FormCommands::Properties},
    {u"HiddenPart", &FormCommands::ShowHiddenPart},
};

// A menu may be open while its clock is closed by other means.
bool FormCommands::IsOpen() const {
    return data_.State != ClockState::Closing;
}

void FormCommands::SetEnabled(bool enabled) {
    if (IsOpen()) {
        parts_.Settings.SetEnabled(enabled);
    }
}

void FormCommands::Run(const FormEntry& entry) {
    if (!IsOpen()) {
        return;
    }
    for (const Row& row : Rows) {
        if (row.Name == entry.Name) {
            return (this->*row.Command)(entry);
        }
    }
}

// While its window is between two sizes, a clock is not in sight.
void FormCommands::SetWindowState(int state) {
    parts_.Placement.SetWindowState(state);
    parts_.Look.FitSurface();
}

void FormCommands::SetKind(const FormEntry& entry) {
    parts_.Look.SetClocks(NumberedClockKind(entry.Index));
}

// The file may have gone while the menu was open.
void FormCommands::ChooseStyle(const FormEntry& entry) {
    if (entry.More) {
        parts_.Dialogs.SetClockStyle(entry.Caption);
        return;
    }
    const QString path = program_.Module.Paths.StylesFolder + entry.Caption + u".ini"_s;
    if (mduLib::FileExists(program_.Services.FileSystem, path)) {
        parts_.Dialogs.SetClockStyle(path);
    } else {
        parts_.Screen.ShowStatus(path + u" is not there any more"_s);
    }
}

void FormCommands::ChooseColour(const FormEntry& entry) {
    if (mduUILib::IsCustomColour(entry.Caption)) {
        parts_.Dialogs.PickWindowBackColour();
    } else {
        parts_.Look.SetWindowBackColour({}, entry.Caption);
    }
}

void FormCommands::ChooseZone(const FormEntry& entry) {
    if (entry.More) {
        OpenWindow(ShellWindow::TimeZones);
    } else {
        parts_.Zone.TakeZone(entry.Caption, ZoneOnClock::Take::ZoneOnly);
    }
}

void FormCommands::ShowZoneDetails(const FormEntry&) {
    const QString text = mduTimeZones::PresentDescription(program_.Services, data_.Zone);
    program_.Services.Dialog.PostMessageBox(text, 0, u"Timezone Info"_s);
    if (mduUILib::YesNoToBool(
            mduLib::GetProperty(u"Speak Time Zone Details"_s, data_.Properties()))) {
        parts_.Voice.SpeakNow(text);
    }
}

// By what holds now, not by what the menu showed.
void FormCommands::ToggleAutoStart(const FormEntry&) {
    const bool isChild = parts_.Window.IsMDIChild();
    const FormMenuState state = ReadFormMenuState(program_, data_, {.IsMDIChild = isChild});
    IShell* shell = parts_.Screen.Shell();
    platform::SettingsStore& settings = program_.Services.Settings;
    if (isChild && shell != nullptr) {
        shell->SetAutoStart(state.ZoneFile, !state.AutoStarts);
    } else if (state.AutoStarts) {
        TellUnless(mduLib::RemoveFromRunKey(settings, RunName(data_)));
    } else {
        const QString program = mduLib::ToStoredPath(ClockProgram(program_.Module.Paths));
        TellUnless(mduLib::AddToRunKey(settings, RunName(data_), program + u' ' + state.ZoneFile));
    }
}

void FormCommands::ChooseScreenSaver(const FormEntry& entry) {
    TellUnless(mduLib::ChooseScreenSaverTime(program_.Services.Settings, entry.Caption,
                                             program_.Module.Paths.AppEXEName()));
}

void FormCommands::TellUnless(bool kept) {
    if (!kept) {
        parts_.Screen.ShowStatus(u"The setting can't be saved"_s);
    }
}

void FormCommands::ShowHiddenPart(const FormEntry& entry) {
    ClockProperties defaults;
    mduLib::ReadPropertyFile(program_.Services.FileSystem, program_.Module.Paths.ZoneDefaultFile(),
                             defaults);
    for (const WayBack& way : WaysBack(entry.Caption, data_.Properties(), defaults)) {
        parts_.Settings.Put({way.Key}, way.Value, way.What);
    }
}

void FormCommands::ToggleEnabled(const FormEntry&) {
    if (!IsEnabled()) {
        SetEnabled(true);
    } else if (parts_.Dialogs.Confirms(u"Do you want to disable the clock?"_s,
                                       u"Set Clock Disabled"_s)) {
        SetEnabled(false);
    }
}

void FormCommands::ShowHelp() {
    if (IShell* shell = parts_.Screen.Shell()) {
        shell->ShowClockHelp();
        return;
    }
    const QString refusal = program_.Services.Help.Show(
        program_.Module.Paths.AppFolder + u"/Help/Tempolark.chm"_s, ClockHelp);
    if (!refusal.isEmpty()) {
        program_.Services.Dialog.PostMessageBox(refusal, 0, parts_.Placement.Caption());
    }
}

void FormCommands::About(const FormEntry&) {
    if (parts_.Screen.Shell() != nullptr) {
        OpenWindow(ShellWindow::About);
    } else {
        program_.Services.Dialog.PostMessageBox(u"Tempolark "_s + QStringLiteral(TEMPOLARK_VERSION),
                                                0, u"About"_s);
    }
}

// The property window shows what is published.
void FormCommands::OpenWindow(ShellWindow window) {
    parts_.Files.MakeCurrent();
    if (IShell* shell = parts_.Screen.Shell()) {
        shell->OpenWindow(window);
    } else {
        program_.Services.Dialog.PostMessageBox(u"This window opens in Tempolark Central alone"_s,
                                                0, parts_.Placement.Caption());
    }
}

}  // namespace clockcore
