#pragma once

#include <QStringList>

namespace mduUILib {

/// The border of a window, by its number. The numbers between them are no borders.
enum class WindowBorder {
    Unknown = 0,  ///< any other text: the window keeps the border that it has
    NoBorder = 1,
    Raised = 3,  ///< "3D Border"
    Plain = 7    ///< "Classic": a line
};

/// The border of a "Window Border"; blanks around the text are dropped, letter case counts.
///
///     ReadWindowBorder(u" 3D Border"_s)  // Raised
///     ReadWindowBorder(u"3d border"_s)   // Unknown
WindowBorder ReadWindowBorder(const QString& text);

QStringList WindowBorderNames();  ///< in the order of a menu of them

}  // namespace mduUILib
