// Searching, undoing, cutting and pasting in the window of properties, the keys, the live picture.
#include "editor/PropertyWindowDesk.h"

class tst_PropertyWindowEditing : public QObject {
    Q_OBJECT

    static void SetClipboard(const QString& text) { QGuiApplication::clipboard()->setText(text); }
    static QString Clipboard() { return QGuiApplication::clipboard()->text(); }

private Q_SLOTS:
    void Searches() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(desk.Search().hasFocus());
        desk.Type(u"HAND col"_s);
        QCOMPARE(desk.Listed(), QStringList{u"Hand Colour"_s});
        QCOMPARE(desk.Current(), u"Hand Colour"_s);
        desk.Type(u"x"_s);
        QCOMPARE(desk.Listed(), QStringList());
        QCOMPARE(desk.Info(), u"No property matches \u201cHAND colx\u201d"_s);
        desk.Key(Qt::Key_Down);
        QVERIFY(desk.Search().hasFocus());  // there is no row to go to
        desk.Key(Qt::Key_Backspace);
        desk.Key(Qt::Key_Down);
        QVERIFY(desk.View().hasFocus());
        desk.Key(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(desk.Search().selectedText(), u"HAND col"_s);
        desk.Key(Qt::Key_Escape);
        QCOMPARE(desk.Listed().size(), 8);
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Current(), u"Hand Colour"_s);
        desk.Key(Qt::Key_Escape);
        QVERIFY(!desk.Window->isVisible());
    }

    void AnEmptyListTakesNoKeys() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Search().setText(u"nothing of that kind"_s);
        desk.View().setFocus();
        desk.Key(Qt::Key_Return);
        desk.Type(u"x"_s);
        QVERIFY(!desk.Grid().Editing().IsEditing());
        SetClipboard(u"kept"_s);
        QVERIFY(!desk.Window->CanEdit(EditAction::Copy));
        desk.Key(Qt::Key_C, Qt::ControlModifier);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Clipboard(), u"kept"_s);
        QVERIFY(!desk.Window->CanEdit(EditAction::Undo));
        desk.Search().clear();
        QCOMPARE(desk.Current(), u"Hand Style"_s);
    }

    void UndoAndRedoGoToTheirRow() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"One"_s);
        desk.Enter(u"Title"_s, u"Two"_s);
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.GoTo(u"Hand Style"_s);
        desk.Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"0"_s);
        QCOMPARE(desk.Current(), u"Stay Time"_s);
        QCOMPARE(desk.View().currentIndex().row(), desk.RowOf(u"Stay Time"_s) - 1);
        desk.Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"One"_s);
        QCOMPARE(desk.Current(), u"Title"_s);
        desk.Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"Old"_s);
        QVERIFY(!desk.Window->CanEdit(EditAction::Undo));
        desk.Key(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"One"_s);
        desk.Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"Two"_s);
        QVERIFY(desk.Window->CanEdit(EditAction::Redo));
    }

    void AnOpenLineKeepsItsOwnUndo() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.GoTo(u"Title"_s);
        desk.Key(Qt::Key_Backspace);
        QVERIFY(desk.Grid().Editing().IsEditing());
        for (const int key : {Qt::Key_Y, Qt::Key_Z, Qt::Key_F}) {
            QTest::keyClick(desk.Window.get(), static_cast<Qt::Key>(key), Qt::ControlModifier);
            QVERIFY(desk.Grid().Editing().IsEditing());
        }
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"7"_s);
        QVERIFY(desk.View().isAncestorOf(desk.Focus()));
    }

    void ADefaultBringsItsListAlong() {
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile), "Hand Style=Flat\r\n");
        desk.Publish(desk.Clock->File);
        desk.Open();
        desk.GoTo(u"Hand Style"_s);
        desk.Run(u"BackToDefault"_s);
        QCOMPARE(desk.Cell(u"Hand Style"_s), u"3D"_s);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Grid().Columns().Items(1), QStringList({u"Line"_s, u"Frame"_s, u"3D"_s}));
        QVERIFY(desk.Grid().GetComboCtl(1) != nullptr);
    }

    void ApplyKeepsWhatCanBeUndone() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"One"_s);
        desk.ClickButton();
        desk.View().setFocus();
        desk.Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"Old"_s);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
    }

    void UndoShowsARowThatTheSearchLeavesOut() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"One"_s);
        desk.Search().setText(u"hand"_s);
        desk.Window->Edit(EditAction::Undo);
        QCOMPARE(desk.Search().text(), QString());
        QCOMPARE(desk.Current(), u"Title"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"Old"_s);
    }

    void RowsAreCopiedAndPasted() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Hand Colour"_s);
        desk.Key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Clipboard(), u"Hand Colour\tRed"_s);
        desk.GoTo(u"Title"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"Old"_s);  // a row goes to its own key
        SetClipboard(u"Plain"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"Plain"_s);
        SetClipboard(u"Title\tA\r\nStay Time\t5\nHand Colour\tBlack\nunknown\t1"_s);
        desk.GoTo(u"Hand Style"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"A"_s);
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"5"_s);
        QCOMPARE(desk.Cell(u"Hand Colour"_s), u"Black"_s);
        QCOMPARE(desk.Cell(u"Hand Style"_s), u"3D"_s);
        desk.Key(Qt::Key_Z, Qt::ControlModifier);  // one step
        QCOMPARE(desk.Cell(u"Title"_s), u"Plain"_s);
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"0"_s);
        QCOMPARE(desk.Cell(u"Hand Colour"_s), u"Red"_s);
        desk.Window->Edit(EditAction::SelectAll);
        desk.Window->Edit(EditAction::Copy);
        QCOMPARE(Clipboard().split(u'\n').size(), 8);
    }

    void CutEmptiesAValueWithoutChoices() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        desk.Key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(Clipboard(), u"Title\tOld"_s);
        QCOMPARE(desk.Cell(u"Title"_s), QString());
        desk.GoTo(u"Hand Length(%)"_s);
        desk.Key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(Clipboard(), u"Hand Length(%)\t85"_s);
        QCOMPARE(desk.Cell(u"Hand Length(%)"_s), u"85"_s);
        desk.Key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"Old"_s);
    }

    void WhatDoesNotFitIsNotPasted() {
        PropertyWindowDesk desk;
        desk.Open();
        SetClipboard(u"Zigzag"_s);
        desk.GoTo(u"Hand Style"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Hand Style"_s), u"3D"_s);
        QCOMPARE(desk.Info(), u"Not a value of Hand Style"_s);
        QVERIFY(!desk.Window->CanEdit(EditAction::Undo));
        SetClipboard(u"3d"_s);  // what it has already
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(!desk.Window->CanEdit(EditAction::Undo));
        SetClipboard(u" frame\n"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Hand Style"_s), u"Frame"_s);
    }

    void LineEndsAndLongTextsArePasted() {
        PropertyWindowDesk desk;
        desk.Open();
        SetClipboard(u"one\r\ntwo\rthree"_s);
        desk.GoTo(u"Title"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"one two three"_s);
        const QString longText(200'000, u'x');
        SetClipboard(longText);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), longText);
        desk.Window.reset();
        desk.Publish(desk.Clock->File);
        desk.Open();
        QCOMPARE(desk.Cell(u"Title"_s).size(), 200'000);
        desk.GoTo(u"Title"_s);
        QVERIFY(!desk.Window->grab().isNull());
    }

    void TwoRowsOfOneKey() {
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile), "K=one\r\nK=two\r\n");
        desk.Publish(desk.Clock->File);
        desk.Open();
        QCOMPARE(desk.Listed(), (QStringList{u"K"_s, u"K"_s}));
        desk.View().setFocus();
        desk.View().setCurrentIndex(desk.View().model()->index(1, 1));
        desk.Type(u"x"_s);
        desk.Key(Qt::Key_Return);
        desk.ClickButton();
        QCOMPARE(desk.Machine.ReadFile(QString::fromLatin1(desk.ClockFile)),
                 QByteArray("K=one\r\nK=x\r\n"));
    }

    void TheClockShowsWhatTheWindowShows() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Hand Colour"_s);
        QCOMPARE(desk.Told(), QString());
        desk.Key(Qt::Key_Return);
        desk.Key(Qt::Key_Up);
        QCOMPARE(desk.Told(), u"Oslo: preview Hand Colour=Black"_s);
        desk.Key(Qt::Key_Escape);
        QCOMPARE(desk.Told(), u"Oslo: preview "_s);
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Cell(u"Hand Colour"_s), u"Red"_s);
        desk.Key(Qt::Key_Return);
        desk.Key(Qt::Key_Up);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Told(), u"Oslo: preview Hand Colour=Black"_s);  // and it stays
        QCOMPARE(desk.Stored(u"Hand Colour"_s), u"Red,Black,Red,Random,Custom"_s);
        desk.Enter(u"Title"_s, u"One"_s);
        QCOMPARE(desk.Told(), u"Oslo: preview Hand Colour=Black;Title=One"_s);
        desk.Window->Edit(EditAction::Undo);
        QCOMPARE(desk.Told(), u"Oslo: preview Hand Colour=Black"_s);
        desk.ClickButton();
        QCOMPARE(desk.Told(), u"Oslo: set property|Oslo: refresh form"_s);
        desk.Window->Edit(EditAction::Undo);
        QCOMPARE(desk.Told(), u"Oslo: preview Hand Colour=Red"_s);
        desk.Shell.Answers = {7};
        desk.Window->close();
        QCOMPARE(desk.Told(), u"Oslo: preview "_s);
    }

    void TheShellShowsNothingBefore() {
        PropertyWindowDesk desk;
        desk.OpenForShell();
        desk.Enter(u"Title"_s, u"One"_s);
        QCOMPARE(desk.Told(), QString());
    }

    void TheMenuTellsHowThingsAre() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Clock->File = desk.Module.Paths.ZoneFileFolder + u"Elsewhere.ini"_s;
        SetClipboard({});
        const auto isEnabled = [&desk](const QString& name) {
            return desk.Find<QAction>(name).isEnabled();
        };
        desk.OpenMenu();
        QVERIFY(desk.Find<QMenu>(u"PropertyMenu"_s).isVisible());
        QVERIFY(desk.Find<QAction>(u"SortNone"_s).isChecked());
        QVERIFY(!desk.Find<QAction>(u"NameAscending"_s).isChecked());
        QVERIFY(isEnabled(u"RefreshTimeZoneDefaults"_s));  // it has a file
        QVERIFY(!isEnabled(u"Undo"_s));
        QVERIFY(!isEnabled(u"Paste"_s));
        QVERIFY(!isEnabled(u"BackToDefault"_s));
        QVERIFY(isEnabled(u"Cut"_s));
        QVERIFY(desk.Find<QAction>(u"Launch"_s).isVisible());  // no clock has the file
        desk.Find<QMenu>(u"PropertyMenu"_s).close();
        desk.Enter(u"Title"_s, u"One"_s);
        desk.Run(u"NameAscending"_s);
        SetClipboard(u"x"_s);
        desk.Clock->File = desk.Window->PropertyFile();
        desk.OpenMenu();
        QVERIFY(desk.Find<QAction>(u"NameAscending"_s).isChecked());
        QVERIFY(!desk.Find<QAction>(u"SortNone"_s).isChecked());
        QVERIFY(isEnabled(u"Undo"_s));
        QVERIFY(isEnabled(u"Paste"_s));
        QVERIFY(isEnabled(u"BackToDefault"_s));
        QVERIFY(!desk.Find<QAction>(u"Launch"_s).isVisible());
        desk.Find<QMenu>(u"PropertyMenu"_s).close();
        desk.Run(u"Launch"_s);
        QCOMPARE(desk.Shell.Launched, QStringList{u"Oslo"_s});
    }

    void TheMenusCaptions() {
        PropertyWindowDesk desk;
        desk.Open();
        QStringList captions;
        for (const QAction* action : desk.Find<QMenu>(u"PropertyMenu"_s).actions()) {
            captions += action->isSeparator() ? u"-"_s : action->text().section(u'\t', 0, 0);
        }
        QCOMPARE(captions.join(u'|'),
                 u"Sort Name|Sort Value|Sort Categorized|Sort by Default|-|Reload Properties|"
                 "Refresh By Default  (F5)|Refresh Time Zone By Default |-|Close|-|Undo|Redo|Cut|"
                 "Copy|Paste|Find|Back to default|Launch"_s);
        QCOMPARE(desk.Find<QAction>(u"NameAscending"_s).text(), u"Ascending "_s);
        QCOMPARE(desk.Find<QMenu>(u"SortValue"_s).actions().size(), 2);
        desk.Run(u"Close"_s);
        QVERIFY(!desk.Window->isVisible());
    }

    void EveryStopHasAName() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Search().setFocus();
        const auto walk = [&desk](int key) {
            QStringList stops;
            do {
                const QWidget* focus = QApplication::focusWidget();
                const QString name = focus->accessibleName();
                if (stops.isEmpty() || stops.last() != name) {
                    stops += name;  // the grid has a stop in each of its cells
                }
                desk.Key(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            } while (!desk.Search().hasFocus() && stops.size() < 20);
            return stops.join(u", "_s);
        };
        QCOMPARE(walk(Qt::Key_Tab),
                 u"Search properties, Properties, About the property, Apply, Close"_s);
        QCOMPARE(walk(Qt::Key_Backtab),
                 u"Search properties, Close, Apply, About the property, Properties"_s);
    }

    void TheButtonOfACellOpensItsListOrItsPicker() {
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               "Hand Colour=Red,Red,Blue\r\nDial Colour=Red\r\n");
        desk.Publish(desk.Clock->File);
        desk.Open();
        desk.Machine.Dialogs.ColourAnswers = {-1, 0x00FF00};
        desk.GoTo(u"Dial Colour"_s);
        desk.ClickCellButton(u"Dial Colour"_s);
        QCOMPARE(desk.Cell(u"Dial Colour"_s), u"Red"_s);
        desk.ClickCellButton(u"Dial Colour"_s);
        QCOMPARE(desk.Cell(u"Dial Colour"_s), u"65280"_s);
        desk.GoTo(u"Hand Colour"_s);
        QCOMPARE(desk.Grid().Columns().Items(1), (QStringList{u"Red"_s, u"Blue"_s, u"Custom"_s}));
        desk.ClickCellButton(u"Hand Colour"_s);
        QVERIFY(desk.Grid().Editing().IsEditing());
        desk.Key(Qt::Key_Down);
        QCOMPARE(desk.Log.last(), u"Oslo: preview Hand Colour=Blue;Dial Colour=65280"_s);
        desk.Key(Qt::Key_Down);  // to mix one shows none
        QCOMPARE(desk.Log.last(), u"Oslo: preview Dial Colour=65280"_s);
        desk.Key(Qt::Key_Up);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Cell(u"Hand Colour"_s), u"Blue"_s);
    }

    void KeysOpenTheEditor_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifier");
        QTest::addColumn<bool>("opens");
        QTest::newRow("F2") << int(Qt::Key_F2) << int(Qt::NoModifier) << true;
        QTest::newRow("F4") << int(Qt::Key_F4) << int(Qt::NoModifier) << true;
        QTest::newRow("Enter") << int(Qt::Key_Return) << int(Qt::NoModifier) << true;
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier) << true;
        QTest::newRow("Down") << int(Qt::Key_Down) << int(Qt::NoModifier) << false;
        QTest::newRow("F3") << int(Qt::Key_F3) << int(Qt::NoModifier) << false;
    }
    void KeysOpenTheEditor() {
        QFETCH(int, key);
        QFETCH(int, modifier);
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        desk.Key(key, static_cast<Qt::KeyboardModifier>(modifier));
        QTEST(desk.Grid().Editing().IsEditing(), "opens");
    }

    void TheCheckBoxIsClicked() {
        PropertyWindowDesk desk;
        desk.Open();
        const QRect cell = desk.View().visualRect(desk.Index(u"Window Title Bar"_s));
        const QPoint box(cell.left() + 10, cell.center().y());
        QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {}, box);
        QCOMPARE(desk.Cell(u"Window Title Bar"_s), u"No"_s);
        QTest::mouseClick(desk.View().viewport(), Qt::LeftButton, {}, box);
        QCOMPARE(desk.Cell(u"Window Title Bar"_s), u"Yes"_s);
        QCOMPARE(desk.Current(), u"Window Title Bar"_s);
    }

    void AClosedWindowTakesItsEditorAlong() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Hand Style"_s);
        desk.Key(Qt::Key_Return);
        desk.Window.reset();
        QCOMPARE(desk.Windows.Count(), 1);  // the clock
        desk.Open();
        desk.GoTo(u"Title"_s);
        desk.Type(u"x"_s);
        desk.Window.reset();
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
    }
};

QTEST_MAIN(tst_PropertyWindowEditing)
#include "tst_PropertyWindowEditing.moc"
