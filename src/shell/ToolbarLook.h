#pragma once

#include <QStringList>
#include <optional>

/// Sizes and places of the toolbar.
namespace shell {

/// Where a bar stands at its window. 0 means that a value does not say.
namespace Align {
enum : int { Unsaid = 0, Top = 1, Bottom = 2, Left = 3, Right = 4 };
}

inline bool IsVertical(int align) {
    return align == Align::Left || align == Align::Right;
}

/// The bar's extent across its direction, in twips: 850 or 480, 1.73 times that with captions.
int ToolbarExtent(const QString& sizeName);

/// The side of a button's picture in logical pixels: 48 or 24.
int ToolbarPictureSide(const QString& sizeName);

struct ToolbarPlace {
    bool Visible = false;
    int Align = Align::Unsaid;  ///< unsaid: it stays where it is
    int Border = 0;
};

/// What a value of "Tool Bar" says: "Top", "Left", ..., "None" or "Hide", or a place with ":Hide"
/// behind it, which keeps the place of a bar that is hidden. Nothing for any other text: the bar
/// then stays as it is.
std::optional<ToolbarPlace> ToolbarPosition(const QString& value);

/// The words of it; "None" and "Hide" mean the same.
QStringList ToolbarPositionNames();

struct StatusBarPlace {
    bool Visible = false;
    int Align = Align::Unsaid;
};

/// What a value of "Status Bar" says, letter case aside: "Top", "Left" and "Right" are places, "No"
/// and "None" hide, and any other text is "Yes", at the bottom. So is a missing key, which reads as
/// "0".
StatusBarPlace StatusBarPosition(const QString& value);

}  // namespace shell
