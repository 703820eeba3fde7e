#include "shell/ShellVoice.h"

#include <QTest>

#include "support/FakeDevices.h"

using namespace Qt::StringLiterals;

class tst_ShellVoice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SpeaksAndBreaksOff() {
        FakeVoices voices;
        QStringList told;
        shell::ShellVoice voice(voices, [&told](const QString& text) { told += text; });
        voice.PurgeSpeech();
        QCOMPARE(voices.Made, 0);
        voice.SpeakMessage(u"Good Morning"_s);
        voice.SpeakMessage({});
        voice.PurgeSpeech();
        QCOMPARE(voices.Log, (QStringList{u"1 Good Morning"_s, u"2 ."_s}));
        QCOMPARE(voices.Made, 1);
        QCOMPARE(told, QStringList());
    }

    void TellsWhyItIsSilent() {
        FakeVoices voices;
        QStringList told;
        shell::ShellVoice voice(voices, [&told](const QString& text) { told += text; });
        voices.Failure = u"no sound"_s;
        voice.SpeakMessage(u"Hello"_s);
        QCOMPARE(told, QStringList{u"no sound"_s});
    }

    void AMachineWithoutSpeech() {
        FakeVoices voices;
        voices.Present = false;
        QStringList told;
        shell::ShellVoice voice(voices, [&told](const QString& text) { told += text; });
        voice.SpeakMessage(u"Hello"_s);
        voice.PurgeSpeech();
        QCOMPARE(voices.Log, QStringList());
        QCOMPARE(told, QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_ShellVoice)
#include "tst_ShellVoice.moc"
