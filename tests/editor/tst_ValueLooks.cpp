#include "editor/ui/ValueLooks.h"

#include <QFontDatabase>
#include <QImage>
#include <QTest>

#include "support/FakeRandom.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

namespace {

struct LooksDesk {
    FakeServices Machine;
    ModuleState Module;
    Forms Windows;
    Program TheProgram{Machine.Services, Module, Windows};
    ValueLooks Looks{TheProgram};

    LooksDesk() { Module.Paths.AppFolder = Machine.AppFolder(); }

    CellLook Colour(const QString& text) const {
        return Looks.LookOf(u"Hand Colour"_s, u"Red,Red,Blue"_s, text);
    }
    CellLook File(const QString& path) const { return Looks.LookOf(u"Flag File"_s, path, path); }
    QString Picture(const QString& name, const QSize& size, const QColor& colour) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        const QString path = Machine.AppFolder() + u'/' + name;
        return image.save(path) ? path : QString();
    }
};

}  // namespace

class tst_ValueLooks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ColoursHaveASwatch_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("name") << u"Blue"_s << QColor(0, 0, 255);
        QTest::newRow("name in small letters") << u" yellow "_s << QColor(255, 255, 0);
        QTest::newRow("number, red in the low byte") << u"4731430"_s << QColor(38, 50, 72);
        QTest::newRow("hexadecimal") << u"&H0000FF"_s << QColor(255, 0, 0);
    }
    void ColoursHaveASwatch() {
        QFETCH(QString, text);
        const LooksDesk desk;
        const CellLook look = desk.Colour(text);
        QVERIFY(look.Swatch.has_value());
        QCOMPARE(look.Swatch->style(), Qt::SolidPattern);
        QTEST(look.Swatch->color(), "colour");
        QVERIFY(look.Button && look.Arrow);
        QVERIFY(look.Picture.isNull());
    }

    void WhatIsPickedHasAButton() {
        const LooksDesk desk;
        const auto button = [&desk](const QString& name, const QString& value) {
            const CellLook look = desk.Looks.LookOf(name, value, u"1"_s);
            return !look.Button ? u"none"_s : look.Arrow ? u"arrow"_s : u"dots"_s;
        };
        QCOMPARE(button(u"Style"_s, u"A,A,B"_s), u"arrow"_s);
        QCOMPARE(button(u"Size"_s, u"1,1,2"_s), u"arrow"_s);
        QCOMPARE(button(u"Any Font"_s, u"A,A,B"_s), u"arrow"_s);
        QCOMPARE(button(u"Hand Colour"_s, u"1"_s), u"dots"_s);
        QCOMPARE(button(u"Flag File"_s, u"1"_s), u"dots"_s);
        QCOMPARE(button(u"Flag File"_s, u"1,1,2"_s), u"dots"_s);
        QCOMPARE(button(u"Enable"_s, u"Yes,Yes,No"_s), u"none"_s);
        QCOMPARE(button(u"Size"_s, u"1"_s), u"none"_s);
    }

    void WordsOfColoursHaveAPattern() {
        const LooksDesk desk;
        QCOMPARE(desk.Colour(u"Transparent"_s).Swatch->style(), Qt::TexturePattern);
        QCOMPARE(desk.Colour(u"random"_s).Swatch->style(), Qt::LinearGradientPattern);
        QCOMPARE(desk.Colour(u"Custom"_s).Swatch->style(), Qt::LinearGradientPattern);
        QVERIFY(!desk.Colour(u"Blurple"_s).Swatch);
        QVERIFY(!desk.Colour({}).Swatch);
    }

    void SwitchesHaveABox() {
        const LooksDesk desk;
        const auto box = [&desk](const QString& text) {
            return desk.Looks.LookOf(u"Enable"_s, u"Yes,Yes,No"_s, text).Check;
        };
        QCOMPARE(box(u"Yes"_s), std::optional(true));
        QCOMPARE(box(u"no"_s), std::optional(false));
        QVERIFY(!desk.Looks.LookOf(u"Enable"_s, u"Yes,Yes,No"_s, u"Yes"_s).Button);
    }

    void FontsStandInThemselves() {
        const LooksDesk desk;
        const QString family = QFontDatabase::families().value(0);
        QCOMPARE(desk.Looks.LookOf(u"Hour Font"_s, u"x,x,y"_s, family).FontFamily, family);
        QCOMPARE(desk.Looks.LookOf(u"Hour Font"_s, u"x,x,y"_s, u"No Such Font"_s).FontFamily,
                 QString());
    }

    void OtherValuesArePlain() {
        const LooksDesk desk;
        const CellLook look = desk.Looks.LookOf(u"Stay Time"_s, u"12"_s, u"12"_s);
        QVERIFY(!look.Swatch && !look.Check && !look.Button && look.Picture.isNull());
        QCOMPARE(look.FontFamily, QString());
        QVERIFY(!look.Bold);
    }

    void PicturesHaveAThumbnail() {
        LooksDesk desk;
        QVERIFY(!desk.Picture(u"wide.png"_s, {320, 160}, Qt::red).isEmpty());
        const CellLook look = desk.File(u".\\wide.png"_s);
        QVERIFY(look.Button);
        QCOMPARE(look.Picture.deviceIndependentSize(), QSizeF(16, 8));
        QCOMPARE(look.Picture.toImage().pixelColor(3, 3), QColor(Qt::red));
        const QString small = desk.Picture(u"small.BMP"_s, {400, 800}, Qt::blue);
        QCOMPARE(desk.File(small).Picture.deviceIndependentSize(), QSizeF(8, 16));
    }

    void WhatIsNoPictureHasNone() {
        LooksDesk desk;
        desk.Machine.WriteFile(u"broken.png"_s, "no picture");
        desk.Machine.WriteFile(u"empty.png"_s, "");
        const QString picture = desk.Picture(u"picture.png"_s, {10, 10}, Qt::red);
        QVERIFY(QFile::copy(picture, desk.Machine.AppFolder() + u"/sound.wav"_s));
        for (const QString& name : {u".\\broken.png"_s, u".\\empty.png"_s, u".\\missing.png"_s,
                                    u".\\sound.wav"_s, u"None"_s, QString()}) {
            QVERIFY2(desk.File(name).Picture.isNull(), qPrintable(name));
            QVERIFY(desk.File(name).Button);
        }
        QVERIFY(!desk.File(picture).Picture.isNull());
    }

    void ThumbnailsAreReadOnce() {
        LooksDesk desk;
        const QString path = desk.Picture(u"once.png"_s, {10, 10}, Qt::red);
        QVERIFY(!desk.File(path).Picture.isNull());
        desk.Machine.Files.Unreadable = {path};
        QCOMPARE(desk.File(path).Picture.toImage().pixelColor(5, 5), QColor(Qt::red));
        desk.Machine.Files.Unreadable.clear();
        desk.Picture(u"once.png"_s, {10, 10}, Qt::blue);
        desk.Machine.SetAge(u"once.png"_s, 100);
        QCOMPARE(desk.File(path).Picture.toImage().pixelColor(5, 5), QColor(Qt::blue));
    }
};

QTEST_MAIN(tst_ValueLooks)
#include "tst_ValueLooks.moc"
