#include "foundation/ui/mduBalloonTipLib.h"

namespace mduBalloonTipLib {

void SetupBalloon(CBalloonToolTip& tip, QWidget* owner, const QString& title, const QString& text,
                  int backColor, int foreColor) {
    tip.BalloonInfoSetup(owner, title, text, backColor, foreColor);
}

void ShowBalloonOver(CBalloonToolTip& tip, const QWidget& owner, const QWidget& control) {
    tip.SetPopupOnDemand(true);
    const QPoint place = control.mapTo(&owner, QPoint(0, 0));
    tip.Show(place.x(), place.y(), control.size());
}

}  // namespace mduBalloonTipLib
