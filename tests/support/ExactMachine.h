#pragma once

#include "platform/Services.h"
#include "platform/TzFolder.h"
#include "platform/TzZoneDatabase.h"
#include "support/FakeServices.h"
#include "timezones/ExactOffset.h"
#include "timezones/TimeZoneRecord.h"

/// A machine somewhere, at an instant, with the zone database of the tests.
struct ExactMachine {
    /// @param gmt as "2026-03-08T07:00:00"
    explicit ExactMachine(const QByteArray& gmt, const QByteArray& machine = "Europe/London")
        : Zones(Machine.Clock, machine) {
        Machine.Clock.SetZone(platform::TzZone(machine));
        MoveTo(gmt);
    }
    Q_DISABLE_COPY_MOVE(ExactMachine)

    static QDateTime Moment(const QByteArray& gmt) {
        return QDateTime::fromString(QString::fromLatin1(gmt) + u'Z', Qt::ISODate);
    }
    static qint64 Instant(const QByteArray& gmt) { return Moment(gmt).toSecsSinceEpoch(); }

    void MoveTo(const QByteArray& gmt) { Machine.Clock.SetInstant(Moment(gmt)); }

    /// A zone with the names "Standard" and "Daylight", by its exact rules at present.
    TimeZoneRecord Record(const QString& id) const {
        TimeZoneRecord record;
        record.StandardName = QStringLiteral("Standard");
        record.DaylightName = QStringLiteral("Daylight");
        record.ExactId = id;
        mduTimeZones::ApplyPresentOffset(Services, record);
        return record;
    }

    FakeServices Machine;
    platform::TzZoneDatabase Zones;
    platform::Services Services = Machine.Services.With(Zones);
};
