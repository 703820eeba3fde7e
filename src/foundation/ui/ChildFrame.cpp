#include "foundation/ui/ChildFrame.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace ChildFrame {

QWidget& Outer(QWidget& window) {
    auto* frame = qobject_cast<QMdiSubWindow*>(window.parentWidget());
    return frame != nullptr ? static_cast<QWidget&>(*frame) : window;
}

const QWidget& Outer(const QWidget& window) {
    return Outer(const_cast<QWidget&>(window));
}

int WindowState(const QWidget& window) {
    const QWidget& outer = Outer(window);
    return outer.isMinimized() ? 1 : outer.isMaximized() ? 2 : 0;
}

void SetWindowState(QWidget& window, int state) {
    QWidget& outer = Outer(window);
    if (state == 1) {
        outer.showMinimized();
    } else if (state == 2) {
        outer.showMaximized();
    } else {
        outer.showNormal();
    }
}

void Show(QWidget& window) {
    window.show();
    Outer(window).show();
}

void SetFocus(QWidget& window) {
    auto* frame = qobject_cast<QMdiSubWindow*>(window.parentWidget());
    if (frame != nullptr && frame->mdiArea() != nullptr) {
        frame->mdiArea()->setActiveSubWindow(frame);
    } else {
        window.activateWindow();
    }
    window.setFocus();
}

}  // namespace ChildFrame
