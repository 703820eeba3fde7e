#include "clock/ui/TimersOnDial.h"

#include <QMenu>

#include "clock/ui/MenuView.h"
#include "drawing/DialNumbers.h"

namespace clockcore {

TimersOnDial::TimersOnDial(ClockData& data, const Program& program, const Parts& parts)
    : boxes_(parts.Form),
      typing_(data, {parts.Controls, parts.Timers, parts.Host, parts.Calculator, parts.Canvas,
                     program.Services.Clock, boxes_}),
      dial_(data, {parts.Timers, typing_, parts.Canvas, parts.Host}),
      dialogs_(parts.Form, program, dial_, parts.Actions),
      menus_(data, program, {dial_, dialogs_, parts.Actions}),
      drag_(data, {parts.Controls, parts.Timers, parts.Host, dial_, parts.Canvas}),
      mouse_(parts.Form, data, parts.Controls, drag_,
             {[this](int slot) { typing_.OpenMessageBox(slot); },
              [&form = parts.Form, &menus = parts.Menus](const ClockHit& spot, const QPoint& at) {
                  if (const auto menu = menus.MenuOf(spot)) {
                      MakeMenu(&form, *menu)->popup(at);
                  }
              }}) {
    boxes_.SetTyping(typing_);
    parts.Timers.HoldWhile([this](int slot) { return typing_.IsTypedInto(slot); });
    parts.Menus.SetMaker(ClockPart::TimerMark,
                         [this](const ClockHit& mark) { return menus_.ImgTimerMenu(mark.Index); });
    parts.Menus.SetMaker(ClockPart::Spot, [this](const ClockHit& spot) {
        return menus_.SetTimerMenu(drawing::SpotTime(spot.Index));
    });
    parts.Menus.SetTimeMenu([this](const QString& time) { return menus_.SetTimerMenu(time); });
}

void TimersOnDial::Follow() {
    typing_.Follow();
    mouse_.Follow();
}

}  // namespace clockcore
