#include "clock/ClockKeys.h"

#include <algorithm>
#include <iterator>

#include "foundation/MenuLists.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "foundation/Shortcuts.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

constexpr int F1 = 112;

/// A picture tells its size in hundredths of a millimetre, at 96 pixels to the inch.
double PictureUnits(int pixels) {
    return mduAPILib::RoundToInteger(pixels * 2540.0 / 96);
}

int Number(ShellWindow window) {
    return static_cast<int>(window);
}

int Number(ZoneOnClock::Take what) {
    return static_cast<int>(what);
}

bool IsCtrl(char letter, int code, int shift) {
    return code == letter && mduUILib::ModifierName(shift) == u"Ctrl"_s;
}

/// The choice behind the present value, round and round; empty where there is no choice.
QString NextChoice(const QString& present, QStringList choices) {
    choices.removeIf(mduUILib::IsCustomColour);
    const qsizetype next = choices.indexOf(present.trimmed()) + 1;
    return choices.isEmpty() ? QString() : choices[next % choices.size()];
}

}  // namespace

int KeyCodeOf(int key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return F1 + key - Qt::Key_F1;
    }
    // A brace has the code that stands for F12.
    constexpr int firstCharacter = 32;
    constexpr int lastCharacter = 126;
    const bool isCharacter = key >= firstCharacter && key <= lastCharacter;
    return isCharacter && key != Qt::Key_BraceLeft ? key : 0;
}

const ClockKeys::Row ClockKeys::Rows[] = {
    {u"Property Window", &ClockKeys::OpenWindow, Number(ShellWindow::Properties)},
    {u"TimeZones Window", &ClockKeys::OpenWindow, Number(ShellWindow::TimeZones)},
    {u"Shortcut Window", &ClockKeys::OpenWindow, Number(ShellWindow::Shortcuts)},
    {u"Clocks", &ClockKeys::TakeNextChoice},
    {u"Clock Style", &ClockKeys::TakeNextStyle},
    {u"Clock Shape", &ClockKeys::TakeNextChoice},
    {u"Clock Special", &ClockKeys::TakeNextChoice},
    {u"Window Shape", &ClockKeys::TakeNextChoice},
    {u"Window Border", &ClockKeys::TakeNextChoice},
    {u"Hour Number Style", &ClockKeys::TakeNextChoice},
    {u"Window Background Colour", &ClockKeys::TakeNextChoice},
    {u"Window Normal", &ClockKeys::SetWindowState, 0},
    {u"Window Minimized", &ClockKeys::SetWindowState, 1},
    {u"Window Maximized", &ClockKeys::SetWindowState, 2},
    {u"Window Title Bar", &ClockKeys::ToggleTitleBar},
    {u"Disable", &ClockKeys::ToggleEnabled},
    {u"Save Style As", &ClockKeys::SaveStyleAs},
    {u"Save Current Style", &ClockKeys::SaveStyle},
    {u"Time Zone with Style", &ClockKeys::TakeNextZone, Number(ZoneOnClock::Take::WholeSet)},
    {u"Time Zone Only", &ClockKeys::TakeNextZone, Number(ZoneOnClock::Take::ZoneOnly)},
};

bool ClockKeys::ClockKeyDown(int code, int shift) {
    if (code == 0) {
        return false;
    }
    const QString action = mduUILib::MatchShortcut(program_.Module.ShortcutList, code, shift);
    if (!parts_.Window.IsEnabled()) {
        const bool isOwn = code == F1 || IsCtrl('E', code, shift);
        return isOwn ? RunOwnKey(code, shift) : action == u"Disable"_s && RunAction(action);
    }
    return RunOwnKey(code, shift) || RunAction(action);
}

bool ClockKeys::IsBound(int code, int shift) const {
    if (code == 0) {
        return false;
    }
    const bool isOwn = code == F1 || IsCtrl('E', code, shift) || IsCtrl('W', code, shift) ||
                       IsCtrl('R', code, shift);
    const QString action = mduUILib::MatchShortcut(program_.Module.ShortcutList, code, shift);
    return isOwn || std::any_of(std::begin(Rows), std::end(Rows),
                                [&action](const Row& row) { return row.Name == action; });
}

bool ClockKeys::RunOwnKey(int code, int shift) {
    if (code == F1) {
        parts_.Commands.ShowHelp();
        return true;
    }
    if (mduUILib::ModifierName(shift) != u"Ctrl"_s) {
        return false;
    }
    switch (code) {
        case 'E':
            Enable();
            return true;
        case 'W':
            parts_.Commands.SetWindowState(0);
            return true;
        case 'R':
            TakeSizeOfPicture();
            return true;
        default:
            return false;
    }
}

bool ClockKeys::RunAction(const QString& name) {
    for (const Row& row : Rows) {
        if (row.Name == name) {
            (this->*row.Command)(name, row.Argument);
            return true;
        }
    }
    return false;
}

// What the file says of it changes only where it has to.
void ClockKeys::Enable() {
    if (mduUILib::YesNoToBool(mduLib::GetProperty(u"Enable"_s, data_.Properties()))) {
        parts_.Window.EnableWindow(true);
    } else {
        parts_.Commands.SetEnabled(true);
    }
}

// A window that is maximised or minimised has no size of its own.
void ClockKeys::TakeSizeOfPicture() {
    const std::shared_ptr<const QImage> picture = controls_.imgClock(1).Picture;
    if (picture && !picture->isNull() && parts_.Placement.WindowState() == 0) {
        parts_.Placement.SetOuterSize(
            {PictureUnits(picture->width()), PictureUnits(picture->height())});
    }
}

void ClockKeys::OpenWindow(const QString&, int window) {
    parts_.Commands.OpenWindow(static_cast<ShellWindow>(window));
}

void ClockKeys::TakeNextChoice(const QString& name, int) {
    const ClockProperties& properties = data_.Properties();
    const QString next =
        NextChoice(mduLib::GetProperty(name, properties),
                   mduUILib::FillMenuFromList(mduLib::GetPropertyChoices(name, properties)));
    if (!next.isEmpty()) {
        mduLib::PutProperty(name, next, data_.EditProperties());
        parts_.Look.ApplyFace();
    }
}

void ClockKeys::TakeNextStyle(const QString&, int) {
    parts_.Look.ApplyStyleBehindLast();
}

void ClockKeys::SetWindowState(const QString&, int state) {
    parts_.Commands.SetWindowState(state);
}

void ClockKeys::ToggleTitleBar(const QString& name, int) {
    const bool shown = mduUILib::YesNoToBool(mduLib::GetProperty(name, data_.Properties()));
    mduLib::PutProperty(name, mduUILib::BoolToYesNo(!shown), data_.EditProperties());
    parts_.Look.ApplyFace();
}

void ClockKeys::ToggleEnabled(const QString&, int) {
    parts_.Commands.SetEnabled(!parts_.Window.IsEnabled());
}

void ClockKeys::SaveStyleAs(const QString&, int) {
    parts_.Commands.SaveStyleAs();
}

void ClockKeys::SaveStyle(const QString&, int) {
    parts_.Commands.SaveStyle();
}

void ClockKeys::TakeNextZone(const QString&, int what) {
    parts_.Zone.TakeNextZone(static_cast<ZoneOnClock::Take>(what));
}

}  // namespace clockcore
