#include <QBuffer>

#include "MenuClicks.h"
#include "clock/PartMenuCatalogue.h"

using clockcore::ClockKind;
using clockcore::ClockPart;
using clockcore::MenuSource;
using clockcore::PartMenuRow;

namespace {

const QString Zone = u"UTC"_s;
constexpr int Minute = 60'000;

/// The row that a test is about: how to come to it, and what stands in the menu there.
struct WalkedRow {
    ClockPart Part = ClockPart::Face;
    PartMenuRow Row;
    QStringList Path;  ///< the captions down to it
};

void AddRows(std::vector<WalkedRow>& walk, ClockPart part, std::span<const PartMenuRow> rows,
             const QStringList& above) {
    for (const PartMenuRow& row : rows) {
        QStringList path = above;
        if (!row.Caption.isEmpty()) {
            path += row.Caption.toString();
        }
        AddRows(walk, part, row.Rows, path);
        if (!row.Key.isEmpty()) {
            walk.push_back({part, row, path});
        }
    }
}

/// All rows whose change can be seen. What is only heard has tests with a voice.
std::vector<WalkedRow> Walk() {
    std::vector<WalkedRow> walk;
    for (const clockcore::PartMenu& menu : clockcore::PartMenuCatalogue()) {
        if (menu.Part && *menu.Part != ClockPart::Speaker) {
            AddRows(walk, *menu.Part, menu.Rows, {});
        }
    }
    return walk;
}

QByteArray PictureFile() {
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

const char* KindFor(ClockPart part) {
    switch (part) {
        case ClockPart::Digits:
            return "Digital";
        case ClockPart::Input:
        case ClockPart::Output:
            return "Calculator";
        default:
            return "Analogue";
    }
}

/// A clock of 300 by 300 with every part that its kind has; nothing stands at a place of its own
/// choice that a menu could give back to it.
struct PartsDesk : ClickedDesk {
    frmTempolark* Clock = nullptr;

    explicit PartsDesk(ClockPart part, const QString& style = u"Number 12"_s) {
        Base.Machine.WriteFile(u"Images/Flag.png"_s, PictureFile());
        Base.Machine.WriteFile(u"tester/Timers/UTCTimer.txt"_s,
                               "5,red,,Lock Workstation,0#12:1@A message to read\r\n");
        Clock = Running(Zone);
        Set({{"Clocks", KindFor(part)},
             {"Window Left", "300"},
             {"Window Top", "300"},
             {"Window Width", "4500"},
             {"Window Height", "4500"},
             {"Flag File", ".\\Images\\Flag.png"},
             {"Time Zone Name Left", "20"},
             {"Time Zone Name Top", "200"},
             {"Digital Clock CentralX(%)", "10"},
             {"Digital Clock CentralY(%)", "10"}});
        Set({{"Hour Number Style", style.toLatin1().constData()}});
        if (part == ClockPart::Message || part == ClockPart::Action) {
            Base.Machine.Clock.Advance(Minute + 3000);
        }
    }

    void Set(const std::vector<std::pair<const char*, const char*>>& values) {
        ClockProperties changed = Clock->Data().Properties();
        for (const auto& [key, value] : values) {
            mduLib::PutProperty(QString::fromLatin1(key), QString::fromLatin1(value), changed);
        }
        Base.Module.CurrentProperties = changed;
        Clock->RefreshForm({});
        Base.Machine.Clock.Advance(1000);
    }

    /// Where a part stands, in device pixels.
    QPointF PlaceOf(ClockPart part) const {
        const mduUILib::ClockControls& controls = Clock->Controls();
        switch (part) {
            case ClockPart::HourNumber:
                return controls.lblHour(15).Rect().center();
            case ClockPart::Digits:
                return controls.lblDigitalNumber(3).Rect().center();
            case ClockPart::Input:
                return controls.lblTimeInput(1).Rect().center();
            case ClockPart::Output:
                return controls.lblTimeOutput(1).Rect().center();
            case ClockPart::Location:
                return controls.lblLocation(1).Rect().center();
            case ClockPart::Flag:
                return controls.imgFlag(1).Rect().center();
            case ClockPart::Message:
                return controls.lblMsg(1).Rect().center();
            case ClockPart::Action:
                return controls.lblActionMsg(1).Rect().center();
            case ClockPart::Speaker:
                return controls.imgSpeaker(1).Rect().center();
            default:
                return QRectF(Clock->rect()).center();
        }
    }
    void Open(ClockPart part) { OpenAt(PlaceOf(part)); }
    void OpenAt(const QPointF& place) {
        mduUILib::Control target;
        target.Left = static_cast<float>(place.x());
        target.Top = static_cast<float>(place.y());
        Click(*Clock, target, Qt::RightButton);
    }
    QString OpenName() const {
        const QMenu* menu = OpenMenu();
        return menu == nullptr ? QString() : menu->objectName();
    }

    QString Present(const QString& key) const {
        return mduLib::GetProperty(key, Clock->Data().Properties());
    }
    QString Stored(const QString& key) const { return Base.Key(Zone, key); }

    /// All that can be seen: the pixels, and the places and fonts of the controls.
    QByteArray Pixels() const {
        const QImage& image = Clock->PaintedSurface().Image();
        return {reinterpret_cast<const char*>(image.constBits()),
                static_cast<qsizetype>(image.sizeInBytes())};
    }
    QStringList Fields() const {
        mduUILib::ClockControls controls = Clock->Controls();
        QStringList fields;
        for (const mduUILib::ControlArray* array : controls.All()) {
            for (const mduUILib::Control& each : array->Members) {
                fields += u"%1 %2 %3 %4 %5 %6 %7"_s.arg(array->Name)
                              .arg(each.Left)
                              .arg(each.Top)
                              .arg(each.Width)
                              .arg(each.Visible)
                              .arg(each.ForeColor)
                              .arg(each.Font.toString());
            }
        }
        return fields;
    }
};

}  // namespace

/// The menus on the parts of a clock, by real clicks.
class tst_PartMenusOnAClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryPartOpensItsMenu_data();
    void EveryPartOpensItsMenu();
    void PaintedNumbersOpenTheirMenu_data();
    void PaintedNumbersOpenTheirMenu();
    void TheMenuOfTheHandsEndsBesideTheHub();
    void EveryRowIsSeen_data();
    void EveryRowIsSeen();
    void WhatIsTypedStays();
    void TheMenuGoesWithItsClock();
};

void tst_PartMenusOnAClock::EveryPartOpensItsMenu_data() {
    QTest::addColumn<ClockPart>("part");
    QTest::addColumn<QString>("name");
    for (const clockcore::PartMenu& menu : clockcore::PartMenuCatalogue()) {
        if (menu.Part) {
            QTest::newRow(qPrintable(menu.Name.toString())) << *menu.Part << menu.Name.toString();
        }
    }
}

void tst_PartMenusOnAClock::EveryPartOpensItsMenu() {
    QFETCH(ClockPart, part);
    PartsDesk desk(part);
    desk.Open(part);
    QTEST(desk.OpenName(), "name");
}

void tst_PartMenusOnAClock::PaintedNumbersOpenTheirMenu_data() {
    QTest::addColumn<QString>("style");
    QTest::newRow("digits") << u"3D 12"_s;
    QTest::newRow("upright letters") << u"Roman 12"_s;
    QTest::newRow("turned letters") << u"True Roman 12"_s;
}

void tst_PartMenusOnAClock::PaintedNumbersOpenTheirMenu() {
    QFETCH(QString, style);
    PartsDesk desk(ClockPart::HourNumber, style);
    QVERIFY(!desk.Clock->Controls().lblHour(15).Visible);
    desk.Open(ClockPart::HourNumber);
    QCOMPARE(desk.OpenName(), u"HourMenu"_s);
}

void tst_PartMenusOnAClock::TheMenuOfTheHandsEndsBesideTheHub() {
    PartsDesk desk(ClockPart::Hands);
    const double middle = desk.Clock->width() / 2.0;
    const double centre = desk.Clock->height() / 2.0;
    desk.OpenAt({middle + 19, centre});
    QCOMPARE(desk.OpenName(), u"HandMenu"_s);
    PartsDesk::OpenMenu()->close();
    desk.OpenAt({middle + 22, centre});
    QCOMPARE(desk.OpenName(), u"FormPopup"_s);
}

void tst_PartMenusOnAClock::EveryRowIsSeen_data() {
    QTest::addColumn<int>("number");
    const auto walk = Walk();
    QCOMPARE(walk.size(), std::size_t{38});
    for (std::size_t i = 0; i < walk.size(); ++i) {
        QTest::newRow(qPrintable(walk[i].Row.Name.toString())) << static_cast<int>(i);
    }
}

void tst_PartMenusOnAClock::EveryRowIsSeen() {
    QFETCH(int, number);
    const WalkedRow walked = Walk()[static_cast<std::size_t>(number)];
    const QString key = walked.Row.Key.toString();
    PartsDesk desk(walked.Part);
    desk.Open(walked.Part);
    QMenu* menu = PartsDesk::OpenMenu();
    QVERIFY(menu != nullptr);
    QStringList path = walked.Path;
    QString chosen = walked.Row.Value.toString();
    if (walked.Row.Source != MenuSource::Value) {
        const QMenu* inner = menu->findChild<QMenu*>(walked.Row.Name.toString());
        const QMenu* list = walked.Row.Caption.isEmpty() ? menu : inner;
        QVERIFY(list != nullptr);
        const auto entries = list->actions();
        const auto other = std::find_if(entries.begin(), entries.end(),
                                        [](const QAction* entry) { return !entry->isChecked(); });
        path += chosen = (*other)->text();
    }
    const QByteArray pixels = desk.Pixels();
    const QStringList fields = desk.Fields();
    desk.Choose(path);
    if (walked.Row.Redraws == clockcore::Redraw::ActionMessage) {
        QVERIFY(
            mduLib::GetPropertyRaw(key, desk.Clock->Data().Properties()).endsWith(u":"_s + chosen));
    } else {
        QCOMPARE(desk.Present(key), chosen);
        QCOMPARE(desk.Stored(key), chosen);
    }
    // A font of another name may have the same letters here.
    const bool isFont = key.endsWith("Font"_L1);
    QVERIFY(isFont ? desk.Fields() != fields : desk.Pixels() != pixels);
}

void tst_PartMenusOnAClock::WhatIsTypedStays() {
    PartsDesk desk(ClockPart::Input);
    desk.Clock->setFocus();
    QTest::keyClick(desk.Clock, Qt::Key_Tab);
    QVERIFY(desk.Clock->Data().Is(ClockKind::CalculatorInput));
    const QString text = desk.Clock->Controls().lblTimeInput(1).Tag;
    QTest::keyClicks(desk.Clock, u"7"_s);
    const QString typed = desk.Clock->Controls().lblTimeInput(1).Caption;
    QVERIFY(desk.Clock->Controls().lblTimeInput(1).Tag != text);
    desk.Open(ClockPart::Input);
    desk.Choose({u"Local Time Font Colour"_s, u"Red"_s});
    QCOMPARE(desk.Clock->Controls().lblTimeInput(1).Caption, typed);
    QCOMPARE(desk.Clock->Controls().lblTimeInput(1).ForeColor, 255);
    QVERIFY(desk.Clock->Data().Is(ClockKind::CalculatorInput));
}

void tst_PartMenusOnAClock::TheMenuGoesWithItsClock() {
    PartsDesk desk(ClockPart::Hands);
    desk.Open(ClockPart::Hands);
    QVERIFY(PartsDesk::OpenMenu() != nullptr);
    desk.Base.Close(desk.Clock);
    QVERIFY(PartsDesk::OpenMenu() == nullptr);
}

QTEST_MAIN(tst_PartMenusOnAClock)
#include "tst_PartMenusOnAClock.moc"
