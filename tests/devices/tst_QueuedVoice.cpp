#include <QTest>
#include <memory>

#include "devices/Speaking.h"
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

    QStringList Voices() const override { return {u"Ann"_s, u"Ben"_s}; }
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
    void tellsItsEnd();
    void tellsNothingWhenItHasDied();
};

void tst_QueuedVoice::speaksAndWaits() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    QVERIFY(SpeakWhole(*voice, u"It is noon"_s));
    QCOMPARE(desk.Room.Log,
             QStringList({u"voice -1 rate 0 volume 100"_s, u"say It is noon"_s, u"end"_s}));
    QCOMPARE(voice->LastError(), QString());
    QCOMPARE(desk.Room.Made, 1);
}

void tst_QueuedVoice::keepsItsSettings() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    voice->SetRate(-12);
    voice->SetVolume(120);
    voice->SetVoice(1);
    QCOMPARE(desk.Room.Made, 0);
    QVERIFY(SpeakWhole(*voice, u"one"_s));
    voice->SetRate(3);
    QCOMPARE(desk.Room.Log, QStringList({u"voice 1 rate -10 volume 100"_s, u"say one"_s, u"end"_s,
                                         u"voice 1 rate 3 volume 100"_s}));
}

void tst_QueuedVoice::saysLongTextsInPieces() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    const QString first = u"a"_s.repeated(200) + u"."_s;
    const QString second = u"b"_s.repeated(100);
    QVERIFY(SpeakWhole(*voice, first + u' ' + second));
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

void tst_QueuedVoice::waitsForItsTurn() {
    Desk desk;
    const auto first = desk.MakeVoice();
    const auto second = desk.MakeVoice();
    const auto third = desk.MakeVoice();
    QVERIFY(first->Speak(u"one"_s, 2));
    QVERIFY(second->Speak(u"two"_s, 2));
    QVERIFY(SpeakWhole(*third, u"three"_s));
    QVERIFY(!first->IsSpeaking() && !second->IsSpeaking());
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
    QVERIFY(!SpeakWhole(*voice, u"one"_s));
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
    QVERIFY(!SpeakWhole(*voice, u"one"_s));
    QVERIFY(ticks >= 3);
}

void tst_QueuedVoice::triesAgainAfterAnError() {
    Desk desk;
    desk.Room.Manners = {Manner::Fails};
    const auto voice = desk.MakeVoice();
    QVERIFY(!SpeakWhole(*voice, u"one"_s));
    QCOMPARE(voice->LastError(), u"No audio device available"_s);
    desk.Room.Trouble.clear();
    QVERIFY(SpeakWhole(*voice, u"two"_s));
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
    QVERIFY(SpeakWhole(*third, u"three"_s));
    QCOMPARE(desk.Room.Log.filter(u"say"_s),
             QStringList({u"say one"_s, u"say two"_s, u"say three"_s}));
}

void tst_QueuedVoice::givesUpWaitingForItsTurn() {
    SpeechBounds bounds = LongBounds();
    bounds.Turn = 15;
    const auto message = std::make_shared<platform::Utterance>(
        std::make_shared<platform::VoiceCore>(), u"two"_s, bounds, 15);
    QTRY_VERIFY(message->HasEnded());  // nobody begins it
    QCOMPARE(message->Reason(), u"Other clocks have been speaking for too long"_s);
    QVERIFY(!message->HasBegun());
}

void tst_QueuedVoice::isBoundedAsAWhole() {
    SpeechBounds bounds = LongBounds();
    bounds.Whole = 30;
    Desk desk(bounds);
    desk.Room.Manners = {Manner::NeverEnds};
    const auto voice = desk.MakeVoice();
    QVERIFY(!SpeakWhole(*voice, u"word "_s.repeated(20'000)));
    QCOMPARE(desk.Room.Log.filter(u"say"_s).size(), 1);
    QVERIFY(!voice->LastError().isEmpty());
    QCOMPARE(desk.Room.Alive, 0);
}

void tst_QueuedVoice::mayDieWhileItSpeaks() {
    Desk desk;
    desk.Room.Manners = {Manner::NeverEnds};
    auto voice = desk.MakeVoice();
    desk.Room.OnSay = [&] { voice.reset(); };
    QVERIFY(voice->Speak(u"one"_s, 2));
    QTRY_VERIFY(!voice);
    QCOMPARE(desk.Room.Alive, 0);
    const auto next = desk.MakeVoice();
    QVERIFY(SpeakWhole(*next, u"two"_s));
}

void tst_QueuedVoice::mayDieWhileItWaits() {
    Desk desk;
    const auto first = desk.MakeVoice();
    auto second = desk.MakeVoice();
    QVERIFY(first->Speak(u"one"_s, 1));
    QVERIFY(second->Speak(u"two"_s, 2));
    second.reset();
    QTRY_VERIFY(desk.Room.Log.contains(u"end"_s));
    QCOMPARE(desk.Room.Log.filter(u"say"_s), QStringList(u"say one"_s));
}

// The call comes back before anything is heard; the end is told from the event loop, once.
void tst_QueuedVoice::tellsItsEnd() {
    Desk desk;
    const auto voice = desk.MakeVoice();
    QStringList told;
    voice->SetOnNews([&] { told += voice->IsSpeaking() ? u"speaking"_s : voice->LastError(); });
    QVERIFY(voice->Speak(u"one"_s, 2));
    QVERIFY(voice->IsSpeaking());
    QVERIFY(!desk.Room.Log.contains(u"end"_s));
    QTRY_COMPARE(told, QStringList{QString()});
    desk.Room.Trouble = u"No audio device available"_s;
    QVERIFY(!SpeakWhole(*voice, u"two"_s));
    QTRY_COMPARE(told, QStringList({QString(), u"No audio device available"_s}));
    QVERIFY(!voice->IsSpeaking());
}

void tst_QueuedVoice::tellsNothingWhenItHasDied() {
    Desk desk;
    auto voice = desk.MakeVoice();
    bool told = false;
    voice->SetOnNews([&] { told = true; });
    QVERIFY(voice->Speak(u"one"_s, 2));
    voice.reset();
    const auto other = desk.MakeVoice();
    QVERIFY(SpeakWhole(*other, u"two"_s));
    QVERIFY(!told);
}

QTEST_GUILESS_MAIN(tst_QueuedVoice)
#include "tst_QueuedVoice.moc"
