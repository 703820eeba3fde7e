#include "editor/ZoneTitle.h"

#include "foundation/Shortcuts.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

const QString Prefix = u"Properties - "_s;

constexpr int FirstLetter = 65;
constexpr int LastLetter = 122;
constexpr int ToSmall = 32;
constexpr int MinusKey = 189;

}  // namespace

void ZoneTitle::SetName(const QString& name) {
    name_ = name;
    caret_.Position = static_cast<int>(name.size());
    caption_ = Prefix + (edited_ ? drawing::TextWithCaret(name, caret_.Position) : name);
}

void ZoneTitle::SetEdited(bool edited) {
    edited_ = edited;
    SetName(name_);
}

bool ZoneTitle::Key(int keyCode) {
    return edited_ && drawing::EditTitleKey(name_, caption_, Prefix, keyCode, caret_);
}

QString StripCaret(const QString& text) {
    const QString plain = text.endsWith(u'_') ? text.chopped(1).trimmed() : text;
    const qsizetype prefix = plain.indexOf(Prefix);
    return prefix < 0 ? plain : plain.mid(prefix + Prefix.size());
}

int NameKey(int keyCode, int shift, bool capsLock) {
    const bool isShift = (shift & mduUILib::KeyShift::Shift) != 0;
    if (keyCode == MinusKey) {
        return isShift ? u'-' : u'_';
    }
    const bool isLetter = keyCode >= FirstLetter && keyCode <= LastLetter;
    return isLetter && isShift == capsLock ? keyCode + ToSmall : keyCode;
}

}  // namespace editor
