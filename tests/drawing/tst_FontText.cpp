#include <QFontInfo>
#include <QGuiApplication>
#include <QTest>

#include "drawing/FontText.h"

using namespace Qt::StringLiterals;
using drawing::DrawFontText;
using drawing::LogFont;
using drawing::Surface;

class tst_FontText : public QObject {
    Q_OBJECT

    /// The rectangle of all pixels that are darker than half.
    static QRect Inked(const Surface& surface) {
        QRect inked;
        for (int y = 0; y < surface.ScaleHeight(); ++y) {
            for (int x = 0; x < surface.ScaleWidth(); ++x) {
                if (qGray(surface.Image().pixel(x, y)) < 128) {
                    inked |= QRect(x, y, 1, 1);
                }
            }
        }
        return inked;
    }

    static QRect Print(const QString& text, double x, double y, const LogFont& font,
                       double ratio = 1) {
        Surface surface(300, 300, ratio);
        surface.Cls(0xFFFFFF);
        DrawFontText(surface, text, x, y, font, 0);
        return Inked(surface);
    }

    /// Five struck-out blanks, 100 pixels long: a bar in the cell's middle.
    static LogFont Bar(int escapement) {
        return {.Height = 100,
                .Width = 20,
                .Escapement = escapement,
                .StrikeOut = true,
                .FaceName = u"Courier New"_s};
    }

private Q_SLOTS:
    void StandsInForFontsThatAreNotInstalled_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("families");
        QTest::newRow("serif") << u"Times New Roman"_s
                               << QStringList{u"Liberation Serif"_s, u"Times New Roman"_s};
        QTest::newRow("letter case")
            << u"times new roman"_s << QStringList{u"Liberation Serif"_s, u"Times New Roman"_s};
        QTest::newRow("sans") << u"Arial"_s << QStringList{u"Liberation Sans"_s, u"Arial"_s};
        QTest::newRow("mono") << u"Courier New"_s
                              << QStringList{u"Liberation Mono"_s, u"Courier New"_s};
    }

    void StandsInForFontsThatAreNotInstalled() {
        QFETCH(QString, name);
        QFETCH(QStringList, families);
        const QString family = QFontInfo(QFont(drawing::InstalledFamily(name))).family();
        QVERIFY2(families.contains(family), qPrintable(family));
    }

    void OtherNamesStay() {
        QCOMPARE(drawing::InstalledFamily(u"No Such Font"_s), u"No Such Font"_s);
        QCOMPARE(drawing::InstalledFamily(u"Liberation Serif"_s), u"Liberation Serif"_s);
    }

    void RunsToTheRight() {
        const QRect bar = Print(u"     "_s, 150, 150, Bar(0));
        QCOMPARE(bar.left(), 150);
        QCOMPARE(bar.right(), 249);
        QVERIFY(bar.top() > 150 + 30 && bar.bottom() < 150 + 80);
    }

    void TurnsUpward() {
        const QRect bar = Print(u"     "_s, 150, 150, Bar(900));
        QCOMPARE(bar.top(), 50);
        QCOMPARE(bar.bottom(), 149);
        QVERIFY(bar.left() > 150 + 30 && bar.right() < 150 + 80);
    }

    void TurnsDownward() {
        const QRect bar = Print(u"     "_s, 150, 150, Bar(2700));
        QCOMPARE(bar.top(), 150);
        QCOMPARE(bar.bottom(), 249);
        QVERIFY(bar.left() > 150 - 80 && bar.right() < 150 - 30);
    }

    void TurnsByMoreThanACircleAndBackward() {
        QCOMPARE(Print(u"     "_s, 150, 150, Bar(3600 + 900)),
                 Print(u"     "_s, 150, 150, Bar(900)));
        QCOMPARE(Print(u"     "_s, 150, 150, Bar(-2700)), Print(u"     "_s, 150, 150, Bar(900)));
    }

    // At a cell height of 111 the em of this font is 100.2 pixels: its ascent is 0.891, its descent
    // 0.216, a blank a quarter, a capital 0.655 high, its small letters 0.4 wide on average.
    void CellBeginsAtThePoint() {
        const QRect letter =
            Print(u"H"_s, 20, 30, {.Height = 111, .FaceName = u"Times New Roman"_s});
        QCOMPARE(letter.bottom() + 1, 30 + 89);
        QCOMPARE(letter.top(), 30 + 24);
    }

    // A pixel for each unit of the font's own design: its ascent is 1705, its descent 615; this
    // letter stands from 162 to 1066 and is 1349 high.
    void LargeLettersAreExact() {
        Surface surface(1300, 2400, 1);
        surface.Cls(0xFFFFFF);
        DrawFontText(surface, u"H"_s, 0, 0, {.Height = 2320, .FaceName = u"Courier New"_s}, 0);
        QCOMPARE(Inked(surface), QRect(162, 1705 - 1349, 1066 - 162, 1349));
    }

    void WidthIsTheFontsOwn() {
        const LogFont font{.Height = 111, .StrikeOut = true, .FaceName = u"Times New Roman"_s};
        QCOMPARE(Print(u"    "_s, 20, 20, font).width(), 100);
    }

    void WidthIsAScale() {
        LogFont font{
            .Height = 111, .Width = 40, .StrikeOut = true, .FaceName = u"Times New Roman"_s};
        QCOMPARE(Print(u"    "_s, 20, 20, font).width(), 100);
        font.Width = 20;
        QCOMPARE(Print(u"    "_s, 20, 20, font).width(), 50);
        font.Width = 60;
        QCOMPARE(Print(u"    "_s, 20, 20, font).width(), 150);
    }

    void WidthLeavesTheHeight() {
        LogFont font{.Height = 111, .Width = 20, .FaceName = u"Times New Roman"_s};
        const QRect letter = Print(u"H"_s, 20, 30, font);
        QCOMPARE(letter.top(), 30 + 24);
        QCOMPARE(letter.bottom() + 1, 30 + 89);
    }

    void HeightZeroIsTheDefault() {
        const LogFont font{.FaceName = u"Times New Roman"_s};
        LogFont sixteen = font;
        sixteen.Height = 16;
        QCOMPARE(Print(u"H"_s, 20, 20, font), Print(u"H"_s, 20, 20, sixteen));
        LogFont thirtyTwo = font;
        thirtyTwo.Height = 32;
        QCOMPARE(Print(u"H"_s, 20, 20, font, 2), Print(u"H"_s, 20, 20, thirtyTwo));
    }

    void HeaviestIsBold() {
        const auto inkOf = [](int weight) {
            Surface surface(200, 200, 1);
            surface.Cls(0xFFFFFF);
            DrawFontText(surface, u"I"_s, 20, 20,
                         {.Height = 111, .Weight = weight, .FaceName = u"Times New Roman"_s}, 0);
            int ink = 0;
            for (int x = 0; x < 200; ++x) {
                ink += qGray(surface.Image().pixel(x, 80)) < 128 ? 1 : 0;
            }
            return ink;  // the stem's width in the letter's middle
        };
        QCOMPARE(inkOf(10000000), inkOf(700));
        QVERIFY(inkOf(10000000) > inkOf(400));
    }

    void ColourHasRedInTheLowByte() {
        Surface surface(300, 300, 1);
        DrawFontText(surface, u"     "_s, 100, 100, Bar(0), 0x0000FF);
        const QRect inked = Print(u"     "_s, 100, 100, Bar(0));
        QCOMPARE(surface.Image().pixel(inked.center()), qRgb(255, 0, 0));
    }

    void OddFontsAreHarmless() {
        QCOMPARE(Print(QString(), 10, 10, Bar(0)), QRect());
        QCOMPARE(Print(u"X"_s, 10, 10, {.Height = 100000, .FaceName = u"Arial"_s}), QRect());
        QCOMPARE(Print(u"X"_s, 10, 10, {.Height = 100, .Width = 100000, .FaceName = u"Arial"_s}),
                 QRect());
        QCOMPARE(Print(u"X"_s, 1e9, -1e9, {.Height = 100, .FaceName = u"Arial"_s}), QRect());
        QVERIFY(!Print(u"X"_s, 10, 10, {.Height = -5, .Width = -5, .Weight = -1, .FaceName = {}})
                     .isEmpty());
    }
};

QTEST_MAIN(tst_FontText)
#include "tst_FontText.moc"
