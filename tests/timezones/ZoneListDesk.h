#pragma once

#include "support/FakeServices.h"
#include "timezones/ZoneList.h"

using namespace Qt::StringLiterals;

/// A machine in GMT with three zones in its database, folders for profiles and for zone files, and
/// a default file.
struct ZoneListDesk {
    FakeServices Machine;
    PathTable Paths;

    ZoneListDesk() {
        Machine.Zones.Add(u"Tokyo Standard Time"_s, -540);
        Machine.Zones.Add(u"Eastern Standard Time"_s, 300, 0, -60, {0, 11, 0, 1, 2, 0, 0, 0},
                          {0, 3, 0, 2, 2, 0, 0, 0});
        Machine.Zones.Add(u"UTC"_s, 0);
        Machine.Zones.LocalName = u"UTC"_s;
        Machine.Zones.Local.Result = 0;
        Paths.AppFolder = Machine.AppFolder();
        Paths.ProfileFolder = Machine.AppFolder() + u"/Timezones/"_s;
        Paths.ZoneFileFolder = Machine.AppFolder() + u"/tester/TimeZones/"_s;
        QDir().mkpath(Paths.ProfileFolder);
        QDir().mkpath(Paths.ZoneFileFolder);
        Machine.WriteFile(u"ini/Tempolark.ini"_s,
                          "Time Zone:Time Zone Standard Name=\r\nA:B=c\r\n");
    }

    QString Profile(const QString& file, const QByteArray& zone, int minutes,
                    const QByteArray& more = {}) {
        return Machine.WriteFile(u"Timezones/"_s + file,
                                 "Time Zone:Time Zone Standard Name=" + zone +
                                     "\r\nTime Zone:Time Zone Standard GMT (Minutes)=" +
                                     QByteArray::number(minutes) + "\r\n" + more);
    }
    QString ZoneFile(const QString& zone, const QByteArray& content = "A:B=own\r\n") {
        return Machine.WriteFile(u"tester/TimeZones/"_s + zone + u".ini"_s, content);
    }
    QByteArray ReadZoneFile(const QString& zone) const {
        return Machine.ReadFile(u"tester/TimeZones/"_s + zone + u".ini"_s);
    }

    static QStringList Names(const mduTimeZones::ZoneList& list) {
        QStringList names;
        for (int position = 0; position < list.Count(); ++position) {
            names += list[position].Name;
        }
        return names;
    }
};
