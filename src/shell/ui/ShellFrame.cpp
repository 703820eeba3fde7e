#include "shell/ui/ShellFrame.h"

#include <QGridLayout>

#include "shell/ToolbarLook.h"

namespace {

// Five rows and five columns: the area in the middle, two bars on each side.
constexpr int Last = 4;
constexpr int Middle = 2;

void Place(QGridLayout& grid, QWidget* bar, int align, int fromOutside, int bottomRow) {
    grid.removeWidget(bar);
    switch (align) {
        case shell::Align::Bottom:
            grid.addWidget(bar, bottomRow, 0, 1, Last + 1);
            break;
        case shell::Align::Left:
            grid.addWidget(bar, Middle, fromOutside);
            break;
        case shell::Align::Right:
            grid.addWidget(bar, Middle, Last - fromOutside);
            break;
        default:
            grid.addWidget(bar, fromOutside, 0, 1, Last + 1);
    }
}

}  // namespace

ShellFrame::ShellFrame(QWidget* area, QWidget* toolbar, QWidget* statusBar, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)), toolbar_(toolbar), statusBar_(statusBar) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(0);
    grid_->addWidget(area, Middle, Middle);
    grid_->setRowStretch(Middle, 1);
    grid_->setColumnStretch(Middle, 1);
    PlaceToolbar(shell::Align::Top);
    PlaceStatusBar(shell::Align::Bottom);
}

void ShellFrame::PlaceToolbar(int align) {
    Place(*grid_, toolbar_, align, 0, Last - 1);
}

void ShellFrame::PlaceStatusBar(int align) {
    Place(*grid_, statusBar_, align, 1, Last);
}
