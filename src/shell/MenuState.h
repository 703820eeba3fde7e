#pragma once

#include <map>

#include "shell/MenuArray.h"
#include "shell/MenuCatalogue.h"

namespace shell {

/// What the shell's menus hold at this moment: each named entry is an array of items, as the
/// catalogue begins it.
class MenuState {
public:
    /// As the catalogue has it: items without a caption are hidden, all others can be clicked.
    MenuState();

    /// The array of that name; an empty one of one hidden item for an unknown name.
    MenuArray& operator[](const QString& name) { return arrays_[name]; }

    /// The array of that name; null for an unknown name.
    const MenuArray* Find(const QString& name) const {
        const auto found = arrays_.find(name);
        return found == arrays_.end() ? nullptr : &found->second;
    }

private:
    void Take(const MenuEntry& entry);

    std::map<QString, MenuArray> arrays_;
};

inline bool IsSeparator(const MenuItem& item) {
    return item.Caption == QStringLiteral("-");
}

}  // namespace shell
