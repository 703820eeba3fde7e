#include "platform/devices/PlayerProcess.h"

#include <QTest>
#include <QTimer>

#include "devices/Speaking.h"
#include "devices/StandIn.h"
#include "platform/devices/QtPlayers.h"

using namespace Qt::StringLiterals;
using platform::PlayerBounds;
using platform::PlayerProcess;

namespace {

/// Bounds that nothing runs into, and those that what hangs runs into soon.
constexpr PlayerBounds Long = {.Start = 60'000, .Progress = 60'000, .Idle = 60'000};
constexpr PlayerBounds Short = {.Start = 200, .Progress = 200, .Idle = 60'000};

/// Plays every piece to its end at once, and writes down what it was told.
const QByteArray Plays = R"(
while read -r word number path; do
    echo "$word $number" >> told
    [ "$word" = play ] && { echo "at $number 100"; echo "ended $number"; }
done
)";

/// Starts every piece and never ends it.
const QByteArray Sounds = R"(
while read -r word number path; do
    echo "$word $number" >> told
    [ "$word" = play ] && echo "at $number 100"
done
)";

}  // namespace

/// The player's process is a script here; no sound is needed.
class tst_PlayerProcess : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void playsToTheEnd();
    void ordersWhatItIsAskedFor();
    void takesNoNewsOfAnEarlierPiece();
    void tellsWhyItFailed();
    void tellsWhatIsNoFile_data();
    void tellsWhatIsNoFile();
    void hangCostsOnePiece_data();
    void hangCostsOnePiece();
    void isNotGivenUpWhilePaused();
    void crashCostsOnePiece();
    void tellsThatTheProgramIsMissing();
    void letsAnIdleProcessGo();
    void countsDevices_data();
    void countsDevices();
};

void tst_PlayerProcess::playsToTheEnd() {
    const StandIn program(Plays);
    PlayerProcess player(program.Path(), Long);
    QCOMPARE(player.PlayState(), 1);
    player.Play();  // nothing is there to be played
    QCOMPARE(player.PlayState(), 1);
    for (int i = 0; i < 3; ++i) {
        player.SetUrl(program.Path());
        QCOMPARE(player.PlayState(), 3);
        QTRY_COMPARE(player.PlayState(), 1);
        QCOMPARE(player.LastError(), QString());
    }
    player.Play();
    QCOMPARE(player.PlayState(), 3);
    QTRY_COMPARE(player.PlayState(), 1);
    QCOMPARE(program.Told(u"told"_s), u"volume 100\nplay 1\nplay 2\nplay 3\nplay 4\n"_s);
}

void tst_PlayerProcess::ordersWhatItIsAskedFor() {
    const StandIn program(Sounds);
    PlayerProcess player(program.Path(), Long);
    player.SetVolume(40);
    player.SetUrl(program.Path());
    player.Play();  // which it does already
    player.Pause();
    QCOMPARE(player.PlayState(), 2);
    player.Pause();
    player.Play();
    QCOMPARE(player.PlayState(), 3);
    player.SetVolume(50);
    player.Stop();
    player.Stop();
    QCOMPARE(player.PlayState(), 1);
    player.Play();
    player.SetUrl(program.Path());
    QTRY_COMPARE(
        program.Told(u"told"_s),
        u"volume 40\nplay 1\npause \nresume \nvolume 50\nstop \nplay 2\nstop \nplay 3\n"_s);
}

// The end of the first piece is told when the second one has been asked for.
void tst_PlayerProcess::takesNoNewsOfAnEarlierPiece() {
    const StandIn program(R"(
        while read -r word number path; do
            [ "$word" = play ] && [ "$number" = 2 ] && {
                echo "ended 1"; echo "failed 1 bm8="; echo "at 2 1"; }
        done)");
    PlayerProcess player(program.Path(), {.Start = 60'000, .Progress = 1, .Idle = 60'000});
    player.SetUrl(program.Path());
    player.SetUrl(program.Path());
    QTRY_COMPARE(player.LastError(), u"The sound has come to a standstill"_s);
}

void tst_PlayerProcess::tellsWhyItFailed() {
    const StandIn program(R"(
        while read -r word number path; do
            [ "$word" = play ] && echo "failed $number $path"
        done)");
    PlayerProcess player(program.Path(), Long);
    player.SetUrl(program.Path());
    // It gives the path as the reason.
    QTRY_COMPARE(player.LastError(), program.Path());
    QCOMPARE(player.PlayState(), 1);
    player.Play();
    QCOMPARE(player.PlayState(), 1);
}

void tst_PlayerProcess::tellsWhatIsNoFile_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");
    QTest::newRow("missing") << u"/nonexistent/a.wav"_s << u"There is no /nonexistent/a.wav"_s;
    QTest::newRow("folder") << u"/usr"_s << u"There is no /usr"_s;
    QTest::newRow("device") << u"/dev/zero"_s << u"There is no /dev/zero"_s;
    QTest::newRow("empty") << QString() << u"There is no "_s;
}

void tst_PlayerProcess::tellsWhatIsNoFile() {
    QFETCH(QString, path);
    const StandIn program(Sounds);
    PlayerProcess player(program.Path(), Long);
    player.SetUrl(program.Path());
    player.SetUrl(path);
    QTEST(player.LastError(), "error");
    QCOMPARE(player.PlayState(), 1);
    player.Play();
    QCOMPARE(player.PlayState(), 1);
}

void tst_PlayerProcess::hangCostsOnePiece_data() {
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("error");
    QTest::newRow("silent") << QByteArray(": nothing") << u"The sound does not begin"_s;
    QTest::newRow("standstill") << QByteArray("echo \"at $number 100\"")
                                << u"The sound has come to a standstill"_s;
}

// The first process hangs, while the event loop goes on; the next one plays.
void tst_PlayerProcess::hangCostsOnePiece() {
    QFETCH(QByteArray, answer);
    const StandIn program(R"(
        if [ -e second ]; then
            while read -r word number path; do
                [ "$word" = play ] && echo "ended $number"
            done
        fi
        echo > second
        while read -r word number path; do
            [ "$word" = play ] && )" +
                          answer + "\ndone\n");
    // Enough for the script to be started; it hangs for longer in any case.
    PlayerProcess player(program.Path(), {.Start = 5'000, .Progress = 200, .Idle = 60'000});
    int ticks = 0;
    QTimer other;
    QObject::connect(&other, &QTimer::timeout, &other, [&] { ++ticks; });
    other.start(1);
    player.SetUrl(program.Path());
    QTRY_COMPARE_WITH_TIMEOUT(player.PlayState(), 1, 60'000);
    QTEST(player.LastError(), "error");
    QVERIFY(ticks >= 3);
    player.SetUrl(program.Path());
    QCOMPARE(player.LastError(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(player.PlayState(), 1, 60'000);
    QCOMPARE(player.LastError(), QString());
}

void tst_PlayerProcess::isNotGivenUpWhilePaused() {
    const StandIn program(Sounds);
    PlayerProcess player(program.Path(), Short);
    player.SetUrl(program.Path());
    player.Pause();
    PlayerProcess other(program.Path(), Short);
    other.SetUrl(program.Path());
    QTRY_COMPARE(other.PlayState(), 1);
    QCOMPARE(player.PlayState(), 2);
    player.Play();
    QTRY_COMPARE(player.PlayState(), 1);
    QVERIFY(!player.LastError().isEmpty());
}

void tst_PlayerProcess::crashCostsOnePiece() {
    const StandIn program(R"(
        while read -r word number path; do
            [ "$word" = play ] && kill -SEGV $$
        done)");
    PlayerProcess player(program.Path(), Long);
    for (int i = 0; i < 2; ++i) {
        player.SetUrl(program.Path());
        QCOMPARE(player.PlayState(), 3);
        QTRY_COMPARE(player.LastError(), u"The media player has ended"_s);
        QCOMPARE(player.PlayState(), 1);
    }
}

void tst_PlayerProcess::tellsThatTheProgramIsMissing() {
    const StandIn piece(Plays);
    PlayerProcess player(u"/nonexistent/player"_s, Long);
    for (int i = 0; i < 2; ++i) {
        player.SetUrl(piece.Path());
        QTRY_VERIFY(!player.LastError().isEmpty());
        QVERIFY2(player.LastError().startsWith(u"The media player can't be started. "_s),
                 qPrintable(player.LastError()));
        QCOMPARE(player.PlayState(), 1);
    }
}

void tst_PlayerProcess::letsAnIdleProcessGo() {
    const StandIn program("echo $$ > process; echo >> begun\n" + Plays);
    PlayerProcess player(program.Path(), {.Start = 60'000, .Progress = 60'000, .Idle = 1});
    for (const QString& begun : {u"\n"_s, u"\n\n"_s}) {
        player.SetUrl(program.Path());
        QTRY_COMPARE(player.PlayState(), 1);
        QCOMPARE(player.LastError(), QString());
        QCOMPARE(program.Told(u"begun"_s), begun);
        const QString process = u"/proc/"_s + program.Told(u"process"_s).trimmed();
        QTRY_VERIFY(!QFile::exists(process));
    }
}

void tst_PlayerProcess::countsDevices_data() {
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("count");
    QTest::newRow("two") << QByteArray("[ \"$1\" = devices ] && echo 2") << 2;
    QTest::newRow("no answer") << QByteArray("exit 1") << 0;
    QTest::newRow("nonsense") << QByteArray("echo many") << 0;
    QTest::newRow("hangs") << QByteArray("echo 2; exec sleep 60") << 0;
}

void tst_PlayerProcess::countsDevices() {
    QFETCH(QByteArray, script);
    const StandIn program(script);
    QTEST(CountOf(program.Path()), "count");
    QCOMPARE(CountOf(u"/nonexistent/player"_s), 0);
}

QTEST_GUILESS_MAIN(tst_PlayerProcess)
#include "tst_PlayerProcess.moc"
