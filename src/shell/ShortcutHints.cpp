#include "shell/ShortcutHints.h"

#include <algorithm>
#include <iterator>

#include "shell/ShortcutRows.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

struct Hint {
    QStringView Command;
    QStringView Text;
};

constexpr Hint Hints[] = {
    {u"Property Window", u"Opens the properties of the clock."},
    {u"TimeZones Window", u"Opens the window of time zones."},
    {u"Shortcut Window", u"Opens this window."},
    {u"Clocks", u"Shows the next kind: a dial, digits, a calculator, dial and digits."},
    {u"Window Normal", u"Gives the clock its normal size back."},
    {u"Window Maximized", u"Makes the clock as large as the shell."},
    {u"Window Minimized", u"Makes the clock an icon."},
    {u"Window Background Colour", u"Takes the next colour for the clock's ground."},
    {u"Disable", u"Disables the clock, or enables it again."},
    {u"Hour Number Style", u"Takes the next style of the hour numbers."},
    {u"Save Style As", u"Saves the clock's look as a style."},
    {u"Save Current Style", u"Saves the clock's look in its own file."},
    {u"Window Border", u"Takes the next border for the clock's window."},
    {u"Window Title Bar", u"Shows the clock's title bar or hides it."},
    {u"Window Shape", u"Takes the next shape for the clock's window."},
    {u"Clock Shape", u"Takes the next shape for the clock's face."},
    {u"Time Zone with Style", u"Shows the next zone with its own look."},
    {u"Time Zone Only", u"Shows the next zone and keeps the look."},
    {u"Clock Style", u"Puts the next style on the clock."},
    {u"Clock Special", u"Takes the next special look, such as a dial that runs backward."},
};

/// Keys that a clock keeps for itself, whatever the list says.
constexpr QStringView KeysOfEveryClock[] = {u"F1",     u"Ctrl+F1", u"Alt+F1",
                                            u"Ctrl+E", u"Ctrl+W",  u"Ctrl+R"};

/// The key in a sentence: on one line, and no longer than any key is.
QString InSentence(const QString& keyText) {
    constexpr qsizetype most = 20;
    const QString line = keyText.left(2 * most).simplified();
    return line.size() > most ? line.left(most) + u"..."_s : line;
}

}  // namespace

QString CommandHint(const QString& command) {
    const auto* found = std::find_if(std::begin(Hints), std::end(Hints),
                                     [&](const Hint& each) { return each.Command == command; });
    return found != std::end(Hints) ? found->Text.toString() : QString();
}

QString KeyHint(const QString& keyText) {
    if (keyText == InvalidKey) {
        return u"It has no key: a letter needs Ctrl or Alt. Press the new key."_s;
    }
    if (keyText == UsedKey || keyText.isEmpty()) {
        return u"It has no key. Press the new key."_s;
    }
    if (std::find(std::begin(KeysOfEveryClock), std::end(KeysOfEveryClock), keyText) !=
        std::end(KeysOfEveryClock)) {
        return u"A clock keeps %1 for itself. Press another key."_s.arg(keyText);
    }
    return u"Press the new key in the place of %1."_s.arg(InSentence(keyText));
}

QString RefusedKeyHint(const QString& keyText, const QString& holder) {
    return u"%1 is the key of \"%2\". Press another key, or change that one first."_s.arg(keyText,
                                                                                          holder);
}

}  // namespace shell
