#include "speech/PlayerMusic.h"

#include <algorithm>

#include "foundation/FileHelpers.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "platform/Files.h"
#include "platform/SoundDevices.h"
#include "platform/WallClock.h"

using namespace Qt::StringLiterals;

namespace speech {

namespace {

constexpr int Playing = 3;
constexpr int LoudestVolume = 100;
constexpr QChar Separator = u'/';

}  // namespace

QString NextFolderFile(const platform::Files& files, const QString& folder, int index) {
    if (folder.isEmpty() || !files.FolderExists(folder)) {
        return {};
    }
    QStringList names = files.FileNames(folder);
    names.sort();
    if (index < 0 || index >= names.size()) {
        return {};
    }
    return folder + (folder.endsWith(Separator) ? u""_s : QString(Separator)) + names[index];
}

bool PlayerMusic::IsPlaying() const {
    return player_ && player_->PlayState() == Playing;
}

void PlayerMusic::PlaySound(const QString& path) {
    const QString file =
        mduLib::ResolveAppPath(mduLib::ToStoredPath(path), context_.Module.Paths.AppFolder);
    if (!mduLib::FileExists(context_.Services.FileSystem, file) || IsPlaying()) {
        return;
    }
    TellFailure();
    isMusic_ = false;
    if (MakePlayer(file)) {
        player_->SetUrl(file);
        player_->Play();
        TellFailure();
    }
}

void PlayerMusic::StopMusic() {
    if (!IsPlaying()) {
        return;
    }
    context_.Controls.MusicPlayer(1).Tag = u"1"_s;
    if (isMusic_) {
        player_->Pause();
        player_->Stop();
    }
}

void PlayerMusic::CheckMusic() {
    TellFailure();
    const int volume =
        mduAPILib::IntegerValue(mduLib::GetProperty(u"Music Volume"_s, context_.Properties));
    const bool isHeld = mduAPILib::Val(context_.Controls.MusicPlayer(1).Tag) != 0;
    if (volume > 0 && !isHeld && !IsPlaying()) {
        StartNextPiece(volume);
    } else if (volume < 1 && isMusic_) {
        EndMusic();
    }
}

void PlayerMusic::EndMusic() {
    if (player_) {
        player_->Stop();
    }
    isMusic_ = false;
    restsSince_ = {};
}

// music = folder "\*.*" | folder "\" | folder | file, each relative to the program with a "."
// before it
QString PlayerMusic::MusicPath() const {
    QString path = mduLib::ToNativePath(mduLib::GetProperty(u"Music File"_s, context_.Properties));
    if (path.endsWith("*.*"_L1)) {
        path.chop(4);
    } else if (path.endsWith(Separator)) {
        path.chop(1);
    }
    if (path.startsWith(u'.')) {
        path = context_.Module.Paths.AppFolder + path.mid(1);
    }
    return path;
}

// Giving the player a file starts it; a piece of a folder is started once more to be sure.
void PlayerMusic::StartNextPiece(int volume) {
    const platform::Files& files = context_.Services.FileSystem;
    const QString path = MusicPath();
    if (IsResting(path)) {
        return;
    }
    const bool isFile = mduLib::FileExists(files, path);
    const QString piece = isFile ? path : NextFolderFile(files, path, index_);
    if (!mduLib::FileExists(files, piece) || (isFile && files.Size(piece) == 0)) {
        return;
    }
    if (isMusic_ && !hasFailed_) {
        told_.Clear();
    }
    source_ = path;
    isMusic_ = true;
    if (!MakePlayer(piece)) {
        restsSince_ = context_.Services.Clock.Now();
        return;
    }
    player_->SetVolume(std::min(volume, LoudestVolume));
    player_->SetUrl(piece);
    if (!isFile) {
        player_->Play();
        ++index_;
    }
    TellFailure();
}

bool PlayerMusic::MakePlayer(const QString& path) {
    path_ = path;
    hasFailed_ = false;
    if (!player_) {
        player_ = context_.Services.Media.MakePlayer();
    }
    if (!player_) {
        Tell(u"this machine has no media player"_s);
    }
    return player_ != nullptr;
}

// A player may find out later, while it loads the file; so each tick looks again.
void PlayerMusic::TellFailure() {
    if (player_ && !hasFailed_ && !player_->LastError().isEmpty()) {
        hasFailed_ = true;
        Tell(player_->LastError());
        if (isMusic_) {
            RestAfterFailure();
        }
    }
}

// Without a device a folder would be gone through within seconds, and never be heard. Until the
// machine has told whether it has one, the music rests.
void PlayerMusic::RestAfterFailure() {
    restsSince_ = context_.Services.Clock.Now();
    if (source_ == path_) {
        return;
    }
    context_.Services.Sound.Count(
        [this, life = std::weak_ptr<bool>(life_), rest = restsSince_](int count) {
            if (!life.expired() && restsSince_ == rest) {
                GoOn(count > 0);
            }
        });
}

void PlayerMusic::GoOn(bool withDevice) {
    if (withDevice) {
        restsSince_ = {};
    } else if (index_ > 0) {
        --index_;
    }
}

bool PlayerMusic::IsResting(const QString& source) const {
    return source == source_ && IsWithinAMinute(restsSince_, context_.Services.Clock.Now());
}

void PlayerMusic::Tell(const QString& reason) {
    const QString text =
        u"The clock can't play %1: %2"_s.arg(mduLib::FileBaseName(path_, true), reason);
    if (isMusic_ ? told_.Contains(text) : told_.IsFresh(text)) {
        return;
    }
    told_.Add(text);
    context_.Host.ShowStatus(text);
}

}  // namespace speech
