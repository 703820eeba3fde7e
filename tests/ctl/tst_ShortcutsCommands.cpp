#include "ctl/Companion.h"

using namespace Qt::StringLiterals;

class tst_ShortcutsCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void MatchesAKey_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("shift");
        QTest::addColumn<QString>("command");
        QTest::newRow("with Ctrl") << u"114"_s << u"2"_s << u"Clocks"_s;
        QTest::newRow("without") << u"114"_s << u"0"_s << u""_s;
        QTest::newRow("Alt wins") << u"118"_s << u"6"_s << u"Clock Style"_s;
        QTest::newRow("Shift has no name") << u"75"_s << u"1"_s << u"Disable"_s;
        QTest::newRow("the first of two") << u"113"_s << u"0"_s << u"Window Shape"_s;
        QTest::newRow("none") << u"-5"_s << u"0"_s << u""_s;
    }

    void MatchesAKey() {
        QFETCH(QString, code);
        QFETCH(QString, shift);
        QFETCH(QString, command);
        const Companion companion;
        companion.Write(u"keys.txt"_s,
                        "Clocks=Ctrl+F3\r\nClock Style=Alt+F7,Alt+F8\r\n"
                        "Disable=+K\r\nWindow Shape=F2\r\nWindow Border=F2\r\n"
                        "Window Title Bar=Used\r\n");
        const CompanionAnswer answer =
            companion.Run({u"shortcuts"_s, u"match"_s, u"keys.txt"_s, code, shift});
        QCOMPARE(answer.Output, "{\"command\":\"" + command.toUtf8() + "\"}\n");
        QCOMPARE(answer.Status, 0);
    }

    void TextOfAKey_data() {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("shift");
        QTest::addColumn<QString>("text");
        QTest::newRow("F1") << u"112"_s << u"0"_s << u"F1"_s;
        QTest::newRow("F12 with Ctrl") << u"123"_s << u"2"_s << u"Ctrl+F12"_s;
        QTest::newRow("behind F12") << u"124"_s << u"0"_s << u"+|"_s;
        QTest::newRow("a letter with Alt and Ctrl") << u"75"_s << u"6"_s << u"Alt+K"_s;
        QTest::newRow("a letter alone") << u"75"_s << u"0"_s << u"+K"_s;
        QTest::newRow("no character") << u"-1"_s << u"2"_s << u"Ctrl+"_s;
        QTest::newRow("beyond all characters") << u"65536"_s << u"0"_s << u"+"_s;
    }

    void TextOfAKey() {
        QFETCH(QString, code);
        QFETCH(QString, shift);
        QFETCH(QString, text);
        const CompanionAnswer answer = Companion().Run({u"shortcuts"_s, u"text"_s, code, shift});
        QCOMPARE(answer.Output, "{\"text\":\"" + text.toUtf8() + "\"}\n");
        QCOMPARE(answer.Status, 0);
    }

    void WhatIsOff() {
        const Companion companion;
        QCOMPARE(companion.Run({u"shortcuts"_s, u"text"_s, u"K"_s, u"0"_s}).Status, 2);
        QCOMPARE(companion.Run({u"shortcuts"_s, u"match"_s, u"none.txt"_s, u"75"_s, u"x"_s}).Status,
                 2);
        const CompanionAnswer missing =
            companion.Run({u"shortcuts"_s, u"match"_s, u"none.txt"_s, u"75"_s, u"0"_s});
        QCOMPARE(missing.Output, "{\"command\":\"\"}\n");
        QCOMPARE(missing.Status, 1);
    }
};

QTEST_GUILESS_MAIN(tst_ShortcutsCommands)
#include "tst_ShortcutsCommands.moc"
