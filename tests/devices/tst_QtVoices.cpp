#include "platform/devices/QtVoices.h"

#include <QTest>
#include <QTimer>

#include "devices/Speaking.h"
#include "devices/StandIn.h"

using namespace Qt::StringLiterals;
using platform::QtVoices;

namespace {

/// An engine with these voices that writes down how it is set.
QByteArray Engine(const QStringList& voices) {
    QByteArray script = "echo \"voices";
    for (const QString& voice : voices) {
        script += ' ' + voice.toUtf8().toBase64();
    }
    return script +
           "\"\necho > introduced\nwhile read -r word rest; do\n"
           "[ $word = set ] && echo $rest > set\n"
           "[ $word = say ] && { echo speaking; echo ready; }\n"
           "done\n";
}

}  // namespace

/// The engine's process is a script here; no speech is needed.
class tst_QtVoices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void describesVoices();
    void keepsCommasOutOfDescriptions();
    void countsEveryVoice();
    void speaksBeforeItHasToldItsVoices();
    void tellsItsVoicesLater();
    void asksInVainOnlyOnce();
    void hangHoldsUpNobody();
};

void tst_QtVoices::describesVoices() {
    const StandIn program(Engine({u"Ann"_s, u"Zoë (Québec)"_s}));
    QtVoices voices(program.Path());
    const auto voice = voices.MakeVoice();
    QTRY_COMPARE(voice->Descriptions(), QStringList({u"Ann"_s, u"Zoë (Québec)"_s}));
    QCOMPARE(voices.MakeVoice()->Descriptions(), voice->Descriptions());
}

void tst_QtVoices::keepsCommasOutOfDescriptions() {
    const StandIn program(Engine({u"Ann, English, female"_s, u",,"_s}));
    const auto voice = QtVoices(program.Path()).MakeVoice();
    QTRY_COMPARE(voice->Descriptions(), QStringList({u"Ann; English; female"_s, u";;"_s}));
}

// Nobody waits for the answer; each voice hears of it.
void tst_QtVoices::tellsItsVoicesLater() {
    const StandIn program(Engine(QStringList(u"Ann"_s)));
    QtVoices voices(program.Path());
    const auto first = voices.MakeVoice();
    const auto second = voices.MakeVoice();
    QStringList told;
    first->SetOnNews([&] { told += u"first "_s + first->Descriptions().join(u','); });
    second->SetOnNews([&] { told += u"second "_s + second->Descriptions().join(u','); });
    QCOMPARE(first->Descriptions(), QStringList());
    QVERIFY(first->IsAsking());
    QTRY_COMPARE(told, QStringList({u"first Ann"_s, u"second Ann"_s}));
    QVERIFY(!first->IsAsking());
}

// A voice is picked by its place, whatever it is called.
void tst_QtVoices::countsEveryVoice() {
    const StandIn program(Engine({u"Ann"_s, u"Ann, English"_s}));
    QtVoices voices(program.Path());
    const auto voice = voices.MakeVoice();
    voice->SetVoice(1);
    QVERIFY2(SpeakWhole(*voice, u"Noon"_s), qPrintable(voice->LastError()));
    QCOMPARE(program.Told(u"set"_s), u"1 0 100\n"_s);
}

void tst_QtVoices::speaksBeforeItHasToldItsVoices() {
    const StandIn program(Engine(QStringList(u"Ann"_s)));
    QtVoices voices(program.Path());
    const auto voice = voices.MakeVoice();
    voice->SetRate(3);
    QVERIFY2(SpeakWhole(*voice, u"Noon"_s), qPrintable(voice->LastError()));
    QCOMPARE(program.Told(u"set"_s), u"-1 3 100\n"_s);
    QTRY_COMPARE(voice->Descriptions(), QStringList(u"Ann"_s));
}

// Each process that is started leaves a line; the second asking starts none.
void tst_QtVoices::asksInVainOnlyOnce() {
    const StandIn program("echo >> begun\nexit 1\n");
    QtVoices voices(program.Path());
    const auto voice = voices.MakeVoice();
    int news = 0;
    voice->SetOnNews([&] { ++news; });
    QCOMPARE(voice->Descriptions(), QStringList());
    QTRY_COMPARE(news, 1);
    QVERIFY(!voice->IsAsking());
    QCOMPARE(voice->Descriptions(), QStringList());
    QCOMPARE(voices.MakeVoice()->Descriptions(), QStringList());
    QVERIFY(!voice->IsAsking());
    QCOMPARE(program.Told(u"begun"_s), u"\n"_s);
}

// It does not even tell its voices; the event loop goes on.
void tst_QtVoices::hangHoldsUpNobody() {
    const StandIn program("exec sleep 60\n");
    QtVoices voices(program.Path(), {}, {.Start = 500});
    const auto voice = voices.MakeVoice();
    int ticks = 0;
    QTimer other;
    QObject::connect(&other, &QTimer::timeout, &other, [&] { ++ticks; });
    other.start(1);
    QVERIFY(!SpeakWhole(*voice, u"Noon"_s));
    QCOMPARE(voice->LastError(), u"The speech engine does not answer"_s);
    QVERIFY(ticks >= 3);
}

QTEST_GUILESS_MAIN(tst_QtVoices)
#include "tst_QtVoices.moc"
