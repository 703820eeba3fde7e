// The window of properties for a zone that is to be made, and what becomes of it then.
#include "editor/PropertyWindowDesk.h"

class tst_PropertyWindowNew : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheNameIsTypedIntoTheTitle() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        QCOMPARE(desk.Window->windowTitle(), u"Properties -  _"_s);
        QCOMPARE(desk.Button().text(), u"Apply"_s);
        QVERIFY(!desk.Grid().isEnabled());
        QVERIFY(!desk.Search().isEnabled());
        QVERIFY(desk.NameLine().isVisible());
        desk.Type(u"Lima"_s);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Lima _"_s);
        QVERIFY(desk.NameLine().text().contains(u"Lima _"_s));
        desk.Key(Qt::Key_Left);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Lim_"_s);
        desk.Key(Qt::Key_Backspace);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Li_"_s);
        desk.Key(Qt::Key_Home);
        desk.Key(Qt::Key_Delete);
        desk.Type(u"\u00d8 R"_s);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - \u00d8 R_a"_s);
        desk.Key(Qt::Key_End);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - \u00d8 Ria _"_s);
        QCOMPARE(desk.Window->PropertyFile(), QString());
    }

    void EnterMakesTheFileAndTheButtonLaunches() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Lima"_s);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Stored(u"Hand Style"_s, u"TimeZones/Lima.ini"_s), u"3D,Line,Frame,3D"_s);
        QCOMPARE(desk.Stored(u"Time Zone Standard Name"_s, u"TimeZones/Lima.ini"_s), u"Lima"_s);
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile,
                 desk.Module.Paths.ZoneFileFolder + u"Lima.ini"_s);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Lima"_s);
        QCOMPARE(desk.Button().text(), u"Launch"_s);
        QVERIFY(desk.Grid().isEnabled());
        QVERIFY(desk.Search().isEnabled());
        QVERIFY(!desk.NameLine().isVisible());
        QVERIFY(desk.Button().hasFocus());
        desk.Enter(u"Title"_s, u"Andes"_s);
        desk.Button().setFocus();
        while (desk.Button().text() != u"Launch"_s) {
            desk.Key(Qt::Key_Return);  // the change is applied first
        }
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Shell.Launched, QStringList{u"Lima"_s});
        QCOMPARE(desk.Stored(u"Title"_s, u"TimeZones/Lima.ini"_s), u"Andes"_s);
        QVERIFY(!desk.Window->isVisible());
        QCOMPARE(desk.Shell.Boxes, QStringList());
    }

    void LaunchTakesAnOpenEditAlong_data() {
        QTest::addColumn<bool>("takesFocus");
        QTest::newRow("by the focus that goes to the button") << true;
        QTest::newRow("by the press") << false;
    }
    void LaunchTakesAnOpenEditAlong() {
        QFETCH(bool, takesFocus);
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Lima"_s);
        desk.Key(Qt::Key_Return);
        desk.GoTo(u"Title"_s);
        desk.Type(u"Andes"_s);
        QVERIFY(desk.Grid().Editing().IsEditing());
        if (!takesFocus) {
            desk.Button().setFocusPolicy(Qt::NoFocus);
        }
        desk.ClickButton();
        QCOMPARE(desk.Shell.Launched, QStringList{u"Lima"_s});
        QCOMPARE(desk.Stored(u"Title"_s, u"TimeZones/Lima.ini"_s), u"Andes"_s);
        QVERIFY(!desk.Window->isVisible());
    }

    void TheKeyOfTheMinusTypesALine() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"a"_s);
        QTest::sendKeyEvent(QTest::Click, desk.Focus(), Qt::Key_Minus, u"-"_s, Qt::NoModifier);
        QTest::sendKeyEvent(QTest::Click, desk.Focus(), Qt::Key_Underscore, u"_"_s,
                            Qt::ShiftModifier);
        QTest::sendKeyEvent(QTest::Click, desk.Focus(), Qt::Key_Minus, u"-"_s, Qt::KeypadModifier);
        QTest::sendKeyEvent(QTest::Click, desk.Focus(), Qt::Key_B, u"B"_s, Qt::ShiftModifier);
        QTest::sendKeyEvent(QTest::Click, desk.Focus(), Qt::Key_Udiaeresis, u"\u00fc"_s,
                            Qt::NoModifier);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - a_--B\u00fc _"_s);
    }

    void AClockThatCannotBeLaunchedLeavesTheWindow() {
        PropertyWindowDesk desk;
        desk.Shell.LaunchHandle = 0;
        desk.OpenForNew();
        desk.Type(u"Lima"_s);
        desk.Key(Qt::Key_Return);
        desk.ClickButton();
        QCOMPARE(desk.Shell.Launched, QStringList{u"Lima"_s});
        QVERIFY(desk.Window->isVisible());
    }

    void AFileThatIsThereIsAskedFor() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Oslo"_s);
        QVERIFY(desk.NameLine().text().contains(u"There is a file of that name already"_s));
        desk.Shell.Answers = {7};
        desk.Machine.WriteFile(u"TimeZones/Oslo.ini"_s, "Title=Kept\r\n");
        desk.Key(Qt::Key_Return);
        const QString path = desk.Module.Paths.ZoneFileFolder + u"Oslo.ini"_s;
        QCOMPARE(desk.Shell.Boxes,
                 QStringList(path + u"\r\nexists, do you want to over write this file?|292|"
                                    u"Property File Exists"_s));
        QCOMPARE(desk.Stored(u"Title"_s), u"Kept"_s);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Oslo _"_s);
        desk.Shell.Answers = {6};
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
        QCOMPARE(desk.Button().text(), u"Launch"_s);
    }

    void NamesThatCannotBe_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("a separator") << u"a/b"_s;
        QTest::newRow("the other separator") << u"a\\b"_s;
        QTest::newRow("the folder above") << u".."_s;
        QTest::newRow("blanks") << u"  "_s;
        QTest::newRow("the screen saver") << u"/s"_s;
        QTest::newRow("the shell") << u"TempolarkCentral"_s;
    }
    void NamesThatCannotBe() {
        QFETCH(QString, name);
        PropertyWindowDesk desk;
        desk.OpenForNew();
        const QStringList before = desk.Machine.Files.FileNames(desk.Module.Paths.ZoneFileFolder);
        desk.Machine.Files.Writes.clear();
        desk.Type(name);
        const bool hasReason = !desk.NameLine().text().endsWith(u"&nbsp;"_s);
        QCOMPARE(hasReason, !name.trimmed().isEmpty());
        desk.ClickButton();
        QCOMPARE(desk.Machine.Files.Writes, QStringList());
        QCOMPARE(desk.Machine.Files.FileNames(desk.Module.Paths.ZoneFileFolder), before);
        QCOMPARE(desk.Shell.Messages.size(), 1);
        QCOMPARE(desk.Info(), desk.Shell.Messages.first());
        QVERIFY(desk.Window->isVisible());
        QVERIFY(!desk.Grid().isEnabled());
    }

    void AnEmptyNameIsToldAndTypedOn() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        QVERIFY(desk.NameLine().text().endsWith(u"&nbsp;"_s));
        desk.Key(Qt::Key_Return);
        desk.ClickButton();
        QCOMPARE(desk.Info(), u"The time zone has no name"_s);
        QVERIFY(desk.Machine.Files.Writes.filter(u"TimeZones"_s).isEmpty());
        desk.NameLine().setFocus();
        desk.Type(u"Lima"_s);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Button().text(), u"Launch"_s);
    }

    void AFolderThatCannotBeWrittenIsTold() {
        PropertyWindowDesk desk;
        desk.Machine.Files.Unwritable = {desk.Module.Paths.ZoneFileFolder + u"Lima.ini"_s};
        desk.OpenForNew();
        desk.Type(u"Lima"_s);
        desk.Key(Qt::Key_Return);
        QVERIFY(desk.Info().contains(u"Lima.ini"_s));
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Lima _"_s);
        desk.Machine.Files.Unwritable.clear();
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Button().text(), u"Launch"_s);
    }

    void EscapeClosesWithoutAQuestion() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Lima"_s);
        desk.Key(Qt::Key_Escape);
        QVERIFY(!desk.Window->isVisible());
        QVERIFY(!desk.Machine.Files.Exists(desk.Module.Paths.ZoneFileFolder + u"Lima.ini"_s));
    }

    void OtherKeysOfTheWindowStayAway() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Lima"_s);
        desk.Key(Qt::Key_F5);
        desk.Key(Qt::Key_F, Qt::ControlModifier);
        desk.Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Lima _"_s);
        QVERIFY(!desk.Search().hasFocus());
        desk.Key(Qt::Key_F1);
        QCOMPARE(desk.Shell.Helps, 1);
        for (const EditAction action : {EditAction::Undo, EditAction::Cut, EditAction::Copy,
                                        EditAction::Paste, EditAction::Find}) {
            QVERIFY(!desk.Window->CanEdit(action));
        }
        // A button keeps its own keys.
        desk.Find<QPushButton>(u"cmdButton1"_s).setFocus();
        desk.Key(Qt::Key_Return);
        QVERIFY(!desk.Window->isVisible());
    }

    void AZoneThatIsOpenTakesWhatIsWrittenOverIt() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Oslo"_s);
        desk.Shell.Answers = {6};
        desk.Told();
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Told(), u"Oslo: refresh form"_s);
        QCOMPARE(mduLib::GetProperty(u"Time Zone Standard Name"_s, desk.OfClock), u"Oslo"_s);
        QCOMPARE(desk.Shell.Refreshed, QStringList());
        desk.Enter(u"Title"_s, u"New"_s);  // and the window is its from now on
        QVERIFY(desk.Told().contains(u"preview Title=New"_s));
    }

    void AnotherZoneIsNotShownByTheClock() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Key(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(desk.Window->PropertyFile(), desk.Clock->File);
        desk.Type(u"2"_s);
        desk.Told();
        desk.Key(Qt::Key_Return);
        QVERIFY(desk.Told().endsWith(u"Oslo: preview "_s));
        QCOMPARE(desk.Window->PropertyFile(), desk.Module.Paths.ZoneFileFolder + u"Oslo2.ini"_s);
        desk.Enter(u"Stay Time"_s, u"7"_s);
        QCOMPARE(desk.Told(), QString());
    }

    void TheFlowCanBeTurnedOver() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Key(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Oslo _"_s);
        QCOMPARE(desk.Button().text(), u"Save"_s);
        QVERIFY(!desk.Grid().isEnabled());
        desk.Type(u"2"_s);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Stored(u"Time Zone Standard Name"_s, u"TimeZones/Oslo2.ini"_s), u"Oslo2"_s);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Oslo2"_s);
        desk.Window.reset();
        desk.Open();
        desk.Key(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        desk.Type(u"x"_s);
        desk.Key(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Oslo"_s);
        QVERIFY(desk.Grid().isEnabled());
        QVERIFY(desk.View().hasFocus());
    }
};

QTEST_MAIN(tst_PropertyWindowNew)
#include "tst_PropertyWindowNew.moc"
