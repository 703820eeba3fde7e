#pragma once

#include <QString>

namespace platform {

/// The program's icon among those of the desktop's panel.
class Tray {
public:
    virtual ~Tray() = default;
    virtual void SetIcon(bool show, const QString& tip) = 0;
};

}  // namespace platform
