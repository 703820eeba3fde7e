#include <QTest>

#include "clock/WindowPlaces.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using clockcore::FreePlace;
using clockcore::InView;
using clockcore::Room;
using clockcore::StoredPlace;
using Places = std::vector<QRect>;

namespace {

/// An area of 800 by 600 on a screen of 1000 by 900, with title bars of 20.
Room RoomWith(Places others = {}, const QPoint& scrolled = {}) {
    return {{scrolled, QSize(800, 600)}, {1000, 900}, std::move(others), 20};
}

/// A quarter of the area, in its middle.
const QRect Middle(300, 225, 200, 150);

/// All places that a second, third, ... window of that size finds beside the first.
Places FillUp(std::size_t count) {
    Places taken;
    while (taken.size() < count) {
        taken.push_back(FreePlace(Middle, RoomWith(taken)));
    }
    return taken;
}

}  // namespace

class tst_WindowPlaces : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Stored_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<double>("coordinate");  // -1: none
        QTest::addColumn<double>("extent");
        QTest::newRow("plain") << u"3000"_s << 3000.0 << 3000.0;
        QTest::newRow("fraction") << u"1500.5"_s << 1500.5 << 1500.5;
        QTest::newRow("automatic") << u"-1"_s << -1.0 << -1.0;
        QTest::newRow("nothing") << QString() << 0.0 << -1.0;
        QTest::newRow("zero") << u"0"_s << 0.0 << -1.0;
        QTest::newRow("below") << u"-3000"_s << -3000.0 << -1.0;
        QTest::newRow("a word") << u"tall"_s << 0.0 << -1.0;
        QTest::newRow("ten pixels") << u"150"_s << 150.0 << 150.0;
        QTest::newRow("less") << u"149"_s << 149.0 << -1.0;
    }
    void Stored() {
        QFETCH(QString, value);
        QFETCH(double, coordinate);
        QFETCH(double, extent);
        for (const QString& key :
             {u"Window Top"_s, u"Window Left"_s, u"Window Width"_s, u"Window Height"_s}) {
            ClockProperties properties;
            mduLib::PutProperty(key, value, properties);
            const StoredPlace place = clockcore::ReadStoredPlace(properties);
            if (key == u"Window Top"_s) {
                QCOMPARE(place.Top.value_or(-1), coordinate);
            } else if (key == u"Window Left"_s) {
                QCOMPARE(place.Left.value_or(-1), coordinate);
            } else if (key == u"Window Width"_s) {
                QCOMPARE(place.Width.value_or(-1), extent);
            } else {
                QCOMPARE(place.Height.value_or(-1), extent);
            }
        }
    }

    void MissingKeys() {
        const StoredPlace place = clockcore::ReadStoredPlace({});
        QCOMPARE(place, (StoredPlace{0.0, 0.0, std::nullopt, std::nullopt}));
    }

    void BroughtIntoView_data() {
        QTest::addColumn<QRect>("place");
        QTest::addColumn<QRect>("seen");
        const auto row = [](const char* name, const QRect& place, const QRect& seen) {
            QTest::newRow(name) << place << seen;
        };
        row("inside", {10, 20, 200, 150}, {10, 20, 200, 150});
        row("a grip at the right", {760, 20, 200, 150}, {760, 20, 200, 150});
        row("less than a grip", {761, 20, 200, 150}, {600, 20, 200, 150});
        row("a grip at the left", {-160, 20, 200, 150}, {-160, 20, 200, 150});
        row("less at the left", {-161, 20, 200, 150}, {0, 20, 200, 150});
        row("a grip at the bottom", {10, 560, 200, 150}, {10, 560, 200, 150});
        row("less at the bottom", {10, 561, 200, 150}, {10, 450, 200, 150});
        row("title bar above", {10, -1, 200, 150}, {10, 0, 200, 150});
        row("far off", {9000, 8000, 200, 150}, {600, 450, 200, 150});
        row("far off the other way", {-9000, -8000, 200, 150}, {0, 0, 200, 150});
        row("small, at the edge", {780, 0, 20, 15}, {780, 0, 20, 15});
        row("small, half outside", {790, 0, 20, 15}, {780, 0, 20, 15});
        row("larger than the area", {900, 700, 850, 650}, {0, 0, 850, 650});
        row("larger than the screen", {10, 20, 16000, 16000}, {10, 20, 1000, 900});
        row("both", {-5000, -5000, 16000, 10}, {0, 0, 1000, 10});
    }
    void BroughtIntoView() {
        QFETCH(QRect, place);
        QTEST(InView(place, RoomWith()), "seen");
    }

    void ViewThatIsScrolled() {
        QCOMPARE(InView({0, 0, 200, 150}, RoomWith({}, {500, 300})), QRect(500, 300, 200, 150));
        QCOMPARE(InView({1000, 700, 200, 150}, RoomWith({}, {500, 300})),
                 QRect(1000, 700, 200, 150));
    }

    // A step beyond the far edges goes on at the near ones: 620 - 601, 470 - 451.
    void TwoBroughtToOneCornerDoNotCoverEachOther() {
        QCOMPARE(InView({900, 700, 200, 150}, RoomWith({{600, 450, 200, 150}})),
                 QRect(19, 19, 200, 150));
        QCOMPARE(InView({600, 450, 200, 150}, RoomWith({{600, 450, 200, 150}})),
                 QRect(600, 450, 200, 150));
    }

    void NextFreePlaces() {
        QCOMPARE(FillUp(9), (Places{{300, 225, 200, 150},
                                    {500, 225, 200, 150},
                                    {100, 225, 200, 150},
                                    {300, 375, 200, 150},
                                    {300, 75, 200, 150},
                                    {500, 375, 200, 150},
                                    {100, 375, 200, 150},
                                    {500, 75, 200, 150},
                                    {100, 75, 200, 150}}));
    }

    void ThenByTitleBars() {
        const Places places = FillUp(12);
        QCOMPARE(places[9], QRect(320, 245, 200, 150));
        QCOMPARE(places[10], QRect(340, 265, 200, 150));
        QCOMPARE(places[11], QRect(360, 285, 200, 150));
    }

    void AGapIsFound() {
        Places taken = FillUp(9);
        taken.erase(taken.begin() + 6);
        QCOMPARE(FreePlace(Middle, RoomWith(taken)), QRect(100, 375, 200, 150));
        // One that was moved leaves a gap of half a window more.
        QCOMPARE(FreePlace(Middle, RoomWith({{200, 225, 200, 150}})), QRect(400, 225, 200, 150));
    }

    // 21 by 21 corners; of the steps (30, 30), (50, 50), ... behind them the tenth is far enough.
    void HardlyAnyRoom() {
        Room room = RoomWith({{10, 10, 200, 150}});
        room.View = {0, 0, 220, 170};
        QCOMPARE(FreePlace({10, 10, 200, 150}, room), QRect(0, 0, 200, 150));
    }

    // Windows that are as large as the view leave it by a title bar each, but for a grip.
    void WindowsAsLargeAsTheView() {
        Room room = RoomWith({{0, 0, 300, 300}});
        room.View = {0, 0, 100, 100};
        QCOMPARE(FreePlace({0, 0, 300, 300}, room), QRect(20, 20, 300, 300));
        room.Others.push_back({20, 20, 300, 300});
        QCOMPARE(FreePlace({0, 0, 300, 300}, room), QRect(40, 40, 300, 300));
        room.Others.push_back({40, 40, 300, 300});
        QCOMPARE(FreePlace({0, 0, 300, 300}, room), QRect(60, 60, 300, 300));
        QCOMPARE(InView({-5000, 0, 300, 300}, room), QRect(60, 60, 300, 300));
    }

    void ALargeWindowBeginsInView_data() {
        QTest::addColumn<QRect>("wanted");
        QTest::addColumn<QRect>("found");
        QTest::newRow("beyond the right") << QRect(300, 225, 700, 200) << QRect(100, 225, 700, 200);
        QTest::newRow("beyond the bottom")
            << QRect(300, 225, 200, 500) << QRect(300, 100, 200, 500);
        QTest::newRow("larger") << QRect(300, 225, 900, 700) << QRect(0, 0, 900, 700);
    }
    void ALargeWindowBeginsInView() {
        QFETCH(QRect, wanted);
        QTEST(FreePlace(wanted, RoomWith()), "found");
    }

    void FreePlacesOfAScrolledView() {
        const Room room = RoomWith({{800, 525, 200, 150}}, {500, 300});
        QCOMPARE(FreePlace({800, 525, 200, 150}, room), QRect(1000, 525, 200, 150));
    }
};

QTEST_APPLESS_MAIN(tst_WindowPlaces)
#include "tst_WindowPlaces.moc"
