#include "foundation/OpenClocks.h"

#include "foundation/FileHelpers.h"

namespace mduLib {

QString ClockCaption(const QString& zoneName) {
    return FileBaseName(AddIniExtension(ZoneFileStem(zoneName)), false);
}

IForm* FindClock(const Forms& windows, const QString& zoneName) {
    const QString caption = ClockCaption(zoneName);
    for (int i = 0; i < windows.Count(); ++i) {
        if (windows[i].Name() == ClockWindowName && windows[i].Caption() == caption) {
            return &windows[i];
        }
    }
    return nullptr;
}

void BringToFront(IForm& window) {
    if (window.WindowState() == 1) {
        window.SetWindowState(0);
    }
    window.Show();
    window.SetFocus();
}

}  // namespace mduLib
