#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>

#include "editor/PropertyWindowDesk.h"

using namespace Qt::StringLiterals;

class tst_PropertyWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsTheFile() {
        PropertyWindowDesk desk;
        desk.Open();
        QCOMPARE(desk.Window->windowTitle(), u"Properties - Oslo"_s);
        QCOMPARE(desk.Window->Caption(), u"Properties - Oslo"_s);
        QCOMPARE(desk.Window->Name(), u"frmProperties"_s);
        QCOMPARE(desk.Window->PropertyFile(), desk.Clock->File);
        QCOMPARE(desk.Button().text(), u"Apply"_s);
        QCOMPARE(desk.Find<QPushButton>(u"cmdButton1"_s).text(), u"Close"_s);
        const editor::EditGridData& data = desk.Grid().Data();
        QCOMPARE(data.TextMatrix(0, 0), u"Property"_s);
        QCOMPARE(data.TextMatrix(0, 1), u"Value"_s);
        QCOMPARE(data.Rows(), 25);
        QCOMPARE(data.Cols(), 2);
        QCOMPARE(data.FixedCols(), 0);
        QCOMPARE(desk.Grid().Tag, u"2,0"_s);
        QCOMPARE(desk.Listed(), (QStringList{u"Hand Style"_s, u"Hand Colour"_s, u"Hand Length(%)"_s,
                                             u"Stay Time"_s, u"Title"_s, u"Window Title Bar"_s,
                                             u"Flag File"_s, u"Hour Font"_s}));
        QCOMPARE(desk.Cell(u"Hand Style"_s), u"3D"_s);
        QCOMPARE(desk.Cell(u"Flag File"_s), QString());
        QCOMPARE(data.RowData(2), 2);
        QCOMPARE(data.RowData(9), 0);
        QCOMPARE(desk.Current(), u"Hand Style"_s);
        QVERIFY(!desk.Window->findChild<QLabel*>(u"lblNewName"_s)->isVisible());
        const editor::GridLook& look = desk.Grid().Look();
        QCOMPARE(look.BackColorFixed, QColor(0xC0, 0xFF, 0xC0));
        QCOMPARE(look.ForeColorFixed, QColor(0, 0, 0x80));
    }

    void ARowMoreThanTheFile() {
        PropertyWindowDesk desk;
        QByteArray content;
        for (int number = 1; number <= 40; ++number) {
            content += "Key " + QByteArray::number(number) + "=x\r\n";
        }
        desk.Clock->File = desk.Machine.WriteFile(u"TimeZones/Oslo.ini"_s, content);
        desk.Publish(desk.Clock->File);
        desk.Open();
        QCOMPARE(desk.Grid().Data().Rows(), 42);
        QCOMPARE(desk.Listed().size(), 40);
    }

    void ColumnsFollowTheWindow() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Window->resize(500, 400);
        QCOMPARE(desk.Grid().Look().ColumnAt(0).Width, 4350);  // 290 pixels
        QCOMPARE(desk.Grid().Look().ColumnAt(1).Width, 2250);  // 150
        QCOMPARE(desk.View().columnWidth(0), 290);
        QCOMPARE(desk.View().columnWidth(1), 150);
        desk.Window->resize(10, 10);
        QVERIFY(desk.Window->width() >= 320);
        QVERIFY(desk.Grid().height() > 60);
        const QRect button(desk.Button().mapTo(desk.Window.get(), QPoint()), desk.Button().size());
        QVERIFY(desk.Window->rect().contains(button));
        QVERIFY(desk.Grid().geometry().bottom() < button.top());
    }

    void EachValueHasItsEditor_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("words") << u"Hand Style"_s << 1
                               << QStringList{u"Line"_s, u"Frame"_s, u"3D"_s};
        QTest::newRow("numbers") << u"Hand Length(%)"_s << 4
                                 << QStringList{u"80"_s, u"85"_s, u"90"_s};
        QTest::newRow("a number") << u"Stay Time"_s << 2 << QStringList();
        QTest::newRow("a text") << u"Title"_s << 3 << QStringList();
        QTest::newRow("a file") << u"Flag File"_s << 3 << QStringList();
    }
    void EachValueHasItsEditor() {
        QFETCH(QString, key);
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Hand Colour"_s);
        desk.GoTo(key);
        QCOMPARE(desk.Current(), key);
        QTEST(static_cast<int>(desk.Grid().Columns().Ctl(1).Id), "kind");
        QTEST(desk.Grid().Columns().Items(1), "items");
        QVERIFY(!desk.Grid().Columns().IsEditable(0));
    }

    void ATypedValueIsCommittedAndApplied() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"New"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"New"_s);
        QCOMPARE(desk.Stored(u"Title"_s), u"Old"_s);
        desk.Told();
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"New"_s);
        QCOMPARE(desk.Stored(u"Hand Style"_s), u"3D,Line,Frame,3D"_s);
        QVERIFY(desk.Told().contains(u"Oslo: refresh form"_s));
        QCOMPARE(mduLib::GetProperty(u"Title"_s, desk.OfClock), u"New"_s);
        QCOMPARE(desk.Button().text(), u"Apply"_s);
        QVERIFY(desk.Window->close());  // nothing is asked
    }

    void AChoiceKeepsItsList() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Hand Style"_s);
        desk.Key(Qt::Key_Return);
        QVERIFY(desk.Grid().Editing().IsEditing());
        desk.Type(u"F"_s);
        desk.Key(Qt::Key_Return);
        QCOMPARE(desk.Cell(u"Hand Style"_s), u"Frame"_s);
        desk.GoTo(u"Title"_s);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Hand Style"_s), u"Frame,Line,Frame,3D"_s);
    }

    void AnEmptyCellGivesTheChoiceBack() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Hand Length(%)"_s);
        desk.Grid().Data().SetTextMatrix(desk.RowOf(u"Hand Length(%)"_s), 1, {});
        desk.GoTo(u"Title"_s);
        QCOMPARE(desk.Cell(u"Hand Length(%)"_s), u"85"_s);
        QVERIFY(!desk.Window->CanEdit(EditAction::Undo));
    }

    void AnEmptyFileIsStored() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Flag File"_s, u"x.png"_s);
        QCOMPARE(desk.Cell(u"Flag File"_s), u"x.png"_s);
        desk.GoTo(u"Flag File"_s);
        desk.Grid().Data().SetTextMatrix(desk.RowOf(u"Flag File"_s), 1, {});
        desk.GoTo(u"Title"_s);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Flag File"_s), QString());
        QCOMPARE(desk.Cell(u"Flag File"_s), QString());
    }

    void TheLineTellsOfTheRow() {
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(u"Help/properties.txt"_s, "");
        desk.Open();
        desk.GoTo(u"Hand Length(%)"_s);
        QVERIFY2(desk.Info().contains(u"80, 85, 90"_s), qPrintable(desk.Info()));
        desk.GoTo(u"Title"_s);
        QVERIFY(!desk.Info().contains(u"80, 85, 90"_s));
    }

    void FilesArePicked() {
        PropertyWindowDesk desk;
        desk.Machine.Dialogs.FileAnswers = {desk.Machine.AppFolder() + u"/Images/Flags/a b.png"_s,
                                            QString()};
        desk.Open();
        desk.GoTo(u"Flag File"_s);
        const QPoint cell = desk.View().visualRect(desk.Index(u"Flag File"_s)).center();
        QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(desk.Cell(u"Flag File"_s), u".\\Images\\Flags\\a b.png"_s);
        QCOMPARE(desk.Machine.Dialogs.PickerFolders.first(),
                 desk.Machine.AppFolder() + u"/Images/Flags/"_s);
        QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(desk.Cell(u"Flag File"_s), u".\\Images\\Flags\\a b.png"_s);  // cancelled
        desk.Window->Edit(EditAction::Undo);
        QCOMPARE(desk.Cell(u"Flag File"_s), QString());
    }

    void ADoubleClickOpensOtherEditors() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        const QPoint cell = desk.View().visualRect(desk.Index(u"Title"_s)).center();
        QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, cell);
        QVERIFY(desk.Grid().Editing().IsEditing());
        desk.Key(Qt::Key_Escape);
        QVERIFY(!desk.Grid().Editing().IsEditing());
        QVERIFY(desk.Window->isVisible());  // the editor took it
        desk.Key(Qt::Key_Escape);
        QVERIFY(!desk.Window->isVisible());
    }

    void ACustomColourIsPicked() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Machine.Dialogs.ColourAnswers = {0x123456, -1};
        desk.GoTo(u"Hand Colour"_s);
        desk.Key(Qt::Key_Return);
        desk.Type(u"C"_s);
        desk.Key(Qt::Key_Return);
        QTRY_COMPARE(desk.Cell(u"Hand Colour"_s), u"1193046"_s);
        desk.Key(Qt::Key_Return);
        desk.Type(u"C"_s);
        desk.Key(Qt::Key_Return);
        QTRY_VERIFY(desk.Machine.Dialogs.ColourAnswers.empty());
        QCOMPARE(desk.Cell(u"Hand Colour"_s), u"1193046"_s);  // cancelled
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Hand Colour"_s), u"1193046,Black,Red,Random,Custom"_s);
    }

    void SortsAndReloads() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Run(u"ValueAscending"_s);
        QCOMPARE(desk.Grid().Tag, u"3,1"_s);
        QCOMPARE(desk.Listed().first(), u"Flag File"_s);
        QVERIFY(desk.Find<QAction>(u"ValueAscending"_s).text() == u"Ascending"_s);
        desk.Run(u"NameDescending"_s);
        QCOMPARE(desk.Grid().Tag, u"2,2"_s);
        QCOMPARE(desk.Listed().first(), u"Window Title Bar"_s);
        desk.Run(u"CategorizedAscending"_s);
        QCOMPARE(desk.Grid().Tag, u"1,1"_s);
        QCOMPARE(desk.Listed().first(), u"Stay Time"_s);
        desk.Run(u"ReloadProperties"_s);
        QCOMPARE(desk.Grid().Tag, u"2,0"_s);
        QCOMPARE(desk.Listed().first(), u"Hand Style"_s);
    }

    void SwatchesArePainted() {
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               "A Colour=Blue\r\nB Colour=Transparent\r\nC Colour=Random\r\n");
        desk.Publish(desk.Clock->File);
        desk.Open();
        const QImage image = desk.View().viewport()->grab().toImage();
        const auto pixel = [&](const QString& key, const QPoint& fromCentre) {
            const QRect cell = desk.View().visualRect(desk.Index(key));
            const QPoint centre(cell.left() + 5 + (cell.height() - 8) / 2, cell.center().y());
            return image.pixelColor(centre + fromCentre);
        };
        const QPoint step(3, 3);
        QCOMPARE(pixel(u"A Colour"_s, {}), QColor(Qt::blue));
        QVERIFY(pixel(u"B Colour"_s, {}) != pixel(u"B Colour"_s, {4, 0}));
        QCOMPARE(pixel(u"B Colour"_s, {}), pixel(u"B Colour"_s, {4, 4}));
        QVERIFY(pixel(u"C Colour"_s, -step).red() > pixel(u"C Colour"_s, -step).blue());
        QVERIFY(pixel(u"C Colour"_s, step).red() < pixel(u"C Colour"_s, step).blue());
    }

    void PicturesOfAListStandInLine() {
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               "Hand Colour=Red,Black,Red,Transparent,Random,Custom\r\n");
        desk.Publish(desk.Clock->File);
        desk.Open();
        desk.Key(Qt::Key_Return);
        QAbstractItemView& list = *desk.Grid().GetCellCombo()->view();
        const QImage image = list.viewport()->grab().toImage();
        for (int item = 0; item < 5; ++item) {
            const QRect row = list.visualRect(list.model()->index(item, 0));
            const int side = row.height() - 8;
            const auto isPainted = [&](int x) {
                return image.pixel(x, row.center().y()) != image.pixel(1, row.center().y());
            };
            QVERIFY(!isPainted(4) && isPainted(5));
            QVERIFY(isPainted(4 + side) && !isPainted(5 + side));
        }
    }

    void StandsWithinTheShell_data() {
        QTest::addColumn<QRectF>("twips");
        QTest::addColumn<QRect>("pixels");
        QTest::newRow("as told") << QRectF(150, 300, 7500, 6000) << QRect(10, 20, 500, 400);
        QTest::newRow("beyond the corner")
            << QRectF(9000, 9000, 7500, 6000) << QRect(300, 200, 500, 400);
        QTest::newRow("before the corner")
            << QRectF(-3000, -3000, 7500, 6000) << QRect(0, 0, 500, 400);
        QTest::newRow("larger than the shell")
            << QRectF(150, 150, 30000, 30000) << QRect(0, 0, 800, 600);
    }
    void StandsWithinTheShell() {
        QFETCH(QRectF, twips);
        PropertyWindowDesk desk;
        QMdiArea area;
        area.setFrameShape(QFrame::NoFrame);
        area.resize(800, 600);
        area.show();
        auto* window = new frmProperties(desk.TheProgram, &desk.Shell, &area);
        QMdiSubWindow* frame = area.addSubWindow(window);
        window->ShowPropertyMDIChild(u"Oslo"_s, desk.Clock->hwnd(), twips.left(), twips.top(),
                                     twips.width(), twips.height());
        QTEST(frame->geometry(), "pixels");
        QVERIFY(window->isVisible());
        QCOMPARE(area.activeSubWindow(), frame);
        QCOMPARE(frame->windowTitle(), u"Properties - Oslo"_s);
        window->SetWindowState(2);
        QCOMPARE(window->WindowState(), 2);
        window->SetWindowState(1);
        QCOMPARE(window->WindowState(), 1);
        window->SetWindowState(0);
        QCOMPARE(window->WindowState(), 0);
        window->ShowProperty(u"Lima"_s, 0);  // it shows one file
        QCOMPARE(window->Caption(), u"Properties - Oslo"_s);
        window->Unload();
        QVERIFY(!frame->isVisible());
    }

    void TakesItsUsualSizeWithoutAnother() {
        PropertyWindowDesk desk;
        QMdiArea area;
        area.resize(1000, 900);
        area.show();
        auto* window = new frmProperties(desk.TheProgram, &desk.Shell, &area);
        QMdiSubWindow* frame = area.addSubWindow(window);
        window->ShowPropertyMDIChild(u"Oslo"_s, desk.Clock->hwnd(), 0, 0, 0, -1);
        QCOMPARE(frame->size(), frame->sizeHint());
        QVERIFY(window->width() >= 500);
    }

    void IsNoWindowOfAFileBeforeItIsOpened() {
        PropertyWindowDesk desk;
        frmProperties window(desk.TheProgram, &desk.Shell, nullptr);
        QCOMPARE(window.PropertyFile(), QString());
        window.SetPropertyChanged(true);
        QVERIFY(!window.CanEdit(EditAction::Find));
        window.Edit(EditAction::Find);
        QCOMPARE(window.AsPropertyWindow(), &window);
        QCOMPARE(window.AsEditTarget(), &window);
        QVERIFY(window.hwnd() > 0);
        QVERIFY(window.close());
    }

    void TheCurrentRecordStaysCurrentInAnotherOrder() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Stay Time"_s);
        desk.Run(u"NameAscending"_s);
        QCOMPARE(desk.Current(), u"Stay Time"_s);
        desk.Search().setText(u"hand"_s);
        QCOMPARE(desk.Listed(),
                 (QStringList{u"Hand Colour"_s, u"Hand Length(%)"_s, u"Hand Style"_s}));
        QCOMPARE(desk.Current(), u"Hand Colour"_s);
    }
};

QTEST_MAIN(tst_PropertyWindow)
#include "tst_PropertyWindow.moc"
