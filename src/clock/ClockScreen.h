#pragma once

#include <QRegion>
#include <QSize>
#include <QString>

class IShell;

namespace clockcore {

/// What a clock's surface is shown on: a window of the desktop or of the shell, as the drawing sees
/// it.
class ClockScreen {
public:
    virtual ~ClockScreen() = default;

    /// Of the clock inside its frame, in logical pixels. The surface is this times
    /// `DevicePixelRatio`, rounded.
    virtual QSize Size() const = 0;
    /// Device pixels to a logical one, above 0. It changes when the window comes to another screen.
    virtual double DevicePixelRatio() const = 0;
    /// Shows a part of the surface, in logical pixels, when the event loop runs next.
    virtual void Update(const QRegion& part) = 0;

    /// Whether the clock stands in a shell; else its window is one of the desktop.
    virtual bool IsMDIChild() const = 0;
    /// Whether anything of the window can be seen, as far as the program can tell.
    virtual bool IsInSight() const = 0;
    /// The shell's colour, red in the low byte; white without a shell.
    virtual int ShellBackColor() const = 0;
    /// Null for a clock without a shell. One can have a shell and yet stand alone, as the clock of
    /// a script does.
    virtual IShell* Shell() const { return nullptr; }
    /// A text for the shell's status bar; nothing happens without a shell.
    virtual void ShowStatus(const QString& text) = 0;
};

}  // namespace clockcore
