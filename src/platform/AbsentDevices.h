#pragma once

#include "platform/Machine.h"

/// A machine that lacks a device: no voices, no player, no sound, no tray. The program runs on it;
/// what needs the device stays silent.
namespace platform {

class NoActions final : public SystemActions {
public:
    QString ExitWindowsEx(unsigned) override { return Reason(); }
    QString LockWorkStation() override { return Reason(); }
    QString Open(const QString&, const QString&) override { return Reason(); }

private:
    static QString Reason() { return QStringLiteral("This machine offers no system actions"); }
};

class NoVoices final : public Voices {
public:
    std::unique_ptr<Voice> MakeVoice() override { return nullptr; }
};

class NoPlayers final : public MediaPlayers {
public:
    std::unique_ptr<MediaPlayer> MakePlayer() override { return nullptr; }
};

class NoSound final : public SoundDevices {
public:
    void Count(const std::function<void(int)>& answer) override { answer(0); }
};

class NoTray final : public Tray {
public:
    void SetIcon(bool, const QString&) override {}
};

class NoHelp final : public HelpViewer {
public:
    QString Show(const QString&, int) override {
        return QStringLiteral("This machine has nothing to show help with");
    }
};

}  // namespace platform
