#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// A folder of the program with the default file and two flags, and the real maker of profiles.
struct ProfileMaker {
    QTemporaryDir Folder;

    ProfileMaker() {
        Write(u"ini/Tempolark.ini"_s,
              "Clock:Clocks=Analogue,Analogue,Digital\r\n"
              "Time Zone:Flag File=\r\n"
              "Time Zone:Time Zone Standard Name=\r\n"
              "Time Zone:Time Zone Standard Start Time=\r\n"
              "Time Zone:Time Zone Standard GMT (Minutes)=\r\n"
              "Time Zone:Time Zone Daylight Name=\r\n"
              "Time Zone:Time Zone Daylight Start Time=\r\n"
              "Time Zone:Time Zone Daylight GMT (Minutes)=\r\n");
        Write(u"Images/Flags/Germany.jpg"_s, "x");
        Write(u"Images/Flags/Australia.jpg"_s, "x");
    }

    /// @return the exit code.
    int Run(const QString& date, const QStringList& more = {}) const {
        return QProcess::execute(QStringLiteral(TEMPOLARK_BIN_DIR "/tempolark-profiles"),
                                 QStringList{Folder.path(), u"--date"_s, date} + more);
    }

    /// Makes them from a table of its own, in a folder that holds nothing else.
    int RunWithTable(const QByteArray& table) const {
        Write(u"zoneinfo/zone.tab"_s, table);
        return Run(u"2026-07-01"_s, {u"--zoneinfo"_s, Folder.filePath(u"zoneinfo"_s)});
    }

    void Write(const QString& name, const QByteArray& content) const {
        QDir().mkpath(QFileInfo(Folder.filePath(name)).path());
        QFile file(Folder.filePath(name));
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(name));
        QCOMPARE(file.write(content), content.size());
    }

    QString Path(const QString& city) const {
        return Folder.filePath(u"Timezones/"_s + city + u".ini"_s);
    }
    QByteArray Read(const QString& city) const {
        QFile file(Path(city));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool Has(const QString& city) const { return QFile::exists(Path(city)); }

    QStringList Names() const {
        return QDir(Folder.filePath(u"Timezones"_s)).entryList({u"*.ini"_s}, QDir::Files);
    }
};
