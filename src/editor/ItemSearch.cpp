#include "editor/ItemSearch.h"

namespace editor {

namespace {

int FindBeginning(const QStringList& items, const QString& text, Qt::CaseSensitivity letterCase) {
    for (int item = 0; item < items.size(); ++item) {
        if (items[item].startsWith(text, letterCase)) {
            return item;
        }
    }
    return -1;
}

}  // namespace

int FindItem(const QStringList& items, const QString& text) {
    return static_cast<int>(items.indexOf(text));
}

int FindItemBeginning(const QStringList& items, const QString& text) {
    if (text.isEmpty()) {
        return -1;
    }
    const int exact = FindBeginning(items, text, Qt::CaseSensitive);
    return exact >= 0 ? exact : FindBeginning(items, text, Qt::CaseInsensitive);
}

int FindItemByInitial(const QStringList& items, const QString& character) {
    return character.isEmpty() ? -1 : FindBeginning(items, character, Qt::CaseInsensitive);
}

}  // namespace editor
