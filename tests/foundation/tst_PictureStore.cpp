#include <QBuffer>
#include <QImageWriter>
#include <QTest>
#include <QtEndian>

#include "foundation/PictureStore.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using mduUILib::PictureStore;

namespace {

QImage Plain(int width, int height, const QColor& colour) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QByteArray Coded(const QImage& image, const char* kind) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, kind);
    return bytes;
}

QByteArray BigEndian(quint32 value) {
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray LittleEndian(quint32 value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

/// The first bytes of a PNG file of that size: 8 bits of red, green and blue.
QByteArray PngHeader(quint32 width, quint32 height) {
    const QByteArray ihdr = QByteArray("IHDR") + BigEndian(width) + BigEndian(height) +
                            QByteArray::fromHex("0802000000");
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : ihdr) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return QByteArray::fromHex("89504E470D0A1A0A") + BigEndian(13) + ihdr + BigEndian(~crc) +
           BigEndian(0) + "IDAT";
}

/// A bitmap's headers: 24 bits a pixel.
QByteArray BmpHeader(quint32 width, quint32 height) {
    return QByteArray("BM") + LittleEndian(54) + LittleEndian(0) + LittleEndian(54) +
           LittleEndian(40) + LittleEndian(width) + LittleEndian(height) +
           QByteArray::fromHex("01001800") + QByteArray(24, '\0');
}

/// A GIF file of one white pixel, at the corner of a screen of that size.
QByteArray GifOf(quint16 width, quint16 height) {
    QByteArray bytes = QByteArray::fromHex(
        "47494638396101000100800000ffffff0000002c00000000010001000002024401003b");
    qToLittleEndian(width, bytes.data() + 6);
    qToLittleEndian(height, bytes.data() + 8);
    return bytes;
}

/// A real JPEG file whose header is made to tell another size.
QByteArray JpegOf(quint16 width, quint16 height) {
    QByteArray bytes = Coded(Plain(16, 16, Qt::red), "jpg");
    const qsizetype frame = bytes.indexOf(QByteArray::fromHex("FFC00011"));
    Q_ASSERT(frame > 0);
    qToBigEndian(height, bytes.data() + frame + 5);
    qToBigEndian(width, bytes.data() + frame + 7);
    return bytes;
}

}  // namespace

class tst_PictureStore : public QObject {
    Q_OBJECT

    std::unique_ptr<FakeServices> machine_;
    std::unique_ptr<PictureStore> store_;

    std::shared_ptr<const QImage> LoadBytes(const QString& name, const QByteArray& bytes) {
        return store_->Load(machine_->Files, machine_->WriteFile(name, bytes));
    }

private Q_SLOTS:
    void init() {
        machine_ = std::make_unique<FakeServices>();
        store_ = std::make_unique<PictureStore>();
    }

    void Kinds_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        const QImage image = Plain(30, 20, Qt::red);
        QTest::newRow("bmp") << u"a.bmp"_s << Coded(image, "bmp");
        QTest::newRow("png") << u"a.png"_s << Coded(image, "png");
        QTest::newRow("jpg") << u"a.jpg"_s << Coded(image, "jpg");
        QTest::newRow("ico") << u"a.ico"_s << Coded(image, "ico");
        QTest::newRow("png named jpg") << u"b.jpg"_s << Coded(image, "png");
        QTest::newRow("jpg named bmp") << u"b.bmp"_s << Coded(image, "jpg");
        QTest::newRow("bmp named gif") << u"b.gif"_s << Coded(image, "bmp");
        QTest::newRow("no extension") << u"b"_s << Coded(image, "png");
    }

    void Kinds() {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const auto picture = LoadBytes(name, bytes);
        QVERIFY(picture);
        QCOMPARE(picture->size(), QSize(30, 20));
        const QColor colour = picture->pixelColor(15, 10);
        QVERIFY2(colour.red() >= 252 && colour.green() <= 3 && colour.blue() <= 3,
                 qPrintable(colour.name()));
    }

    void Gif() {
        const auto picture = LoadBytes(u"a.gif"_s, GifOf(1, 1));
        QVERIFY(picture);
        QCOMPARE(picture->pixel(0, 0), 0xFFFFFFFF);
    }

    void AGifAsLargeAsItsScreen() {
        const auto picture = LoadBytes(u"a.gif"_s, GifOf(8000, 2000));
        QVERIFY(picture);
        QCOMPARE(picture->size(), QSize(8000, 2000));
    }

    void Forms() {
        QImage glass(4, 4, QImage::Format_ARGB32);
        glass.fill(QColor(255, 0, 0, 128));
        QCOMPARE(LoadBytes(u"glass.png"_s, Coded(glass, "png"))->format(),
                 QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(LoadBytes(
                     u"grey.png"_s,
                     Coded(Plain(4, 4, Qt::gray).convertToFormat(QImage::Format_Grayscale8), "png"))
                     ->format(),
                 QImage::Format_RGB32);
    }

    void NotAPicture_data() {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray png = Coded(Plain(300, 200, Qt::red), "png");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("Clock:Clocks=Analogue\r\n");
        QTest::newRow("html") << QByteArray("<html><body>404</body></html>");
        QTest::newRow("three bytes of a JPEG") << QByteArray::fromHex("FFD8FF");
        QTest::newRow("head of a PNG") << png.left(20);
        QTest::newRow("half a PNG's header") << png.left(33);
        QTest::newRow("PNG with a block beyond its end")
            << png.left(33) + BigEndian(0x7E000025) + "tEXt" + png.mid(33);
        QTest::newRow("PNG without an end") << png.chopped(12);
        QTest::newRow("drawing") << QByteArray(
            "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
            "<rect width='20' height='10' fill='#0000ff'/></svg>");
        QTest::newRow("huge PNG") << PngHeader(20000, 20000);
        QTest::newRow("endless PNG") << PngHeader(0x7FFFFFFF, 1);
        QTest::newRow("wide PNG") << PngHeader(32768, 16);
        QTest::newRow("PNG of no size") << PngHeader(0, 0);
        QTest::newRow("huge BMP") << BmpHeader(20000, 20000);
        QTest::newRow("BMP of less than nothing") << BmpHeader(0xFFFFFF00, 0x80000000);
        QTest::newRow("huge JPEG") << JpegOf(20000, 20000);
        QTest::newRow("long JPEG") << JpegOf(65000, 16);
        QTest::newRow("JPEG of no size") << JpegOf(0, 0);
        QTest::newRow("GIF of a pixel on a huge screen") << GifOf(65'292, 255);
        QTest::newRow("GIF of a pixel on a wide screen") << GifOf(32'768, 1);
        QTest::newRow("head of a GIF") << GifOf(1, 1).left(9);
        QTest::newRow("zeros") << QByteArray(100000, '\0');
    }

    void NotAPicture() {
        QFETCH(QByteArray, bytes);
        QVERIFY(!LoadBytes(u"a.jpg"_s, bytes));
    }

    /// 16.4 million pixels: more than is read of a kind that can't be scaled down on the way.
    void AJpegOfManyPassesIsHeldToLess() {
        QImage grey(4100, 4000, QImage::Format_Grayscale8);
        grey.fill(100);
        const auto coded = [&grey](bool progressive) {
            QByteArray bytes;
            QBuffer buffer(&bytes);
            QImageWriter writer(&buffer, "jpg");
            writer.setProgressiveScanWrite(progressive);
            return writer.write(grey) ? bytes : QByteArray();
        };
        QVERIFY(LoadBytes(u"a.jpg"_s, coded(false)));
        QVERIFY(!LoadBytes(u"b.jpg"_s, coded(true)));
        grey = grey.scaled(400, 300);
        QVERIFY(LoadBytes(u"c.jpg"_s, coded(true)));
    }

    void TooLargeAFile() {
        const QString path = machine_->WriteFile(u"a.bmp"_s, Coded(Plain(2, 2, Qt::red), "bmp"));
        QVERIFY(QFile::resize(path, 64LL * 1024 * 1024 + 1));
        QVERIFY(!store_->Load(machine_->Files, path));
    }

    void BytesBehindAPngDoNoHarm() {
        const QByteArray png = Coded(Plain(30, 20, Qt::red), "png");
        QVERIFY(LoadBytes(u"a.png"_s, png + "more"));
    }

    void NoSuchFile() {
        QVERIFY(!store_->Load(machine_->Files, machine_->AppFolder() + u"/none.jpg"_s));
        QVERIFY(!store_->Load(machine_->Files, machine_->AppFolder()));
        QVERIFY(!store_->Load(machine_->Files, QString()));
    }

    void CannotBeRead() {
        const QString path = machine_->WriteFile(u"a.bmp"_s, Coded(Plain(2, 2, Qt::red), "bmp"));
        machine_->Files.Unreadable += path;
        QVERIFY(!store_->Load(machine_->Files, path));
    }

    void ATruncatedJpegDoesNoHarm() {
        const QByteArray whole = Coded(Plain(800, 800, Qt::red), "jpg");
        const auto picture = LoadBytes(u"a.jpg"_s, whole.left(whole.size() / 2));
        QVERIFY(!picture || picture->size() == QSize(800, 800));
    }

    void LargeJpegComesScaledDown() {
        const auto picture = LoadBytes(u"a.jpg"_s, Coded(Plain(6000, 1500, Qt::red), "jpg"));
        QVERIFY(picture);
        QCOMPARE(picture->size(), QSize(4000, 1000));
    }

    void SharedByAllWhoLoadIt() {
        const QString path = machine_->WriteFile(u"a.png"_s, Coded(Plain(9, 9, Qt::red), "png"));
        const auto first = store_->Load(machine_->Files, path);
        QCOMPARE(store_->Load(machine_->Files, path).get(), first.get());
        const auto small = store_->Scaled(first, QSize(5, 5), 50);
        QCOMPARE(store_->Scaled(first, QSize(5, 5), 50).get(), small.get());
        QVERIFY(store_->Scaled(first, QSize(5, 6), 50) != small);
        QVERIFY(store_->Scaled(first, QSize(5, 5), 51) != small);
    }

    void GoneWithItsLastUser() {
        const QString path = machine_->WriteFile(u"a.png"_s, Coded(Plain(9, 9, Qt::red), "png"));
        auto picture = store_->Load(machine_->Files, path);
        const std::weak_ptr<const QImage> held = picture;
        auto scaled = store_->Scaled(picture, QSize(3, 3));
        const std::weak_ptr<const QImage> heldScaled = scaled;
        picture.reset();
        scaled.reset();
        QVERIFY(held.expired());
        QVERIFY(heldScaled.expired());
    }

    void ReadAnewWhenTheFileChanges() {
        const QString path = machine_->WriteFile(u"a.bmp"_s, Coded(Plain(4, 4, Qt::red), "bmp"));
        const auto first = store_->Load(machine_->Files, path);
        machine_->WriteFile(u"a.bmp"_s, Coded(Plain(4, 4, Qt::blue), "bmp"));
        machine_->SetAge(u"a.bmp"_s, 100);
        const auto second = store_->Load(machine_->Files, path);
        QCOMPARE(first->pixel(0, 0), 0xFFFF0000);
        QCOMPARE(second->pixel(0, 0), 0xFF0000FF);
    }

    void ABrokenFileIsTriedOnce() {
        const QByteArray good = Coded(Plain(4, 4, Qt::red), "bmp");
        const QString path = machine_->WriteFile(u"a.bmp"_s, QByteArray(good.size(), 'x'));
        machine_->SetAge(u"a.bmp"_s, 100);
        QVERIFY(!store_->Load(machine_->Files, path));
        machine_->WriteFile(u"a.bmp"_s, good);
        machine_->SetAge(u"a.bmp"_s, 100);
        QVERIFY(!store_->Load(machine_->Files, path));  // looks the same from outside
        machine_->SetAge(u"a.bmp"_s, 50);
        QVERIFY(store_->Load(machine_->Files, path));
    }

    void Brightness_data() {
        QTest::addColumn<int>("percent");
        QTest::addColumn<QRgb>("colour");
        QTest::newRow("as it is") << 100 << 0xFF6432C8;
        QTest::newRow("half") << 50 << 0xFF321964;
        QTest::newRow("double, clamped") << 200 << 0xFFC864FF;
        QTest::newRow("most") << 400 << 0xFFFFC8FF;
        QTest::newRow("above the most") << 100000 << 0xFFFFC8FF;
        QTest::newRow("missing key") << 0 << 0xFF6432C8;
        QTest::newRow("negative") << -1 << 0xFF6432C8;
        QTest::newRow("one") << 1 << 0xFF010102;
    }

    void Brightness() {
        QFETCH(int, percent);
        const auto picture = std::make_shared<const QImage>(Plain(2, 2, QColor(100, 50, 200)));
        QTEST(store_->Scaled(picture, QSize(2, 2), percent)->pixel(1, 1), "colour");
    }

    void BrightGlassStaysGlass() {
        QImage glass(2, 2, QImage::Format_ARGB32_Premultiplied);
        glass.fill(qRgba(100, 50, 0, 128));
        const auto lit = store_->Scaled(std::make_shared<const QImage>(glass), QSize(2, 2), 200);
        const QRgb pixel = reinterpret_cast<const QRgb*>(lit->constScanLine(0))[0];
        QCOMPARE(pixel, qRgba(128, 100, 0, 128));
    }

    void SmoothlyScaled() {
        QImage halves = Plain(200, 2, Qt::black);
        for (int x = 1; x < 200; x += 2) {
            halves.setPixel(x, 0, 0xFFFFFFFF);
            halves.setPixel(x, 1, 0xFFFFFFFF);
        }
        const auto small =
            store_->Scaled(std::make_shared<const QImage>(halves), QSize(10, 1), 100);
        const int grey = qRed(small->pixel(5, 0));
        QVERIFY2(grey > 110 && grey < 145, qPrintable(QString::number(grey)));
    }

    void OddSizes_data() {
        QTest::addColumn<QSize>("asked");
        QTest::addColumn<QSize>("given");
        QTest::newRow("nothing") << QSize(0, 0) << QSize(1, 1);
        QTest::newRow("negative") << QSize(-5, 10) << QSize(1, 10);
        QTest::newRow("too long") << QSize(100000, 1) << QSize(16000, 1);
        QTest::newRow("too much") << QSize(16000, 16000) << QSize(8000, 8000);
    }

    void OddSizes() {
        QFETCH(QSize, asked);
        const auto picture = std::make_shared<const QImage>(Plain(2, 2, Qt::red));
        QTEST(store_->Scaled(picture, asked)->size(), "given");
    }

    void NothingScaledIsNothing() { QVERIFY(!store_->Scaled(nullptr, QSize(5, 5))); }
};

QTEST_GUILESS_MAIN(tst_PictureStore)
#include "tst_PictureStore.moc"
