#pragma once

#include <vector>

namespace shell {

/// Which buttons of the toolbar can be seen. Those that do not fit are hidden, not wrapped;
/// dragging moves the others in, one at a time. Buttons count from 1.
class ToolRow {
public:
    struct Button {
        int Extent = 0;        ///< along the bar, in logical pixels
        bool Offered = true;   ///< false: it takes no part (customised away, or never shown)
        bool Visible = false;  ///< set by `Fit` and `Scroll`
    };

    explicit ToolRow(std::vector<Button> buttons = {}) : buttons_(std::move(buttons)) {}

    int Count() const { return static_cast<int>(buttons_.size()); }
    bool IsVisible(int index) const {
        return buttons_[static_cast<std::size_t>(index - 1)].Visible;
    }

    /// Shows the buttons from the first on, while their sum stays within @p room.
    void Fit(int room);

    /// Moves one button across the edge. With @p forward the first that is seen goes and the first
    /// hidden one behind it comes; else the same from the end. What then stands beyond the room at
    /// the far end is hidden, too. @return false when no button can move.
    bool Scroll(bool forward);

private:
    void HideBeyond(bool forward);

    std::vector<Button> buttons_;
    int room_ = 0;
};

}  // namespace shell
