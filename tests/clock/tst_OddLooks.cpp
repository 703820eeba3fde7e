#include <QApplication>
#include <QTest>

#include "ClockDesk.h"

using clockcore::ClockState;

/// Looks that nobody means: each key with a value that it was not made for, in each mode, and
/// windows of any size. The clock goes on, and its file is never touched.
class tst_OddLooks : public QObject {
    Q_OBJECT

    static ClockProperties DefaultLook(const Desk& desk) {
        ClockProperties look;
        mduLib::ReadPropertyFile(desk.Machine.Files, desk.Module.Paths.ZoneDefaultFile(), look);
        return look;
    }

    static void Apply(Desk& desk, frmTempolark* clock, const ClockProperties& look) {
        desk.Module.CurrentProperties = look;
        clock->RefreshForm({});
        clock->Tick();
        clock->Tick();
        clock->FinishMotions();
        QCOMPARE(clock->Data().State, ClockState::Running);
    }

private Q_SLOTS:
    void EveryKeyWithAnOddValue_data() {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("value");
        const std::pair<QString, QString> rows[] = {
            {u"-1"_s, u"Digital"_s},        {u"0"_s, u"Analogue"_s},
            {u"1"_s, u"Calculator"_s},      {u"100000"_s, u"Digital"_s},
            {u"-1e300"_s, u"Calculator"_s}, {u"Unsinn ☃"_s, u"Analogue"_s},
            {u""_s, u"Digital"_s}};
        for (const auto& [value, otherMode] : rows) {
            for (const QString& mode : {otherMode, u"Analogue and Digital"_s}) {
                QTest::newRow(qPrintable(mode + u", "_s + value)) << mode << value;
            }
        }
    }

    void EveryKeyWithAnOddValue() {
        QFETCH(QString, mode);
        QFETCH(QString, value);
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QByteArray before = desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s);
        ClockProperties plain = clock->Data().Properties();
        mduLib::PutProperty(u"Clocks"_s, mode, plain);
        for (int row = 1; row <= plain.UpperBound(); ++row) {
            const QString key = plain[row].Name;
            if (key.isEmpty() || key.startsWith(u"Time Zone "_s) || key == u"Stay Time"_s) {
                continue;  // zone keys are rewritten in the file, and that is another test
            }
            ClockProperties look = plain;
            mduLib::PutProperty(key, value, look);
            Apply(desk, clock, look);
            QVERIFY2(clock->PaintedSurface().ScaleWidth() >= 1, qPrintable(key));
        }
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/UTC.ini"_s), before);
    }

    /// Styles of numbers and hands that are costly at a size without measure.
    void EveryStyleInOddWindows_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("1x1") << QSize(1, 1);
        QTest::newRow("1x400") << QSize(1, 400);
        QTest::newRow("7x3") << QSize(7, 3);
        QTest::newRow("1200x90") << QSize(1200, 90);
        QTest::newRow("4000x4000") << QSize(4000, 4000);
    }

    void EveryStyleInOddWindows() {
        QFETCH(QSize, size);
        Desk desk;
        desk.Area.resize(50, 50);
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const ClockProperties plain = DefaultLook(desk);
        const auto apply = [&](const QString& numbers, const QString& hands, const QString& special,
                               const QString& mode) {
            ClockProperties look = plain;
            const std::pair<QString, QString> values[] = {
                {u"Window Width"_s, QString::number(size.width() * 15)},
                {u"Window Height"_s, QString::number(size.height() * 15)},
                {u"Window Title Bar"_s, u"No"_s},
                {u"Window Border"_s, u"No Border"_s},
                {u"Hour Number Style"_s, numbers},
                {u"Hour Hand Style"_s, hands},
                {u"Minute Hand Style"_s, hands},
                {u"Second Hand Style"_s, hands},
                {u"Clock Special"_s, special},
                {u"Window Shape"_s, u"Octagon"_s},
                {u"Clocks"_s, mode}};
            for (const auto& [key, value] : values) {
                mduLib::PutProperty(key, value, look);
            }
            Apply(desk, clock, look);
        };
        apply(u"True Roman 12"_s, u"3D Metal"_s, u"None"_s, u"Analogue"_s);
        apply(u"3D 12"_s, u"3D Gold Simple"_s, u"Analogue Right Half"_s, u"Analogue and Digital"_s);
        apply(u"Roman 12"_s, u"3D"_s, u"Digital Wave"_s, u"Analogue and Digital"_s);
        apply(u"Number 12"_s, u"Frame"_s, u"Analogue Hour Font Big to Small"_s, u"Analogue"_s);
        apply(u"Number 12"_s, u"Line"_s, u"Digital Vertical"_s, u"Digital"_s);
        apply(u"Number 12"_s, u"Line"_s, u"World Map"_s, u"Calculator"_s);
    }

    void BrokenPicturesAreSkipped_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << u"a.jpg"_s << QByteArray();
        QTest::newRow("text") << u"a.bmp"_s << QByteArray("not a picture at all");
        QTest::newRow("truncated png")
            << u"a.jpg"_s << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
        // A bitmap of 20,000 x 20,000 pixels that ends behind its header.
        QTest::newRow("huge bmp")
            << u"a.bmp"_s
            << QByteArray(
                   "BM\x36\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x20\x4e\0\0\x20\x4e\0\0\1\0\x18\0"
                   "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0",
                   54);
    }

    void BrokenPicturesAreSkipped() {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        Desk desk;
        desk.Machine.WriteFile(u"Images/"_s + name, content);
        frmTempolark* clock = desk.Running(u"UTC"_s);
        for (const QString& key : {u"Clock Image File"_s, u"Window Background File"_s,
                                   u"Minute Spot Image File"_s, u"Flag File"_s}) {
            ClockProperties look = DefaultLook(desk);
            mduLib::PutProperty(key, u".\\Images\\"_s + name, look);
            Apply(desk, clock, look);
            QCOMPARE(clock->PaintedSurface().Image().pixel(1, 1), qRgb(0xF2, 0xF0, 0xEA));
        }
    }

    /// A file that is a folder, or not there at all.
    void MissingPicturesAreSkipped() {
        Desk desk;
        desk.Machine.WriteFile(u"Images/Folder.jpg/inner.txt"_s, "x");
        frmTempolark* clock = desk.Running(u"UTC"_s);
        for (const QString& path : {u".\\Images\\Folder.jpg"_s, u".\\Images\\none.jpg"_s,
                                    u"/dev/zero"_s, u".\\..\\..\\..\\etc\\passwd"_s}) {
            ClockProperties look = DefaultLook(desk);
            mduLib::PutProperty(u"Clock Image File"_s, path, look);
            Apply(desk, clock, look);
            QVERIFY(clock->Controls().imgClock(1).Picture == nullptr);
        }
    }
};

QTEST_MAIN(tst_OddLooks)
#include "tst_OddLooks.moc"
