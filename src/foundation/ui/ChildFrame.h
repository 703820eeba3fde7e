#pragma once

#include <QWidget>

/// What the windows of the shell beside the clocks share: each is the widget in a frame of the
/// shell's area, or a window of its own where there is no shell.
namespace ChildFrame {

/// What is moved, shown and closed: the frame in the shell, or the window itself.
QWidget& Outer(QWidget& window);
const QWidget& Outer(const QWidget& window);

/// 0 normal, 1 minimised, 2 maximised; any other number sets the normal state.
int WindowState(const QWidget& window);
void SetWindowState(QWidget& window, int state);

void Show(QWidget& window);
/// Brings it to the front of the shell, or of the desktop, and gives it the focus.
void SetFocus(QWidget& window);

}  // namespace ChildFrame
