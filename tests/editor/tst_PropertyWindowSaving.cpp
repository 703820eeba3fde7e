// How the window of properties writes its file, and gets on with others who write it.
#include "editor/PropertyWindowDesk.h"

class tst_PropertyWindowSaving : public QObject {
    Q_OBJECT

    static constexpr auto SaveBox = "Do you want to save the Oslo?|36|Save Property";
    static constexpr auto ChangedBox =
        "Property has been changed, do you want to refresh with the new values?|36|"
        "Property Changed";
    static constexpr auto GoneBox =
        "\r\nis gone, do you want to save it anew?|36|Property File Gone";

private Q_SLOTS:
    void AppliedToTheShell() {
        PropertyWindowDesk desk;
        desk.OpenForShell();
        QCOMPARE(desk.Window->windowTitle(), u"Properties - TempolarkCentral"_s);
        desk.Enter(u"Title"_s, u"New"_s);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s, u"TempolarkCentral.ini"_s), u"New"_s);
        QCOMPARE(desk.Shell.Refreshed, QStringList{desk.Module.Paths.CentralFile});
        QCOMPARE(mduLib::GetProperty(u"Title"_s, desk.Module.CurrentProperties), u"New"_s);
        QCOMPARE(desk.Told(), QString());  // no clock has to do with it
    }

    void ClosingAsksForWhatIsNotSaved_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("stored");
        QTest::newRow("yes") << 6 << u"New"_s;
        QTest::newRow("no") << 7 << u"Old"_s;
    }
    void ClosingAsksForWhatIsNotSaved() {
        QFETCH(int, answer);
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Shell.Answers = {answer};
        desk.Told();
        QTest::mouseClick(&desk.Find<QPushButton>(u"cmdButton1"_s), Qt::LeftButton);
        QCOMPARE(desk.Shell.Boxes, QStringList{QString::fromLatin1(SaveBox)});
        QVERIFY(!desk.Window->isVisible());
        QTEST(desk.Stored(u"Title"_s), "stored");
        QCOMPARE(desk.Told().contains(u"refresh form"_s), answer == 6);
        QCOMPARE(desk.Windows.Find(desk.Window->hwnd()), nullptr);
    }

    void ClosingWhileANameIsTypedAsksForTheFile() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Key(Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
        desk.Shell.Answers = {6, 7};
        QVERIFY(!desk.Window->close());  // the name is that of a file
        QCOMPARE(desk.Shell.Boxes.size(), 2);
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
        desk.Type(u"2"_s);
        desk.Shell.Answers = {6};
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Stored(u"Title"_s, u"TimeZones/Oslo2.ini"_s), u"New"_s);
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
    }

    void AnOpenEditorIsTakenAlong() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        desk.Type(u"Typed"_s);
        QVERIFY(desk.Grid().Editing().IsEditing());
        desk.Shell.Answers = {6};
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Stored(u"Title"_s), u"Typed"_s);
    }

    void NothingIsAskedWithoutAChange() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Enter(u"Title"_s, u"Old"_s);
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Shell.Boxes, QStringList());
    }

    void AFailureIsToldAndNothingLost() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Machine.Files.Unwritable = {desk.Clock->File};
        desk.ClickButton();
        QVERIFY(desk.Info().contains(u"Oslo.ini"_s));
        QCOMPARE(desk.Shell.Messages, QStringList{desk.Info()});
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        desk.Shell.Answers = {6};
        QVERIFY(!desk.Window->close());  // "Yes" could not be done
        QVERIFY(desk.Window->isVisible());
        desk.Machine.Files.Unwritable.clear();
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"New"_s);
        QVERIFY(desk.Window->close());
    }

    void AChangeByTheClockIsAskedForWhenTheGridGetsTheFocus() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.Run(u"NameAscending"_s);
        desk.Search().setFocus();
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Clock's"));
        desk.Window->SetPropertyChanged(true);
        QCoreApplication::processEvents();
        QCOMPARE(desk.Shell.Boxes, QStringList());
        desk.Shell.Answers = {6};
        desk.View().setFocus();
        QTRY_COMPARE(desk.Shell.Boxes, QStringList{QString::fromLatin1(ChangedBox)});
        QCOMPARE(desk.Cell(u"Title"_s), u"Clock's"_s);
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"0"_s);
        QCOMPARE(desk.Grid().Tag, u"2,0"_s);
        desk.Window->Edit(EditAction::Undo);  // what was edited is not lost
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"7"_s);
        desk.Search().setFocus();
        desk.View().setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(desk.Shell.Boxes.size(), 1);
    }

    void AFailureForgetsNoChange() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Clock->OnSetProperty = [&desk] { desk.Window->SetPropertyChanged(true); };
        desk.Machine.Files.Unwritable = {desk.Clock->File};
        desk.ClickButton();
        QCOMPARE(desk.Shell.Boxes, QStringList());
        desk.Machine.Files.Unwritable.clear();
        desk.Shell.Answers = {7};
        desk.ClickButton();
        QCOMPARE(desk.Shell.Boxes, QStringList{QString::fromLatin1(ChangedBox)});
    }

    void NoGoesOnWithWhatIsThere() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Other's"));
        desk.Shell.Answers = {7};
        desk.ClickButton();  // another program has told nobody
        QCOMPARE(desk.Shell.Boxes, QStringList{QString::fromLatin1(ChangedBox)});
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"7"_s);
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
    }

    void YesAtApplyWritesNothing() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Other's"));
        desk.Shell.Answers = {6};
        desk.Machine.Files.Writes.clear();
        desk.ClickButton();
        QCOMPARE(desk.Machine.Files.Writes, QStringList());
        QCOMPARE(desk.Cell(u"Title"_s), u"Other's"_s);
        QCOMPARE(desk.Stored(u"Title"_s), u"Other's"_s);
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"0"_s);
    }

    void ADeletedFileIsWrittenAgain() {
        PropertyWindowDesk desk;
        desk.Open();
        QVERIFY(QFile::remove(desk.Clock->File));
        desk.Run(u"ReloadProperties"_s);
        QCOMPARE(desk.Info(), desk.Clock->File + u" is not there any more"_s);
        QCOMPARE(desk.Listed().size(), 8);
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Shell.Answers = {7, 2};
        desk.ClickButton();
        desk.ClickButton();
        QCOMPARE(desk.Shell.Boxes, QStringList(2, desk.Clock->File + QString::fromLatin1(GoneBox)));
        QVERIFY(!QFile::exists(desk.Clock->File));
        desk.Shell.Answers = {6};
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"New"_s);
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"0"_s);
    }

    void ADeletedFileIsAskedForAtClosing() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        QVERIFY(QFile::remove(desk.Clock->File));
        desk.Shell.Answers = {6, 7};
        QVERIFY(!desk.Window->close());
        QVERIFY(!QFile::exists(desk.Clock->File));
        desk.Shell.Answers = {6, 6};
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Shell.Boxes.last(), desk.Clock->File + QString::fromLatin1(GoneBox));
        QCOMPARE(desk.Stored(u"Title"_s), u"New"_s);
    }

    void ADeletedFileIsAskedForBeforeItsZoneIsRenewed() {
        PropertyWindowDesk desk;
        desk.Open();
        QVERIFY(QFile::remove(desk.Clock->File));
        desk.Shell.Answers = {7};
        desk.Run(u"RefreshTimeZoneDefaults"_s);
        QVERIFY(!desk.Told().contains(u"zone details"_s));
        desk.Clock->Unload();
        desk.Run(u"RefreshTimeZoneDefaults"_s);  // nobody writes it
        QCOMPARE(desk.Shell.Boxes.size(), 1);
    }

    void ADismissedBoxLeavesTheWindow() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Shell.Answers = {2};
        QVERIFY(!desk.Window->close());
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
        QVERIFY(!desk.Told().endsWith(u"preview "_s));  // the clock goes on showing it
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Other's"));
        desk.Shell.Answers = {2};
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"Other's"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        desk.Search().setFocus();
        desk.View().setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(desk.Shell.Boxes.size(), 2);
    }

    void ClosingAsksForAChangeByOthers_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("cell");
        QTest::newRow("yes") << 6 << false << u"Other's"_s << u"Other's"_s;
        QTest::newRow("no") << 7 << true << u"New"_s << u"New"_s;
        QTest::newRow("dismissed") << 2 << false << u"Other's"_s << u"New"_s;
    }
    void ClosingAsksForAChangeByOthers() {
        QFETCH(int, answer);
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Other's"));
        desk.Shell.Answers = {6, answer};
        const bool closed = desk.Window->close();
        QTEST(closed, "closes");
        QCOMPARE(desk.Shell.Boxes,
                 (QStringList{QString::fromLatin1(SaveBox), QString::fromLatin1(ChangedBox)}));
        QTEST(desk.Stored(u"Title"_s), "stored");
        QTEST(desk.Cell(u"Title"_s), "cell");
        if (answer == 6) {
            desk.Window->Edit(EditAction::Undo);
            QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        }
    }

    void AFileThatCantBeReadKeepsTheWindow() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        const QByteArray locked("a\0b", 3);
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile), locked);
        desk.Shell.Answers = {6};
        QVERIFY(!desk.Window->close());
        QCOMPARE(desk.Machine.ReadFile(QString::fromLatin1(desk.ClockFile)), locked);
        QCOMPARE(desk.Info(),
                 desk.Clock->File + u" can't be read as a property file; it is left as it is"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
    }

    void ALockedFileIsTold() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Machine.Files.Unreadable = {desk.Clock->File};
        desk.Run(u"ReloadProperties"_s);
        QVERIFY(desk.Info().contains(u"Oslo.ini"_s));
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        desk.ClickButton();
        desk.Machine.Files.Unreadable.clear();
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
    }

    void WhatTheClockWritesWhenItTakesTheValuesIsNoChange() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Clock->OnRefreshForm = [&desk](const QString&) {
            desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                                   desk.Content().replace("Old", "Renewed"));
            TellPropertyWindows(desk.Windows, desk.Clock->File);
        };
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.ClickButton();
        desk.Search().setFocus();
        desk.View().setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(desk.Shell.Boxes, QStringList());
        QCOMPARE(desk.Cell(u"Title"_s), u"Renewed"_s);
    }

    void TheClockMayCloseFirst() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Clock.reset();
        desk.GoTo(u"Hand Style"_s);
        desk.Key(Qt::Key_Return);
        desk.Key(Qt::Key_Down);
        desk.Key(Qt::Key_Return);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"New"_s);
        QVERIFY(desk.Window->close());
    }

    void TwoWindowsAndOneFile() {
        PropertyWindowDesk desk;
        desk.Open();
        frmProperties other(desk.TheProgram, &desk.Shell, nullptr);
        desk.Publish(desk.Clock->File);
        other.ShowProperty(u"Oslo"_s, desk.Clock->hwnd());
        other.setAttribute(Qt::WA_DeleteOnClose, false);
        desk.Enter(u"Title"_s, u"New"_s);
        desk.ClickButton();
        desk.Shell.Answers = {6};
        other.findChild<QLineEdit*>(u"txtSearch"_s)->setFocus();
        other.activateWindow();
        other.findChild<QTableView*>(u"ctlGrid"_s)->setFocus();
        QTRY_COMPARE(desk.Shell.Boxes, QStringList{QString::fromLatin1(ChangedBox)});
        const auto* grid = static_cast<ctlEditGrid*>(other.findChild<QWidget*>(u"grdProperty"_s));
        QCOMPARE(grid->Data().TextMatrix(desk.RowOf(u"Title"_s), 1), u"New"_s);
        QVERIFY(other.close());
    }

    void TwoWindowsOnTwoFiles() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Publish(desk.Module.Paths.CentralFile);
        frmProperties other(desk.TheProgram, &desk.Shell, nullptr);
        other.ShowProperty(mduMain::CentralExeName, 0);
        other.setAttribute(Qt::WA_DeleteOnClose, false);
        desk.Enter(u"Title"_s, u"New"_s);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"New"_s);
        QCOMPARE(desk.Stored(u"Title"_s, u"TempolarkCentral.ini"_s), u"Old"_s);
        QVERIFY(other.close());
        QCOMPARE(desk.Shell.Boxes, QStringList());
    }

    void WithoutAShellBoxesAreTheMachines() {
        PropertyWindowDesk desk;
        desk.Window = std::make_unique<frmProperties>(desk.TheProgram, nullptr, nullptr);
        desk.Window->ShowProperty(u"Oslo"_s, desk.Clock->hwnd());
        desk.Window->setAttribute(Qt::WA_DeleteOnClose, false);
        desk.Enter(u"Title"_s, u"New"_s);
        desk.Machine.Dialogs.BoxAnswers = {7};
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Machine.Dialogs.Boxes.front().Title, u"Save Property"_s);
    }

    void DefaultsComeBack() {
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(u"TimeZones/Oslo.ini"_s,
                               desk.Content().replace("Old", "Mine").replace("=Red", "=Black"));
        desk.Publish(desk.Clock->File);
        desk.Open();
        desk.Run(u"ValueDescending"_s);
        desk.View().setFocus();
        desk.Key(Qt::Key_F5);
        QCOMPARE(desk.Cell(u"Title"_s), u"Old"_s);
        QCOMPARE(desk.Cell(u"Hand Colour"_s), u"Red"_s);
        QCOMPARE(desk.Grid().Tag, u"2,0"_s);
        desk.Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"Mine"_s);
        desk.GoTo(u"Hand Colour"_s);
        desk.Run(u"BackToDefault"_s);
        QCOMPARE(desk.Cell(u"Hand Colour"_s), u"Red"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"Mine"_s);
    }

    void TheZonesRulesComeAfresh() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Hand Colour"_s, u""_s);
        desk.Log.clear();
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               desk.Content().replace("Old", "Other's"));
        desk.Shell.Answers = {2};
        desk.Run(u"RefreshTimeZoneDefaults"_s);
        QVERIFY(!desk.Told().contains(u"zone details"_s));
        desk.Shell.Answers = {7};
        desk.Run(u"RefreshTimeZoneDefaults"_s);
        QCOMPARE(desk.Shell.Boxes, QStringList(2, QString::fromLatin1(ChangedBox)));
        QVERIFY(desk.Told().contains(u"Oslo: zone details Oslo"_s));
        QCOMPARE(desk.Grid().Tag, u"2,0"_s);
    }
};

QTEST_MAIN(tst_PropertyWindowSaving)
#include "tst_PropertyWindowSaving.moc"
