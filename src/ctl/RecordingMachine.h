#pragma once

#include <QJsonObject>
#include <functional>

#include "foundation/Forms.h"
#include "platform/Files.h"
#include "platform/MediaPlayers.h"
#include "platform/SystemActions.h"
#include "platform/Voices.h"
#include "platform/WallClock.h"

/// A machine whose devices run nothing and tell what they are asked for, as events.
namespace ctl {

/// Takes an event's name and its further fields.
using TellEvent = std::function<void(const QString& event, const QJsonObject& fields)>;

/// One voice; every text is spoken in no time.
class RecordingVoices final : public platform::Voices {
public:
    explicit RecordingVoices(TellEvent tell) : tell_(std::move(tell)) {}
    std::unique_ptr<platform::Voice> MakeVoice() override;

private:
    TellEvent tell_;
};

/// Players: a sound lasts a second, music goes on until it is stopped.
class RecordingPlayers final : public platform::MediaPlayers {
public:
    RecordingPlayers(TellEvent tell, const platform::WallClock& clock)
        : tell_(std::move(tell)), clock_(clock) {}
    std::unique_ptr<platform::MediaPlayer> MakePlayer() override;

private:
    TellEvent tell_;
    const platform::WallClock& clock_;
};

/// Actions succeed and do nothing; the clock's messages tell which of them run.
class SilentActions final : public platform::SystemActions {
public:
    QString ExitWindowsEx(unsigned) override { return {}; }
    QString LockWorkStation() override { return {}; }
    QString Open(const QString&, const QString&) override { return {}; }
};

/// The machine's files; each write is told.
class RecordingFiles final : public platform::Files {
public:
    RecordingFiles(platform::Files& files, TellEvent tell)
        : files_(files), tell_(std::move(tell)) {}

    bool Exists(const QString& path) const override { return files_.Exists(path); }
    bool FolderExists(const QString& path) const override { return files_.FolderExists(path); }
    bool MakeFolder(const QString& path) override { return files_.MakeFolder(path); }
    std::optional<QByteArray> Read(const QString& path) const override { return files_.Read(path); }
    bool Write(const QString& path, const QByteArray& content) override;
    bool Copy(const QString& source, const QString& destination) override;
    bool Delete(const QString& path) override { return files_.Delete(path); }
    bool Touch(const QString& path) override { return files_.Touch(path); }
    bool SetModifiedSeconds(const QString& path, qint64 seconds) override {
        return files_.SetModifiedSeconds(path, seconds);
    }
    std::optional<qint64> ModifiedSeconds(const QString& path) const override {
        return files_.ModifiedSeconds(path);
    }
    std::optional<qint64> Size(const QString& path) const override { return files_.Size(path); }
    QStringList FileNames(const QString& folder) const override { return files_.FileNames(folder); }

private:
    platform::Files& files_;
    TellEvent tell_;
};

/// A shell of which only the status bar is there.
class RecordingShell final : public IShell {
public:
    explicit RecordingShell(TellEvent tell) : tell_(std::move(tell)) {}
    void ShowStatusMsg(const QString& text) override {
        tell_(QStringLiteral("status"), {{QStringLiteral("text"), text}});
    }
    int ShowMsgbox(const QString&, int, const QString&) override { return 1; }
    int RefreshForm(const QString&) override { return 0; }
    void SpeakMessage(const QString&) override {}
    void PurgeSpeech() override {}
    void DoMenuItem(float, int) override {}
    int BackColor() const override { return 0xFFFFFF; }
    int LaunchTempolark(const QString&) override { return 0; }
    QString Setting(const QString&) const override { return {}; }
    QString RemoveZone(const QString&) override { return {}; }
    void ShowClockHelp() override {}

private:
    TellEvent tell_;
};

}  // namespace ctl
