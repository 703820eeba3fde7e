#pragma once

#include "clock/ClockFiles.h"
#include "clock/ClockLook.h"
#include "clock/FormMenu.h"
#include "clock/LookDialogs.h"
#include "clock/MenuSettings.h"
#include "clock/ZoneOnClock.h"
#include "speech/SpeakerVoice.h"

namespace clockcore {

/// What the entries of `FormPopup` do, and the keys that do the same. None of it waits but the
/// questions, which are asked last: the clock may be gone when they are answered.
class FormCommands {
public:
    /// What the commands act on. All of it outlives them.
    struct Parts {
        ClockScreen& Screen;
        ClockWindow& Window;
        ClockPlacement& Placement;
        ClockFiles& Files;
        ClockLook& Look;
        LookDialogs& Dialogs;
        MenuSettings& Settings;
        ZoneOnClock& Zone;
        speech::SpeakerVoice& Voice;
    };

    FormCommands(const ClockData& data, const Program& program, const Parts& parts)
        : data_(data), program_(program), parts_(parts) {}

    /// A click on an entry; one of no known name does nothing, nor does any on a closing clock.
    void Run(const FormEntry& entry);

    /// The help of clocks, by the shell or, without one, at once.
    void ShowHelp();
    /// Opens a window of the shell, which finds this clock's properties laid out. A clock without a
    /// shell tells that it can't.
    void OpenWindow(ShellWindow window);
    /// Restores, minimises or maximises the window: 0, 1 or 2. The next save stores it.
    void SetWindowState(int state);
    /// Maximises the window; one that is maximised or minimised comes back to its normal size.
    void ToggleMaximised() { SetWindowState(parts_.Placement.WindowState() == 0 ? 2 : 0); }
    /// Enables the clock or disables it, now and at its next start, without a question. A closing
    /// clock stays as it is.
    void SetEnabled(bool enabled);
    bool IsEnabled() const { return parts_.Window.IsEnabled(); }
    void SaveStyle() { parts_.Look.SaveCurrentStyle(); }
    void SaveStyleAs() { parts_.Dialogs.SaveStyleAs(); }

private:
    /// The command of an entry, or of all entries of an array.
    struct Row {
        QStringView Name;
        void (FormCommands::*Command)(const FormEntry& entry);
    };
    static const Row Rows[];

    bool IsOpen() const;
    void SetKind(const FormEntry& entry);
    void ChooseStyle(const FormEntry& entry);
    void ChooseWindowState(const FormEntry& entry) { SetWindowState(entry.Index - 1); }
    void ChoosePosition(const FormEntry& entry) { parts_.Placement.MoveTo(entry.Caption); }
    void Restore(const FormEntry&) { SetWindowState(0); }
    void ChooseColour(const FormEntry& entry);
    void ChooseZone(const FormEntry& entry);
    void ChooseTimeZones(const FormEntry&) { OpenWindow(ShellWindow::TimeZones); }
    /// Shows the text of the zone's rules; it is also spoken where "Speak Time Zone Details" says
    /// so.
    void ShowZoneDetails(const FormEntry&);
    void ToggleAutoStart(const FormEntry&);
    void ChooseScreenSaver(const FormEntry& entry);
    /// A clock that is enabled asks first.
    void ToggleEnabled(const FormEntry&);
    void Help(const FormEntry&) { ShowHelp(); }
    void About(const FormEntry&);
    void Close(const FormEntry&) { parts_.Window.CloseClock(); }
    void Save(const FormEntry&) { SaveStyle(); }
    void SaveAs(const FormEntry&) { SaveStyleAs(); }
    void Properties(const FormEntry&) { OpenWindow(ShellWindow::Properties); }
    void ShowHiddenPart(const FormEntry& entry);
    void TellUnless(bool kept);

    const ClockData& data_;
    Program program_;
    Parts parts_;
};

}  // namespace clockcore
