#include "editor/ZoneTitle.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

const QString Prefix = u"Properties - "_s;

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

QString NameKey(const QString& text, bool isShift) {
    if (text == u'-' && !isShift) {
        return u"_"_s;
    }
    return text == u'_' && isShift ? u"-"_s : text;
}

}  // namespace editor
