#include "shell/ui/ShellHeader.h"

#include "shell/ui/ClockArea.h"

using namespace Qt::StringLiterals;

ShellHeader::ShellHeader(const Program& program, ClockArea& area,
                         const shell::ShellSettings& settings, const std::function<void()>& invited,
                         const std::function<void(const QPoint&)>& menu)
    : area_(area), settings_(settings) {
    const auto doubleClick = [this] {
        if (!area_.subWindowList().isEmpty()) {
            SetHeaderVisible(false);
        }
    };
    art_ = new HeaderArt(program, {invited, menu, doubleClick}, area.viewport());
}

void ShellHeader::SetHeaderVisible(bool visible) {
    art_->setVisible(visible);
    ArrangeHeader();
}

void ShellHeader::ArrangeHeader() {
    art_->setGeometry(area_.viewport()->rect());
    art_->lower();
}

void ShellHeader::ShowHeaderWhenEmpty() {
    if (!IsVisible() && area_.subWindowList().isEmpty()) {
        SetHeaderVisible(true);
        ApplyHeaderStyle();
    }
}

void ShellHeader::ShowHeaderAnimation() {
    art_->ShowHeaderAnimation(Variation());
}

void ShellHeader::ApplyHeaderStyle() {
    art_->ApplyHeaderStyle(Variation());
}

QString ShellHeader::Variation() const {
    return settings_.Setting(u"Heading Variation"_s);
}
