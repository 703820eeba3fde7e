#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>

namespace platform {

/// Who is logged on.
class Account {
public:
    virtual ~Account() = default;
    virtual QString UserName() const = 0;  ///< empty when no name is known
};

/// The settings store that stands in for the registry: the same keys and values.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual QVariant Value(const QString& key, const QString& name) const = 0;
    virtual void SetValue(const QString& key, const QString& name, const QVariant& value) = 0;
    virtual void Remove(const QString& key, const QString& name) = 0;
};

/// What a timer may do to the machine. Each answers an empty text, or the reason for a refusal.
class SystemActions {
public:
    virtual ~SystemActions() = default;
    virtual QString ExitWindowsEx(unsigned flags) = 0;
    virtual QString LockWorkStation() = 0;
    virtual QString Open(const QString& path, const QString& workingFolder) = 0;

    /// Does one of the above without keeping the caller waiting: @p action is called at once or in
    /// a thread of its own, and @p answer is given what it answered, then or from the event loop.
    virtual void Begin(const std::function<QString(SystemActions&)>& action,
                       const std::function<void(const QString& reason)>& answer) {
        answer(action(*this));
    }
};

/// One text-to-speech voice object (each clock has its own). Nothing that it is asked keeps the
/// caller waiting.
class Voice {
public:
    virtual ~Voice() = default;
    /// One for each voice of the machine; none, too, while these are not known yet.
    virtual QStringList Descriptions() const = 0;
    /// Whether the machine is still to tell which voices it has.
    virtual bool IsAsking() const { return false; }
    virtual void SetVoice(int index) = 0;
    virtual void SetRate(int rate) = 0;      ///< -10 to 10
    virtual void SetVolume(int volume) = 0;  ///< 0 to 100
    /// Begins to speak a text. @return false when it is known already that it can't be spoken
    virtual bool Speak(const QString& text, int flags) = 0;
    /// Whether the last text is being spoken, or waits for its turn.
    virtual bool IsSpeaking() const { return false; }
    /// Why the last text could not be spoken; empty when it could, or while it is being spoken.
    virtual QString LastError() const { return {}; }
    /// @p onNews is called, from the event loop, when the last text has come to its end and when
    /// the machine has told its voices. The voice may be destroyed in it.
    virtual void SetOnNews(const std::function<void()>& /*onNews*/) {}
};

class Voices {
public:
    virtual ~Voices() = default;
    virtual std::unique_ptr<Voice> MakeVoice() = 0;  ///< null where there is no speech at all
};

/// One media player (each clock creates its own when it first needs it).
class MediaPlayer {
public:
    virtual ~MediaPlayer() = default;
    virtual void SetUrl(const QString& path) = 0;
    virtual int PlayState() const = 0;  ///< 3 means playing
    virtual void Play() = 0;
    virtual void Stop() = 0;
    virtual void Pause() = 0;
    virtual void SetVolume(int volume) = 0;  ///< 0 to 100
    /// Why the present file can't be played; empty while nothing has failed.
    virtual QString LastError() const { return {}; }
};

class MediaPlayers {
public:
    virtual ~MediaPlayers() = default;
    virtual std::unique_ptr<MediaPlayer> MakePlayer() = 0;
};

class SoundDevices {
public:
    virtual ~SoundDevices() = default;
    /// Gives @p answer how many there are at present, at once or from the event loop.
    virtual void Count(const std::function<void(int count)>& answer) = 0;
};

/// Boxes that ask the user. In tests a box that was not expected fails the test, it never waits.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// A box with the buttons and icon of @p flags (the system's message-box flags: 16 critical,
    /// 48 exclamation, 4 Yes and No). Answers the button pressed: 1 OK, 6 Yes, 7 No.
    virtual int MessageBox(const QString& text, int flags, const QString& title) = 0;

    /// A box that tells something and waits for nobody: it is shown when the event loop runs next,
    /// behind those that were posted before. One that stands or waits already is not posted again.
    virtual void PostMessageBox(const QString& text, int flags, const QString& title) {
        MessageBox(text, flags, title);
    }

    /// A picker for opening a file; an empty text when it is cancelled.
    virtual QString OpenFile(const QString& title, const QString& folder,
                             const QString& filter) = 0;

    /// A picker for a file to be written; an empty text when it is cancelled.
    virtual QString SaveFile(const QString& title, const QString& folder,
                             const QString& filter) = 0;

    /// A picker for a colour, red in the low byte; -1 when it is cancelled.
    virtual int PickColour(int present) = 0;
};

class Tray {
public:
    virtual ~Tray() = default;
    virtual void SetIcon(bool show, const QString& tip) = 0;
};

/// Shows the page of a context number. Answers an empty text, or why there is nothing to be seen.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    virtual QString Show(const QString& path, int contextNumber) = 0;
};

class RandomNumbers {
public:
    virtual ~RandomNumbers() = default;
    virtual void Seed() = 0;    ///< starts a new sequence, from the clock or from a chosen seed
    virtual double Next() = 0;  ///< the next number, from 0 up to but not including 1
};

}  // namespace platform
