// Makes the profiles of cities, one property file each, from the tz database of this machine.
//
//   tempolark-profiles APP-FOLDER [--zoneinfo FOLDER] [--date YYYY-MM-DD]
//
// APP-FOLDER holds "ini/Tempolark.ini", whose keys each profile has, and "Images/Flags" with the
// flags of the countries, if there are any; the profiles go to "Timezones". They hold for the
// present year, or for that of the date. Nothing is done while all that they are made of is as it
// was, so it may be run at any time: a new edition of the tz database and a new year are noticed.
// A profile that stays the same keeps its time.
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <cstdio>

#include "Profile.h"
#include "foundation/PropertyFile.h"
#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;

namespace {

struct Order {
    QDir AppFolder;
    QDir ZoneInfo = QDir(u"/usr/share/zoneinfo"_s);
    QDateTime Now = QDateTime::currentDateTimeUtc();
    bool Good = true;

    QString ProfileFolder() const { return AppFolder.filePath(u"Timezones/"_s); }
    QString StampFile() const { return ProfileFolder() + u".made-of"_s; }
};

Order ReadOrder(QStringList words) {
    Order order;
    order.Good = !words.isEmpty();
    order.AppFolder.setPath(words.value(0));
    for (qsizetype i = 1; i < words.size(); i += 2) {
        const QString value = words.value(i + 1);
        if (words[i] == u"--zoneinfo"_s) {
            order.ZoneInfo.setPath(value);
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

// The first has a row for each country, the second knows a few more of today's identifiers.
QByteArray ZoneTable(const Order& order) {
    return Content(order.ZoneInfo.filePath(u"zone.tab"_s)) + '\n' +
           Content(order.ZoneInfo.filePath(u"zone1970.tab"_s));
}

/// Tells what the profiles are made of. A month counts because a zone that changes more than twice
/// in a year can be told only for the time about the present.
QByteArray Origin(const Order& order) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(ZoneTable(order));
    hash.addData(Content(order.ZoneInfo.filePath(u"tzdata.zi"_s)));
    hash.addData(Content(order.AppFolder.filePath(u"ini/Tempolark.ini"_s)));
    hash.addData(Content(QCoreApplication::applicationFilePath()));
    hash.addData(QDir(order.AppFolder.filePath(u"Images/Flags"_s)).entryList().join(u'/').toUtf8());
    return order.Now.toString(u"yyyy-MM"_s).toLatin1() + ' ' + hash.result().toHex();
}

/// The stamp: the origin, then the names of the profiles.
QStringList ReadStamp(const Order& order) {
    return QString::fromUtf8(Content(order.StampFile())).split(u'\n', Qt::SkipEmptyParts);
}

bool IsUpToDate(const Order& order, const QStringList& stamp, const QByteArray& origin) {
    if (stamp.value(0).toUtf8() != origin) {
        return false;
    }
    for (const QString& name : stamp.mid(1)) {
        if (!QFile::exists(order.ProfileFolder() + name)) {
            return false;
        }
    }
    return true;
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

bool MakeAll(const Order& order, const QStringList& oldStamp, const QByteArray& origin) {
    ClockProperties defaults;
    const QString defaultFile = order.AppFolder.filePath(u"ini/Tempolark.ini"_s);
    if (!mduLib::ReadPropertyFile(platform::LocalFiles(), defaultFile, defaults) ||
        !QDir().mkpath(order.ProfileFolder())) {
        return false;
    }
    QStringList stamp(QString::fromLatin1(origin));
    for (const profiles::City& city : profiles::ListCities(ZoneTable(order))) {
        const ClockProperties profile =
            profiles::MakeProfile(city, order.Now, FlagOf(order, city), defaults);
        stamp += city.Name + u".ini"_s;
        const QByteArray content = mduLib::PropertyFileContent(profile);
        if (!Put(order.ProfileFolder() + stamp.last(), content)) {
            return false;
        }
    }
    for (const QString& name : oldStamp.mid(1)) {
        if (!stamp.contains(name)) {
            QFile::remove(order.ProfileFolder() + name);
        }
    }
    return Put(order.StampFile(), stamp.join(u'\n').toUtf8() + '\n');
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
    const QByteArray origin = Origin(order);
    const QStringList stamp = ReadStamp(order);
    if (IsUpToDate(order, stamp, origin)) {
        return 0;
    }
    if (!MakeAll(order, stamp, origin)) {
        std::fprintf(stderr, "Can't make the profiles in %s\n", qPrintable(order.ProfileFolder()));
        return 1;
    }
    return 0;
}
