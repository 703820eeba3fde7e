#pragma once

#include <QCache>
#include <QPixmap>

#include "editor/ui/CellLook.h"
#include "foundation/Program.h"

/// How values look in a grid: a colour has a swatch, a picture's file a thumbnail, a font's name
/// stands in that font, a switch has a check box, and what is picked has a button: with an arrow
/// for a list, else with "...".
class ValueLooks {
public:
    explicit ValueLooks(const Program& program) : program_(program) {}

    /// The look of one text of a property: of its cell, or of an entry of its list.
    /// @param value raw, with its choices, which tell what the text is
    CellLook LookOf(const QString& name, const QString& value, const QString& text) const;

    /// Logical pixels of the side of a picture before a text.
    static constexpr int Side = 16;

private:
    CellLook ColourLook(const QString& text) const;
    QPixmap Thumbnail(const QString& path) const;

    Program program_;
    /// By path and age; what could not be read is kept as a null picture.
    mutable QCache<QString, QPixmap> thumbnails_{64};
};
