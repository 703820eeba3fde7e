#include "platform/devices/QtVoices.h"

#include <QTest>

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
           "\"\nwhile read -r word rest; do\n"
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

QTEST_GUILESS_MAIN(tst_QtVoices)
#include "tst_QtVoices.moc"
