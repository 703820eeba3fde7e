// What goes on while a box or a picker of the window of properties stands open.
#include <QPointer>

#include "editor/PropertyWindowDesk.h"

class tst_PropertyWindowBoxes : public QObject {
    Q_OBJECT

    /// A window that is deleted once it is closed, as it is in the shell.
    static QPointer<frmProperties> LetGo(PropertyWindowDesk& desk) {
        desk.Window->setAttribute(Qt::WA_DeleteOnClose);
        return desk.Window.release();
    }

private Q_SLOTS:
    void StaysWhileItsOverwriteBoxIsOpen_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("stored");
        QTest::newRow("yes") << 6 << u"Oslo"_s;
        QTest::newRow("no") << 7 << QString();
    }
    void StaysWhileItsOverwriteBoxIsOpen() {
        QFETCH(int, answer);
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Oslo"_s);
        QPushButton& button = desk.Button();
        const QPointer<frmProperties> window = LetGo(desk);
        desk.Shell.Answers = {answer};
        desk.Shell.OnBox = [&window] {
            window->Unload();
            QTest::keyClick(window, Qt::Key_Escape);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        QTest::mouseClick(&button, Qt::LeftButton);
        QVERIFY(window && window->isVisible());
        QCOMPARE(desk.Shell.Boxes.size(), 1);
        QTEST(desk.Stored(u"Time Zone Standard Name"_s), "stored");
        desk.Shell.OnBox = [] {};
        desk.Shell.Answers = {7};
        window->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!window);
    }

    void StaysWhileAPickerIsOpen_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("cell");
        QTest::newRow("file") << u"Flag File"_s << u"\\clocks\\a.gif"_s;
        QTest::newRow("colour") << u"Hand Colour"_s << u"255"_s;
    }
    void StaysWhileAPickerIsOpen() {
        QFETCH(QString, key);
        PropertyWindowDesk desk;
        desk.Machine.WriteFile(QString::fromLatin1(desk.ClockFile),
                               "Hands:Hand Colour=Red\r\nClock:Flag File=\r\n");
        desk.Publish(desk.Clock->File);
        desk.Open();
        desk.GoTo(key);
        ctlEditGrid& grid = desk.Grid();
        const int row = desk.RowOf(key);
        const QPointer<frmProperties> window = LetGo(desk);
        desk.Machine.Dialogs.FileAnswers = {u"/clocks/a.gif"_s};
        desk.Machine.Dialogs.ColourAnswers = {255};
        desk.Machine.Dialogs.OnPicker = [&window] {
            window->Unload();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        const QRect cell = grid.View().visualRect(grid.View().currentIndex());
        QTest::mouseClick(grid.View().viewport(), Qt::LeftButton, {},
                          QPoint(cell.right() - 8, cell.center().y()));
        QVERIFY(window && window->isVisible());
        QTEST(grid.Data().TextMatrix(row, 1), "cell");
        desk.Machine.Dialogs.OnPicker = [] {};
        desk.Shell.Answers = {7};
        delete window.data();
    }

    void AWindowThatIsGoneTakesNoPickedFile() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Flag File"_s);
        desk.Machine.Dialogs.FileAnswers = {u"/clocks/a.gif"_s};
        desk.Machine.Dialogs.OnPicker = [&desk] { desk.Window.reset(); };
        desk.ClickCellButton(u"Flag File"_s);
        QVERIFY(!desk.Window);
        QCOMPARE(desk.Stored(u"Flag File"_s), QString());
    }

    void OneBoxAtATime() {
        PropertyWindowDesk desk;
        desk.OpenForNew();
        desk.Type(u"Oslo"_s);
        desk.Shell.Answers = {7};
        desk.Shell.OnBox = [&desk] { desk.Button().click(); };
        desk.Button().click();
        QCOMPARE(desk.Shell.Boxes.size(), 1);
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Stored(u"Time Zone Standard Name"_s), QString());
    }

    void TheQuestionOfAChangeIsAskedOnce() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.Window->SetPropertyChanged(true);
        desk.Shell.Answers = {7};
        desk.Shell.OnBox = [&desk] {
            desk.Button().click();
            desk.Window->Unload();
        };
        desk.Button().click();
        QCOMPARE(desk.Shell.Boxes.size(), 1);
        QVERIFY(desk.Window->isVisible());
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"7"_s);
    }

    void AFileWithACommaIsNotSet() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Flag File"_s, u".\\old.gif"_s);
        desk.Machine.Dialogs.FileAnswers = {u"/clocks/one, two.gif"_s};
        desk.Machine.Dialogs.BoxAnswers = {1};
        desk.ClickCellButton(u"Flag File"_s);
        QCOMPARE(desk.Cell(u"Flag File"_s), u".\\old.gif"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes.size(), 1U);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Title, u"Set File Error"_s);
        QCOMPARE(desk.Machine.Dialogs.Boxes[0].Text, u"File is not set /clocks/one, two.gif"_s);
        desk.Machine.Dialogs.FileAnswers = {QString()};
        desk.ClickCellButton(u"Flag File"_s);  // cancelled
        QCOMPARE(desk.Cell(u"Flag File"_s), u".\\old.gif"_s);
    }

    void ATypedCommaIsTold() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.Enter(u"Title"_s, u"Hello, world"_s);
        QCOMPARE(desk.Cell(u"Title"_s), u"Hello"_s);
        QTRY_COMPARE(desk.Info(), u"A value can't hold a comma"_s);
        QCOMPARE(desk.Shell.Messages, QStringList{u"A value can't hold a comma"_s});
        desk.Enter(u"Hand Length(%)"_s, u"70,1"_s);
        desk.ClickButton();
        QCOMPARE(desk.Stored(u"Title"_s), u"Hello"_s);
        QCOMPARE(desk.Stored(u"Hand Length(%)"_s), u"70,80,85,90"_s);
    }

    void WhatIsNotPastedIsTold() {
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(u"Title"_s);
        QGuiApplication::clipboard()->setText(u"Title\tA,B\nunknown\t1\nStay Time\t5\nTitle\tC"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), u"A"_s);
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"5"_s);
        QCOMPARE(desk.Info(), u"2 lines have no row here; A value can't hold a comma"_s);
        QGuiApplication::clipboard()->setText(u"Title\tD\nunknown\t1"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Info(), u"1 line has no row here"_s);
        desk.GoTo(u"Hand Style"_s);
        QGuiApplication::clipboard()->setText(u"Bent"_s);
        desk.Key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(desk.Info(), u"Not a value of Hand Style"_s);
    }

    void WhatIsNotCutIsTold_data() {
        QTest::addColumn<QString>("key");
        QTest::newRow("words") << u"Hand Style"_s;
        QTest::newRow("a number with a list") << u"Hand Length(%)"_s;
    }
    void WhatIsNotCutIsTold() {
        QFETCH(QString, key);
        PropertyWindowDesk desk;
        desk.Open();
        desk.GoTo(key);
        const QString before = desk.Cell(key);
        desk.Key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(desk.Cell(key), before);
        QCOMPARE(desk.Info(), u"Not cut, since it can't be empty: "_s + key);
        desk.GoTo(u"Title"_s);
        desk.Key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(desk.Cell(u"Title"_s), QString());
        desk.Key(Qt::Key_X, Qt::ControlModifier);  // and once more: it is empty already
        QVERIFY(!desk.Info().contains(u"Not cut"_s));
    }
};

QTEST_MAIN(tst_PropertyWindowBoxes)
#include "tst_PropertyWindowBoxes.moc"
