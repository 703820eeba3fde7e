#pragma once

#include <QDateTime>
#include <cstdint>
#include <memory>

#include "platform/MediaPlayers.h"
#include "speech/ClockVoice.h"
#include "speech/SpeechContext.h"
#include "speech/ToldReasons.h"

namespace speech {

/// The path of the file with that number in a folder, counted from 0 in the order of the names;
/// empty when there is none. Folders inside are not entered.
QString NextFolderFile(const platform::Files& files, const QString& folder, int index);

/// The sounds and the music of one clock, through the one player that it makes when something is
/// first to be heard.
///
/// Music stops where "Music Volume" is below 1 and where an action counts down; sounds are let
/// through, but never cut into what is playing. An action that counts down while anything plays, be
/// it a sound, holds the music. `MusicPlayer(1).Tag` holds `MusicHold`: once it is
/// "1" no music starts until the clock is opened again.
///
/// A file that exists and can't be played is told to the host, also where the player finds out
/// later: a sound about once a minute at most, a piece of music once until it, or another piece,
/// has been heard. Where the machine has no sound device the music rests for a minute and then
/// tries the same piece; a single file that can't be played is tried once a minute, too. In a
/// folder the next file follows.
class PlayerMusic final : public ClockMusic {
public:
    explicit PlayerMusic(const SpeechContext& context)
        : context_(context), told_(context.Services.Clock) {}

    /// One tick: starts the next piece of "Music File" where nothing plays, or stops the music.
    void CheckMusic() override;

    /// Plays a file at once, unless something is playing. A file that is missing is skipped.
    void PlaySound(const QString& path) override;

    /// For an action that counts down: where anything plays the music is held; a sound, such as the
    /// timer's own, plays on.
    void StopMusic() override;

    int MusicIndex() const { return index_; }  ///< the number of a folder's next file, from 0

private:
    bool IsPlaying() const;
    QString MusicPath() const;
    void StartNextPiece(int volume);
    void EndMusic();
    bool MakePlayer(const QString& path);
    void TellFailure();
    void RestAfterFailure();
    void GoOn(bool withDevice);
    bool IsResting(const QString& source) const;
    void Tell(const QString& reason);

    SpeechContext context_;
    std::unique_ptr<platform::MediaPlayer> player_;
    std::int16_t index_ = 0;
    bool isMusic_ = false;    ///< what the player was given last is music, not a sound
    QString path_;            ///< what the player was given last
    QString source_;          ///< the file or folder that the present piece of music is from
    bool hasFailed_ = false;  ///< it has been told why that can't be played
    ToldReasons told_;
    QDateTime restsSince_;  ///< no music from the present source starts for a minute
    std::shared_ptr<bool> life_ = std::make_shared<bool>(true);  ///< watched by who answers late
};

}  // namespace speech
