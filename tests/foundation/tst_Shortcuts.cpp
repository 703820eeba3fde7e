#include "foundation/Shortcuts.h"

#include <QTest>

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using namespace mduUILib;

class tst_Shortcuts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AltWins_data() {
        QTest::addColumn<int>("shift");
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << 0 << u""_s;
        QTest::newRow("Shift has no name") << 1 << u""_s;
        QTest::newRow("Ctrl") << 2 << u"Ctrl"_s;
        QTest::newRow("Ctrl and Shift") << 3 << u"Ctrl"_s;
        QTest::newRow("Alt") << 4 << u"Alt"_s;
        QTest::newRow("Alt and Ctrl") << 6 << u"Alt"_s;
    }
    void AltWins() {
        QFETCH(int, shift);
        QTEST(ModifierName(shift), "name");
    }

    void CodesOfNames_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("code");
        QTest::newRow("F1") << u"F1"_s << 112;
        QTest::newRow("F12") << u" F12 "_s << 123;
        QTest::newRow("beyond") << u"F20"_s << 131;
        QTest::newRow("no number") << u"Fa"_s << 0;
        QTest::newRow("F alone") << u"F"_s << 0;
        QTest::newRow("small") << u"f3"_s << 0;
        QTest::newRow("huge") << u"F99999999"_s << 0;
        QTest::newRow("nothing") << u""_s << 0;
    }
    void CodesOfNames() {
        QFETCH(QString, name);
        QTEST(KeyNameCode(name), "code");
    }

    void TextsOfKeys_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("shift");
        QTest::addColumn<QString>("text");
        QTest::newRow("function key") << 114 << 0 << u"F3"_s;
        QTest::newRow("with Ctrl") << 114 << 2 << u"Ctrl+F3"_s;
        QTest::newRow("with Alt") << 118 << 4 << u"Alt+F7"_s;
        QTest::newRow("character") << 75 << 0 << u"+K"_s;
        QTest::newRow("character with Ctrl") << 75 << 2 << u"Ctrl+K"_s;
    }
    void TextsOfKeys() {
        QFETCH(int, code);
        QFETCH(int, shift);
        QTEST(KeyText(code, shift), "text");
    }

    void FindsTheCommand_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("shift");
        QTest::addColumn<bool>("found");
        QTest::newRow("Ctrl+F3") << u"Ctrl+F3"_s << 114 << 2 << true;
        QTest::newRow("Ctrl+F3 without Ctrl") << u"Ctrl+F3"_s << 114 << 0 << false;
        QTest::newRow("F3") << u"F3"_s << 114 << 0 << true;
        QTest::newRow("F3 with Shift") << u"F3"_s << 114 << 1 << true;
        QTest::newRow("F3 with Ctrl") << u"F3"_s << 114 << 2 << false;
        QTest::newRow("another one") << u"F3"_s << 115 << 0 << false;
        QTest::newRow("Ctrl+K") << u"Ctrl+K"_s << 75 << 2 << true;
        QTest::newRow("blanks") << u" Ctrl + K "_s << 75 << 2 << true;
        QTest::newRow("small letter") << u"Ctrl+k"_s << 75 << 2 << false;
        QTest::newRow("Alt with Ctrl held") << u"Alt+K"_s << 75 << 6 << true;
        QTest::newRow("the letter alone") << u"+K"_s << 75 << 0 << true;
        QTest::newRow("the letter alone with Ctrl") << u"+K"_s << 75 << 2 << false;
        QTest::newRow("choices behind it") << u"Ctrl+K,F3"_s << 75 << 2 << true;
        QTest::newRow("in the choices") << u"Ctrl+K,F3"_s << 114 << 0 << false;
        QTest::newRow("a name with a letter's code") << u"Ctrl+F3"_s << 70 << 2 << true;
        QTest::newRow("nothing behind the plus") << u"Ctrl+"_s << 75 << 2 << false;
        QTest::newRow("Used") << u"Used"_s << 85 << 0 << false;
        QTest::newRow("Invalid") << u"Invalid"_s << 0 << 0 << false;
        QTest::newRow("empty") << u""_s << 0 << 0 << false;
    }
    void FindsTheCommand() {
        QFETCH(QString, text);
        QFETCH(int, code);
        QFETCH(int, shift);
        QFETCH(bool, found);
        ClockProperties shortcuts;
        mduLib::AppendProperty({}, u"Clocks"_s, text, shortcuts);
        QCOMPARE(MatchShortcut(shortcuts, code, shift), found ? u"Clocks"_s : QString());
    }

    void TheFirstCounts() {
        ClockProperties shortcuts;
        QCOMPARE(MatchShortcut(shortcuts, 114, 0), QString());
        mduLib::AppendProperty({}, u"Clocks"_s, u"F2"_s, shortcuts);
        mduLib::AppendProperty({}, u"Disable"_s, u"F3"_s, shortcuts);
        mduLib::AppendProperty({}, u"Clock Shape"_s, u"F3"_s, shortcuts);
        QCOMPARE(MatchShortcut(shortcuts, 114, 0), u"Disable"_s);
    }
};

QTEST_APPLESS_MAIN(tst_Shortcuts)
#include "tst_Shortcuts.moc"
