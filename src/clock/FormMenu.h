#pragma once

#include <QStringList>

#include "clock/ClockMode.h"
#include "clock/MenuNode.h"

namespace clockcore {

/// What `FormPopup` shows of its clock, as it is at the moment of opening.
struct FormMenuState {
    QString ZoneFile = {};    ///< the base name of the clock's file
    bool AutoStarts = false;  ///< whether the clock opens by itself
    bool Enabled = true;      ///< whether the clock can be used
    QString Colour = {};      ///< of the window, by its name; one without a name ticks nothing
    int WindowState = 0;      ///< 0 normal, 1 minimised, 2 maximised
    ClockKind Kind = ClockKind::None;
    QStringList Zones = {};   ///< those used last first, without "More"
    QStringList Styles = {};  ///< likewise
    QStringList ScreenSaverTimes = {};
    QString ScreenSaverTime = {};  ///< the one that is set; empty for none
    QStringList HiddenParts = {};  ///< that can be shown again
};

/// An entry of `FormPopup`, by which its command goes.
struct FormEntry {
    QString Name = {};  ///< of the entry, or of the array that it belongs to
    int Index = 1;      ///< in that array, from 1
    QString Caption = {};
    bool More = false;  ///< stands behind the names of files and asks for another
};

/// What comes of clicks on `FormPopup`. All of it outlives the menu.
struct FormMenuActions {
    std::function<void(const FormEntry& entry)> Run;
    /// A row of "Clock Style" is highlighted: shows that style, by its name.
    std::function<void(const QString& style)> Preview = {};
    /// The highlight is gone, and so is the preview.
    std::function<void()> EndPreview = {};
};

/// The menu of a clock: `FormPopup` with all its entries and sub-menus, without pictures.
MenuNode MakeFormMenu(const FormMenuState& state, const FormMenuActions& actions);

/// The captions of the position menu, which `ClockPlacement::MoveTo` understands.
QStringList WindowPositions();

}  // namespace clockcore
