#include "shell/ShortcutHints.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_ShortcutHints : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The commands come from the file that is shipped.
    void EveryCommandHasASentenceOfItsOwn() {
        QFile file(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/Shortcuts.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList sentences;
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            if (!line.trimmed().isEmpty()) {
                const QString sentence = shell::CommandHint(line.section(u'=', 0, 0));
                QVERIFY2(sentence.endsWith(u'.'), qPrintable(line));
                QVERIFY2(!sentences.contains(sentence), qPrintable(line));
                sentences += sentence;
            }
        }
        QCOMPARE(sentences.size(), 20);
        QCOMPARE(shell::CommandHint(u"Clock Shape"_s),
                 u"Takes the next shape for the clock's face."_s);
        QCOMPARE(shell::CommandHint(u"Dance"_s), QString());
    }

    void WhatMayBePressed_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("hint");
        QTest::newRow("a key") << u"Ctrl+K"_s << u"Press the new key in the place of Ctrl+K."_s;
        QTest::newRow("none") << u""_s << u"It has no key. Press the new key."_s;
        QTest::newRow("refused") << u"Used"_s << u"It has no key. Press the new key."_s;
        QTest::newRow("invalid")
            << u"Invalid"_s << u"It has no key: a letter needs Ctrl or Alt. Press the new key."_s;
        for (const QString& own :
             {u"F1"_s, u"Ctrl+F1"_s, u"Alt+F1"_s, u"Ctrl+E"_s, u"Ctrl+W"_s, u"Ctrl+R"_s}) {
            QTest::newRow(qPrintable(own))
                << own << u"A clock keeps "_s + own + u" for itself. Press another key."_s;
        }
    }
    void WhatMayBePressed() {
        QFETCH(QString, key);
        QTEST(shell::KeyHint(key), "hint");
    }

    void ARefusedKeyNamesItsHolder() {
        QCOMPARE(
            shell::RefusedKeyHint(u"Ctrl+D"_s, u"Disable"_s),
            u"Ctrl+D is the key of \"Disable\". Press another key, or change that one first."_s);
    }
};

QTEST_APPLESS_MAIN(tst_ShortcutHints)
#include "tst_ShortcutHints.moc"
