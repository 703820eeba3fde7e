#include <QJsonObject>

#include "ctl/Command.h"
#include "foundation/PropertyFile.h"
#include "foundation/Shortcuts.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

void PrintField(const QString& name, const QString& value) {
    PrintJson(QJsonDocument(QJsonObject{{name, value}}));
}

/// A code and the modifiers held, from an argument on.
struct Key {
    int Code = 0;
    int Shift = 0;
};

std::optional<Key> KeyFrom(const Context& context, int first) {
    const std::optional<int> code = context.Integer(first);
    const std::optional<int> shift = context.Integer(first + 1);
    return code && shift ? std::optional(Key{*code, *shift}) : std::nullopt;
}

int Match(Context& context) {
    const std::optional<Key> key = KeyFrom(context, 1);
    if (!key) {
        return WrongArguments;
    }
    ClockProperties shortcuts;
    const bool wasRead =
        mduLib::ReadPropertyFile(context.Services.FileSystem, context.Arguments[0], shortcuts);
    PrintField(u"command"_s, mduUILib::MatchShortcut(shortcuts, key->Code, key->Shift));
    return wasRead ? Done : OperationFailed;
}

int Text(Context& context) {
    const std::optional<Key> key = KeyFrom(context, 0);
    if (!key) {
        return WrongArguments;
    }
    PrintField(u"text"_s, mduUILib::KeyText(key->Code, key->Shift));
    return Done;
}

}  // namespace

std::vector<Command> ShortcutsCommands() {
    const QString group = u"shortcuts"_s;
    return WithoutAppFolder({
        {group, u"match"_s, u"FILE KEYCODE SHIFT"_s, 3, 3, {}, Match},
        {group, u"text"_s, u"KEYCODE SHIFT"_s, 2, 2, {}, Text},
    });
}

}  // namespace ctl
