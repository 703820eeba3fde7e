#pragma once

#include <QTemporaryDir>
#include <memory>

#include "platform/SimulatedClock.h"
#include "support/FakeFiles.h"
#include "support/FakeZoneDatabase.h"

namespace platform {
class NamedAccount;
struct Services;
}  // namespace platform
class FakeDialogs;
class FakeHelp;
class FakeRandom;
class FakeSettings;

/// A whole machine for a test: a program folder of its own, a clock that stands at
/// 2026-06-15 12:00:00 in GMT, a user "tester", an empty zone database, no devices. A test that
/// asks for more than the clock, the zones and the files includes the header of that fake.
class FakeServices {
public:
    FakeServices();
    ~FakeServices();
    Q_DISABLE_COPY_MOVE(FakeServices)

    QTemporaryDir Folder;
    platform::SimulatedClock Clock;
    FakeZoneDatabase Zones;
    FakeFiles Files;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;

public:
    platform::NamedAccount& User;
    FakeSettings& Settings;  ///< the file "Settings.ini" of the folder
    FakeDialogs& Dialogs;
    FakeHelp& Help;
    FakeRandom& Random;
    const platform::Services& Services;

    QString AppFolder() const { return Folder.path(); }

    /// Writes a file below the program folder, making its folders; gives the full path back.
    QString WriteFile(const QString& relativePath, const QByteArray& content);
    QByteArray ReadFile(const QString& relativePath) const;

    /// Gives a file an age: its last-modified time lies @p seconds before the present.
    void SetAge(const QString& relativePath, int seconds);
};
