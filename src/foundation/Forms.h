#pragma once

#include <QString>
#include <cstdint>
#include <vector>

/// The application's list of loaded windows, and what windows may ask of each other. Neither the
/// shell nor the clock knows the other's class.

class ClockProperties;
class IClock;
class IEditTarget;
class IPropertyWindow;

/// Bits of a window's style that the menus filter on.
namespace WindowStyle {
inline constexpr std::uint32_t Disabled = 0x8000000;
inline constexpr std::uint32_t Maximised = 0x1000000;
inline constexpr std::uint32_t Minimised = 0x20000000;
}  // namespace WindowStyle

/// A loaded window. The menus of the shell list and command windows through it. Windows add
/// themselves to `Forms`; they leave it when they are closed or, at the latest, destroyed.
class IForm {
public:
    virtual ~IForm() = default;

    virtual QString Name() const = 0;  ///< the window's class, such as "frmTempolark"
    virtual QString Caption() const = 0;
    virtual int hwnd() const = 0;         ///< the handle that menus keep; above 0
    virtual int WindowState() const = 0;  ///< 0 normal, 1 minimised, 2 maximised
    virtual void SetWindowState(int state) = 0;
    virtual bool IsEnabled() const = 0;
    virtual void EnableWindow(bool enabled) = 0;
    virtual void Show() = 0;
    virtual void SetFocus() = 0;
    /// Closes the window. It may leave `Forms` at once or when the event loop runs next.
    virtual void Unload() = 0;

    /// The window as a clock; null for any other window.
    virtual IClock* AsClock() { return nullptr; }
    /// The window as one that edits a property file; null for any other window.
    virtual IPropertyWindow* AsPropertyWindow() { return nullptr; }
    /// The window as one that the menu "Edit" acts on; null for any other window.
    virtual IEditTarget* AsEditTarget() { return nullptr; }

    /// Style bits made of the state and the enabled switch.
    std::uint32_t Style() const;
};

class IShell;

/// Flags of a message box, and its answers: see `platform::Dialogs::MessageBox`.
namespace MsgBox {
inline constexpr int YesNoQuestion = 4 + 32;  ///< two buttons and a question mark
inline constexpr int Yes = 6;
}  // namespace MsgBox

/// A clock, as the shell sees it.
class IClock : public IForm {
public:
    IClock* AsClock() override { return this; }

    /// Loads the clock of a zone as a child of the shell. @return false when that failed.
    virtual bool ShowMeMDIChild(const QString& zoneName) = 0;
    virtual void SetClocks(int mode) = 0;  ///< 1 Analogue, 2 Digital, 3 Calculator, 4 both
    virtual void SetClockStyle(const QString& styleFile) = 0;
    /// @p caption is that of the menu item; with "Custom" @p value is the colour already picked.
    virtual void SetWindowBackColour(const QString& value, const QString& caption) = 0;
    virtual void SaveCurrentStyle() = 0;
    virtual void RefreshForm(const QString& fileName) = 0;
    virtual void Refresh() = 0;  ///< paints the window anew
    /// Lays the clock out again after it came back to its normal size.
    virtual void LayOutAgain() = 0;

    virtual QString IniFile() const = 0;  ///< the full path of the clock's own file
    /// Lays the clock's properties out for the property window, its place as it stands among them.
    virtual void SetProperty() = 0;
    /// Rewrites the time-zone keys of the clock's file from the zone's present rules, and publishes
    /// the properties.
    virtual void RefreshDefaultTimeZoneDetails(const QString& zoneName) = 0;
    /// Shows these values in place of its own, and of those that it was given before; nothing is
    /// stored. Only the first part of a value counts. None gives the clock its own look back.
    virtual void PreviewProperties(const ClockProperties& values) = 0;

    virtual int DrawStyle() const = 0;  ///< 1 while the clock shows the shell behind itself
    virtual void SetBackColor(int colour) = 0;
};

/// A window that edits a property file.
class IPropertyWindow {
public:
    virtual ~IPropertyWindow() = default;

    virtual QString PropertyFile() const = 0;  ///< the full path; empty for a new one without name
    /// Somebody else has written the file: the window asks when its grid next gets the focus.
    virtual void SetPropertyChanged(bool state) = 0;
};

/// What the menu "Edit" can do.
enum class EditAction { Undo, Redo, Cut, Copy, Paste, Delete, Clear, SelectAll, Find };

/// A window that has something to edit beside its lines of text, which the menu knows by itself.
class IEditTarget {
public:
    virtual ~IEditTarget() = default;

    virtual bool CanEdit(EditAction action) const = 0;  ///< as it stands at this moment
    virtual void Edit(EditAction action) = 0;           ///< nothing where it can't
};

/// The windows that the shell opens beside the clocks, for a clock that asks for one.
enum class ShellWindow {
    Properties,  ///< of the clock in front
    TimeZones,
    Shortcuts,
    About
};

/// The shell, as a clock and the other windows see it.
class IShell {
public:
    virtual ~IShell() = default;

    virtual void ShowStatusMsg(const QString& text) = 0;
    /// @return the button pressed: 1 OK, 6 Yes, 7 No
    virtual int ShowMsgbox(const QString& text, int flags, const QString& title) = 0;
    /// Takes the exchange slot over as the shell's own settings. @return a new clock's handle or 0
    virtual int RefreshForm(const QString& zoneName) = 0;
    virtual void SpeakMessage(const QString& text) = 0;
    virtual void PurgeSpeech() = 0;
    virtual void DoMenuItem(float menuId, int index) = 0;
    virtual int BackColor() const = 0;
    /// Launches the clock of a zone. @return its handle, or 0 when that failed
    virtual int LaunchTempolark(const QString& name) = 0;
    /// One of the shell's own settings, without its choices; "0" when there is none of that name.
    virtual QString Setting(const QString& name) const = 0;
    /// Removes a zone's file for good, and its clock, if that is open. It asks nobody.
    /// @return why that failed; empty when it is done
    virtual QString RemoveZone(const QString& name) = 0;
    virtual void ShowClockHelp() = 0;
    /// Opens a window, or brings it to the front; one that can't be opened is told.
    virtual void OpenWindow(ShellWindow window) = 0;
    /// Lets the clock of a zone open by itself at the shell's next start, or not, and saves that.
    /// @param name of the zone's file, without its extension
    virtual void SetAutoStart(const QString& name, bool on) = 0;
};

/// The loaded windows in the order of their creation, counted from 0. The shell is the first.
class Forms {
public:
    int Count() const { return static_cast<int>(windows_.size()); }
    /// A window from 0 to `Count` less one; there is no check.
    IForm& operator[](int index) const { return *windows_[static_cast<std::size_t>(index)]; }

    /// Puts a window behind all others. The list owns none: a window must leave before it goes.
    void Add(IForm& window) { windows_.push_back(&window); }
    /// A window that is not in the list is let be; those behind it move up by one.
    void Remove(const IForm& window) { std::erase(windows_, &window); }

    /// The window with this handle; null if there is none.
    IForm* Find(int handle) const;

    /// A handle that no window of this run has had.
    int NewHandle() { return ++lastHandle_; }

private:
    std::vector<IForm*> windows_;
    int lastHandle_ = 1000;
};

/// Tells the property windows of a file, if any, that somebody else has written it.
void TellPropertyWindows(const Forms& windows, const QString& file);

/// The name of every clock window.
inline const QString ClockWindowName = QStringLiteral("frmTempolark");
