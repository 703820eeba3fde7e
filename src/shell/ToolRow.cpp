#include "shell/ToolRow.h"

#include <algorithm>
#include <numeric>

namespace shell {

void ToolRow::Fit(int room) {
    room_ = room;
    int sum = 0;
    for (Button& button : buttons_) {
        sum += button.Offered ? button.Extent : 0;
        button.Visible = button.Offered && sum <= room;
    }
}

bool ToolRow::Scroll(bool forward) {
    const int step = forward ? 1 : -1;
    const int count = Count();
    const int first = forward ? 0 : count - 1;
    const auto find = [&](int from, bool visible) {
        int i = from;
        const auto fits = [&] {
            const Button& button = buttons_[static_cast<std::size_t>(i)];
            return button.Offered && button.Visible == visible;
        };
        while (i >= 0 && i < count && !fits()) {
            i += step;
        }
        return i >= 0 && i < count ? i : -1;
    };
    const int leaves = find(first, true);
    const int comes = leaves < 0 ? -1 : find(leaves, false);
    if (comes < 0) {
        return false;
    }
    buttons_[static_cast<std::size_t>(leaves)].Visible = false;
    buttons_[static_cast<std::size_t>(comes)].Visible = true;
    HideBeyond(forward);
    return true;
}

// A separator that left may have made less room than the button that came needs.
void ToolRow::HideBeyond(bool forward) {
    const auto sum = [this] {
        return std::accumulate(buttons_.begin(), buttons_.end(), 0, [](int total, const Button& b) {
            return total + (b.Visible ? b.Extent : 0);
        });
    };
    const auto isVisible = [](const Button& button) { return button.Visible; };
    while (sum() > room_ && std::count_if(buttons_.begin(), buttons_.end(), isVisible) > 1) {
        if (forward) {
            std::find_if(buttons_.begin(), buttons_.end(), isVisible)->Visible = false;
        } else {
            std::find_if(buttons_.rbegin(), buttons_.rend(), isVisible)->Visible = false;
        }
    }
}

}  // namespace shell
