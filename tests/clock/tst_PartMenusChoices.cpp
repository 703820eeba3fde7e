#include <QTest>

#include "clock/MenuDesk.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockPart;
using clockcore::ClockState;
using clockcore::MenuNode;
using clockcore::MenuSource;
using clockcore::PartMenuRow;

namespace {

const QString SavedTimers = u"SaveTimer UTCTimer.txt"_s;

/// A row that stores a value, and the part whose menu it is in.
struct StoringRow {
    ClockPart Part;
    PartMenuRow Row;
};

void AddRows(std::vector<StoringRow>& rows, ClockPart part, std::span<const PartMenuRow> menu) {
    for (const PartMenuRow& row : menu) {
        AddRows(rows, part, row.Rows);
        if (!row.Key.isEmpty()) {
            rows.push_back({part, row});
        }
    }
}

/// Every row of the catalogue that stores something.
std::vector<StoringRow> StoringRows() {
    std::vector<StoringRow> rows;
    for (const clockcore::PartMenu& menu : clockcore::PartMenuCatalogue()) {
        if (menu.Part) {
            AddRows(rows, *menu.Part, menu.Rows);
        }
    }
    return rows;
}

/// A desk on which every part has its menu: a time has been calculated, an action counts down.
struct WholeDesk : MenuDesk {
    WholeDesk() {
        Controls.lblTimeOutput(1).Tag = u"12:30"_s;
        Messages.SetPendingAction(u"Lock Workstation"_s);
        Messages.StartCountdown(Machine.Clock.Now(), 5);
        Calls();
    }
    /// Clicks an entry of a sub-menu that is not the present one. @return its caption
    static QString ChooseAnother(const MenuNode& list) {
        for (const MenuNode& entry : list.Children) {
            if (entry.Ticked != MenuNode::Tick::On) {
                entry.Choose();
                return entry.Caption;
            }
        }
        return {};
    }
};

}  // namespace

/// What clicks on the entries do, without a window.
class tst_PartMenusChoices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryRowStoresWhatIsChosen_data() {
        QTest::addColumn<int>("number");
        const auto rows = StoringRows();
        QCOMPARE(rows.size(), std::size_t{50});
        for (std::size_t i = 0; i < rows.size(); ++i) {
            QTest::newRow(qPrintable(rows[i].Row.Name.toString())) << static_cast<int>(i);
        }
    }

    void EveryRowStoresWhatIsChosen() {
        QFETCH(int, number);
        const auto [part, row] = StoringRows()[static_cast<std::size_t>(number)];
        WholeDesk desk;
        const QString key = row.Key.toString();
        const QString before = desk.Value(key);
        const MenuNode menu = desk.Menu(part);
        const MenuNode* node = MenuDesk::Find(menu, row.Name.toString());
        QVERIFY(node != nullptr && node->Enabled);
        QString chosen = row.Value.toString();
        if (row.Source == MenuSource::Switch) {
            chosen = u"No"_s;
        }
        if (row.Caption.isEmpty()) {
            chosen = WholeDesk::ChooseAnother(menu);
        } else if (node->Children.empty()) {
            node->Choose();
        } else {
            chosen = WholeDesk::ChooseAnother(*node);
        }
        if (row.Redraws != clockcore::Redraw::ActionMessage) {  // which has a list for a value
            QVERIFY(row.Source == MenuSource::Value || chosen != before);
            QCOMPARE(desk.Value(key), chosen);
            QCOMPARE(desk.InFile(key), chosen);
        }
        QCOMPARE(desk.Screen.Status, QStringList{u"Saved the settings of India at 12:00:00"_s});
    }

    // What was chosen is ticked the next time, and what was ticked is no more.
    void TheChosenEntryIsTicked() {
        MenuDesk desk;
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"MinuteHandLengths"_s), u"95"_s));
        const MenuNode next = desk.Menu(ClockPart::Hands);
        QCOMPARE(MenuDesk::Ticked(MenuDesk::Find(next, u"MinuteHandLengths"_s)),
                 QStringList{u"95"_s});
        QCOMPARE(MenuDesk::Ticked(MenuDesk::Find(next, u"HourHandLengths"_s)),
                 QStringList{u"50"_s});
    }

    void BothKeysOfAPlace_data() {
        QTest::addColumn<ClockPart>("part");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("top");
        QTest::newRow("digits") << ClockPart::Digits << u"DigitalAutoPosition"_s
                                << u"Digital Clock CentralX(%)"_s << u"Digital Clock CentralY(%)"_s;
        QTest::newRow("location") << ClockPart::Location << u"LocationAutoPosition"_s
                                  << u"Time Zone Name Left"_s << u"Time Zone Name Top"_s;
        QTest::newRow("speaker") << ClockPart::Speaker << u"SpeakerAutoPosition"_s
                                 << u"Speaker Image Left"_s << u"Speaker Image Top"_s;
    }

    void BothKeysOfAPlace() {
        QFETCH(ClockPart, part);
        QFETCH(QString, name);
        QFETCH(QString, left);
        QFETCH(QString, top);
        MenuDesk desk;
        desk.Set(left, u"30"_s);
        desk.Set(top, u"40"_s);
        const MenuNode menu = desk.Menu(part);
        MenuDesk::Find(menu, name)->Choose();
        QCOMPARE(desk.InFile(left), u"-1"_s);
        QCOMPARE(desk.InFile(top), u"-1"_s);
    }

    void OneLineOfTheFileChanges() {
        MenuDesk desk;
        desk.Set(u"Window Background Colour"_s, u"Green"_s);  // only tried on
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"HourHandColours"_s), u"Red"_s));
        QCOMPARE(desk.InFile(u"Hour Hand Colour"_s), u"Red"_s);
        QCOMPARE(desk.InFile(u"Window Background Colour"_s), u"15397106"_s);
    }

    void AColourIsPicked() {
        MenuDesk desk;
        desk.Machine.Dialogs.ColourAnswers = {4711};
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"HandHeadColours"_s), u"Custom"_s));
        QCOMPARE(desk.InFile(u"Hand Head Colour"_s), u"4711"_s);
        QCOMPARE(desk.Calls(), u"DrawClockFace|"_s + SavedTimers);
    }

    void NoColourIsNoChange() {
        MenuDesk desk;
        desk.Machine.Dialogs.ColourAnswers = {-1};
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"HandHeadColours"_s), u"Custom"_s));
        QCOMPARE(desk.Value(u"Hand Head Colour"_s), u"3018952"_s);
        QCOMPARE(desk.Calls(), QString());
    }

    // "Custom" in a list of choices that are no colours is a word like any other.
    void OnlyAColourIsAskedFor() {
        MenuDesk desk;
        mduLib::PutPropertyRaw(u"Hour Hand Style"_s, u"3D,Custom"_s, desk.Data.EditProperties());
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"HourHandStyles"_s), u"Custom"_s));
        QCOMPARE(desk.Value(u"Hour Hand Style"_s), u"Custom"_s);
    }

    void AMessageTakesItsColourAtOnce() {
        MenuDesk desk;
        const MenuNode menu = desk.Menu(ClockPart::Message);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"MessageFontColour"_s), u"White"_s));
        QCOMPARE(desk.Controls.lblMsg(1).ForeColor, 0xFFFFFD);
        QCOMPARE(desk.InFile(u"Message Colour"_s), u"White"_s);
        const MenuNode next = desk.Menu(ClockPart::Message);
        QCOMPARE(MenuDesk::Ticked(MenuDesk::Find(next, u"MessageFontColour"_s)),
                 QStringList{u"White"_s});
    }

    void AMessageIsHidden() {
        MenuDesk desk;
        desk.Messages.ShowMessage(u"Tea"_s);
        const MenuNode menu = desk.Menu(ClockPart::Message);
        MenuDesk::Find(menu, u"HideMessage"_s)->Choose();
        QCOMPARE(desk.Messages.PendingMessage(), QString());
        QCOMPARE(desk.Canvas.Shows, 1);
        QCOMPARE(desk.Calls(), QString());  // nothing is saved
    }

    void AnActionIsPutOffAndCancelled() {
        WholeDesk desk;
        const MenuNode menu = desk.Menu(ClockPart::Action);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"ActionTime"_s), u"10"_s));
        QCOMPARE(desk.Messages.ActionDeadline(), u"15/06/2026 12:10:00"_s);
        MenuDesk::Find(menu, u"CancelAction"_s)->Choose();
        QCOMPARE(desk.Messages.ActionDeadline(), QString());
        QCOMPARE(desk.Canvas.Shows, 1);
    }

    void AnActionTakesItsColour() {
        WholeDesk desk;
        desk.TimerHost.Properties = desk.Data.Properties();
        const MenuNode menu = desk.Menu(ClockPart::Action);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"SetActionMsgColour"_s), u"Green"_s));
        QCOMPARE(desk.Controls.lblActionMsg(1).ForeColor, 0x00FF00);
        QVERIFY(mduLib::GetPropertyRaw(u"Message Action Colour"_s, desk.TimerHost.Properties)
                    .contains(u"Lock Workstation:Green"_s));
    }

    void AVoiceIsTaken() {
        MenuDesk desk;
        const MenuNode menu = desk.Menu(ClockPart::Speaker);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"VoiceMenu"_s), u"Bob"_s));
        QCOMPARE(desk.InFile(u"Speaker Voice"_s), u"Bob"_s);
        QCOMPARE(desk.Devices.Voices.Log, QStringList{u"voice 1"_s});
    }

    void TheTrayShowsTheClock() {
        MenuDesk desk;
        const MenuNode menu = desk.Menus.SystemTrayMenu();
        desk.Parts.ThePlacement.State = 1;
        MenuDesk::Find(menu, u"ShowClock"_s)->Choose();
        QCOMPARE(desk.Calls(), u"ShowClockWindow|SetWindowState 0"_s);
        desk.Parts.ThePlacement.Shown = true;
        desk.Parts.ThePlacement.State = 2;
        MenuDesk::Find(menu, u"ShowClock"_s)->Choose();
        QCOMPARE(desk.Calls(), QString());
    }

    void TheTraySpeaksAndCloses() {
        MenuDesk desk;
        const MenuNode menu = desk.Menus.SystemTrayMenu();
        MenuDesk::Find(menu, u"SpeakTime"_s)->Choose();
        QVERIFY(desk.Calls().contains(u"SpeakTimeNow"_s));
        MenuDesk::Find(menu, u"CloseClock"_s)->Choose();
        QCOMPARE(desk.Calls(), u"CloseClock"_s);
    }

    // A menu may be open while its clock is closed by other means.
    void AClosingClockTakesNoMore_data() { EveryRowStoresWhatIsChosen_data(); }

    void AClosingClockTakesNoMore() {
        QFETCH(int, number);
        const auto [part, row] = StoringRows()[static_cast<std::size_t>(number)];
        WholeDesk desk;
        const QString before = desk.InFile(row.Key.toString());
        const MenuNode menu = desk.Menu(part);
        const MenuNode* node = MenuDesk::Find(menu, row.Name.toString());
        desk.Data.State = ClockState::Closing;
        if (node->Children.empty()) {
            node->Choose();
        } else {
            WholeDesk::ChooseAnother(*node);
        }
        QCOMPARE(desk.InFile(row.Key.toString()), before);
        QCOMPARE(desk.Screen.Status, QStringList());
        QCOMPARE(desk.Calls(), QString());
    }

    void AFileThatCantBeWrittenIsTold() {
        MenuDesk desk;
        desk.Machine.Files.Unwritable = {desk.Data.PropertyFileName};
        const MenuNode menu = desk.Menu(ClockPart::Hands);
        QVERIFY(MenuDesk::Choose(MenuDesk::Find(menu, u"HourHandColours"_s), u"Red"_s));
        QCOMPARE(desk.Value(u"Hour Hand Colour"_s), u"Red"_s);  // on the face, at least
        QCOMPARE(desk.Screen.Status,
                 QStringList{desk.Data.PropertyFileName + u" can't be written"_s});
    }
};

QTEST_MAIN(tst_PartMenusChoices)
#include "tst_PartMenusChoices.moc"
