#include "editor/PropertyClip.h"

#include <QTest>

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using editor::PastedValue;

namespace {

/// Rows 1 to 4: Hand, Face, Hand again, Note.
ClockProperties Properties() {
    ClockProperties properties;
    mduLib::AppendProperty(u"Look"_s, u"Hand"_s, u"Red,Red,Blue"_s, properties);
    mduLib::AppendProperty(u"Look"_s, u"Face"_s, u"White"_s, properties);
    mduLib::AppendProperty(u"Look"_s, u"Hand"_s, u"Green"_s, properties);
    mduLib::AppendProperty({}, u"Note"_s, u"a\tb"_s, properties);
    return properties;
}

/// "1=Red;2=White"
QString Pasted(const QString& text, int current) {
    QStringList pairs;
    for (const PastedValue& value : editor::PastedValues(text, Properties(), current)) {
        pairs += QString::number(value.Record) + u'=' + value.Cell;
    }
    return pairs.join(u';');
}

}  // namespace

class tst_PropertyClip : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void CopiesWhatTheCellsShow() {
        QCOMPARE(editor::ClipText(Properties(), {2}), u"Face\tWhite"_s);
        QCOMPARE(editor::ClipText(Properties(), {1, 4}), u"Hand\tRed\nNote\ta\tb"_s);
        QCOMPARE(editor::ClipText(Properties(), {3, 0, 9}), u"Hand\tGreen"_s);
        QCOMPARE(editor::ClipText(Properties(), {}), QString());
    }

    void Pastes_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("current");
        QTest::addColumn<QString>("pasted");
        QTest::newRow("a value") << u"Blue"_s << 2 << u"2=Blue"_s;
        QTest::newRow("a value with a line end") << u"Blue\r\n"_s << 2 << u"2=Blue"_s;
        QTest::newRow("a row goes to its key") << u"Hand\tBlue"_s << 2 << u"1=Blue"_s;
        QTest::newRow("a row of the key's second record") << u"Hand\tBlue"_s << 3 << u"3=Blue"_s;
        QTest::newRow("a row without a current one") << u"Face\tBlack"_s << 0 << u"2=Black"_s;
        QTest::newRow("a row whose value holds a tab") << u"Note\tx\ty"_s << 4 << u"4=x\ty"_s;
        QTest::newRow("a tab that is no row's") << u"x\ty"_s << 4 << u"4=x\ty"_s;
        QTest::newRow("a tab in front") << u"\tBlue"_s << 2 << u"2=\tBlue"_s;
        QTest::newRow("rows") << u"Face\tBlack\nNote\tc"_s << 1 << u"2=Black;4=c"_s;
        QTest::newRow("rows in another order")
            << u"Note\tc\rFace\tBlack"_s << 1 << u"4=c;2=Black"_s;
        QTest::newRow("rows of one key") << u"Hand\tx\r\nHand\ty\r\nHand\tz"_s << 4 << u"1=x;3=y"_s;
        QTest::newRow("rows and others") << u"Face\tBlack\nno key\tc\nd"_s << 1 << u"2=Black"_s;
        QTest::newRow("a row with an empty value") << u"Face\t\nNote\tc"_s << 1 << u"2=;4=c"_s;
        QTest::newRow("blanks around a key")
            << u" Face \tBlack\nNote\tc"_s << 1 << u"2=Black;4=c"_s;
        QTest::newRow("lines that are no rows")
            << u"one\ntwo\tx\rthree"_s << 4 << u"4=one two\tx three"_s;
        QTest::newRow("nothing") << QString() << 4 << QString();
        QTest::newRow("line ends alone") << u"\r\n\n"_s << 4 << QString();
        QTest::newRow("no current row") << u"Blue"_s << 0 << QString();
        QTest::newRow("no such row") << u"Blue"_s << 5 << QString();
        QTest::newRow("rows without a current one")
            << u"Face\tBlack\nNote\tc"_s << 0 << u"2=Black;4=c"_s;
    }
    void Pastes() {
        QFETCH(QString, text);
        QFETCH(int, current);
        QTEST(Pasted(text, current), "pasted");
    }

    void CountsWhatGoesNowhere_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("lost");
        QTest::newRow("a value") << u"Blue"_s << 0;
        QTest::newRow("lines that are one value") << u"one\ntwo"_s << 0;
        QTest::newRow("rows") << u"Face\tBlack\nNote\tc"_s << 0;
        QTest::newRow("a key that is not there") << u"Face\tBlack\nno key\tc"_s << 1;
        QTest::newRow("a key too often") << u"Note\ta\nd\nNote\tb\n"_s << 2;
    }
    void CountsWhatGoesNowhere() {
        QFETCH(QString, text);
        QTEST(editor::LinesWithoutRecord(text, Properties()), "lost");
    }

    void WhatIsCopiedComesBack() {
        const QString text = editor::ClipText(Properties(), {1, 2, 3, 4});
        QCOMPARE(Pasted(text, 2), u"1=Red;2=White;3=Green;4=a\tb"_s);
    }
};

QTEST_APPLESS_MAIN(tst_PropertyClip)
#include "tst_PropertyClip.moc"
