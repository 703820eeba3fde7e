#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <map>
#include <vector>

#include "foundation/ModuleState.h"
#include "platform/AbsentDevices.h"
#include "platform/LocalFiles.h"
#include "platform/Services.h"
#include "platform/SimulatedClock.h"
#include "platform/SystemServices.h"

/// A zone database that a test fills by hand. It is empty to begin with.
class FakeZoneDatabase final : public platform::ZoneDatabase {
public:
    struct Zone {
        QString Subkey;
        std::map<QString, QString> Texts;  ///< "Display", "Std", "Dlt"
        std::optional<QByteArray> Tzi;
    };

    platform::ZoneRoot Root = platform::ZoneRoot::Opened;
    std::vector<Zone> Subkeys;
    std::map<QString, platform::ZonePlace> Places;  ///< by subkey
    std::map<QString, QStringList> CountryNames;    ///< by subkey
    platform::TimeZoneInformation Local;
    QString LocalName;
    QString EditionName;
    bool NT = true;

    /// Adds a zone whose three texts are formed from its name.
    void Add(const QString& name, int bias, int standardBias = 0, int daylightBias = 0,
             const platform::SYSTEMTIME& standardDate = {},
             const platform::SYSTEMTIME& daylightDate = {});

    /// The 44 bytes of a "TZI" value.
    static QByteArray TziBytes(int bias, int standardBias, int daylightBias,
                               const platform::SYSTEMTIME& standardDate,
                               const platform::SYSTEMTIME& daylightDate);

    platform::ZoneRoot Open() const override { return Root; }
    std::optional<QString> SubkeyName(int index) const override;
    std::optional<QString> TextValue(const QString& subkey, const QString& name) const override;
    std::optional<QByteArray> TziValue(const QString& subkey) const override;
    std::optional<platform::ZonePlace> Place(const QString& subkey) const override;
    QStringList Countries(const QString& subkey) const override;
    platform::TimeZoneInformation GetTimeZoneInformation() const override { return Local; }
    QString LocalStandardName() const override { return LocalName; }
    QString Edition() const override { return EditionName; }
    bool IsWindowsNT() const override { return NT; }

private:
    const Zone* Find(const QString& subkey) const;
};

/// Message boxes and pickers with answers laid out beforehand; one that was not expected fails the
/// test.
class FakeDialogs final : public platform::Dialogs {
public:
    struct Box {
        QString Text;
        int Flags = 0;
        QString Title;
    };
    std::vector<Box> Boxes;       ///< the boxes shown
    std::vector<int> BoxAnswers;  ///< taken from the front
    QStringList FileAnswers;      ///< taken from the front, by both file pickers
    QStringList PickerFolders;    ///< the folders the pickers began in
    QStringList PickerTitles;
    std::vector<int> ColourAnswers;  ///< taken from the front

    int MessageBox(const QString& text, int flags, const QString& title) override;
    QString OpenFile(const QString& title, const QString& folder, const QString& filter) override;
    QString SaveFile(const QString& title, const QString& folder, const QString& filter) override;
    int PickColour(int present) override;
};

/// Numbers laid out beforehand, round and round; 0 when there are none.
class FakeRandom final : public platform::RandomNumbers {
public:
    std::vector<double> Numbers;
    int Seeds = 0;

    void Seed() override { ++Seeds; }
    double Next() override { return Numbers.empty() ? 0.0 : Numbers[used_++ % Numbers.size()]; }

private:
    std::size_t used_ = 0;
};

/// Keeps which help was asked for.
class FakeHelp final : public platform::HelpViewer {
public:
    struct Page {
        QString Path;
        int ContextNumber = 0;
        bool operator==(const Page&) const = default;
    };
    std::vector<Page> Pages;
    QString Refusal;  ///< what it answers

    QString Show(const QString& path, int contextNumber) override {
        Pages.push_back({path, contextNumber});
        return Refusal;
    }
};

/// The machine's files, with failures on demand: paths that can't be read or written.
class FakeFiles final : public platform::Files {
public:
    QStringList Unreadable;
    QStringList Unwritable;
    QStringList Undeletable;
    QStringList Writes;  ///< every path written, in order

    bool Exists(const QString& path) const override { return local_.Exists(path); }
    bool FolderExists(const QString& path) const override { return local_.FolderExists(path); }
    bool MakeFolder(const QString& path) override;
    std::optional<QByteArray> Read(const QString& path) const override;
    bool Write(const QString& path, const QByteArray& content) override;
    bool Copy(const QString& source, const QString& destination) override;
    bool Delete(const QString& path) override {
        return !Undeletable.contains(path) && local_.Delete(path);
    }
    bool Touch(const QString& path) override {
        return !Unwritable.contains(path) && local_.Touch(path);
    }
    bool SetModifiedSeconds(const QString& path, qint64 seconds) override {
        return !Unwritable.contains(path) && local_.SetModifiedSeconds(path, seconds);
    }
    std::optional<qint64> ModifiedSeconds(const QString& path) const override {
        return local_.ModifiedSeconds(path);
    }
    std::optional<qint64> Size(const QString& path) const override { return local_.Size(path); }
    QStringList FileNames(const QString& folder) const override { return local_.FileNames(folder); }

private:
    platform::LocalFiles local_;
};

/// A whole machine for a test: a program folder of its own, a clock that stands at
/// 2026-06-15 12:00:00 in GMT, a user "tester", an empty zone database, no devices.
class FakeServices {
public:
    FakeServices();

    QTemporaryDir Folder;
    platform::SimulatedClock Clock;
    FakeZoneDatabase Zones;
    FakeFiles Files;
    platform::NamedAccount User{QStringLiteral("tester")};
    platform::FileSettings Settings;
    platform::NoActions Actions;
    platform::NoVoices Voices;
    platform::NoPlayers Players;
    platform::NoSound Sound;
    FakeDialogs Dialogs;
    platform::NoTray Tray;
    FakeHelp Help;
    FakeRandom Random;
    platform::Services Services;

    QString AppFolder() const { return Folder.path(); }

    /// Writes a file below the program folder, making its folders; gives the full path back.
    QString WriteFile(const QString& relativePath, const QByteArray& content);
    QByteArray ReadFile(const QString& relativePath) const;

    /// Gives a file an age: its last-modified time lies @p seconds before the present.
    void SetAge(const QString& relativePath, int seconds);
};
