#include <QJsonArray>
#include <QJsonObject>
#include <cmath>

#include "clock/ClockMode.h"
#include "clock/DroppedPlace.h"
#include "ctl/Command.h"
#include "ctl/SizeText.h"
#include "drawing/TimerMarks.h"
#include "foundation/PropertyFile.h"
#include "platform/Files.h"
#include "platform/WallClock.h"
#include "timers/DialSpot.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

constexpr double TwipsPerPixel = 15;

int Drop(Context& context) {
    const std::optional<int> what = context.Integer(0);
    bool isX = false;
    bool isY = false;
    const QPointF at(context.Arguments[1].toDouble(&isX), context.Arguments[2].toDouble(&isY));
    const bool isPlace = isX && isY && std::isfinite(at.x()) && std::isfinite(at.y());
    const std::optional<QSize> size = ReadSize(context.Option(u"--size"_s));
    if (!what || (*what != 1 && *what != 2) || !isPlace || !size) {
        return WrongArguments;
    }
    const clockcore::DroppedPlace place = clockcore::StoreDroppedPlace(
        at, static_cast<clockcore::Dragged>(*what), QSizeF(*size) * TwipsPerPixel, TwipsPerPixel);
    PrintJson(QJsonDocument(QJsonObject{{u"x"_s, place.X}, {u"y"_s, place.Y}}));
    return Done;
}

// On a clock that shows nothing a mark is not moved.
QPointF PlaceOf(const drawing::Surface& surface, const ClockProperties& properties,
                const timers::DialSpot& at, double side) {
    const clockcore::ClockKind kind = clockcore::GetClockType(properties);
    return kind == clockcore::ClockKind::None
               ? drawing::UnplacedMark
               : drawing::TimerMarkPlace(surface, properties,
                                         kind == clockcore::ClockKind::Analogue, at.Spot, at.Place,
                                         {side, side});
}

int Mark(Context& context) {
    const std::optional<QSize> size = ReadSize(context.Option(u"--size"_s));
    if (!size) {
        return WrongArguments;
    }
    ClockProperties properties;
    const QString& file = context.Arguments[0];
    if (!mduLib::ReadPropertyFile(context.Services.FileSystem, file, properties)) {
        Complain(file + u" can't be read as a property file"_s);
        PrintText(u"null"_s);
        return OperationFailed;
    }
    const std::optional<QTime> time =
        timers::TimeOfText(context.Arguments[1], context.Services.Clock.Now().date().year());
    if (!time) {
        PrintText(u"null"_s);
        return OperationFailed;
    }
    const drawing::Surface surface(size->width(), size->height(), 1);
    const timers::DialSpot at = timers::SpotOfTime(*time);
    const double side = drawing::TimerMarkSide(surface);
    const QPointF place = PlaceOf(surface, properties, at, side);
    PrintJson(QJsonDocument(QJsonObject{{u"spot"_s, at.Spot},
                                        {u"place"_s, at.Place},
                                        {u"left"_s, place.x()},
                                        {u"top"_s, place.y()},
                                        {u"mark"_s, QJsonArray{side, side}}}));
    return Done;
}

}  // namespace

std::vector<Command> ClockPlaceCommands() {
    const QString group = u"clock"_s;
    return WithoutAppFolder({
        {group, u"drop"_s, u"WHAT X Y --size WxH"_s, 3, 3, {u"--size="_s}, Drop},
        {group, u"mark"_s, u"FILE TIME --size WxH"_s, 2, 2, {u"--size="_s}, Mark},
    });
}

}  // namespace ctl
