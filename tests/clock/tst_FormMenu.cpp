#include "clock/FormMenu.h"

#include <QTest>

using namespace Qt::StringLiterals;
using clockcore::FormEntry;
using clockcore::FormMenuState;
using clockcore::MakeFormMenu;
using clockcore::MenuNode;

namespace {

FormMenuState SomeState() {
    return {.ZoneFile = u"Tokyo & Osaka"_s,
            .Colour = u"Blue"_s,
            .Kind = clockcore::ClockKind::Digital,
            .Zones = {u"Tokyo & Osaka"_s, u"UTC"_s},
            .Styles = {u"Oak"_s, u"Elm"_s},
            .ScreenSaverTimes = {u"10"_s, u"20"_s},
            .ScreenSaverTime = u"20"_s};
}

const MenuNode* Find(const MenuNode& menu, const QString& name) {
    for (const MenuNode& node : menu.Children) {
        if (node.Name == name) {
            return &node;
        }
    }
    return nullptr;
}

QStringList Captions(const MenuNode& menu) {
    QStringList captions;
    for (const MenuNode& node : menu.Children) {
        captions += node.Caption;
    }
    return captions;
}

QStringList Ticked(const MenuNode& menu) {
    QStringList captions;
    for (const MenuNode& node : menu.Children) {
        if (node.Ticked == MenuNode::Tick::On) {
            captions += node.Caption;
        }
    }
    return captions;
}

}  // namespace

class tst_FormMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HasItsEntriesInOrder() {
        const MenuNode menu = MakeFormMenu(SomeState(), {});
        QCOMPARE(menu.Name, u"FormPopup"_s);
        QStringList names;
        for (const MenuNode& node : menu.Children) {
            names += node.Caption == u"-"_s ? u"-"_s : node.Name;
        }
        QCOMPARE(names.join(u' '),
                 u"Clocks ClockStyle WindowState windowPositionMenu ClockColour - "
                 "SelectCountry ChooseTimeZones ShowTimeZoneDetails - "
                 "AutoStart ScreenSaverMenu EnableActive - Help About Close - "
                 "SaveStyle SaveStyleAs PropertyMenu"_s);
        QCOMPARE(Captions(menu).join(u'|'),
                 u"Clocks|Clock Style|Window State|Window Position|Clock Colour|-|"
                 "Select Country|Choose Time Zones|Show Time Zone Details|-|"
                 "Enable Tokyo & Osaka Auto Start|Set Screen Saver|Disable Clock|-|"
                 "Help|About|Close|-|Save Current Style|Save Style As|Properties"_s);
    }

    void HasItsSubMenus_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("array");
        QTest::addColumn<QString>("captions");
        QTest::addColumn<QString>("ticked");
        QTest::newRow("kinds") << u"Clocks"_s << u"ClocksMenu"_s
                               << u"Analogue|Digital|Calculator|Analogue and Digital"_s
                               << u"Digital"_s;
        QTest::newRow("styles") << u"ClockStyle"_s << u"ClockStyles"_s << u"Oak|Elm|More"_s
                                << u""_s;
        QTest::newRow("states") << u"WindowState"_s << u"WindowStateMenu"_s
                                << u"Normal|Minimized|Maximized"_s << u"Normal"_s;
        QTest::newRow("positions")
            << u"windowPositionMenu"_s << u"WindowPosition"_s
            << u"Top Left|Top Right|Bottom Left|Bottom Right|Centre|Centre Auto Size"_s << u""_s;
        QTest::newRow("colours")
            << u"ClockColour"_s << u"ClockColourMenu"_s
            << u"Black|Blue|Cyan|Green|Magenta|Red|White|Yellow|Transparent|Custom"_s << u"Blue"_s;
        QTest::newRow("zones") << u"SelectCountry"_s << u"CountryTimeZone"_s
                               << u"Tokyo & Osaka|UTC|More"_s << u""_s;
        QTest::newRow("screen saver")
            << u"ScreenSaverMenu"_s << u"ScreenSaverTime"_s << u"10|20"_s << u"20"_s;
    }
    void HasItsSubMenus() {
        QFETCH(QString, entry);
        QFETCH(QString, array);
        const MenuNode menu = MakeFormMenu(SomeState(), {});
        const MenuNode* sub = Find(menu, entry);
        QVERIFY(sub != nullptr);
        QTEST(Captions(*sub).join(u'|'), "captions");
        QTEST(Ticked(*sub).join(u'|'), "ticked");
        for (const MenuNode& member : sub->Children) {
            QCOMPARE(member.Name, array);
        }
    }

    void NothingIsTickedForAValueInNoCaption() {
        FormMenuState state = SomeState();
        state.Colour = u"15397106"_s;
        state.Kind = clockcore::ClockKind::None;
        state.ScreenSaverTime = u"15"_s;
        const MenuNode menu = MakeFormMenu(state, {});
        for (const QString& name : {u"Clocks"_s, u"ClockColour"_s, u"ScreenSaverMenu"_s}) {
            QCOMPARE(Ticked(*Find(menu, name)), QStringList());
        }
        state.Colour = u"Transparent"_s;
        QCOMPARE(Ticked(*Find(MakeFormMenu(state, {}), u"ClockColour"_s)),
                 QStringList(u"Transparent"_s));
    }

    void EmptyFoldersLeaveMoreAlone() {
        const MenuNode menu = MakeFormMenu({}, {});
        QCOMPARE(Captions(*Find(menu, u"ClockStyle"_s)), QStringList(u"More"_s));
        QCOMPARE(Captions(*Find(menu, u"SelectCountry"_s)), QStringList(u"More"_s));
    }

    void HiddenPartsStandLast() {
        FormMenuState state = SomeState();
        QVERIFY(Find(MakeFormMenu(state, {}), u"HiddenParts"_s) == nullptr);
        state.HiddenParts = {u"Flag"_s, u"Zone Name"_s};
        const MenuNode menu = MakeFormMenu(state, {});
        const MenuNode& last = menu.Children.back();
        QCOMPARE(last.Name, u"HiddenParts"_s);
        QCOMPARE(last.Caption, u"Show Hidden Part"_s);
        QCOMPARE(Captions(last), QStringList({u"Flag"_s, u"Zone Name"_s}));
        QCOMPARE(last.Children[1].Name, u"HiddenPart"_s);
        QVERIFY(last.Children[1].Ticked == MenuNode::Tick::None);
        QCOMPARE(menu.Children[menu.Children.size() - 2].Name, u"PropertyMenu"_s);
    }

    void TellsWhatAClickDoes() {
        FormMenuState state = SomeState();
        state.AutoStarts = true;
        state.Enabled = false;
        const MenuNode menu = MakeFormMenu(state, {});
        QCOMPARE(Find(menu, u"AutoStart"_s)->Caption, u"Disable Tokyo & Osaka Auto Start"_s);
        QCOMPARE(Find(menu, u"EnableActive"_s)->Caption, u"Enable Clock"_s);
    }

    void AMaximisedClockOffersRestore() {
        FormMenuState state = SomeState();
        QVERIFY(Find(MakeFormMenu(state, {}), u"Restore"_s) == nullptr);
        state.WindowState = 1;
        QVERIFY(Find(MakeFormMenu(state, {}), u"Restore"_s) == nullptr);
        state.WindowState = 2;
        const MenuNode menu = MakeFormMenu(state, {});
        QCOMPARE(menu.Children[5].Name, u"Restore"_s);
        QCOMPARE(menu.Children[5].Caption, u"Restore"_s);
        QCOMPARE(Ticked(*Find(menu, u"WindowState"_s)), QStringList(u"Maximized"_s));
    }

    void RunsWhatIsClicked() {
        QStringList log;
        const MenuNode menu = MakeFormMenu(SomeState(), {[&log](const FormEntry& entry) {
                                               log += u"%1 %2 %3 %4"_s.arg(entry.Name)
                                                          .arg(entry.Index)
                                                          .arg(entry.Caption)
                                                          .arg(entry.More);
                                           }});
        Find(menu, u"Help"_s)->Choose();
        Find(menu, u"Clocks"_s)->Children[3].Choose();
        Find(menu, u"ClockStyle"_s)->Children[1].Choose();
        Find(menu, u"ClockStyle"_s)->Children[2].Choose();
        QCOMPARE(log, QStringList({u"Help 1 Help 0"_s, u"ClocksMenu 4 Analogue and Digital 0"_s,
                                   u"ClockStyles 2 Elm 0"_s, u"ClockStyles 3 More 1"_s}));
    }

    void StylesAloneArePreviewed() {
        QStringList log;
        const MenuNode menu = MakeFormMenu(
            SomeState(), {[](const FormEntry&) {}, [&log](const QString& style) { log += style; },
                          [&log] { log += u"end"_s; }});
        const MenuNode& styles = *Find(menu, u"ClockStyle"_s);
        styles.Children[1].Preview();
        styles.Children[1].EndPreview();
        QCOMPARE(log, QStringList({u"Elm"_s, u"end"_s}));
        QVERIFY(!styles.Children[2].Preview);
        QVERIFY(!Find(menu, u"SelectCountry"_s)->Children[0].Preview);
    }
};

QTEST_APPLESS_MAIN(tst_FormMenu)
#include "tst_FormMenu.moc"
