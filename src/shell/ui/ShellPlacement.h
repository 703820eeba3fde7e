#pragma once

#include <QRect>

#include "shell/ShellSettings.h"

class QWidget;

/// The shell's window on its screen: where the settings put it, its state, its title bar.
class ShellPlacement {
public:
    /// Both outlive this.
    ShellPlacement(QWidget& window, shell::ShellSettings& settings);

    int WindowState() const;  ///< 0 normal, 1 minimised, 2 maximised
    void SetWindowState(int state);

    /// Gives the hidden window the size and the place that it will have, or in another state than
    /// the normal the place to come back to.
    void ApplyPlacement();

    /// Lets the hidden window lay its inner parts out, so that clocks can be placed in it.
    void LayOutHidden();
    void ShowAtStart();  ///< in the state that the settings name

    /// Cuts a normal window to the screen with all that the window manager puts around it, which is
    /// known only once it is shown.
    void FitOnScreen();

    bool HasTitleBar() const;
    void ApplyTitleBar(bool shown);

    /// Over everything, as large as the screen, without a title bar.
    void TakeScreen();

    void SavePlacement();  ///< in memory, for a normal window; any other keeps what is stored

private:
    QRect Place() const;

    QWidget& window_;
    shell::ShellSettings& settings_;
    QSize normalSize_;
    QRect appliedPlace_;  ///< where the settings have put the window; null: not yet
};
