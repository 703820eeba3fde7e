#include "editor/PropertyButton.h"

using namespace Qt::StringLiterals;

namespace editor {

QString ButtonCaption(ButtonTag tag) {
    switch (tag) {
        case ButtonTag::Save:
            return u"Save"_s;
        case ButtonTag::Launch:
            return u"Launch"_s;
        default:
            return u"Apply"_s;
    }
}

ButtonTag ButtonState(int code, bool forNewFile, ButtonTag present) {
    constexpr int Save = -1;
    constexpr int Launch = 2;
    if (code == Save) {
        return ButtonTag::Save;
    }
    if (code == Launch) {
        return ButtonTag::Launch;
    }
    return forNewFile ? present : ButtonTag::Apply;
}

}  // namespace editor
