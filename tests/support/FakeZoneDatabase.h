#pragma once

#include <map>
#include <vector>

#include "platform/ZoneDatabase.h"

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
