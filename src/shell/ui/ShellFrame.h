#pragma once

#include <QWidget>

class QGridLayout;

/// The inside of the shell's window: the area of the clocks, around it the toolbar and the status
/// bar, each along any side. The toolbar lies outside the status bar, but for the bottom.
class ShellFrame final : public QWidget {
    Q_OBJECT

public:
    /// All three become children of this one. The toolbar begins at the top, the status bar at the
    /// bottom.
    ShellFrame(QWidget* area, QWidget* toolbar, QWidget* statusBar, QWidget* parent);

    /// @param align a side of `shell::Align`; any other number means the top
    void PlaceToolbar(int align);
    void PlaceStatusBar(int align);  ///< the same

private:
    QGridLayout* grid_;
    QWidget* toolbar_;
    QWidget* statusBar_;
};
