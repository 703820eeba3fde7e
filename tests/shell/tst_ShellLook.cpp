#include "shell/ui/ShellLook.h"

#include <QTest>

#include "shell/BarsDesk.h"
#include "support/FakeDialogs.h"
#include "support/FakeForms.h"

using namespace Qt::StringLiterals;

/// Settings and menus on the look of bars and area, without the shell's window.
class tst_ShellLook : public QObject {
    Q_OBJECT

private:
    struct Desk : BarsDesk {
        ShellLook Look{TheProgram, Settings, {*Area, Header.Art(), *Toolbar, *Status, *Frame}};
        Desk() {
            Look.AddTo(Commands);
            Window.show();
        }
    };

private Q_SLOTS:
    void TheSettingsHold() {
        Desk desk;
        desk.Hold({{u"Toolbar Size"_s, u"Small Size"_s},
                   {u"Tool Bar"_s, u"Left"_s},
                   {u"Status Bar"_s, u"Top"_s},
                   {u"Window Background Colour"_s, u"Blue"_s},
                   {u"Window Border"_s, u"Classic"_s}});
        desk.Look.ApplyCentralProperties();
        const shell::CentralLook look = desk.Look.Look(2);
        QCOMPARE(look.BackColour, 0xFF0000);
        QCOMPARE(look.ToolbarAlign, 3);
        QVERIFY(look.ToolbarVisible);
        QCOMPARE(look.ToolbarSize, u"Small Size"_s);
        QVERIFY(look.StatusBarVisible);
        QCOMPARE(look.WindowState, 2);
        QCOMPARE(desk.Status->AlignCode(), 1);
        QCOMPARE(desk.Area->frameStyle(), QFrame::Box | QFrame::Plain);
        QCOMPARE(desk.Area->background().color(), QColor(Qt::blue));
        QVERIFY(!desk.Machine.Files.Exists(desk.Module.Paths.CentralFile));
    }

    void AColourIsWrittenAndFollowed() {
        Desk desk;
        FakeClock through(desk.Windows, u"through"_s, desk.Log);
        through.Drawing = 1;
        desk.Click(u"BGColour"_s, u"Red"_s);
        QCOMPARE(desk.Look.BackColor(), 0x0000FF);
        QCOMPARE(through.Colour, 0x0000FF);
        QCOMPARE(desk.Stored(), QByteArray("Window Background Colour=Red\r\n"));
        desk.Click(u"BGColour"_s, u"Transparent"_s);
        QCOMPARE(desk.Look.BackColor(), 0x0000FF);
        QCOMPARE(desk.Stored(), QByteArray("Window Background Colour=Transparent\r\n"));
    }

    void CustomAsks() {
        Desk desk;
        desk.Machine.Dialogs.ColourAnswers = {-1, 0x123456, 0x00FF00};
        desk.Click(u"BGColour"_s, u"Custom"_s);
        QCOMPARE(desk.Look.BackColor(), 8411709);
        QCOMPARE(desk.Stored(), QByteArray());
        desk.Click(u"BGColour"_s, u"Custom"_s);
        QCOMPARE(desk.Stored(), QByteArray("Window Background Colour=1193046\r\n"));
        desk.Click(u"BGColour"_s, u"Custom"_s);
        QCOMPARE(desk.Stored(), QByteArray("Window Background Colour=Green\r\n"));
    }

    void AFileThatSaysCustomAsksNobody() {
        Desk desk;
        desk.Hold({{u"Window Background Colour"_s, u"Custom"_s}});
        desk.Look.ApplyCentralProperties();
        QCOMPARE(desk.Area->background().color(), QColor(0x3D, 0x5A, 0x80));
    }

    void TheStatusBarComesBackWhereItWas() {
        Desk desk;
        desk.Hold({{u"Status Bar"_s, u"Right"_s}});
        desk.Look.ApplyStatusBarPosition(u"Right"_s);
        desk.Click(u"StatusBarAction"_s, u"Hide"_s, u"Yes"_s);
        QVERIFY(!desk.Status->isVisible());
        QCOMPARE(desk.Stored(), QByteArray());
        desk.Click(u"StatusBarAction"_s, u"Show"_s, u"No"_s);
        QVERIFY(desk.Status->isVisible());
        QCOMPARE(desk.Status->AlignCode(), 4);
        QCOMPARE(desk.Stored(), QByteArray());
        desk.Click(u"HideStatusBar"_s, u"Hide"_s, u"Yes"_s);
        QVERIFY(!desk.Status->isVisible());
        QCOMPARE(desk.Stored(), QByteArray("Status Bar=No\r\n"));
        desk.Click(u"HideStatusBar"_s, u"Show"_s, u"No"_s);
        QVERIFY(desk.Status->isVisible());
        QCOMPARE(desk.Status->AlignCode(), 2);
        QCOMPARE(desk.Stored(), QByteArray("Status Bar=Yes\r\n"));
    }

    void ANewSizeShowsTheBar_data() {
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("visible");
        QTest::newRow("somewhere") << u"Top:Hide"_s << true;
        QTest::newRow("nowhere") << u"None"_s << false;
        QTest::newRow("hidden") << u"Hide"_s << false;
    }

    void ANewSizeShowsTheBar() {
        QFETCH(QString, place);
        Desk desk;
        desk.Hold({{u"Tool Bar"_s, place}});
        desk.Look.ApplyToolbarPosition(place);
        QVERIFY(!desk.Toolbar->isVisible());
        desk.Click(u"ToolBarSize"_s, u"Small Size"_s);
        QTEST(desk.Toolbar->isVisible(), "visible");
        QCOMPARE(desk.Toolbar->SizeName(), u"Small Size"_s);
    }

    void AnUnknownPlaceLeavesTheBar() {
        Desk desk;
        desk.Click(u"ToolBarPositions"_s, u"Bottom"_s);
        desk.Click(u"ToolBarPositions"_s, u"Middle"_s);
        QCOMPARE(desk.Toolbar->AlignCode(), 2);
        QVERIFY(desk.Toolbar->isVisible());
        desk.Click(u"ToolBarPositions"_s, u"Hide"_s);
        QVERIFY(!desk.Toolbar->isVisible());
        QCOMPARE(desk.Toolbar->AlignCode(), 2);
    }

    void BarsAreHidden() {
        Desk desk;
        desk.Look.HideBars();
        QVERIFY(!desk.Look.Look(0).ToolbarVisible);
        QVERIFY(!desk.Look.Look(0).StatusBarVisible);
    }

    void APictureAndNone() {
        Desk desk;
        QImage picture(20, 10, QImage::Format_RGB32);
        picture.fill(Qt::green);
        QVERIFY(picture.save(desk.Machine.AppFolder() + u"/back.png"_s));
        desk.Hold({{u"Window Background File"_s, u" .\\back.png "_s}});
        desk.Look.ApplyBackgroundFile();
        QCOMPARE(desk.Area->Picture().size(), QSize(20, 10));
        QVERIFY(desk.Header.Art().IsOverPicture());
        desk.Hold({{u"Window Background File"_s, u"None"_s}});
        desk.Look.ApplyBackgroundFile();
        QVERIFY(desk.Area->Picture().isNull());
        QVERIFY(!desk.Header.Art().IsOverPicture());
    }
};

QTEST_MAIN(tst_ShellLook)
#include "tst_ShellLook.moc"
