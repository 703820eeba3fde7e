#pragma once

#include "clock/HeldPart.h"
#include "clock/SettingsDesk.h"

inline const QString DialX = QStringLiteral("Clock CentralX(%)");
inline const QString DialY = QStringLiteral("Clock CentralY(%)");
inline const QString DigitsX = QStringLiteral("Digital Clock CentralX(%)");
inline const QString DigitsY = QStringLiteral("Digital Clock CentralY(%)");
inline const QString NameLeft = QStringLiteral("Time Zone Name Left");
inline const QString NameTop = QStringLiteral("Time Zone Name Top");
inline const QString Saved = QStringLiteral("Saved the settings of India at 12:00:00");

/// A clock in UTC on a surface of 300 by 200 in a window of 312 by 225 logical pixels. Its name has
/// 60 by 10 pixels at (100, 150), its flag 40 by 20 in the corner at the top and to the right, its
/// speaker 14 by 14 at (4, 182), its read-out 100 by 20 at (50, 40).
struct MoveDesk : SettingsDesk {
    clockcore::HeldOverlays Overlays{Parts.TheOverlays};
    clockcore::HeldPart::Parts ToMove{Controls,      Canvas,           Parts.TheFace,
                                      Parts.TheDial, Parts.TheDigital, Parts.TheBackground,
                                      Overlays,      Parts.TheTimers,  Settings};

    MoveDesk() {
        Canvas.Outer = QSizeF(4680, 3375);
        Data.Tag = {clockcore::ClockKind::Analogue, false};
        Put(Controls.lblLocation(1), {100, 150, 60, 10});
        Put(Controls.imgFlag(1), {260, 0, 40, 20});
        Put(Controls.imgSpeaker(1), {4, 182, 14, 14});
        Put(Controls.shpArea(1), {0, 0, 16, 16});
        Put(Controls.lblClock(1), {50, 40, 100, 20});
        Put(Controls.lblDigitalNumber(1), {50, 40, 40, 20});
        Put(Controls.lblDigitalNumber(3), {110, 40, 40, 20});
        Controls.lblClock(1).Visible = false;
        Calls();
    }
    static void Put(mduUILib::Control& control, const QRectF& place) {
        control.Left = static_cast<float>(place.left());
        control.Top = static_cast<float>(place.top());
        control.Width = static_cast<float>(place.width());
        control.Height = static_cast<float>(place.height());
        control.Visible = true;
    }
    QString Values(const QString& one, const QString& other) const {
        return Value(one) + QLatin1Char(' ') + Value(other);
    }
    QString Stored(const QString& one, const QString& other) const {
        return InFile(one) + QLatin1Char(' ') + InFile(other);
    }
};
