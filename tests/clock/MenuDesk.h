#pragma once

#include "clock/PartMenus.h"
#include "clock/SettingsDesk.h"
#include "support/FakeDialogs.h"

/// The menus on the parts of a clock without a window, whose voice and messages are its own.
struct MenuDesk : SettingsDesk {
    std::unique_ptr<QObject> Clock = std::make_unique<QObject>();
    clockcore::LookDialogs Dialogs{*Clock, TheProgram, Data.State, Canvas, Look};
    clockcore::PartMenus Menus{Data,
                               TheProgram,
                               {Controls, Parts.TheWindow, Parts.ThePlacement, Canvas, Settings,
                                Dialogs, Messages, Voice, Parts.TheSpoken}};

    /// The menu of a part; an empty one where it has none.
    clockcore::MenuNode Menu(clockcore::ClockPart part, int index = 1) const {
        return Menus.MenuOf({part, index}).value_or(clockcore::MenuNode());
    }

    /// The entry or sub-menu of that name, at any depth; the first of several. Null for none.
    static const clockcore::MenuNode* Find(const clockcore::MenuNode& menu, const QString& name) {
        for (const clockcore::MenuNode& node : menu.Children) {
            if (node.Name == name) {
                return &node;
            }
            if (const clockcore::MenuNode* below = Find(node, name)) {
                return below;
            }
        }
        return nullptr;
    }

    static QStringList Captions(const clockcore::MenuNode* menu) {
        QStringList captions;
        for (const clockcore::MenuNode& node : menu->Children) {
            captions += node.Caption;
        }
        return captions;
    }

    /// The captions of the ticked entries.
    static QStringList Ticked(const clockcore::MenuNode* menu) {
        QStringList captions;
        for (const clockcore::MenuNode& node : menu->Children) {
            if (node.Ticked == clockcore::MenuNode::Tick::On) {
                captions += node.Caption;
            }
        }
        return captions;
    }

    /// Clicks an entry of a sub-menu. @return false where there is none of that caption
    static bool Choose(const clockcore::MenuNode* menu, const QString& caption) {
        for (const clockcore::MenuNode& node : menu->Children) {
            if (node.Caption == caption && node.Choose) {
                node.Choose();
                return true;
            }
        }
        return false;
    }
};
