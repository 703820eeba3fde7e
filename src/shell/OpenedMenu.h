#pragma once

#include <cstdint>

#include "foundation/Forms.h"
#include "shell/MenuArray.h"

/// The lists of open windows, filled anew from the loaded windows each time a menu opens.
namespace shell {

/// Filters of `FillOpenedMenu` that are no single style bit.
namespace StyleFilter {
inline constexpr std::uint32_t None = 0;
inline constexpr std::uint32_t CanBeEnabled = 1;
inline constexpr std::uint32_t CanBeRestored = 2;
inline constexpr std::uint32_t Never = 3;
}  // namespace StyleFilter

/// Whether a window of that style is listed under the filter: with a style bit as the filter, when
/// the bit is not set.
bool PassesStyleFilter(std::uint32_t style, std::uint32_t styleMask);

/// Lists the windows whose name occurs in @p formNames and that pass the filter, then "All" (its
/// Tag 0); without any window the one item is "None", disabled.
void FillOpenedMenu(MenuArray& menu, const Forms& windows, const QString& formNames,
                    std::uint32_t styleMask);

/// The index of the item with that handle, or -1.
std::int16_t FindOpenedMenuIndex(const MenuArray& menu, int handle);

bool IsClockWindowOpen(const Forms& windows, const QString& caption);

/// Checks each item whose caption is that of an open window.
void MarkOpenItems(MenuArray& menu, const Forms& windows);

}  // namespace shell
