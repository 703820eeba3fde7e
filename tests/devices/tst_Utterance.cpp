#include <QTest>

#include "platform/devices/Utterance.h"

using namespace Qt::StringLiterals;
using platform::SpeechEngine;
using platform::Utterance;

namespace {

using State = SpeechEngine::State;

/// An engine that does nothing by itself: the test tells how it fares.
class Puppet final : public SpeechEngine {
public:
    explicit Puppet(QStringList& log) : log_(log) {}
    QStringList Voices() const override { return {}; }
    void Apply(const platform::VoiceSettings&) override { log_ += u"apply"_s; }
    void Say(const QString& text) override { log_ += u"say "_s + text; }
    void Stop() override { log_ += u"stop"_s; }
    QString Trouble() const override { return {}; }

private:
    QStringList& log_;
};

/// A message whose steps run out after some milliseconds, or never within a test.
struct Message {
    static constexpr int Never = 600'000;

    explicit Message(const QString& text, int start = Never, int base = Never) {
        Core->Make = [this] { return std::make_unique<Puppet>(Log); };
        const platform::SpeechBounds bounds{
            .Turn = Never, .Start = start, .Base = base, .Letter = 0, .Digit = 0, .Whole = Never};
        Words = std::make_shared<Utterance>(Core, text, bounds);
        Words->OnEnd = [this] { ++Ends; };
    }

    void Tell(State state) const {
        const auto onState = Core->Engine->OnState;
        onState(state);
    }

    QStringList Log;
    std::shared_ptr<platform::VoiceCore> Core = std::make_shared<platform::VoiceCore>();
    std::shared_ptr<Utterance> Words;
    int Ends = 0;
};

/// Two sentences that are a piece each: together they are longer than 250 characters.
QString Sentence(QChar letter) {
    return QString(199, letter) + u'.';
}

QString TwoPieces() {
    return Sentence(u'a') + u' ' + Sentence(u'b');
}

}  // namespace

class tst_Utterance : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SaysOnePieceAtATime() {
        Message message(TwoPieces());
        message.Words->Begin();
        QCOMPARE(message.Log, (QStringList{u"apply"_s, u"say "_s + Sentence(u'a')}));
        message.Tell(State::Speaking);
        QCOMPARE(message.Log.size(), 2);
        message.Tell(State::Ready);
        QCOMPARE(message.Log.value(2), u"say "_s + Sentence(u'b'));
        QCOMPARE(message.Ends, 0);
        message.Tell(State::Speaking);
        message.Tell(State::Ready);
        QCOMPARE(message.Log.size(), 3);
        QCOMPARE(message.Ends, 1);
        QCOMPARE(message.Words->Reason(), QString());
    }

    /// An engine may tell once more that it is ready before it takes up the next piece.
    void ReadyIsHeardOnlyBehindSpeaking() {
        Message message(TwoPieces());
        message.Words->Begin();
        message.Tell(State::Ready);
        QCOMPARE(message.Log.size(), 2);
        message.Tell(State::Speaking);
        message.Tell(State::Ready);
        message.Tell(State::Ready);
        QCOMPARE(message.Log.size(), 3);
        QCOMPARE(message.Ends, 0);
    }

    void ASecondPieceThatIsNeverSpoken() {
        Message message(TwoPieces(), 30);
        message.Words->Begin();
        message.Tell(State::Speaking);
        message.Tell(State::Ready);
        QTRY_COMPARE(message.Ends, 1);
        QCOMPARE(message.Words->Reason(), u"The speech engine does not answer"_s);
        QCOMPARE(message.Log.last(), u"stop"_s);
        QVERIFY(!message.Core->Engine);
    }

    void ASecondPieceThatDoesNotEnd() {
        Message message(TwoPieces(), Message::Never, 30);
        message.Words->Begin();
        message.Tell(State::Speaking);
        message.Tell(State::Ready);
        message.Tell(State::Speaking);
        QTRY_COMPARE(message.Ends, 1);
        QCOMPARE(message.Words->Reason(), u"The speech engine does not come to an end"_s);
    }

    void AFailureWithoutAWord() {
        Message message(u"hello"_s);
        message.Words->Begin();
        message.Tell(State::Error);
        QCOMPARE(message.Ends, 1);
        QCOMPARE(message.Words->Reason(), u"The speech engine has failed"_s);
    }

    void WhatEndedHearsNothingMore() {
        Message message(u"hello"_s);
        message.Words->Begin();
        message.Tell(State::Speaking);
        message.Words->End(u"enough"_s);
        message.Words->End(u"more than enough"_s);
        QCOMPARE(message.Ends, 1);
        QCOMPARE(message.Words->Reason(), u"enough"_s);
    }

    void DestroyedItTellsNobody() {
        Message message(u"hello"_s);
        message.Words->Begin();
        message.Words.reset();
        QCOMPARE(message.Ends, 0);
        QCOMPARE(message.Log.last(), u"stop"_s);
    }
};

QTEST_GUILESS_MAIN(tst_Utterance)
#include "tst_Utterance.moc"
