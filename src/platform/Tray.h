#pragma once

#include <QString>

namespace platform {

/// The program's icon among those of the desktop's panel.
class Tray {
public:
    virtual ~Tray() = default;
    /// Shows the icon or takes it away.
    /// @param tip what is told while the pointer rests on it
    virtual void SetIcon(bool show, const QString& tip) = 0;
};

}  // namespace platform
