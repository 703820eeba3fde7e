#pragma once

#include "editor/PropertyOwner.h"
#include "editor/ui/PropertyControls.h"
#include "editor/ui/PropertyGrid.h"
#include "editor/ui/PropertyMenu.h"

/// What an open window of properties consists of, in the order in which it is made.
struct PropertyWindowParts {
    /// @param window owns the widgets
    PropertyWindowParts(const Program& program, IShell* shell, int ownerHandle,
                        const QString& zoneName, const PropertyGrid::Events& events,
                        const std::function<void(PropertyMenu::Item)>& onItem, QWidget* window)
        : Owner(program, shell, ownerHandle, [this] { return Sheet.Path(); }),
          Sheet(program, Owner.SourceOf(zoneName)),
          Controls(window),
          Grid(program, Sheet, Owner, events, window),
          Menu(window, onItem) {
        Controls.LayOut(window, &Grid.Control());
    }

    editor::PropertyOwner Owner;
    editor::PropertySheet Sheet;
    PropertyControls Controls;
    PropertyGrid Grid;
    PropertyMenu Menu;
};
