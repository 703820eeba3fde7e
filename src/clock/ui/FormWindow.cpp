#include "clock/ui/FormWindow.h"

namespace clockcore {

void FormWindow::Activate() {
    if (area_ != nullptr) {
        area_->setActiveSubWindow(placement_.Frame());
        placement_.Frame()->Place().ScrollTo();
    }
    form_.setFocus();
}

bool FormWindow::IsActiveForm() const {
    return area_ != nullptr ? area_->activeSubWindow() == placement_.Frame()
                            : form_.isActiveWindow();
}

void FormWindow::EnableWindow(bool enabled) {
    placement_.Outer().setEnabled(enabled);
    for (mduUILib::ControlArray* array : controls_.All()) {
        for (mduUILib::Control& control : array->Members) {
            control.Enabled = enabled;
        }
    }
}

void FormWindow::SetTimerInterval(int milliseconds) {
    if (watcher_ && timClock_->Interval() != milliseconds) {
        watcher_(milliseconds);
    }
    timClock_->SetInterval(milliseconds);
}

void FormWindow::HideHandShapes() {
    for (mduUILib::ControlArray* shapes :
         {&controls_.shpHourHand, &controls_.shpMinuteHand, &controls_.shpSecondHand}) {
        for (mduUILib::Control& shape : shapes->Members) {
            shape.Visible = false;
        }
    }
}

}  // namespace clockcore
