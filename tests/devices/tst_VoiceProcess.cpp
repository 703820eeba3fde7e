#include "platform/devices/VoiceProcess.h"

#include <QTest>

#include "devices/StandIn.h"

using namespace Qt::StringLiterals;
using platform::SpeechEngine;
using platform::VoiceProcess;

/// The engine's process is a script here.
class tst_VoiceProcess : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lastWordEndsItsLife_data();
    void lastWordEndsItsLife();
};

// Several lines may come in one breath, and whoever hears the first may end the engine's life; its
// process lives a little longer. The sanitizers tell when the rest reaches what is gone.
void tst_VoiceProcess::lastWordEndsItsLife_data() {
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("while the process lives") << QByteArray("exec sleep 60\n");
    QTest::newRow("with the process") << QByteArray("exit 1\n");
}

void tst_VoiceProcess::lastWordEndsItsLife() {
    QFETCH(const QByteArray, end);
    const StandIn program("printf 'error QW5u\\nerror Qm9i\\nvoices QW5u\\n'\n" + end);
    auto engine = std::make_unique<VoiceProcess>(program.Path(), QString());
    QStringList told;
    engine->OnVoices = [&](const QStringList& voices) { told += u"voices "_s + voices.join(u','); };
    engine->OnState = [&](SpeechEngine::State) {
        told += engine->Trouble();
        engine.reset();
    };
    QTRY_COMPARE(told, QStringList(u"Ann"_s));
    QTest::qWait(50);  // for what must not come
    QCOMPARE(told, QStringList(u"Ann"_s));
}

QTEST_GUILESS_MAIN(tst_VoiceProcess)
#include "tst_VoiceProcess.moc"
