#include "platform/ProfileOrigin.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <algorithm>

#include "platform/TzFolder.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray ZoneFile(const ProfileSources& sources, const QString& name) {
    return sources.ZoneInfo.isEmpty() ? TzFile(name) : Content(sources.ZoneInfo + u'/' + name);
}

}  // namespace

ProfileStamp ParseProfileStamp(const QByteArray& content) {
    const QList<QByteArray> lines = content.split('\n');
    ProfileStamp stamp{lines[0], {}};
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype blank = line.indexOf(' ');
        if (blank > 0) {
            stamp.Sums[QString::fromUtf8(line.mid(blank + 1))] = line.first(blank);
        }
    }
    return stamp;
}

// The first has a row for each country, the second knows a few more of today's identifiers.
QByteArray ProfileZoneTable(const ProfileSources& sources) {
    return ZoneFile(sources, u"zone.tab"_s) + '\n' + ZoneFile(sources, u"zone1970.tab"_s);
}

// A month counts because a zone that changes more than twice in a year can be told only for the
// time about the present; the folder, because a copy of it may have kept older profiles beside a
// newer stamp.
QByteArray ProfileOrigin(const ProfileSources& sources) {
    const QDir folder(sources.AppFolder);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(ProfileZoneTable(sources));
    hash.addData(ZoneFile(sources, u"tzdata.zi"_s));
    hash.addData(folder.canonicalPath().toUtf8());
    hash.addData(Content(folder.filePath(u"ini/Tempolark.ini"_s)));
    hash.addData(Content(sources.Tool));
    hash.addData(QDir(folder.filePath(u"Images/Flags"_s)).entryList().join(u'/').toUtf8());
    return sources.Date.toString(u"yyyy-MM"_s).toLatin1() + ' ' + hash.result().toHex();
}

bool AreProfilesUpToDate(const ProfileSources& sources) {
    const ProfileStamp stamp = ParseProfileStamp(Content(sources.StampFile()));
    const QStringList names = stamp.Sums.keys();
    return stamp.Origin == ProfileOrigin(sources) &&
           std::all_of(names.begin(), names.end(), [&](const QString& name) {
               return QFile::exists(sources.ProfileFolder() + name);
           });
}

bool AreProfilesDue(const ProfileSources& sources) {
    if (!QFile::exists(sources.Tool)) {
        return false;
    }
    return QFile::exists(sources.StampFile())
               ? !AreProfilesUpToDate(sources)
               : !QDir(sources.ProfileFolder()).entryList({u"*.ini"_s}, QDir::Files).isEmpty();
}

}  // namespace platform
