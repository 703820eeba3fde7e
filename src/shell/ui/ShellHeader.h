#pragma once

#include "shell/ShellSettings.h"
#include "shell/ui/HeaderArt.h"

class ClockArea;

/// The header over the area of the clocks: when it is seen, and that it fills the area, behind
/// whatever window comes.
class ShellHeader {
public:
    /// @param area the header becomes its child and goes with it; this must go before
    /// @param invited the invitation was clicked
    /// @param menu the right button was pressed there, on the screen
    ShellHeader(const Program& program, ClockArea& area, const shell::ShellSettings& settings,
                const std::function<void()>& invited,
                const std::function<void(const QPoint&)>& menu);

    HeaderArt& Art() { return *art_; }

    void SetHeaderVisible(bool visible);
    void ArrangeHeader();  ///< to be called when the area has changed

    /// The last window has gone: the shell invites again. Nothing while one is open.
    void ShowHeaderWhenEmpty();

    bool IsVisible() const { return art_->isVisible(); }

    /// These place and colour the letters as the settings have them; the first after its show.
    void ShowHeaderAnimation();
    void ApplyHeaderStyle();

private:
    QString Variation() const;

    ClockArea& area_;
    const shell::ShellSettings& settings_;
    HeaderArt* art_;
};
