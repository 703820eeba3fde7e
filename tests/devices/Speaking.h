#pragma once

#include <QTest>

#include "platform/Voices.h"
#include "platform/devices/QtPlayers.h"

/// Speaks a text and lets events run until it has come to its end. @return whether it was spoken
inline bool SpeakWhole(platform::Voice& voice, const QString& text, int flags = 2) {
    return voice.Speak(text, flags) &&
           QTest::qWaitFor([&voice] { return !voice.IsSpeaking(); }, 60'000) &&
           voice.LastError().isEmpty();
}

/// The machine's voices, as soon as it has told them.
inline QStringList VoicesOf(const platform::Voice& voice) {
    QStringList voices = voice.Descriptions();
    if (QTest::qWaitFor([&voice] { return !voice.IsAsking(); }, 60'000) && voices.isEmpty()) {
        voices = voice.Descriptions();
    }
    return voices;
}

/// How many sound devices a player's program tells of; -1 when it doesn't.
inline int CountOf(const QString& program) {
    int told = -1;
    platform::QtSoundDevices(program).Count([&told](int count) { told = count; });
    return QTest::qWaitFor([&told] { return told >= 0; }, 30'000) ? told : -1;
}
