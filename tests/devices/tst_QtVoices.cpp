#include "platform/devices/QtVoices.h"

#include <QAbstractEventDispatcher>
#include <QTest>
#include <QThread>
#include <QTimer>

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
    void hearsWhatHasArrived();
    void waitsInVainOnlyOnce();
    void hangHoldsUpNobody();
};

void tst_QtVoices::describesVoices() {
    const StandIn program(Engine({u"Ann"_s, u"Zoë (Québec)"_s}));
    QCOMPARE(QtVoices(program.Path()).MakeVoice()->Descriptions(),
             QStringList({u"Ann"_s, u"Zoë (Québec)"_s}));
}

void tst_QtVoices::keepsCommasOutOfDescriptions() {
    const StandIn program(Engine({u"Ann, English, female"_s, u",,"_s}));
    QCOMPARE(QtVoices(program.Path()).MakeVoice()->Descriptions(),
             QStringList({u"Ann; English; female"_s, u";;"_s}));
}

// A voice is picked by its place, whatever it is called.
void tst_QtVoices::countsEveryVoice() {
    const StandIn program(Engine({u"Ann"_s, u"Ann, English"_s}));
    QtVoices voices(program.Path());
    const auto voice = voices.MakeVoice();
    voice->SetVoice(1);
    QVERIFY2(voice->Speak(u"Noon"_s, 2), qPrintable(voice->LastError()));
    QCOMPARE(program.Told(u"set"_s), u"1 0 100\n"_s);
}

void tst_QtVoices::speaksBeforeItHasToldItsVoices() {
    const StandIn program(Engine(QStringList(u"Ann"_s)));
    QtVoices voices(program.Path());
    const auto voice = voices.MakeVoice();
    voice->SetRate(3);
    QVERIFY2(voice->Speak(u"Noon"_s, 2), qPrintable(voice->LastError()));
    QCOMPARE(program.Told(u"set"_s), u"-1 3 100\n"_s);
    QCOMPARE(voice->Descriptions(), QStringList(u"Ann"_s));
}

// The event loop takes the answer in before the voices are asked for.
void tst_QtVoices::hearsWhatHasArrived() {
    const StandIn program(Engine(QStringList(u"Ann"_s)));
    QtVoices voices(program.Path());
    while (program.Told(u"introduced"_s).isEmpty()) {
        QThread::msleep(1);
    }
    // In two turns it learns of the start and of the answer; what follows from it would be a third.
    for (int turn = 0; turn < 2; ++turn) {
        QCoreApplication::eventDispatcher()->processEvents(QEventLoop::AllEvents);
    }
    QCOMPARE(voices.MakeVoice()->Descriptions(), QStringList(u"Ann"_s));
}

// Each process that is started leaves a line; the second asking starts none.
void tst_QtVoices::waitsInVainOnlyOnce() {
    const StandIn program("echo >> begun\nexit 1\n");
    QtVoices voices(program.Path());
    QCOMPARE(voices.MakeVoice()->Descriptions(), QStringList());
    QCOMPARE(voices.MakeVoice()->Descriptions(), QStringList());
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
    QVERIFY(!voice->Speak(u"Noon"_s, 2));
    QCOMPARE(voice->LastError(), u"The speech engine does not answer"_s);
    QVERIFY(ticks >= 3);
}

QTEST_GUILESS_MAIN(tst_QtVoices)
#include "tst_QtVoices.moc"
