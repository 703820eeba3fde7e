#include <QTest>
#include <memory>

#include "platform/devices/QueuedVoice.h"

using namespace Qt::StringLiterals;
using platform::QueuedVoice;
using platform::SpeechBounds;
using platform::SpeechEngine;
using platform::SpeechQueue;

namespace {

/// What a fake engine does with a text.
enum class Manner { Speaks, NeverStarts, NeverEnds, Fails };

/// What is common to the fake engines of a test: how they behave and what was asked of them.
struct Studio {
    QStringList Log;
    QList<Manner> Manners;  ///< of the next engines made; none left: it speaks
    QString Trouble;
    int Made = 0;
    int Alive = 0;
    int Speaking = 0;
    int MostSpeaking = 0;
    std::function<void()> OnSay;
};

class FakeEngine final : public SpeechEngine {
public:
    explicit FakeEngine(Studio& studio)
        : studio_(studio),
          manner_(studio.Manners.isEmpty() ? Manner::Speaks : studio.Manners.takeFirst()) {
        ++studio_.Made;
        ++studio_.Alive;
    }
    ~FakeEngine() override {
        Rest();
        --studio_.Alive;
    }
    Q_DISABLE_COPY_MOVE(FakeEngine)

    QStringList Voices() override { return {u"Ann"_s, u"Ben"_s}; }
    void Apply(const platform::VoiceSettings& settings) override {
        studio_.Log += u"voice %1 rate %2 volume %3"_s.arg(QString::number(settings.Voice),
                                                           QString::number(settings.Rate),
                                                           QString::number(settings.Volume));
    }
    void Say(const QString& text) override {
        studio_.Log += u"say "_s + text;
        if (const auto onSay = std::exchange(studio_.OnSay, nullptr)) {
            QMetaObject::invokeMethod(&context_, onSay, Qt::QueuedConnection);
        }
        if (manner_ != Manner::NeverStarts) {
            Later([this] { Start(); });
        }
    }
    void Stop() override {
        studio_.Log += u"stop"_s;
        Rest();
    }
    QString Trouble() const override { return studio_.Trouble; }

private:
    void Later(const std::function<void()>& action) {
        QMetaObject::invokeMethod(&context_, action, Qt::QueuedConnection);
    }
    void Start() {
        if (manner_ == Manner::Fails) {
            studio_.Trouble = u"No audio device available"_s;
            return Tell(State::Error);
        }
        speaking_ = true;
        studio_.MostSpeaking = qMax(studio_.MostSpeaking, ++studio_.Speaking);
        if (manner_ == Manner::Speaks) {
            // Some turns of the event loop, in which others could cut in.
            Later([this] { Later([this] { Later([this] { Finish(); }); }); });
        }
        Tell(State::Speaking);
    }
    void Finish() {
        studio_.Log += u"end"_s;
        Rest();
        Tell(State::Ready);
    }
    void Rest() { studio_.Speaking -= std::exchange(speaking_, false) ? 1 : 0; }
    void Tell(State state) {
        if (const auto onState = OnState) {
            onState(state);
        }
    }

    Studio& studio_;
    Manner manner_;
    QObject context_;
    bool speaking_ = false;
};

/// Bounds that a hanging engine runs into soon, and a speaking one never.
SpeechBounds ShortBounds() {
    return {.Turn = 60'000, .Start = 30, .Base = 30, .Letter = 0, .Digit = 0, .Whole = 60'000};
}

SpeechBounds LongBounds() {
    return {.Turn = 60'000, .Start = 60'000, .Base = 60'000, .Whole = 60'000};
}

struct Desk {
    explicit Desk(const SpeechBounds& bounds = LongBounds())
        : Queue(std::make_shared<SpeechQueue>(bounds)) {}

    std::unique_ptr<QueuedVoice> MakeVoice() {
        return std::make_unique<QueuedVoice>(Queue,
                                             [this] { return std::make_unique<FakeEngine>(Room); });
    }

    Studio Room;
    std::shared_ptr<SpeechQueue> Queue;
};

}  // namespace

class tst_QueuedVoice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void speaksAndWaits();
    void keepsItsSettings();
    void saysLongTextsInPieces();
    void doesNotWaitWhenAskedNotTo();
    void saysNothingOfAPoint();
    void skipsWhatCannotBeHeard();
    void purgesBeforeSpeaking();
    void waitsForItsTurn();
    void givesUpAnEngineThatHangs_data();
    void givesUpAnEngineThatHangs();
    void othersGoOnWhileOneHangs();
    void triesAgainAfterAnError();
    void tellsThatThereIsNoEngine();
    void waitsAsLongAsTheOnesAheadMayTake();
    void givesUpWaitingForItsTurn();
    void isBoundedAsAWhole();
    void mayDieWhileItSpeaks();
    void mayDieWhileItWaits();
    void endsWithTheProgram();
};

void tst_QueuedVoice::speaksAndWaits() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    QVERIFY(voice->Speak(u"It is noon"_s, 2));
    QCOMPARE(desk.Room.Log,
             QStringList({u"voice -1 rate 0 volume 100"_s, u"say It is noon"_s, u"end"_s}));
    QCOMPARE(voice->LastError(), QString());
    QCOMPARE(voice->Descriptions(), QStringList({u"Ann"_s, u"Ben"_s}));
    QCOMPARE(desk.Room.Made, 1);
}

void tst_QueuedVoice::keepsItsSettings() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    voice->SetRate(-12);
    voice->SetVolume(120);
    voice->SetVoice(1);
    QCOMPARE(desk.Room.Made, 0);
    QVERIFY(voice->Speak(u"one"_s, 0));
    voice->SetRate(3);
    QCOMPARE(desk.Room.Log, QStringList({u"voice 1 rate -10 volume 100"_s, u"say one"_s, u"end"_s,
                                         u"voice 1 rate 3 volume 100"_s}));
}

void tst_QueuedVoice::saysLongTextsInPieces() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    const QString first = u"a"_s.repeated(200) + u"."_s;
    const QString second = u"b"_s.repeated(100);
    QVERIFY(voice->Speak(first + u' ' + second, 2));
    QCOMPARE(desk.Room.Log.mid(1),
             QStringList({u"say "_s + first, u"end"_s, u"say "_s + second, u"end"_s}));
}

void tst_QueuedVoice::doesNotWaitWhenAskedNotTo() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    QVERIFY(voice->Speak(u"one"_s, 1));
    QVERIFY(voice->Speak(u"two"_s, 1));
    QVERIFY(!desk.Room.Log.contains(u"end"_s));
    QTRY_COMPARE(desk.Room.Log.mid(1),
                 QStringList({u"say one"_s, u"end"_s, u"say two"_s, u"end"_s}));
}

void tst_QueuedVoice::saysNothingOfAPoint() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    const auto other = desk.MakeVoice();
    QVERIFY(voice->Speak(u"one"_s, 1));
    QVERIFY(other->Speak(u"."_s, 2));
    QCOMPARE(desk.Room.Log.count(u"stop"_s), 0);
    QVERIFY(voice->Speak(u"."_s, 2));
    QCOMPARE(desk.Room.Log.last(), u"stop"_s);
    QCOMPARE(desk.Room.Made, 1);
    QCOMPARE(desk.Room.Alive, 0);
}

void tst_QueuedVoice::skipsWhatCannotBeHeard() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    QVERIFY(voice->Speak(u"... "_s, 2));
    QVERIFY(voice->Speak(QString(), 2));
    QCOMPARE(desk.Room.Log, QStringList());
}

void tst_QueuedVoice::purgesBeforeSpeaking() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    QVERIFY(voice->Speak(u"one"_s, 1));
    QVERIFY(voice->Speak(u"two"_s, 1));
    QVERIFY(voice->Speak(u"three"_s, 3));
    QTRY_COMPARE(desk.Room.Log.count(u"end"_s), 1);
    QCOMPARE(desk.Room.Log.filter(u"say"_s), QStringList({u"say one"_s, u"say three"_s}));
}

// The second clock speaks inside the first one's waiting, and the third inside the second one's.
void tst_QueuedVoice::waitsForItsTurn() {
    Desk desk;
    const auto first = desk.MakeVoice();
    const auto second = desk.MakeVoice();
    const auto third = desk.MakeVoice();
    QStringList done;
    desk.Room.OnSay = [&] {
        desk.Room.OnSay = nullptr;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [&] { done += third->Speak(u"three"_s, 2) ? u"3"_s : u"-"_s; }, Qt::QueuedConnection);
        done += second->Speak(u"two"_s, 2) ? u"2"_s : u"-"_s;
    };
    QVERIFY(first->Speak(u"one"_s, 2));
    QCOMPARE(done, QStringList({u"3"_s, u"2"_s}));
    QCOMPARE(desk.Room.MostSpeaking, 1);
    QStringList spoken = desk.Room.Log;
    spoken.removeAll(u"voice -1 rate 0 volume 100"_s);
    QCOMPARE(spoken, QStringList({u"say one"_s, u"end"_s, u"say two"_s, u"end"_s, u"say three"_s,
                                  u"end"_s}));
}

void tst_QueuedVoice::givesUpAnEngineThatHangs_data() {
    QTest::addColumn<int>("manner");
    QTest::addColumn<QString>("reason");
    QTest::newRow("never starts") << static_cast<int>(Manner::NeverStarts)
                                  << u"The speech engine does not answer"_s;
    QTest::newRow("never ends") << static_cast<int>(Manner::NeverEnds)
                                << u"The speech engine does not come to an end"_s;
}

void tst_QueuedVoice::givesUpAnEngineThatHangs() {
    QFETCH(int, manner);
    QFETCH(QString, reason);
    Desk desk(ShortBounds());
    desk.Room.Manners = {static_cast<Manner>(manner)};
    const auto voice = desk.MakeVoice();
    QVERIFY(!voice->Speak(u"one"_s, 2));
    QCOMPARE(voice->LastError(), reason);
    QCOMPARE(desk.Room.Log.last(), u"stop"_s);
    QCOMPARE(desk.Room.Alive, 0);
}

void tst_QueuedVoice::othersGoOnWhileOneHangs() {
    SpeechBounds bounds = LongBounds();
    bounds.Base = 300;
    bounds.Letter = 0;
    Desk desk(bounds);
    desk.Room.Manners = {Manner::NeverEnds};
    int ticks = 0;
    QTimer other;
    QObject::connect(&other, &QTimer::timeout, &other, [&] { ++ticks; });
    other.start(1);
    const auto voice = desk.MakeVoice();
    QVERIFY(!voice->Speak(u"one"_s, 2));
    QVERIFY(ticks >= 3);
}

void tst_QueuedVoice::triesAgainAfterAnError() {
    Desk desk;
    desk.Room.Manners = {Manner::Fails};
    const auto voice = desk.MakeVoice();
    QVERIFY(!voice->Speak(u"one"_s, 2));
    QCOMPARE(voice->LastError(), u"No audio device available"_s);
    desk.Room.Trouble.clear();
    QVERIFY(voice->Speak(u"two"_s, 2));
    QCOMPARE(voice->LastError(), QString());
    QCOMPARE(desk.Room.Made, 2);
}

void tst_QueuedVoice::tellsThatThereIsNoEngine() {
    QueuedVoice voice(std::make_shared<SpeechQueue>(), [] { return nullptr; });
    QVERIFY(!voice.Speak(u"one"_s, 2));
    QCOMPARE(voice.LastError(), u"This machine has no speech engine"_s);
    QCOMPARE(voice.Descriptions(), QStringList());
}

// Two that hang are given up one behind the other; the third one's turn comes all the same.
void tst_QueuedVoice::waitsAsLongAsTheOnesAheadMayTake() {
    SpeechBounds bounds = LongBounds();
    bounds.Turn = 30;
    bounds.Base = 100;
    bounds.Letter = 0;
    Desk desk(bounds);
    desk.Room.Manners = {Manner::NeverEnds, Manner::NeverEnds};
    const auto first = desk.MakeVoice();
    const auto second = desk.MakeVoice();
    const auto third = desk.MakeVoice();
    QVERIFY(first->Speak(u"one"_s, 1));
    QVERIFY(second->Speak(u"two"_s, 1));
    QVERIFY(third->Speak(u"three"_s, 2));
    QCOMPARE(desk.Room.Log.filter(u"say"_s),
             QStringList({u"say one"_s, u"say two"_s, u"say three"_s}));
}

void tst_QueuedVoice::givesUpWaitingForItsTurn() {
    SpeechBounds bounds = LongBounds();
    bounds.Turn = 15;
    const auto message = std::make_shared<platform::Utterance>(
        std::make_shared<platform::VoiceCore>(), u"two"_s, bounds, 15);
    message->Wait();  // nobody begins it
    QCOMPARE(message->Reason(), u"Other clocks have been speaking for too long"_s);
    QVERIFY(!message->HasBegun());
}

void tst_QueuedVoice::isBoundedAsAWhole() {
    SpeechBounds bounds = LongBounds();
    bounds.Whole = 30;
    Desk desk(bounds);
    desk.Room.Manners = {Manner::NeverEnds};
    const auto voice = desk.MakeVoice();
    QVERIFY(!voice->Speak(u"word "_s.repeated(20'000), 2));
    QCOMPARE(desk.Room.Log.filter(u"say"_s).size(), 1);
    QVERIFY(!voice->LastError().isEmpty());
    QCOMPARE(desk.Room.Alive, 0);
}

void tst_QueuedVoice::mayDieWhileItSpeaks() {
    Desk desk;
    desk.Room.Manners = {Manner::NeverEnds};
    auto voice = desk.MakeVoice();
    desk.Room.OnSay = [&] { voice.reset(); };
    voice->Speak(u"one"_s, 2);
    QVERIFY(!voice);
    QCOMPARE(desk.Room.Alive, 0);
    QVERIFY(desk.MakeVoice()->Speak(u"two"_s, 2));
}

void tst_QueuedVoice::mayDieWhileItWaits() {
    Desk desk;
    const auto first = desk.MakeVoice();
    auto second = desk.MakeVoice();
    QVERIFY(first->Speak(u"one"_s, 1));
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [&] { second.reset(); }, Qt::QueuedConnection);
    second->Speak(u"two"_s, 2);
    QVERIFY(!second);
    QTRY_VERIFY(desk.Room.Log.contains(u"end"_s));
    QCOMPARE(desk.Room.Log.filter(u"say"_s), QStringList(u"say one"_s));
}

void tst_QueuedVoice::endsWithTheProgram() {
    Desk desk;
    desk.Room.Manners = {Manner::NeverEnds, Manner::NeverEnds};
    const auto voice = desk.MakeVoice();
    bool spoken = true;
    bool spokenAfter = true;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [&] {
            spoken = voice->Speak(u"one"_s, 2);
            spokenAfter = voice->Speak(u"two"_s, 2);
        },
        Qt::QueuedConnection);
    desk.Room.OnSay = [] { QCoreApplication::quit(); };
    QCoreApplication::exec();
    QVERIFY(!spoken);
    QVERIFY(!spokenAfter);
    QCOMPARE(voice->LastError(), u"The program is closing"_s);
}

QTEST_GUILESS_MAIN(tst_QueuedVoice)
#include "tst_QueuedVoice.moc"
