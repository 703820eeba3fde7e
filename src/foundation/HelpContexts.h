#pragma once

#include <QString>

/// The context numbers of the help: each names a page of its own.
namespace HelpContext {
inline constexpr int Shell = 100;
inline constexpr int TimeZones = 200;
inline constexpr int Shortcuts = 300;
inline constexpr int Properties = 400;
inline constexpr int Clock = 600;

/// The page of a window by its class, such as "frmShortcuts"; 0 for one that has none.
int OfWindow(const QString& name);
}  // namespace HelpContext
