#include "clock/HiddenParts.h"

#include <QTest>

#include "clock/MenuClicks.h"
#include "foundation/MenuLists.h"

using namespace Qt::StringLiterals;
using clockcore::ClockData;
using clockcore::ClockKind;
using clockcore::ClockPart;
using clockcore::HiddenParts;
using clockcore::Redraw;
using clockcore::ShowableParts;
using clockcore::WayBack;
using clockcore::WaysBack;

namespace {

constexpr ShowableParts All{.Speaker = true, .Flag = true};

void Put(ClockProperties& properties, const QString& key, const QString& value) {
    mduLib::PutProperty(key, value, properties);
}

/// The values that come with the system.
ClockProperties Defaults() {
    ClockProperties properties;
    mduLib::ReadPropertyFile(platform::LocalFiles(),
                             QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/Tempolark.ini"),
                             properties);
    return properties;
}

ClockData DataOf(ClockKind kind) {
    ClockData data;
    data.EditProperties() = Defaults();
    data.Tag.Kind = kind;
    return data;
}

}  // namespace

/// Which parts of a clock are hidden, and what shows them again.
class tst_HiddenParts : public QObject {
    Q_OBJECT

    /// Whether a part of a clock can be clicked.
    static bool CanBeClicked(const frmTempolark& clock, clockcore::ClockPart part) {
        for (int index = 1; index <= 60; ++index) {
            if (!PlaceOfPart(clock.Data(), clock.Controls(), clock.size(), {part, index})
                     .isEmpty()) {
                return true;
            }
        }
        return false;
    }
    /// Opens the menu of the clock. @return what it offers to show
    static QStringList Offered(frmTempolark& clock) {
        QTest::mouseClick(clock.window()->windowHandle(), Qt::RightButton, {},
                          clock.mapTo(clock.window(), QPoint(60, 4)));
        const QAction* entry = ClickedDesk::Entry(*ClickedDesk::OpenMenu(), u"Show Hidden Part"_s);
        return entry == nullptr ? QStringList() : ClickedDesk::Captions(*entry->menu());
    }

private Q_SLOTS:
    void NothingIsHiddenToBeginWith() {
        for (const ClockKind kind : {ClockKind::Analogue, ClockKind::Digital, ClockKind::Calculator,
                                     ClockKind::AnalogueAndDigital, ClockKind::None}) {
            QCOMPARE(HiddenParts(DataOf(kind), All), QStringList());
        }
    }

    void Hides_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("part");
        const auto row = [](const QString& key, const QString& value, const QString& part) {
            QTest::newRow(qPrintable(key + u' ' + value)) << key << value << part;
        };
        row(u"Speaker"_s, u"no "_s, u"Speaker"_s);
        row(u"Speaker"_s, u"0"_s, {});
        row(u"Flag Position"_s, u"Icon"_s, u"Flag"_s);
        row(u"Flag Position"_s, {}, {});
        row(u"Time Zone Label Size"_s, u"0"_s, u"Zone Name"_s);
        row(u"Time Zone Label Size"_s, u"large"_s, u"Zone Name"_s);
        row(u"Time Zone Label Size"_s, u"-2"_s, {});
        row(u"Time Zone Label Size"_s, u"0.5"_s, {});
        row(u"Hour Number Style"_s, u"no numbers"_s, u"Hour Numbers"_s);
        row(u"Hour Number Style"_s, u"Roman"_s, u"Hour Numbers"_s);
        row(u"Hour Number Style"_s, u"True Roman Vertical 2"_s, {});
        row(u"Hour Number Style"_s, u"Number Horizontal 2"_s, {});
        row(u"Hour Number Style"_s, u"Number Vertical 2"_s, {});
        row(u"Hour Number Size"_s, u"0"_s, u"Hour Numbers"_s);
        row(u"Hour Number Size"_s, u"-2"_s, u"Hour Numbers"_s);
        row(u"Hour Number Size"_s, u"1"_s, {});
        row(u"Minute Spot Style"_s, u"No Spots"_s, u"Minute Spots"_s);
        row(u"Minute Spot Style"_s, u"Dots"_s, u"Minute Spots"_s);
        row(u"Minute Spot Style"_s, u"Vertical 2"_s, {});
        row(u"Minute Spot Size"_s, u"0"_s, u"Minute Spots"_s);
        row(u"Minute Spot Size"_s, u"-3"_s, u"Minute Spots"_s);
        row(u"Minute Spot Size"_s, u"1"_s, {});
    }
    void Hides() {
        QFETCH(QString, key);
        QFETCH(QString, value);
        ClockData data = DataOf(ClockKind::Analogue);
        Put(data.EditProperties(), key, value);
        QTEST(HiddenParts(data, All).join(u'|'), "part");
    }

    void OnlyWhatAClockHas_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<QString>("parts");
        QTest::newRow("analogue") << ClockKind::Analogue
                                  << u"Speaker|Flag|Zone Name|Hour Numbers|Minute Spots"_s;
        QTest::newRow("digital") << ClockKind::Digital << u"Speaker|Flag|Zone Name"_s;
        QTest::newRow("calculator") << ClockKind::Calculator << u"Speaker|Flag"_s;
        QTest::newRow("both") << ClockKind::AnalogueAndDigital
                              << u"Speaker|Flag|Hour Numbers|Minute Spots"_s;
    }
    void OnlyWhatAClockHas() {
        QFETCH(ClockKind, kind);
        ClockData data = DataOf(kind);
        ClockProperties& properties = data.EditProperties();
        Put(properties, u"Speaker"_s, u"No"_s);
        Put(properties, u"Flag Position"_s, u"Icon"_s);
        Put(properties, u"Time Zone Label Size"_s, u"0"_s);
        Put(properties, u"Hour Number Style"_s, u"No Numbers"_s);
        Put(properties, u"Minute Spot Style"_s, u"No Spots"_s);
        Put(properties, u"Minute Spot Size"_s, u"0"_s);
        QTEST(HiddenParts(data, All).join(u'|'), "parts");
        QVERIFY(!HiddenParts(data, {.Flag = true}).contains(u"Speaker"_s));
        QVERIFY(!HiddenParts(data, {.Speaker = true}).contains(u"Flag"_s));
        data.Tag.IsWrapper = true;
        QCOMPARE(HiddenParts(data, All), QStringList());
    }

    /// Their size is not that of the property.
    void PaintedAndSpecialNumbersAreSeen() {
        ClockData data = DataOf(ClockKind::Analogue);
        ClockProperties& properties = data.EditProperties();
        Put(properties, u"Hour Number Size"_s, u"0"_s);
        QCOMPARE(HiddenParts(data, All), QStringList(u"Hour Numbers"_s));
        Put(properties, u"Hour Number Style"_s, u"3D 12"_s);
        QCOMPARE(HiddenParts(data, All), QStringList());
        Put(properties, u"Hour Number Style"_s, u"Number 12"_s);
        Put(properties, u"Clock Special"_s, u"Analogue Hour Font Even"_s);
        QCOMPARE(HiddenParts(data, All), QStringList());
    }

    void TheDefaultFileShowsAPart() {
        ClockProperties present = Defaults();
        ClockProperties defaults = Defaults();
        Put(present, u"Flag Position"_s, u"Icon"_s);
        Put(defaults, u"Flag Position"_s, u"Bottom left"_s);
        QVERIFY(WaysBack(u"Flag"_s, present, defaults) ==
                (std::vector<WayBack>{{u"Flag Position"_s, u"Bottom left"_s, Redraw::Flag}}));
        QVERIFY(WaysBack(u"Speaker"_s, present, defaults).empty());
        QVERIFY(WaysBack(u"Hands"_s, present, defaults).empty());
    }

    void ElseTheFirstChoiceThatShowsIt() {
        ClockProperties present = Defaults();
        Put(present, u"Minute Spot Style"_s, u"No Spots"_s);
        const ClockProperties& hiding = present;
        QVERIFY(WaysBack(u"Minute Spots"_s, present, hiding) ==
                (std::vector<WayBack>{{u"Minute Spot Style"_s, u"Spot 8"_s, Redraw::MinuteSpots}}));
    }

    /// A default file without the key, and a clock's without choices.
    void ElseAValueOfOurOwn_data() {
        QTest::addColumn<QString>("part");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("hiding");
        QTest::addColumn<QString>("shown");
        QTest::newRow("speaker") << u"Speaker"_s << u"Speaker"_s << u"No"_s << u"Yes"_s;
        QTest::newRow("flag") << u"Flag"_s << u"Flag Position"_s << u"Icon"_s << u"Top right"_s;
        QTest::newRow("name") << u"Zone Name"_s << u"Time Zone Label Size"_s << u"0"_s << u"-1"_s;
        QTest::newRow("numbers") << u"Hour Numbers"_s << u"Hour Number Style"_s << u"No Numbers"_s
                                 << u"Number 12"_s;
        QTest::newRow("spots") << u"Minute Spots"_s << u"Minute Spot Style"_s << u"No Spots"_s
                               << u"Spot 60"_s;
    }
    void ElseAValueOfOurOwn() {
        QFETCH(QString, part);
        QFETCH(QString, key);
        QFETCH(QString, hiding);
        ClockProperties present;
        Put(present, u"Hour Number Size"_s, u"12"_s);
        Put(present, u"Minute Spot Size"_s, u"4"_s);
        Put(present, key, hiding);
        const std::vector<WayBack> ways = WaysBack(part, present, {});
        QCOMPARE(ways.size(), 1U);
        QCOMPARE(ways[0].Key, key);
        QTEST(ways[0].Value, "shown");
    }

    void TwoKeysThatHideItBoth() {
        ClockProperties present = Defaults();
        Put(present, u"Hour Number Style"_s, u"No Numbers"_s);
        Put(present, u"Hour Number Size"_s, u"0"_s);
        QVERIFY(WaysBack(u"Hour Numbers"_s, present, Defaults()) ==
                (std::vector<WayBack>{{u"Hour Number Style"_s, u"Number 12"_s, Redraw::HourNumbers},
                                      {u"Hour Number Size"_s, u"-1"_s, Redraw::HourNumbers}}));
        ClockProperties painted = Defaults();
        Put(painted, u"Hour Number Style"_s, u"Roman 12"_s);
        QVERIFY(
            WaysBack(u"Hour Numbers"_s, present, painted) ==
            (std::vector<WayBack>{{u"Hour Number Style"_s, u"Roman 12"_s, Redraw::HourNumbers}}));
    }

    void NoChoiceIsAOneWayDoor_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("part");
        QTest::addColumn<ClockPart>("clicked");
        QTest::addColumn<int>("hiding");
        QTest::newRow("speaker") << u"Speaker"_s << u"Speaker"_s << ClockPart::Speaker << 1;
        QTest::newRow("flag") << u"Flag Position"_s << u"Flag"_s << ClockPart::Flag << 1;
        QTest::newRow("name") << u"Time Zone Label Size"_s << u"Zone Name"_s << ClockPart::Location
                              << 1;
        QTest::newRow("numbers") << u"Hour Number Style"_s << u"Hour Numbers"_s
                                 << ClockPart::HourNumber << 1;
        QTest::newRow("their size")
            << u"Hour Number Size"_s << u"Hour Numbers"_s << ClockPart::HourNumber << 0;
        QTest::newRow("spots") << u"Minute Spot Style"_s << u"Minute Spots"_s << ClockPart::Spot
                               << 1;
        QTest::newRow("their size, too")
            << u"Minute Spot Size"_s << u"Minute Spots"_s << ClockPart::Spot << 1;
    }
    /// A clock with each choice of a key: what it hides is offered, and comes back by the mouse.
    void NoChoiceIsAOneWayDoor() {
        QFETCH(QString, key);
        QFETCH(QString, part);
        QFETCH(ClockPart, clicked);
        int hiding = 0;
        const QStringList choices =
            mduUILib::FillMenuFromList(mduLib::GetPropertyChoices(key, Defaults()));
        for (const QString& choice : choices) {
            ClickedDesk desk;
            QImage flag(30, 20, QImage::Format_RGB32);
            flag.fill(Qt::red);
            QVERIFY(flag.save(desk.Base.Machine.WriteFile(u"Flag.png"_s, {})));
            ClockProperties properties = Defaults();
            Put(properties, u"Flag File"_s, u".\\Flag.png"_s);
            Put(properties, key, choice);
            desk.Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s,
                                        mduLib::PropertyFileContent(properties));
            frmTempolark* clock = desk.Running(u"UTC"_s);
            const bool shown = CanBeClicked(*clock, clicked);
            QCOMPARE(Offered(*clock), shown ? QStringList() : QStringList(part));
            if (!shown) {
                ++hiding;
                ClickedDesk::Choose({u"Show Hidden Part"_s, part});
                QVERIFY2(CanBeClicked(*clock, clicked), qPrintable(choice));
                QCOMPARE(desk.Base.Key(u"UTC"_s, key), mduLib::GetProperty(key, Defaults()));
                QCOMPARE(Offered(*clock), QStringList());
            }
            desk.Base.Close(clock);
        }
        QTEST(hiding, "hiding");
    }
};

QTEST_MAIN(tst_HiddenParts)
#include "tst_HiddenParts.moc"
