#include "shell/Placement.h"

#include <QTest>

#include "shell/SettingsDesk.h"

using namespace Qt::StringLiterals;

/// Where the shell's window stands, by numbers. 15 twips are a pixel.
class tst_Placement : public QObject {
    Q_OBJECT

private:
    static void HoldPlace(SettingsDesk& desk, const QString& left, const QString& top,
                          const QString& width, const QString& height) {
        desk.Hold({{u"Window Left"_s, left},
                   {u"Window Top"_s, top},
                   {u"Window Width"_s, width},
                   {u"Window Height"_s, height}});
    }

private Q_SLOTS:
    void BesideAClock_data() {
        QTest::addColumn<QRect>("clock");
        QTest::addColumn<QSize>("window");
        QTest::addColumn<QRect>("place");
        const QSize size(300, 400);  // in a room of 1000 by 600
        QTest::newRow("right") << QRect(100, 50, 200, 200) << size << QRect(300, 50, 300, 400);
        QTest::newRow("just fits") << QRect(500, 50, 200, 200) << size << QRect(700, 50, 300, 400);
        QTest::newRow("left") << QRect(501, 50, 200, 200) << size << QRect(201, 50, 300, 400);
        QTest::newRow("low") << QRect(100, 500, 200, 200) << size << QRect(300, 200, 300, 400);
        QTest::newRow("above") << QRect(100, -50, 200, 200) << size << QRect(300, 0, 300, 400);
        QTest::newRow("over it, right")
            << QRect(200, 0, 550, 500) << size << QRect(700, 0, 300, 400);
        QTest::newRow("over it, left") << QRect(280, 0, 550, 500) << size << QRect(0, 0, 300, 400);
        QTest::newRow("as much on both sides")
            << QRect(225, 0, 550, 500) << size << QRect(700, 0, 300, 400);
        QTest::newRow("too large")
            << QRect(0, 50, 1000, 200) << QSize(1200, 900) << QRect(580, 0, 420, 600);
        QTest::newRow("narrower, right")
            << QRect(100, 50, 200, 200) << QSize(1200, 900) << QRect(300, 0, 700, 600);
        QTest::newRow("narrower, left")
            << QRect(500, 50, 200, 200) << QSize(600, 400) << QRect(0, 50, 500, 400);
        QTest::newRow("no narrower")
            << QRect(375, 200, 250, 175) << QSize(587, 600) << QRect(580, 0, 420, 600);
    }
    void BesideAClock() {
        QFETCH(QRect, clock);
        QFETCH(QSize, window);
        QTEST(shell::PlaceBeside(clock, window, {1000, 600}), "place");
    }

    void Sizes_data() {
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("height");
        QTest::addColumn<QSize>("size");
        QTest::newRow("as they are") << u"6000"_s << u"4500"_s << QSize(400, 300);
        QTest::newRow("half to even") << u"6007.5"_s << u"4522.5"_s << QSize(400, 302);
        QTest::newRow("a quarter") << u"-1"_s << u"0"_s << QSize(250, 200);
        QTest::newRow("larger than the screen") << u"15015"_s << u"12015"_s << QSize(1000, 800);
        QTest::newRow("too small") << u"15"_s << u"15"_s << QSize(200, 150);
    }

    void Sizes() {
        QFETCH(QString, width);
        QFETCH(QString, height);
        SettingsDesk desk;
        HoldPlace(desk, u"0"_s, u"0"_s, width, height);
        QTEST(shell::StoredSize(desk.Settings, {1000, 800}), "size");
    }

    void Corners_data() {
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("top");
        QTest::addColumn<QPoint>("corner");
        QTest::newRow("as they are") << u"150"_s << u"-300"_s << QPoint(10, -20);
        QTest::newRow("in the middle") << u"-1"_s << u"-1"_s << QPoint(410, 330);
        QTest::newRow("in the middle across") << u"-1"_s << u"0"_s << QPoint(410, 0);
        QTest::newRow("nearly -1") << u"-15"_s << u"-1.5"_s << QPoint(-1, 0);
        QTest::newRow("beyond all screens") << u"9e99"_s << u"-9e9"_s << QPoint(100000, -100000);
    }

    void Corners() {
        QFETCH(QString, left);
        QFETCH(QString, top);
        SettingsDesk desk;
        HoldPlace(desk, left, top, u"0"_s, u"0"_s);
        QTEST(shell::StoredCorner(desk.Settings, {10, 30, 1000, 800}, {200, 200}), "corner");
    }

    void States_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        QTest::newRow("normal") << u"Normal"_s << 0;
        QTest::newRow("minimised") << u"Minimized"_s << 1;
        QTest::newRow("maximised") << u"Maximized"_s << 2;
        QTest::newRow("unknown") << u"Huge"_s << 0;
    }

    void States() {
        QFETCH(QString, text);
        SettingsDesk desk;
        desk.Hold({{u"Window State"_s, text}});
        QTEST(shell::StoredWindowState(desk.Settings), "state");
    }

    // A screen of 1000 by 800, and at its right one of 500 by 400 that begins 100 lower.
    void WithinReach_data() {
        QTest::addColumn<QRect>("place");
        QTest::addColumn<QPoint>("corner");
        QTest::newRow("inside") << QRect(10, 20, 300, 200) << QPoint(10, 20);
        QTest::newRow("60 pixels at the left") << QRect(-240, 20, 300, 200) << QPoint(-240, 20);
        QTest::newRow("59 pixels") << QRect(-241, 20, 300, 200) << QPoint(0, 20);
        QTest::newRow("60 pixels below") << QRect(10, 740, 300, 200) << QPoint(10, 740);
        QTest::newRow("59 pixels below") << QRect(10, 741, 300, 200) << QPoint(10, 600);
        QTest::newRow("above") << QRect(10, -1, 300, 200) << QPoint(10, 0);
        QTest::newRow("on the second") << QRect(1200, 100, 300, 200) << QPoint(1200, 100);
        QTest::newRow("above the second") << QRect(1200, 99, 300, 200) << QPoint(700, 99);
        QTest::newRow("larger than the screen") << QRect(-3000, 0, 1200, 900) << QPoint(0, 0);
    }

    void WithinReach() {
        QFETCH(QRect, place);
        const QRect first(0, 0, 1000, 800);
        const QRect reached = shell::WithinReach(place, {first, QRect(1000, 100, 500, 400)}, first);
        QTEST(reached.topLeft(), "corner");
        QCOMPARE(reached.size(), place.size());
    }

    void WhatHasChangedIsPut_data() {
        QTest::addColumn<QRect>("applied");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("numbers");
        const QRect now(10, 20, 300, 200);
        QTest::newRow("nothing") << now << u"1"_s << u"1 2 3 4"_s;
        QTest::newRow("left") << QRect(11, 20, 300, 200) << u"1"_s << u"150 2 3 4"_s;
        QTest::newRow("top") << QRect(10, 21, 300, 200) << u"1"_s << u"1 300 3 4"_s;
        QTest::newRow("width") << QRect(10, 20, 301, 200) << u"1"_s << u"1 2 4500 4"_s;
        QTest::newRow("height") << QRect(10, 20, 300, 201) << u"1"_s << u"1 2 3 3000"_s;
        QTest::newRow("in the middle") << now << u"-1"_s << u"150 2 3 4"_s;
        QTest::newRow("never applied") << QRect() << u"1"_s << u"150 300 4500 3000"_s;
    }

    void WhatHasChangedIsPut() {
        QFETCH(QRect, applied);
        QFETCH(QString, left);
        SettingsDesk desk;
        HoldPlace(desk, left, u"2"_s, u"3"_s, u"4"_s);
        shell::PutPlace(desk.Settings, {10, 20, 300, 200}, applied);
        QTEST(
            (QStringList{
                desk.Settings.Setting(u"Window Left"_s), desk.Settings.Setting(u"Window Top"_s),
                desk.Settings.Setting(u"Window Width"_s), desk.Settings.Setting(u"Window Height"_s)}
                 .join(u' ')),
            "numbers");
    }
};

QTEST_GUILESS_MAIN(tst_Placement)
#include "tst_Placement.moc"
