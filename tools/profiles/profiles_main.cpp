// Makes the profiles of cities, one property file each, from the tz database of this machine.
//
//   tempolark-profiles APP-FOLDER [--zoneinfo FOLDER] [--date YYYY-MM-DD]
//
// APP-FOLDER holds "ini/Tempolark.ini", whose keys each profile has, and "Images/Flags" with the
// flags of the countries, if there are any; the profiles go to "Timezones". They hold for the
// present year, or for that of the date. Nothing is done while all that they are made of is as it
// was, so it may be run at any time: a new edition of the tz database and a new year are noticed.
// A profile that stays the same keeps its time; in one that the user has changed, the six keys of
// the zone are renewed and nothing else.
#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "Profile.h"
#include "ProfileStamp.h"
#include "foundation/PropertyFile.h"
#include "platform/LocalFiles.h"
#include "platform/ProfileOrigin.h"

using namespace Qt::StringLiterals;

namespace {

struct Order {
    QDir AppFolder;
    QString ZoneInfo;  ///< empty: the machine's own
    QDateTime Now = QDateTime::currentDateTimeUtc();
    bool Good = true;

    platform::ProfileSources Sources() const {
        return {AppFolder.path(), QCoreApplication::applicationFilePath(), ZoneInfo, Now.date()};
    }
    QString ProfileFolder() const { return Sources().ProfileFolder(); }
    QString StampFile() const { return Sources().StampFile(); }
};

Order ReadOrder(QStringList words) {
    Order order;
    order.Good = !words.isEmpty();
    order.AppFolder.setPath(words.value(0));
    for (qsizetype i = 1; i < words.size(); i += 2) {
        const QString value = words.value(i + 1);
        if (words[i] == u"--zoneinfo"_s) {
            order.ZoneInfo = value;
        } else if (words[i] == u"--date"_s) {
            order.Now = QDate::fromString(value, Qt::ISODate).startOfDay(Qt::UTC);
        } else {
            order.Good = false;
        }
        order.Good = order.Good && !value.isEmpty() && order.Now.isValid();
    }
    return order;
}

QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString FlagOf(const Order& order, const profiles::City& city) {
    const QString file = u"Images/Flags/"_s + city.Country + u".jpg"_s;
    const bool found = QFile::exists(order.AppFolder.filePath(file));
    return found ? u".\\"_s + QString(file).replace(u'/', u'\\') : QString();
}

/// Replaces a file in one step. What is made anew in no time needs no care beyond that.
bool Put(const QString& path, const QByteArray& content) {
    if (Content(path) == content) {
        return true;
    }
    QFile half(path + u".new"_s);
    const bool written =
        half.open(QIODevice::WriteOnly) && half.write(content) == content.size() && half.flush();
    half.close();
    return written && std::rename(QFile::encodeName(half.fileName()).constData(),
                                  QFile::encodeName(path).constData()) == 0;
}

/// What the file of a profile shall hold: the profile, unless the user has made or changed the
/// file.
QByteArray Renewed(const QByteArray& present, const QByteArray& sum, const ClockProperties& made) {
    const bool own = !present.isNull() && profiles::SumOf(present) != sum;
    return own ? profiles::WithZoneOf(present, made) : mduLib::PropertyFileContent(made);
}

bool MakeProfiles(const Order& order, const ClockProperties& defaults,
                  const profiles::Stamp& oldStamp, profiles::Stamp& stamp) {
    for (const profiles::City& city :
         profiles::ListCities(platform::ProfileZoneTable(order.Sources()))) {
        const QString name = city.Name + u".ini"_s;
        const ClockProperties made =
            profiles::MakeProfile(city, order.Now, FlagOf(order, city), defaults);
        const QByteArray present = Content(order.ProfileFolder() + name);
        const QByteArray content = Renewed(present, oldStamp.Sums.value(name), made);
        if (!Put(order.ProfileFolder() + name, content)) {
            return false;
        }
        stamp.Sums[name] = profiles::SumOf(mduLib::PropertyFileContent(made));
    }
    return true;
}

/// Takes away what this program has made and the user has left alone.
void RemoveLost(const Order& order, const profiles::Stamp& oldStamp, const profiles::Stamp& stamp) {
    for (auto old = oldStamp.Sums.begin(); old != oldStamp.Sums.end(); ++old) {
        const QString path = order.ProfileFolder() + old.key();
        if (!stamp.Sums.contains(old.key()) && profiles::SumOf(Content(path)) == old.value()) {
            QFile::remove(path);
        }
    }
}

bool MakeAll(const Order& order, const profiles::Stamp& oldStamp, const QByteArray& origin) {
    ClockProperties defaults;
    const QString defaultFile = order.AppFolder.filePath(u"ini/Tempolark.ini"_s);
    if (!mduLib::ReadPropertyFile(platform::LocalFiles(), defaultFile, defaults) ||
        !QDir().mkpath(order.ProfileFolder())) {
        return false;
    }
    profiles::Stamp stamp{origin, {}};
    if (!MakeProfiles(order, defaults, oldStamp, stamp)) {
        return false;
    }
    RemoveLost(order, oldStamp, stamp);
    return Put(order.StampFile(), profiles::StampContent(stamp));
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const Order order = ReadOrder(QCoreApplication::arguments().mid(1));
    if (!order.Good) {
        std::fprintf(stderr,
                     "usage: tempolark-profiles APP-FOLDER [--zoneinfo FOLDER] "
                     "[--date YYYY-MM-DD]\n");
        return 2;
    }
    if (platform::AreProfilesUpToDate(order.Sources())) {
        return 0;
    }
    const profiles::Stamp stamp = platform::ParseProfileStamp(Content(order.StampFile()));
    if (!MakeAll(order, stamp, platform::ProfileOrigin(order.Sources()))) {
        std::fprintf(stderr, "Can't make the profiles in %s\n", qPrintable(order.ProfileFolder()));
        return 1;
    }
    return 0;
}
