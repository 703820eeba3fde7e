#include "shell/ui/ShellPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "shell/Placement.h"

namespace {

std::vector<QRect> Screens() {
    std::vector<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        screens.push_back(screen->availableGeometry());
    }
    return screens;
}

}  // namespace

ShellPlacement::ShellPlacement(QWidget& window, shell::ShellSettings& settings)
    : window_(window), settings_(settings) {}

int ShellPlacement::WindowState() const {
    return window_.isMinimized() ? 1 : window_.isMaximized() ? 2 : 0;
}

void ShellPlacement::SetWindowState(int state) {
    switch (state) {
        case 1:
            window_.showMinimized();
            break;
        case 2:
            window_.showMaximized();
            break;
        default:
            window_.showNormal();
    }
}

void ShellPlacement::ApplyPlacement() {
    const QRect whole = window_.screen()->availableGeometry();
    const int state = shell::StoredWindowState(settings_);
    if (state != 0) {
        // The place to come back to; the clocks that start by themselves are sized by the shell as
        // it will be seen.
        normalSize_ = whole.size() * 3 / 4;
        window_.move(whole.topLeft() + QPoint(whole.width(), whole.height()) / 8);
        window_.resize(state == 2 ? whole.size() : normalSize_);
        return;
    }
    window_.resize(shell::StoredSize(settings_, whole.size()));
    const QRect place(shell::StoredCorner(settings_, whole, window_.size()), window_.size());
    const QRect primary = QGuiApplication::primaryScreen()->availableGeometry();
    window_.move(shell::WithinReach(place, Screens(), primary).topLeft());
    normalSize_ = window_.size();
}

// A hidden window gives its inner parts no size until it has to be drawn, which is done by a pixel.
void ShellPlacement::LayOutHidden() {
    window_.grab(QRect(0, 0, 1, 1));
}

void ShellPlacement::ShowAtStart() {
    window_.resize(normalSize_);
    SetWindowState(shell::StoredWindowState(settings_));
    if (shell::StoredWindowState(settings_) == 0) {
        appliedPlace_ = Place();
    }
}

void ShellPlacement::FitOnScreen() {
    const QRect whole = window_.screen()->availableGeometry();
    const QSize over = window_.frameGeometry().size() - whole.size();
    if (WindowState() != 0 || (over.width() <= 0 && over.height() <= 0)) {
        return;
    }
    const bool untouched = Place() == appliedPlace_;
    window_.resize(window_.size() - over.expandedTo({0, 0}));
    window_.move(whole.topLeft());
    if (untouched) {
        appliedPlace_ = Place();
    }
}

// Not the geometry: with the frame, as `move` takes it.
QRect ShellPlacement::Place() const {
    return {window_.pos(), window_.size()};
}

bool ShellPlacement::HasTitleBar() const {
    return !(window_.windowFlags() & Qt::FramelessWindowHint);
}

void ShellPlacement::ApplyTitleBar(bool shown) {
    if (HasTitleBar() == shown) {
        return;
    }
    // The window system takes the window off the screen to change this.
    const bool visible = window_.isVisible();
    window_.setWindowFlag(Qt::FramelessWindowHint, !shown);
    if (visible) {
        window_.show();
    }
}

void ShellPlacement::TakeScreen() {
    window_.setWindowFlag(Qt::WindowStaysOnTopHint);
    window_.setWindowFlag(Qt::FramelessWindowHint);
    window_.setGeometry(window_.screen()->geometry());
}

void ShellPlacement::SavePlacement() {
    if (WindowState() == 0) {
        shell::PutPlace(settings_, {window_.x(), window_.y(), window_.width(), window_.height()},
                        appliedPlace_);
    }
}
