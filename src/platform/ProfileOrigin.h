#pragma once

#include <QByteArray>
#include <QDate>
#include <QMap>
#include <QString>

/// What the profiles of cities are made of, and whether they are to be made anew.
namespace platform {

/// The stamp's file, in the folder of the profiles. It is no hidden one: it goes wherever the
/// profiles are copied.
inline const QString ProfileStampName = QStringLiteral("made-of.txt");

/// What has been made the last time.
struct ProfileStamp {
    QByteArray Origin;               ///< what the profiles were made of; no line breaks
    QMap<QString, QByteArray> Sums;  ///< by file name: a sum of the profile as it was made
};

/// stamp = origin LF { sum blank name LF }
ProfileStamp ParseProfileStamp(const QByteArray& content);

/// Where the makings lie.
struct ProfileSources {
    QString AppFolder;
    QString Tool;      ///< the program that makes the profiles
    QString ZoneInfo;  ///< the folder of the tz database; empty: the machine's own
    QDate Date;        ///< the profiles hold for its year

    QString ProfileFolder() const { return AppFolder + QStringLiteral("/Timezones/"); }
    QString StampFile() const { return ProfileFolder() + ProfileStampName; }
};

/// The tables of the tz database that tell of places.
QByteArray ProfileZoneTable(const ProfileSources& sources);

/// A line that changes with everything that the profiles are made of.
QByteArray ProfileOrigin(const ProfileSources& sources);

/// Whether all profiles of the folder's stamp are there, made of what there is now.
bool AreProfilesUpToDate(const ProfileSources& sources);

/// Whether a start is to have the profiles made anew: never without the tool, nor where there are
/// none. Profiles without a stamp are those of an older edition.
bool AreProfilesDue(const ProfileSources& sources);

}  // namespace platform
