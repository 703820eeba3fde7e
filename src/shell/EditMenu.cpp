#include "shell/EditMenu.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

struct EditItem {
    int Index;
    EditAction Action;
    QStringView Keys;
};

constexpr EditItem EditItems[] = {
    {1, EditAction::Undo, u"Ctrl+Z"},  {2, EditAction::Redo, u"Ctrl+Y"},
    {3, EditAction::Cut, u"Ctrl+X"},   {4, EditAction::Copy, u"Ctrl+C"},
    {5, EditAction::Paste, u"Ctrl+V"}, {7, EditAction::Delete, u"Del"},
    {8, EditAction::Clear, u""},       {9, EditAction::SelectAll, u"Ctrl+A"},
    {11, EditAction::Find, u"Ctrl+F"},
};

const EditItem* Find(int index) {
    for (const EditItem& item : EditItems) {
        if (item.Index == index) {
            return &item;
        }
    }
    return nullptr;
}

}  // namespace

std::optional<EditAction> EditActionOf(int index) {
    const EditItem* item = Find(index);
    return item != nullptr ? std::optional(item->Action) : std::nullopt;
}

void RefreshEditItems(MenuArray& items, const std::function<bool(EditAction)>& canEdit,
                      bool keysHold) {
    for (int i = 1; i <= items.Count(); ++i) {
        const EditItem* item = Find(i);
        items(i).Enabled = item != nullptr && canEdit(item->Action);
        items(i).Keys = item != nullptr && keysHold ? item->Keys.toString() : QString();
    }
}

}  // namespace shell
