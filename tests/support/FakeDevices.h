#pragma once

#include "platform/Services.h"
#include "support/FakeActions.h"
#include "support/FakePlayers.h"
#include "support/FakeSound.h"
#include "support/FakeVoices.h"

/// The devices of a machine, all of which only write down.
struct FakeDevices {
    FakeVoices Voices;
    FakePlayers Players;
    FakeActions Actions;
    FakeSound Sound;

    /// A machine with these devices in place of its own.
    platform::Services On(const platform::Services& machine) {
        return machine.With(Actions, Voices, Players, Sound);
    }
};
