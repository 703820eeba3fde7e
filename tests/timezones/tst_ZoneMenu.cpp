#include <QTest>
#include <QWidget>

#include "timezones/ui/ZoneMenu.h"

using namespace Qt::StringLiterals;
using mduTimeZones::ShowFilter;
using mduTimeZones::SourceMode;
using mduTimeZones::ZoneSort;
using Item = ZoneMenu::Item;

namespace {

struct Menus {
    QWidget Owner;
    QList<Item> Chosen;
    ZoneMenu Zones{&Owner, [this](Item item) { Chosen += item; }};

    /// The names of all entries that are checked.
    QStringList Checked() const {
        QStringList names;
        for (const QAction* action : Owner.findChildren<QAction*>()) {
            if (action->isChecked()) {
                names += action->objectName();
            }
        }
        names.sort();
        return names;
    }
};

}  // namespace

class tst_ZoneMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ChecksWhatHolds_data() {
        QTest::addColumn<ZoneMenu::State>("state");
        QTest::addColumn<QStringList>("checked");
        const auto row = [](const char* name, SourceMode source, ShowFilter show, ZoneSort sort,
                            const QStringList& checked) {
            QTest::newRow(name) << ZoneMenu::State{source, show, sort, false, true} << checked;
        };
        const auto all = ShowFilter::All;
        const auto none = ZoneSort::None;
        row("at first", SourceMode::Windows, all, none, {u"ShowAll"_s, u"SourceWindows"_s});
        row("profiles", SourceMode::Tempolark, all, none, {u"ShowAll"_s, u"SourceTempolark"_s});
        row("files", SourceMode::Selected, all, none, {u"ShowAll"_s, u"SourceSelected"_s});
        row("both", SourceMode::Both, all, none, {u"ShowAll"_s, u"SourceBoth"_s});
        row("selected", SourceMode::Both, ShowFilter::Selected, none,
            {u"ShowSelected"_s, u"SourceBoth"_s});
        row("unselected", SourceMode::Both, ShowFilter::Unselected, none,
            {u"ShowUnselected"_s, u"SourceBoth"_s});
        row("names up", SourceMode::Both, all, ZoneSort::NameAscending,
            {u"NameAscending"_s, u"ShowAll"_s, u"SourceBoth"_s});
        row("names down", SourceMode::Both, all, ZoneSort::NameDescending,
            {u"NameDescending"_s, u"ShowAll"_s, u"SourceBoth"_s});
        row("times up", SourceMode::Both, all, ZoneSort::GMTAscending,
            {u"GMTAscending"_s, u"ShowAll"_s, u"SourceBoth"_s});
        row("times down", SourceMode::Both, all, ZoneSort::GMTDescending,
            {u"GMTDescending"_s, u"ShowAll"_s, u"SourceBoth"_s});
    }

    void ChecksWhatHolds() {
        QFETCH(ZoneMenu::State, state);
        Menus menus;
        menus.Zones.Refresh(state);
        QTEST(menus.Checked(), "checked");
    }

    void GreysWhatCannotBeDone() {
        Menus menus;
        const QAction& details = menus.Zones.Action(Item::ShowTimeZoneDetailsMenu);
        const QAction& remove = menus.Zones.Action(Item::DeleteSelected);
        ZoneMenu::State state;
        menus.Zones.Refresh(state);
        QVERIFY(!details.isEnabled());
        QVERIFY(!remove.isEnabled());
        state.HasRow = true;
        menus.Zones.Refresh(state);
        QVERIFY(details.isEnabled());
        QVERIFY(!remove.isEnabled());
        state = {};
        state.Source = SourceMode::Selected;
        menus.Zones.Refresh(state);
        QVERIFY(!details.isEnabled());
        QVERIFY(remove.isEnabled());
    }

    void SaysWhatWouldBecomeOfTheMap() {
        Menus menus;
        ZoneMenu::State state;
        menus.Zones.Refresh(state);
        QCOMPARE(menus.Zones.Action(Item::MapVisible).text(), u"Hide Map"_s);
        state.MapVisible = false;
        menus.Zones.Refresh(state);
        QCOMPARE(menus.Zones.Action(Item::MapVisible).text(), u"Show Map"_s);
    }

    void TellsTheChosenEntry() {
        Menus menus;
        menus.Zones.Action(Item::SelectNone).trigger();
        menus.Zones.Action(Item::HideMap).trigger();
        QCOMPARE(menus.Chosen, (QList<Item>{Item::SelectNone, Item::HideMap}));
    }
};

QTEST_MAIN(tst_ZoneMenu)
#include "tst_ZoneMenu.moc"
