#include "platform/Services.h"

#include <QTest>

#include "platform/AbsentDevices.h"
#include "support/FakeDialogs.h"
#include "support/FakeServices.h"

namespace {

template <class... Parts>
concept CanReplace = requires(const platform::Services machine, Parts&... parts) {
    machine.With(parts...);
};

class OtherFiles;  // what is declared only may be anything

static_assert(std::is_aggregate_v<platform::Services>, "a machine is made with named members");
static_assert(CanReplace<FakeDialogs>);
static_assert(CanReplace<platform::Dialogs>);
static_assert(CanReplace<FakeDialogs, platform::NoTray, FakeFiles>);
static_assert(!CanReplace<QString>, "no service");
static_assert(!CanReplace<FakeDialogs, int>, "one of them is no service");
static_assert(!CanReplace<const FakeDialogs>, "a service may be asked to do something");
static_assert(!CanReplace<OtherFiles>);

/// The addresses of all services, in the order of the structure.
std::vector<const void*> Places(const platform::Services& machine) {
    return {&machine.Clock,    &machine.Zones,   &machine.FileSystem, &machine.User,
            &machine.Settings, &machine.Actions, &machine.Speech,     &machine.Media,
            &machine.Sound,    &machine.Dialog,  &machine.TrayIcon,   &machine.Help,
            &machine.Random};
}

/// Which places of two machines hold different services.
QList<int> Differences(const platform::Services& one, const platform::Services& other) {
    const std::vector<const void*> ones = Places(one);
    const std::vector<const void*> others = Places(other);
    QList<int> places;
    for (std::size_t i = 0; i < ones.size(); ++i) {
        if (ones[i] != others[i]) {
            places += static_cast<int>(i);
        }
    }
    return places;
}

}  // namespace

class tst_Services : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WithNothingIsTheSameMachine() {
        const FakeServices machine;
        QCOMPARE(Differences(machine.Services, machine.Services.With()), QList<int>());
    }

    void WithOnePartKeepsTheOthers() {
        const FakeServices machine;
        FakeDialogs dialogs;
        const platform::Services services = machine.Services.With(dialogs);
        QCOMPARE(static_cast<platform::Dialogs*>(&dialogs), &services.Dialog);
        QCOMPARE(Differences(machine.Services, services), QList<int>({9}));
    }

    // The order of the parts is the caller's.
    void WithSeveralPartsEachFindsItsPlace() {
        const FakeServices machine;
        platform::NoTray tray;
        platform::NoVoices voices;
        FakeFiles files;
        const platform::Services services = machine.Services.With(tray, files, voices);
        QCOMPARE(static_cast<platform::Tray*>(&tray), &services.TrayIcon);
        QCOMPARE(static_cast<platform::Files*>(&files), &services.FileSystem);
        QCOMPARE(static_cast<platform::Voices*>(&voices), &services.Speech);
        QCOMPARE(Differences(machine.Services, services), QList<int>({2, 6, 10}));
    }

    void APartMayBeKnownByItsServiceAlone() {
        const FakeServices machine;
        FakeDialogs dialogs;
        platform::Dialogs& part = dialogs;
        QCOMPARE(&machine.Services.With(part).Dialog, &part);
    }

    void EveryServiceCanBeReplaced() {
        const FakeServices one;
        FakeServices other;
        const platform::Services& parts = other.Services;
        platform::NoActions actions;
        platform::NoPlayers players;
        platform::NoSound sound;
        platform::NoTray tray;
        platform::NoVoices voices;
        const platform::Services services = one.Services.With(
            parts.Random, parts.Help, tray, parts.Dialog, sound, players, voices, actions,
            parts.Settings, parts.User, parts.FileSystem, parts.Zones, parts.Clock);
        QCOMPARE(Differences(one.Services, services).size(), 13);
        QCOMPARE(Differences(parts, services), QList<int>({5, 6, 7, 8, 10}));
    }

    void AMachineWithoutDevicesHasWhatItIsGiven() {
        const FakeServices machine;
        const platform::Services& given = machine.Services;
        platform::AbsentDevices devices;
        const platform::Services services =
            devices.Beside(given.Clock, given.Zones, given.FileSystem, given.User, given.Settings,
                           given.Dialog, given.Random);
        QCOMPARE(Differences(given, services), QList<int>({5, 6, 7, 8, 10, 11}));
        QCOMPARE(Differences(services, given.With(devices.Actions, devices.Speech, devices.Media,
                                                  devices.Sound, devices.TrayIcon, devices.Help)),
                 QList<int>());
    }
};

QTEST_APPLESS_MAIN(tst_Services)
#include "tst_Services.moc"
