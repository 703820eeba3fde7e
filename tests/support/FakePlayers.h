#pragma once

#include <QStringList>

#include "platform/MediaPlayers.h"

/// Players that write down what is asked of them. A file that is set plays at once; the test ends
/// the piece by setting `State`.
class FakePlayers final : public platform::MediaPlayers {
public:
    bool Present = true;
    int State = 0;    ///< of the player made last
    QString Failure;  ///< why the present file can't be played
    QStringList Log;
    int Made = 0;

    std::unique_ptr<platform::MediaPlayer> MakePlayer() override {
        ++Made;
        return Present ? std::make_unique<Player>(*this) : nullptr;
    }

private:
    class Player final : public platform::MediaPlayer {
    public:
        explicit Player(FakePlayers& all) : all_(all) {}
        void SetUrl(const QString& path) override { Note(QLatin1String("url ") + path, 3); }
        int PlayState() const override { return all_.State; }
        void Play() override { Note(QStringLiteral("play"), 3); }
        void Stop() override { Note(QStringLiteral("stop"), 1); }
        void Pause() override { Note(QStringLiteral("pause"), 2); }
        void SetVolume(int volume) override {
            Note(QStringLiteral("volume %1").arg(volume), all_.State);
        }
        QString LastError() const override { return all_.Failure; }

    private:
        void Note(const QString& what, int state) {
            all_.Log += what;
            all_.State = all_.Failure.isEmpty() ? state : 0;
        }
        FakePlayers& all_;
    };
};
