#include <QPainter>
#include <QTest>
#include <cmath>

#include "drawing/StockPictures.h"

using drawing::GetStockPicture;
using drawing::StockPicture;

Q_DECLARE_METATYPE(drawing::StockPicture)

namespace {

/// The picture at a size, on a ground of one colour.
QImage Shown(StockPicture picture, int side, const QColor& ground) {
    QImage shown(side, side, QImage::Format_RGB32);
    shown.fill(ground);
    QPainter(&shown).drawImage(0, 0,
                               GetStockPicture(picture)->scaled(side, side, Qt::IgnoreAspectRatio,
                                                                Qt::SmoothTransformation));
    return shown;
}

/// How far the brightness of a picture's pixels lies apart, of 255.
int Contrast(const QImage& image) {
    int least = 255;
    int most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int grey = qGray(image.pixel(x, y));
            least = qMin(least, grey);
            most = qMax(most, grey);
        }
    }
    return most - least;
}

/// How much of a picture is covered, and by how much of red, green and blue: each 0 to 1000 for the
/// whole square.
struct Weight {
    double Alpha = 0, Red = 0, Green = 0, Blue = 0;

    explicit Weight(const QImage& image) {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                const double part = qAlpha(pixel) / 255.0;
                Alpha += part;
                Red += part * qRed(pixel) / 255;
                Green += part * qGreen(pixel) / 255;
                Blue += part * qBlue(pixel) / 255;
            }
        }
        const double whole = static_cast<double>(image.width()) * image.height() / 1000;
        Alpha /= whole;
        Red /= whole;
        Green /= whole;
        Blue /= whole;
    }

    QString Text() const {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(Alpha, 0, 'f', 1)
            .arg(Red, 0, 'f', 1)
            .arg(Green, 0, 'f', 1)
            .arg(Blue, 0, 'f', 1);
    }
    bool IsNear(double alpha, double red, double green, double blue) const {
        constexpr double hair = 0.25;
        return std::abs(Alpha - alpha) < hair && std::abs(Red - red) < hair &&
               std::abs(Green - green) < hair && std::abs(Blue - blue) < hair;
    }
};

/// Where the middle of all that is covered lies, and those of red, green and blue.
struct Balance {
    QPointF Alpha, Red, Green, Blue;

    explicit Balance(const QImage& image) {
        Alpha = Middle(image, [](QRgb pixel) { return qAlpha(pixel); });
        Red = Middle(image, [](QRgb pixel) { return qRed(pixel) * qAlpha(pixel); });
        Green = Middle(image, [](QRgb pixel) { return qGreen(pixel) * qAlpha(pixel); });
        Blue = Middle(image, [](QRgb pixel) { return qBlue(pixel) * qAlpha(pixel); });
    }

    template <typename WeightOf>
    static QPointF Middle(const QImage& image, WeightOf weightOf) {
        QPointF sum;
        double whole = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const double weight = weightOf(image.pixel(x, y));
                sum += QPointF(x, y) * weight;
                whole += weight;
            }
        }
        return sum / whole;
    }

    QString Text() const {
        QStringList texts;
        for (const QPointF& middle : {Alpha, Red, Green, Blue}) {
            texts +=
                QStringLiteral("{%1, %2}").arg(middle.x(), 0, 'f', 2).arg(middle.y(), 0, 'f', 2);
        }
        return texts.join(QStringLiteral(", "));
    }
    bool IsNear(const QList<QPointF>& middles) const {
        constexpr double hair = 0.1;  // pixels
        const QList<QPointF> own = {Alpha, Red, Green, Blue};
        return std::equal(own.begin(), own.end(), middles.begin(), middles.end(),
                          [](const QPointF& a, const QPointF& b) {
                              return std::abs(a.x() - b.x()) < hair &&
                                     std::abs(a.y() - b.y()) < hair;
                          });
    }
};

}  // namespace

class tst_StockPictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachIsThere_data() {
        QTest::addColumn<StockPicture>("picture");
        QTest::newRow("idle") << StockPicture::SpeakerIdle;
        QTest::newRow("muted") << StockPicture::SpeakerMuted;
        QTest::newRow("talking") << StockPicture::SpeakerTalking;
        QTest::newRow("right spot") << StockPicture::SpotRight;
        QTest::newRow("left spot") << StockPicture::SpotLeft;
        QTest::newRow("timer") << StockPicture::TimerMark;
        QTest::newRow("action") << StockPicture::Action;
        QTest::newRow("action speaking") << StockPicture::ActionSpeaking;
        QTest::newRow("sun") << StockPicture::Sun;
        QTest::newRow("moon") << StockPicture::Moon;
        QTest::newRow("handle") << StockPicture::Handle;
        QTest::newRow("clock") << StockPicture::Clock;
    }
    void EachIsThere() {
        QFETCH(StockPicture, picture);
        const auto image = GetStockPicture(picture);
        QVERIFY(image);
        QCOMPARE(image->size(), QSize(256, 256));
        QCOMPARE(image->format(), QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(qAlpha(image->pixel(1, 1)), 0);
        QCOMPARE(qAlpha(image->pixel(254, 254)), 0);
    }

    void EachReadsOnAnyGround_data() { EachIsThere_data(); }
    void EachReadsOnAnyGround() {
        QFETCH(StockPicture, picture);
        QVERIFY(Contrast(Shown(picture, 16, Qt::white)) > 60);
        QVERIFY(Contrast(Shown(picture, 16, QColor(128, 128, 128))) > 60);
        QVERIFY(Contrast(Shown(picture, 16, Qt::black)) > 120);
    }

    /// As they were when they were looked at and found good: a stroke that grows by a tenth shows.
    /// Which file draws which: StockPicturesSky the sun and the moon, StockPicturesSpeaker the
    /// speaker, StockPicturesTimers the bell and the action, StockPicturesMarks all else.
    void Weights_data() {
        QTest::addColumn<StockPicture>("picture");
        QTest::addColumn<QList<double>>("weight");
        using Row = QList<double>;
        QTest::newRow("idle") << StockPicture::SpeakerIdle << Row{368.7, 181.7, 199.7, 227.8};
        QTest::newRow("muted") << StockPicture::SpeakerMuted << Row{360.4, 205.9, 175.2, 189.3};
        QTest::newRow("talking") << StockPicture::SpeakerTalking << Row{486.9, 226.9, 291.3, 355.2};
        QTest::newRow("right spot") << StockPicture::SpotRight << Row{715.4, 236.2, 271.6, 327.9};
        QTest::newRow("left spot") << StockPicture::SpotLeft << Row{715.4, 297.9, 326.3, 361.5};
        QTest::newRow("timer") << StockPicture::TimerMark << Row{546.6, 443.9, 333.1, 144.9};
        QTest::newRow("action") << StockPicture::Action << Row{655.9, 488.9, 248.9, 225.9};
        QTest::newRow("action speaking")
            << StockPicture::ActionSpeaking << Row{519.0, 333.6, 250.3, 274.1};
        QTest::newRow("sun") << StockPicture::Sun << Row{286.1, 230.1, 165.7, 46.6};
        QTest::newRow("moon") << StockPicture::Moon << Row{291.7, 191.0, 177.3, 136.8};
        QTest::newRow("handle") << StockPicture::Handle << Row{433.2, 187.3, 207.3, 239.3};
        QTest::newRow("clock") << StockPicture::Clock << Row{745.2, 497.8, 509.8, 538.6};
    }
    void Weights() {
        QFETCH(StockPicture, picture);
        QFETCH(QList<double>, weight);
        const Weight found(*GetStockPicture(picture));
        QVERIFY2(found.IsNear(weight[0], weight[1], weight[2], weight[3]),
                 qPrintable(found.Text()));
    }

    void Balances_data() {
        QTest::addColumn<StockPicture>("picture");
        QTest::addColumn<QList<QPointF>>("centres");
        using Row = QList<QPointF>;
        QTest::newRow("idle") << StockPicture::SpeakerIdle
                              << Row{{107.39, 127.50},
                                     {117.73, 127.14},
                                     {116.52, 127.12},
                                     {114.69, 127.11}};
        QTest::newRow("muted") << StockPicture::SpeakerMuted
                               << Row{{114.12, 127.50},
                                      {135.37, 127.19},
                                      {118.74, 127.07},
                                      {112.16, 127.03}};
        QTest::newRow("talking") << StockPicture::SpeakerTalking
                                 << Row{{133.34, 127.50},
                                        {139.64, 127.22},
                                        {145.91, 127.24},
                                        {147.39, 127.25}};
        QTest::newRow("right spot")
            << StockPicture::SpotRight
            << Row{{127.50, 127.50}, {121.77, 121.03}, {122.41, 121.76}, {123.28, 122.74}};
        QTest::newRow("left spot")
            << StockPicture::SpotLeft
            << Row{{127.50, 127.50}, {122.97, 122.39}, {123.42, 122.90}, {123.92, 123.47}};
        QTest::newRow("timer") << StockPicture::TimerMark
                               << Row{{127.52, 132.03},
                                      {126.15, 130.34},
                                      {124.34, 129.08},
                                      {120.69, 127.55}};
        QTest::newRow("action") << StockPicture::Action
                                << Row{{127.50, 127.50},
                                       {126.37, 126.29},
                                       {126.02, 125.40},
                                       {126.16, 125.44}};
        QTest::newRow("action speaking")
            << StockPicture::ActionSpeaking
            << Row{{127.50, 127.50}, {126.88, 126.82}, {126.95, 126.64}, {127.08, 126.79}};
        QTest::newRow("sun") << StockPicture::Sun
                             << Row{{127.50, 127.50},
                                    {127.44, 127.43},
                                    {126.99, 126.92},
                                    {124.47, 124.03}};
        QTest::newRow("moon") << StockPicture::Moon
                              << Row{{101.44, 144.52},
                                     {91.54, 148.80},
                                     {90.94, 147.82},
                                     {89.27, 144.38}};
        QTest::newRow("handle") << StockPicture::Handle
                                << Row{{127.50, 127.50},
                                       {127.50, 127.49},
                                       {127.50, 127.49},
                                       {127.50, 127.49}};
        QTest::newRow("clock") << StockPicture::Clock
                               << Row{{127.50, 127.50},
                                      {126.82, 128.46},
                                      {127.04, 127.82},
                                      {127.17, 127.57}};
    }
    /// As they were when they were looked at and found good: a part that is moved by a unit shows.
    void Balances() {
        QFETCH(StockPicture, picture);
        QFETCH(QList<QPointF>, centres);
        const Balance found(*GetStockPicture(picture));
        QVERIFY2(found.IsNear(centres), qPrintable(found.Text()));
    }

    void EachIsDrawnOnce() {
        QCOMPARE(GetStockPicture(StockPicture::Sun), GetStockPicture(StockPicture::Sun));
    }

    void UnknownNumberHasNone() { QVERIFY(!GetStockPicture(static_cast<StockPicture>(99))); }

    void NumbersOfTheImageList() {
        QCOMPARE(static_cast<int>(StockPicture::SpeakerIdle), 3);
        QCOMPARE(static_cast<int>(StockPicture::SpeakerMuted), 4);
        QCOMPARE(static_cast<int>(StockPicture::SpeakerTalking), 5);
    }

    void NoTwoAreAlike() {
        QVERIFY(*GetStockPicture(StockPicture::SpotRight) !=
                *GetStockPicture(StockPicture::SpotLeft));
        QVERIFY(*GetStockPicture(StockPicture::SpeakerIdle) !=
                *GetStockPicture(StockPicture::SpeakerMuted));
        QVERIFY(*GetStockPicture(StockPicture::SpeakerIdle) !=
                *GetStockPicture(StockPicture::SpeakerTalking));
    }

    void TimerMarkOfTwelvePixelsIsAnAmberBell() {
        for (const QColor ground : {QColor(Qt::white), QColor(Qt::black)}) {
            const QRgb body = Shown(StockPicture::TimerMark, 12, ground).pixel(5, 5);
            QVERIFY(qRed(body) > 200 && qGreen(body) > 130 && qBlue(body) < 120);
        }
        // Narrow above, broad below.
        const auto bell = GetStockPicture(StockPicture::TimerMark);
        QCOMPARE(qAlpha(bell->pixel(32, 64)), 0);
        QCOMPARE(qAlpha(bell->pixel(32, 184)), 255);
    }

    void OnlyTheSpeakingActionHasBlueWaves() {
        const auto blueAt = [](StockPicture picture, int x) {
            const QRgb pixel = GetStockPicture(picture)->pixel(x, 128);
            return qBlue(pixel) > 200 && qRed(pixel) < 60;
        };
        QVERIFY(blueAt(StockPicture::ActionSpeaking, 238));
        QVERIFY(blueAt(StockPicture::ActionSpeaking, 18));
        QVERIFY(!blueAt(StockPicture::Action, 238));
        QVERIFY(!blueAt(StockPicture::Action, 18));
    }

    void SpotIsLitFromTheUpperLeft() {
        const auto spot = GetStockPicture(StockPicture::SpotRight);
        QVERIFY(qGray(spot->pixel(90, 84)) > qGray(spot->pixel(168, 172)) + 100);
        // The rim is lighter than the body beside it.
        QVERIFY(qGray(spot->pixel(128, 244)) > qGray(spot->pixel(128, 230)) + 100);
    }

    void SpotOfFourPixelsIsSeen() {
        QVERIFY(qGray(Shown(StockPicture::SpotRight, 4, Qt::white).pixel(2, 2)) < 100);
        QVERIFY(qGray(Shown(StockPicture::SpotRight, 4, Qt::black).pixel(1, 1)) > 60);
    }

    void OnlyTheMutedSpeakerIsCrossedInRed() {
        const auto redAt = [](StockPicture picture) {
            const QRgb pixel = GetStockPicture(picture)->pixel(187, 128);  // middle of the cross
            return qRed(pixel) > 150 && qBlue(pixel) < 100;
        };
        QVERIFY(redAt(StockPicture::SpeakerMuted));
        QVERIFY(!redAt(StockPicture::SpeakerIdle));
        QVERIFY(!redAt(StockPicture::SpeakerTalking));
    }
};

QTEST_GUILESS_MAIN(tst_StockPictures)
#include "tst_StockPictures.moc"
