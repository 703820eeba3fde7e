#include "clock/ui/DragEvents.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace clockcore {

bool EndsDrags(QEvent::Type type) {
    switch (type) {
        case QEvent::Resize:
        case QEvent::Hide:
        case QEvent::Close:
        case QEvent::EnabledChange:
        case QEvent::WindowStateChange:
        case QEvent::WindowDeactivate:
            return true;
        default:
            return false;
    }
}

double DragThreshold() {
    return QGuiApplication::styleHints()->startDragDistance();
}

}  // namespace clockcore
