#include "speech/PlayerMusic.h"

#include <QTest>

#include "support/FakeSpeechHost.h"

using namespace Qt::StringLiterals;
using namespace speech;

namespace {

struct MusicDesk : SpeechDesk {
    PlayerMusic Music{Context()};

    MusicDesk() { Set(u"Music Volume"_s, u"50,0,10,50"_s); }

    /// What the player was asked for since the last call, without the program's folder.
    QStringList Heard() {
        QStringList log = std::exchange(Devices.Players.Log, {});
        return log.replaceInStrings(Machine.AppFolder(), u"APP"_s);
    }
    void EndPiece() { Devices.Players.State = 1; }

    /// The player finds out that it can't play the present piece.
    void FailPiece(const QString& reason) {
        Devices.Players.Failure = reason;
        EndPiece();
    }
    void Tick(int seconds) {
        for (int i = 0; i < seconds; ++i) {
            Machine.Clock.Advance(1000);
            Music.CheckMusic();
        }
    }
    QString Hold() { return Controls.MusicPlayer(1).Tag; }
};

QStringList Piece(const QString& path) {
    return {u"volume 50"_s, u"url APP/"_s + path, u"play"_s};
}

}  // namespace

class tst_PlayerMusic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PlaysSounds_data();
    void PlaysSounds();
    void NeverCutsIntoWhatPlays();
    void MakesThePlayerWhenItIsNeeded();
    void FindsFilesOfAFolder();
    void PlaysAFolderInOrder_data();
    void PlaysAFolderInOrder();
    void RepeatsAFile();
    void SkipsMusicThatIsMissing_data();
    void SkipsMusicThatIsMissing();
    void HoldsTheVolumeToTheLoudest();
    void IsSilentBelowVolumeOne_data();
    void IsSilentBelowVolumeOne();
    void StopsAtVolumeZero();
    void LetsASoundEndAtVolumeZero();
    void WaitsForASound();
    void HoldsMusicForAnAction();
    void HoldsNothingThatIsNotPlaying();
    void LetsASoundEndBesideAnAction();
    void TellsOfASoundThatCannotPlay();
    void TellsOfAFailureThatShowsLater();
    void TellsOncePerPiece();
    void TellsAgainAfterAMinute();
    void TellsOfAMachineWithoutAPlayer();
    void KeepsQuietAboutAMissingFile();
    void WaitsForASoundDevice_data();
    void WaitsForASoundDevice();
    void PassesOverABrokenFileOfAFolder();
    void TriesABrokenFileOnceAMinute();
    void TellsOfMusicAgainOnceItWasHeard();
    void TriesOtherMusicAtOnce();
    void TellsOfASoundBeforeTheNextOne();
};

void tst_PlayerMusic::PlaysSounds_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("heard");
    const QStringList bell = {u"url APP/Sound/bell.wav"_s, u"play"_s};
    QTest::newRow("beside the program") << u".\\Sound\\bell.wav"_s << bell;
    QTest::newRow("native") << u"./Sound/bell.wav"_s << bell;
    QTest::newRow("full") << u"APP/Sound/bell.wav"_s << bell;
    QTest::newRow("full, as in files") << u"APP\\Sound\\bell.wav"_s << bell;
    QTest::newRow("odd name") << u".\\Sound\\a=b@c#d.wav"_s
                              << QStringList{u"url APP/Sound/a=b@c#d.wav"_s, u"play"_s};
    QTest::newRow("missing") << u".\\Sound\\gong.wav"_s << QStringList{};
    QTest::newRow("folder") << u".\\Sound"_s << QStringList{};
    QTest::newRow("empty") << QString() << QStringList{};
}

void tst_PlayerMusic::PlaysSounds() {
    QFETCH(QString, path);
    MusicDesk desk;
    desk.Machine.WriteFile(u"Sound/bell.wav"_s, "RIFF");
    desk.Machine.WriteFile(u"Sound/a=b@c#d.wav"_s, "RIFF");
    desk.Music.PlaySound(path.replace(u"APP"_s, desk.Machine.AppFolder()));
    QTEST(desk.Heard(), "heard");
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_PlayerMusic::NeverCutsIntoWhatPlays() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"a.wav"_s, "RIFF");
    desk.Machine.WriteFile(u"b.wav"_s, "RIFF");
    desk.Set(u"Music File"_s, u".\\a.wav"_s);
    desk.Music.PlaySound(u".\\a.wav"_s);
    desk.Music.PlaySound(u".\\b.wav"_s);
    QCOMPARE(desk.Heard(), QStringList({u"url APP/a.wav"_s, u"play"_s}));

    desk.EndPiece();
    desk.Music.CheckMusic();
    desk.Music.PlaySound(u".\\b.wav"_s);
    QCOMPARE(desk.Heard(), QStringList({u"volume 50"_s, u"url APP/a.wav"_s}));
}

void tst_PlayerMusic::MakesThePlayerWhenItIsNeeded() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"a.wav"_s, "RIFF");
    desk.Music.PlaySound(u".\\missing.wav"_s);
    desk.Music.StopMusic();
    desk.Music.CheckMusic();
    desk.Set(u"Music Volume"_s, u"0"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Devices.Players.Made, 0);
    desk.Music.PlaySound(u".\\a.wav"_s);
    desk.EndPiece();
    desk.Music.PlaySound(u".\\a.wav"_s);
    QCOMPARE(desk.Devices.Players.Made, 1);
}

void tst_PlayerMusic::FindsFilesOfAFolder() {
    FakeServices machine;
    for (const QString& name : {u"M/b.mp3"_s, u"M/a.mp3"_s, u"M/inner/c.mp3"_s, u"M/d.mp3"_s}) {
        machine.WriteFile(name, "x");
    }
    const QString folder = machine.AppFolder() + u"/M"_s;
    const auto file = [&](const QString& path, int index) {
        return NextFolderFile(machine.Files, path, index).replace(machine.AppFolder(), u"APP"_s);
    };
    QCOMPARE(file(folder, 0), u"APP/M/a.mp3"_s);
    QCOMPARE(file(folder, 1), u"APP/M/b.mp3"_s);
    QCOMPARE(file(folder, 2), u"APP/M/d.mp3"_s);
    QCOMPARE(file(folder, 3), QString());
    QCOMPARE(file(folder, -1), QString());
    QCOMPARE(file(folder + u'/', 0), u"APP/M/a.mp3"_s);
    QCOMPARE(file(folder + u"/a.mp3"_s, 0), QString());
    QCOMPARE(file(folder + u"/none"_s, 0), QString());
    QCOMPARE(file(QString(), 0), QString());
}

void tst_PlayerMusic::PlaysAFolderInOrder_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("all files") << u".\\Music\\*.*"_s;
    QTest::newRow("folder") << u".\\Music"_s;
    QTest::newRow("folder with its end") << u".\\Music\\"_s;
    QTest::newRow("native") << u"./Music/*.*"_s;
    QTest::newRow("full") << u"APP/Music"_s;
    QTest::newRow("full, all files") << u"APP\\Music\\*.*"_s;
    QTest::newRow("choices behind it") << u".\\Music\\*.*,None,.\\Music"_s;
}

void tst_PlayerMusic::PlaysAFolderInOrder() {
    QFETCH(QString, file);
    MusicDesk desk;
    desk.Machine.WriteFile(u"Music/2.mp3"_s, "x");
    desk.Machine.WriteFile(u"Music/1.mp3"_s, "x");
    desk.Set(u"Music File"_s, file.replace(u"APP"_s, desk.Machine.AppFolder()));
    QCOMPARE(desk.Music.MusicIndex(), 0);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), Piece(u"Music/1.mp3"_s));
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
    desk.EndPiece();
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), Piece(u"Music/2.mp3"_s));
    QCOMPARE(desk.Music.MusicIndex(), 2);
    desk.EndPiece();
    desk.Music.CheckMusic();
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
    QCOMPARE(desk.Music.MusicIndex(), 2);
}

// The player starts a file by itself as soon as it is given.
void tst_PlayerMusic::RepeatsAFile() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    const QStringList song = {u"volume 50"_s, u"url APP/song.mp3"_s};
    desk.Music.CheckMusic();
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), song);
    desk.EndPiece();
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), song);
    QCOMPARE(desk.Music.MusicIndex(), 0);
}

void tst_PlayerMusic::SkipsMusicThatIsMissing_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("no file") << u".\\none.mp3"_s;
    QTest::newRow("empty file") << u".\\empty.mp3"_s;
    QTest::newRow("empty folder") << u".\\Empty\\*.*"_s;
    QTest::newRow("no folder") << u".\\None\\*.*"_s;
    QTest::newRow("nothing") << QString();
    QTest::newRow("stars only") << u"*.*"_s;
}

void tst_PlayerMusic::SkipsMusicThatIsMissing() {
    QFETCH(QString, file);
    MusicDesk desk;
    desk.Machine.WriteFile(u"empty.mp3"_s, "");
    desk.Machine.Files.MakeFolder(desk.Machine.AppFolder() + u"/Empty"_s);
    desk.Set(u"Music File"_s, file);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_PlayerMusic::HoldsTheVolumeToTheLoudest() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Set(u"Music Volume"_s, u"900"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList({u"volume 100"_s, u"url APP/song.mp3"_s}));
}

void tst_PlayerMusic::IsSilentBelowVolumeOne_data() {
    QTest::addColumn<QString>("volume");
    QTest::newRow("0") << u"0,0,10"_s;
    QTest::newRow("below") << u"-5"_s;
    QTest::newRow("nothing") << QString();
    QTest::newRow("word") << u"loud"_s;
}

void tst_PlayerMusic::IsSilentBelowVolumeOne() {
    QFETCH(QString, volume);
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Set(u"Music Volume"_s, volume);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
}

void tst_PlayerMusic::StopsAtVolumeZero() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Music.CheckMusic();
    desk.Heard();
    desk.Set(u"Music Volume"_s, u"0"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList{u"stop"_s});
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
    desk.Set(u"Music Volume"_s, u"50"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList({u"volume 50"_s, u"url APP/song.mp3"_s}));
}

void tst_PlayerMusic::LetsASoundEndAtVolumeZero() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"bell.wav"_s, "RIFF");
    desk.Set(u"Music Volume"_s, u"0"_s);
    desk.Music.PlaySound(u".\\bell.wav"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList({u"url APP/bell.wav"_s, u"play"_s}));
}

void tst_PlayerMusic::WaitsForASound() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"bell.wav"_s, "RIFF");
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Music.PlaySound(u".\\bell.wav"_s);
    desk.Heard();
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
    desk.EndPiece();
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList({u"volume 50"_s, u"url APP/song.mp3"_s}));
}

void tst_PlayerMusic::HoldsMusicForAnAction() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Machine.WriteFile(u"bell.wav"_s, "RIFF");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Music.CheckMusic();
    desk.Heard();
    desk.Music.StopMusic();
    QCOMPARE(desk.Heard(), QStringList({u"pause"_s, u"stop"_s}));
    QCOMPARE(desk.Hold(), u"1"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
    desk.Music.PlaySound(u".\\bell.wav"_s);
    QCOMPARE(desk.Heard(), QStringList({u"url APP/bell.wav"_s, u"play"_s}));
}

void tst_PlayerMusic::HoldsNothingThatIsNotPlaying() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Controls.MusicPlayer(1).Tag = u"0"_s;
    desk.Music.StopMusic();
    desk.Music.CheckMusic();
    desk.Heard();
    desk.EndPiece();
    desk.Music.StopMusic();
    QCOMPARE(desk.Heard(), QStringList());
    QCOMPARE(desk.Hold(), u"0"_s);
}

void tst_PlayerMusic::LetsASoundEndBesideAnAction() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"bell.wav"_s, "RIFF");
    desk.Music.PlaySound(u".\\bell.wav"_s);
    desk.Heard();
    desk.Music.StopMusic();
    QCOMPARE(desk.Heard(), QStringList());
    QCOMPARE(desk.Hold(), u"1"_s);
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.EndPiece();
    desk.Music.CheckMusic();
    QCOMPARE(desk.Heard(), QStringList());
}

void tst_PlayerMusic::TellsOfASoundThatCannotPlay() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"text.wav"_s, "Dear clock,");
    desk.Devices.Players.Failure = u"no such format"_s;
    desk.Music.PlaySound(u".\\text.wav"_s);
    desk.Music.PlaySound(u".\\text.wav"_s);
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't play text.wav: no such format"_s});
}

void tst_PlayerMusic::TellsOfAFailureThatShowsLater() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Host.Status, QStringList());
    desk.Devices.Players.Failure = u"broken"_s;
    desk.Music.CheckMusic();
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't play song.mp3: broken"_s});
}

// Without a sound device a piece plays to its end, unheard.
void tst_PlayerMusic::TellsOncePerPiece() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Devices.Players.Failure = u"no sound device"_s;
    desk.Music.CheckMusic();
    desk.Devices.Players.State = 3;
    for (int tick = 0; tick < 120; ++tick) {
        desk.Machine.Clock.Advance(1000);
        desk.Music.CheckMusic();
    }
    QCOMPARE(desk.Host.Status, QStringList{u"The clock can't play song.mp3: no sound device"_s});
}

void tst_PlayerMusic::TellsAgainAfterAMinute() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"text.wav"_s, "Dear clock,");
    desk.Devices.Players.Failure = u"broken"_s;
    desk.SetTime(15, 12, 0, 0);
    desk.Music.PlaySound(u".\\text.wav"_s);
    desk.SetTime(15, 12, 0, 59);
    desk.Music.PlaySound(u".\\text.wav"_s);
    QCOMPARE(desk.Host.Status.size(), 1);
    desk.SetTime(15, 12, 1, 0);
    desk.Music.PlaySound(u".\\text.wav"_s);
    QCOMPARE(desk.Host.Status.size(), 2);
    desk.SetTime(14, 12, 1, 0);  // the machine's clock was set back
    desk.Music.PlaySound(u".\\text.wav"_s);
    QCOMPARE(desk.Host.Status.size(), 3);
}

void tst_PlayerMusic::TellsOfAMachineWithoutAPlayer() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"bell.wav"_s, "RIFF");
    desk.Set(u"Music File"_s, u".\\bell.wav"_s);
    desk.Devices.Players.Present = false;
    const QString told = u"The clock can't play bell.wav: this machine has no media player"_s;
    desk.Music.PlaySound(u".\\bell.wav"_s);
    desk.Music.CheckMusic();
    desk.Music.StopMusic();
    desk.Set(u"Music Volume"_s, u"0"_s);
    desk.Music.CheckMusic();
    QCOMPARE(desk.Host.Status, QStringList{told});
}

void tst_PlayerMusic::KeepsQuietAboutAMissingFile() {
    MusicDesk desk;
    desk.Devices.Players.Failure = u"broken"_s;
    desk.Music.PlaySound(u".\\none.wav"_s);
    QCOMPARE(desk.Host.Status, QStringList());
}

void tst_PlayerMusic::WaitsForASoundDevice_data() {
    QTest::addColumn<bool>("later");
    QTest::newRow("known at once") << false;
    QTest::newRow("shows later") << true;
}

// A minute of rest between two tries of the same piece, one message; then the device comes.
void tst_PlayerMusic::WaitsForASoundDevice() {
    QFETCH(bool, later);
    MusicDesk desk;
    desk.Machine.WriteFile(u"Music/1.mp3"_s, "x");
    desk.Machine.WriteFile(u"Music/2.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\Music\\*.*"_s);
    desk.Devices.Sound.Devices = 0;
    if (!later) {
        desk.Devices.Players.Failure = u"no device"_s;
    }
    desk.Music.CheckMusic();
    desk.FailPiece(u"no device"_s);
    desk.Tick(59);
    QCOMPARE(desk.Heard(), Piece(u"Music/1.mp3"_s));
    QCOMPARE(desk.Music.MusicIndex(), 0);
    desk.Tick(60);
    QCOMPARE(desk.Heard().filter(u"url"_s), QStringList(u"url APP/Music/1.mp3"_s));
    QCOMPARE(desk.Host.Status, QStringList(u"The clock can't play 1.mp3: no device"_s));

    desk.Devices.Sound.Devices = 1;
    desk.Devices.Players.Failure.clear();
    desk.Tick(60);
    QCOMPARE(desk.Heard(), Piece(u"Music/1.mp3"_s));
    desk.EndPiece();
    desk.Tick(1);
    QCOMPARE(desk.Heard(), Piece(u"Music/2.mp3"_s));
    QCOMPARE(desk.Music.MusicIndex(), 2);
    QCOMPARE(desk.Host.Status.size(), 1);
}

void tst_PlayerMusic::PassesOverABrokenFileOfAFolder() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"Music/1.txt"_s, "x");
    desk.Machine.WriteFile(u"Music/2.txt"_s, "x");
    desk.Machine.WriteFile(u"Music/3.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\Music"_s);
    desk.Music.CheckMusic();
    desk.FailPiece(u"no sound"_s);
    desk.Tick(1);
    desk.Devices.Players.Failure.clear();
    desk.Tick(1);
    QCOMPARE(desk.Heard().filter(u"url"_s),
             QStringList(
                 {u"url APP/Music/1.txt"_s, u"url APP/Music/2.txt"_s, u"url APP/Music/3.mp3"_s}));
    QCOMPARE(desk.Host.Status, QStringList({u"The clock can't play 1.txt: no sound"_s,
                                            u"The clock can't play 2.txt: no sound"_s}));
}

void tst_PlayerMusic::TriesABrokenFileOnceAMinute() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Devices.Players.Failure = u"broken"_s;
    desk.Music.CheckMusic();
    desk.Tick(59);
    const QStringList song = {u"volume 50"_s, u"url APP/song.mp3"_s};
    QCOMPARE(desk.Heard(), song);
    desk.Tick(1);
    QCOMPARE(desk.Heard(), song);
    desk.Tick(3600);
    QCOMPARE(desk.Host.Status, QStringList(u"The clock can't play song.mp3: broken"_s));
}

void tst_PlayerMusic::TellsOfMusicAgainOnceItWasHeard() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    for (int i = 1; i <= 2; ++i) {
        desk.Music.CheckMusic();
        desk.FailPiece(u"broken"_s);
        desk.Tick(1);
        QCOMPARE(desk.Host.Status.size(), i);
        desk.Devices.Players.Failure.clear();
        desk.Tick(60);
        QCOMPARE(desk.Devices.Players.State, 3);
        desk.EndPiece();
    }
}

// Resting is for the music that has failed, and ends where the user turns the music off and on.
void tst_PlayerMusic::TriesOtherMusicAtOnce() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"song.mp3"_s, "x");
    desk.Machine.WriteFile(u"other.mp3"_s, "x");
    desk.Set(u"Music File"_s, u".\\song.mp3"_s);
    desk.Devices.Players.Failure = u"broken"_s;
    desk.Music.CheckMusic();
    desk.Set(u"Music File"_s, u".\\other.mp3"_s);
    desk.Tick(1);
    desk.Set(u"Music Volume"_s, u"0"_s);
    desk.Tick(1);
    desk.Set(u"Music Volume"_s, u"50"_s);
    desk.Tick(1);
    QCOMPARE(desk.Heard(), QStringList({u"volume 50"_s, u"url APP/song.mp3"_s, u"volume 50"_s,
                                        u"url APP/other.mp3"_s, u"stop"_s, u"volume 50"_s,
                                        u"url APP/other.mp3"_s}));
}

void tst_PlayerMusic::TellsOfASoundBeforeTheNextOne() {
    MusicDesk desk;
    desk.Machine.WriteFile(u"a.wav"_s, "RIFF");
    desk.Machine.WriteFile(u"b.wav"_s, "RIFF");
    desk.Music.PlaySound(u".\\a.wav"_s);
    desk.FailPiece(u"broken"_s);
    desk.Music.PlaySound(u".\\b.wav"_s);
    QCOMPARE(desk.Host.Status, QStringList({u"The clock can't play a.wav: broken"_s,
                                            u"The clock can't play b.wav: broken"_s}));
}

QTEST_GUILESS_MAIN(tst_PlayerMusic)
#include "tst_PlayerMusic.moc"
