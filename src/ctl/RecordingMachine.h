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

/// Takes an event's name and its further fields. "clock run" prints each event as one line of JSON,
/// with the moment of the simulated clock in front:
///
///     {"at":"2008-03-25T14:00:00.000","event":"sound","file":"/clocks/gong.wav"}
///
/// The devices below keep a copy; what it refers to outlives them.
using TellEvent = std::function<void(const QString& event, const QJsonObject& fields)>;

/// One voice, "Script"; every text is spoken in no time, so that it never says that it is speaking.
///
/// The event "speak" has the text and the flags of speech added up ("text", "flags"). Voice, rate
/// and volume are taken and not told.
class RecordingVoices final : public platform::Voices {
public:
    explicit RecordingVoices(TellEvent tell) : tell_(std::move(tell)) {}
    /// Never null. The voice tells its events itself; it does not need this object any more.
    std::unique_ptr<platform::Voice> MakeVoice() override;

private:
    TellEvent tell_;
};

/// Players: a sound lasts a second of the given clock, music goes on until it is stopped.
///
/// A player takes a file for music when a volume was set for it since the file before; all else is
/// a sound. The events are "music" ("file", "volume", in percent), "sound" ("file"), and
/// "music-stop", which has no field and comes only when music was playing. No file is opened: one
/// that is missing or damaged plays as well as any.
class RecordingPlayers final : public platform::MediaPlayers {
public:
    /// @param clock tells when a sound is over; it outlives the players
    RecordingPlayers(TellEvent tell, const platform::WallClock& clock)
        : tell_(std::move(tell)), clock_(clock) {}
    /// Never null. Each player has a volume and a file of its own.
    std::unique_ptr<platform::MediaPlayer> MakePlayer() override;

private:
    TellEvent tell_;
    const platform::WallClock& clock_;
};

/// Actions succeed and do nothing: each gives the empty text, which means success. They tell no
/// event; the clock's messages tell which of them run.
class SilentActions final : public platform::SystemActions {
public:
    QString ExitWindowsEx(unsigned) override { return {}; }
    QString LockWorkStation() override { return {}; }
    QString Open(const QString&, const QString&) override { return {}; }
};

/// The machine's files; each write is told.
///
/// The event is "saved" with the path ("file"). It comes behind a `Write` or a `Copy` that
/// succeeded, for a copy with its destination, even where the file held that content already.
/// Folders, deletions and times of files are not told.
class RecordingFiles final : public platform::Files {
public:
    /// @param files does the work; it outlives this one
    RecordingFiles(platform::Files& files, TellEvent tell)
        : files_(files), tell_(std::move(tell)) {}

    bool Exists(const QString& path) const override { return files_.Exists(path); }
    bool FolderExists(const QString& path) const override { return files_.FolderExists(path); }
    bool MakeFolder(const QString& path) override { return files_.MakeFolder(path); }
    std::optional<QByteArray> Read(const QString& path) const override { return files_.Read(path); }
    /// From now on nothing can be written, or all again.
    void SetFull(bool full) { full_ = full; }
    /// Tell "saved" when the file holds the content; one that failed is not told.
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
    bool full_ = false;
};

/// A shell of which only the status bar is there: each text becomes the event "status" ("text").
///
/// Whatever else a clock asks of it has the answer of a shell that can do nothing: a box is
/// answered with OK (1), no clock is opened (0), no setting is known.
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
    /// White, as for a clock without a shell.
    int BackColor() const override { return 0xFFFFFF; }
    int LaunchTempolark(const QString&) override { return 0; }
    /// Empty, not the "0" that a shell gives for a setting that it does not have.
    QString Setting(const QString&) const override { return {}; }
    QString RemoveZone(const QString&) override { return {}; }
    void ShowClockHelp() override {}
    void OpenWindow(ShellWindow) override {}
    void SetAutoStart(const QString&, bool) override {}

private:
    TellEvent tell_;
};

}  // namespace ctl
