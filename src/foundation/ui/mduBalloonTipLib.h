#pragma once

#include "foundation/ui/CBalloonToolTip.h"

/// Two helpers for a balloon over a control, such as a button of a toolbar.
namespace mduBalloonTipLib {

/// Sets an information balloon up: it waits 500 ms and stays for ten seconds.
void SetupBalloon(CBalloonToolTip& tip, QWidget* owner, const QString& title, const QString& text,
                  int backColor = CBalloonToolTip::Unset, int foreColor = CBalloonToolTip::Unset);

/// Shows it at a control inside the owner, which it leaves uncovered.
void ShowBalloonOver(CBalloonToolTip& tip, const QWidget& owner, const QWidget& control);

}  // namespace mduBalloonTipLib
