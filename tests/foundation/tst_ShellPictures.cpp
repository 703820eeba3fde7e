#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QTest>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString Images = QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/Images/");

constexpr const char* Tags[] = {
    "Launch",    "Close",      "Disable",       "Enable",   "Maximize",         "Minimize",
    "Restore",   "Auto Start", "Property",      "Shortcut", "Timezone",         "Clock Agent",
    "CProperty", "Datebrook",  "Manage Clocks", "Help",     "Organize Windows", "Exit"};

QImage Drawing(const QString& file, QSize size) {
    QImageReader reader(Images + file);
    reader.setScaledSize(size);
    return reader.read().convertToFormat(QImage::Format_ARGB32);
}

QImage Button(const char* tag, int side) {
    return Drawing(u"Toolbar/"_s + QString::fromLatin1(tag) + u".svg"_s, {side, side});
}

/// How light each pixel is on a desktop of that colour, from 0 to 255.
QList<int> Lightness(const QImage& image, int desktop) {
    QList<int> lightness;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            lightness += (qGray(pixel) * qAlpha(pixel) + desktop * (255 - qAlpha(pixel))) / 255;
        }
    }
    return lightness;
}

/// The pixels that differ plainly.
int Differing(const QList<int>& one, const QList<int>& other) {
    int count = 0;
    for (qsizetype index = 0; index < one.size(); ++index) {
        count += std::abs(one[index] - other[index]) > 60 ? 1 : 0;
    }
    return count;
}

void AddButtons() {
    QTest::addColumn<QByteArray>("tag");
    for (const char* tag : Tags) {
        QTest::newRow(tag) << QByteArray(tag);
    }
}

}  // namespace

/// The drawings that the shell shows: buttons, the eye, the cursors.
class tst_ShellPictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ButtonStandsOutFromTheDesktop_data() { AddButtons(); }
    void ButtonStandsOutFromTheDesktop();
    void ButtonHasARoomyEdge_data() { AddButtons(); }
    void ButtonHasARoomyEdge();
    void ButtonsDifferInGrey();
    void EyeMovesWithEachFrame();
    void CursorsHaveTwoSizes();
};

// More than a tenth of its pixels, on a light desktop and on a dark one.
void tst_ShellPictures::ButtonStandsOutFromTheDesktop() {
    QFETCH(QByteArray, tag);
    const QImage image = Button(tag, 24);
    QCOMPARE(image.size(), QSize(24, 24));
    for (const int desktop : {243, 39}) {
        QVERIFY(Differing(Lightness(image, desktop), QList<int>(576, desktop)) > 57);
    }
}

// Nothing is cut off at the edge.
void tst_ShellPictures::ButtonHasARoomyEdge() {
    QFETCH(QByteArray, tag);
    const QImage image = Button(tag, 48);
    for (int at = 0; at < 48; ++at) {
        QCOMPARE(qAlpha(image.pixel(at, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(at, 47)), 0);
        QCOMPARE(qAlpha(image.pixel(0, at)), 0);
        QCOMPARE(qAlpha(image.pixel(47, at)), 0);
    }
}

void tst_ShellPictures::ButtonsDifferInGrey() {
    for (const char* const* one = std::begin(Tags); one != std::end(Tags); ++one) {
        for (const char* const* other = one + 1; other != std::end(Tags); ++other) {
            const int differing =
                Differing(Lightness(Button(*one, 24), 243), Lightness(Button(*other, 24), 243));
            QVERIFY2(differing >= 24, qPrintable(u"%1 and %2: %3"_s.arg(QLatin1String(*one))
                                                     .arg(QLatin1String(*other))
                                                     .arg(differing)));
        }
    }
}

void tst_ShellPictures::EyeMovesWithEachFrame() {
    QImage before;
    for (int frame = 1; frame <= 10; ++frame) {
        const QString name = u"Shell/eye-%1.svg"_s.arg(frame, 2, 10, QChar(u'0'));
        const QImage image = Drawing(name, {24, 16});
        QCOMPARE(image.size(), QSize(24, 16));
        QVERIFY2(image != before, qPrintable(name));
        before = image;
    }
}

void tst_ShellPictures::CursorsHaveTwoSizes() {
    for (const QString& name : {u"cursor-normal"_s, u"cursor-drag"_s}) {
        QCOMPARE(QImage(Images + u"Shell/"_s + name + u".png"_s).size(), QSize(24, 24));
        QCOMPARE(QImage(Images + u"Shell/"_s + name + u"@2x.png"_s).size(), QSize(48, 48));
    }
}

QTEST_MAIN(tst_ShellPictures)
#include "tst_ShellPictures.moc"
