#include "shell/OpenedMenu.h"

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace shell {

bool PassesStyleFilter(std::uint32_t style, std::uint32_t styleMask) {
    switch (styleMask) {
        case StyleFilter::None:
            return true;
        case StyleFilter::CanBeEnabled:
            return (style & WindowStyle::Disabled) != 0;
        case StyleFilter::CanBeRestored:
            return (style & (WindowStyle::Minimised | WindowStyle::Maximised)) != 0;
        case StyleFilter::Never:
            return false;
        default:
            return (style & styleMask) == 0;
    }
}

void FillOpenedMenu(MenuArray& menu, const Forms& windows, const QString& formNames,
                    std::uint32_t styleMask) {
    int count = 0;
    for (int i = 0; i < windows.Count(); ++i) {
        const IForm& window = windows[i];
        if (formNames.contains(window.Name()) && PassesStyleFilter(window.Style(), styleMask)) {
            menu.Load(++count) = {window.Caption(), QString::number(window.hwnd()), true, true,
                                  false};
        }
    }
    ++count;
    menu.Load(count) = {u"All"_s, u"0"_s, true, true, false};
    if (count == 1) {
        menu(1).Enabled = false;
        menu(1).Caption = u"None"_s;
    }
    menu.UnloadAbove(count);
}

std::int16_t FindOpenedMenuIndex(const MenuArray& menu, int handle) {
    for (int i = 1; i <= menu.Count(); ++i) {
        if (mduAPILib::Val(menu(i).Tag) == handle) {
            return static_cast<std::int16_t>(i);
        }
    }
    return -1;
}

bool IsClockWindowOpen(const Forms& windows, const QString& caption) {
    for (int i = 0; i < windows.Count(); ++i) {
        if (windows[i].Caption() == caption) {
            return true;
        }
    }
    return false;
}

void MarkOpenItems(MenuArray& menu, const Forms& windows) {
    for (int i = 1; i <= menu.Count(); ++i) {
        menu(i).Checked = IsClockWindowOpen(windows, menu(i).Caption);
    }
}

}  // namespace shell
