#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTest>

#include "clock/ui/frmTempolark.h"
#include "foundation/PropertyLookup.h"
#include "shell/ShellDesk.h"
#include "shell/ui/ClockArea.h"
#include "shell/ui/ToolBar.h"
#include "support/FakeDialogs.h"
#include "support/FakeSettings.h"

/// What the shell's property file says.
static QString Stored(const Desk& desk, const QString& key) {
    const QString file = QString::fromUtf8(desk.User(u"TempolarkCentral.ini"_s));
    for (const QString& line : file.split(u"\r\n"_s)) {
        const QString name = line.section(u'=', 0, 0);
        if (name.section(u':', -1) == key) {
            return line.section(u'=', 1).section(u',', 0, 0);
        }
    }
    return u"?"_s;
}

static void Write(Desk& desk, const QByteArray& lines) {
    desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s,
                           "Window Width=9000\r\nWindow Height=6000\r\n" + lines);
}

class tst_SettingsInTheShell : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BorderOfTheArea_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("style");
        QTest::newRow("none") << QByteArray("No Border") << 0;
        QTest::newRow("3D") << QByteArray("3D Border") << (QFrame::StyledPanel | QFrame::Sunken);
        QTest::newRow("classic") << QByteArray("Classic") << (QFrame::Box | QFrame::Plain);
        QTest::newRow("unknown") << QByteArray("Golden") << 0;
    }

    void BorderOfTheArea() {
        QFETCH(QByteArray, value);
        Desk desk;
        Write(desk, "Window Border=" + value + "\r\n");
        QVERIFY(desk.Start());
        QTEST(desk.Shell->findChild<QMdiArea*>()->frameStyle(), "style");
    }

    void ToolbarStandsWhereItIsToldTo_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<QRect>("place");  // above the status bar; 0: as high as the room
        // Small with captions is 830 twips: 55 pixels.
        QTest::newRow("top") << QByteArray("Top") << true << QRect(0, 0, 600, 55);
        QTest::newRow("bottom") << QByteArray("Bottom") << true << QRect(0, -55, 600, 55);
        QTest::newRow("left") << QByteArray("Left") << true << QRect(0, 0, 55, 0);
        QTest::newRow("right") << QByteArray("Right") << true << QRect(545, 0, 55, 0);
        QTest::newRow("none") << QByteArray("None") << false << QRect();
        QTest::newRow("hidden") << QByteArray("Left:Hide") << false << QRect();
    }

    void ToolbarStandsWhereItIsToldTo() {
        QFETCH(QByteArray, value);
        QFETCH(bool, visible);
        QFETCH(QRect, place);
        Desk desk;
        Write(desk, "Status Bar=Yes\r\nToolbar Size=Small Size with Caption\r\nTool Bar=" + value +
                        "\r\n");
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<ToolBar*>();
        QCOMPARE(bar->isVisible(), visible);
        if (visible) {
            const QRect status = desk.Shell->findChild<StatusBar*>()->geometry();
            if (place.top() < 0) {
                place.moveTop(status.top() + place.top());
            }
            if (place.height() == 0) {
                place.setHeight(status.top());
            }
            QCOMPARE(bar->geometry(), place);
        }
        desk.Stop();
        const QByteArray kept = value == "None" ? QByteArray("Top:Hide") : value;
        QCOMPARE(Stored(desk, u"Tool Bar"_s), QString::fromLatin1(kept));
        QCOMPARE(Stored(desk, u"Toolbar Size"_s), u"Small Size with Caption"_s);
    }

    void AHiddenBarComesBack() {
        Desk desk;
        Write(desk, "Tool Bar=Left:Hide\r\n");
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<ToolBar*>();
        QVERIFY(!bar->isVisible());
        desk.ClickItem(u"ToolBarPositions"_s, 4);
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->AlignCode(), 4);
        desk.ClickItem(u"ToolBarPositions"_s, 5);
        QVERIFY(!bar->isVisible());
        desk.Stop();
        QCOMPARE(Stored(desk, u"Tool Bar"_s), u"Right:Hide"_s);
    }

    void ANewSizeBringsAHiddenBarBack() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.ClickItem(u"ToolBarPositions"_s, 5);
        desk.ClickItem(u"ToolBarSize"_s, 1);
        QVERIFY(desk.Shell->findChild<ToolBar*>()->isVisible());
    }

    void StatusBarStandsOnEverySide_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<int>("align");
        QTest::addColumn<int>("width");  // -1: as wide as the window
        QTest::newRow("bottom") << QByteArray("Yes") << true << 2 << -1;
        QTest::newRow("small letters") << QByteArray("yes") << true << 2 << -1;
        QTest::newRow("zero") << QByteArray("0") << true << 2 << -1;
        QTest::newRow("top") << QByteArray("Top") << true << 1 << -1;
        QTest::newRow("left, 255 twips") << QByteArray("Left") << true << 3 << 17;
        QTest::newRow("none") << QByteArray("No") << false << 2 << 0;
    }

    void StatusBarStandsOnEverySide() {
        QFETCH(QByteArray, value);
        QFETCH(bool, visible);
        QFETCH(int, align);
        QFETCH(int, width);
        Desk desk;
        Write(desk, "Tool Bar=Top\r\nStatus Bar=" + value + "\r\n");
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<StatusBar*>();
        QCOMPARE(bar->isVisible(), visible);
        QCOMPARE(bar->AlignCode(), align);
        if (visible) {
            QCOMPARE(bar->width(), width < 0 ? 600 : width);
        }
    }

    void AMissingStatusBarKeyReadsAsYes() {
        Desk desk;
        Write(desk, "Tool Bar=Top\r\n");
        QVERIFY(desk.Start());
        QVERIFY(desk.Shell->findChild<StatusBar*>()->isVisible());
        QCOMPARE(desk.Caption(u"HideStatusBar"_s), u"Hide Status Bar"_s);
    }

    void AnUnknownToolBarLeavesTheBar_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<int>("align");
        QTest::newRow("at the start") << QString() << true << 1;
        QTest::newRow("right") << u"Right"_s << true << 4;
        QTest::newRow("left, hidden") << u"Left:Hide"_s << false << 3;
    }

    void AnUnknownToolBarLeavesTheBar() {
        QFETCH(QString, before);
        QFETCH(bool, visible);
        Desk desk;
        Write(desk, "Tool Bar=Middle\r\nToolbar Size=Small Size\r\n");
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<ToolBar*>();
        QCOMPARE(bar->frameShape(), QFrame::StyledPanel);
        for (const QString& value : {before, u"Middle"_s}) {
            mduLib::PutProperty(u"Tool Bar"_s, value, desk.Module.CurrentProperties);
            desk.Shell->RefreshForm({});
        }
        QCOMPARE(bar->isVisible(), visible);
        QTEST(bar->AlignCode(), "align");
        if (visible && bar->AlignCode() == 1) {
            QCOMPARE(bar->geometry(), QRect(0, 0, 600, 32));  // 480 twips high
        }
    }

    void TogglesAreWrittenAtOnce() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.ClickItem(u"WindowTitleBar"_s, 1);
        QVERIFY(desk.Shell->windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(desk.Shell->isVisible());
        QCOMPARE(Stored(desk, u"Window Title Bar"_s), u"No"_s);
        QCOMPARE(desk.Caption(u"WindowTitleBar"_s), u"Show Title Bar"_s);
        desk.ClickItem(u"WindowTitleBar"_s, 1);
        QVERIFY(!(desk.Shell->windowFlags() & Qt::FramelessWindowHint));
        QCOMPARE(Stored(desk, u"Window Title Bar"_s), u"Yes"_s);

        QCOMPARE(desk.Caption(u"HideStatusBar"_s), u"Hide Status Bar"_s);
        desk.ClickItem(u"HideStatusBar"_s, 1);
        QVERIFY(!desk.Shell->findChild<StatusBar*>()->isVisible());
        QCOMPARE(Stored(desk, u"Status Bar"_s), u"No"_s);
        QCOMPARE(desk.Caption(u"HideStatusBar"_s), u"Show Status Bar"_s);
        desk.ClickItem(u"HideStatusBar"_s, 1);
        QVERIFY(desk.Shell->findChild<StatusBar*>()->isVisible());

        QCOMPARE(desk.Caption(u"AutoShowToolTips"_s), u"Hind Tool Tips"_s);
        desk.ClickItem(u"AutoShowToolTips"_s, 1);
        QCOMPARE(Stored(desk, u"Auto Show Balloon Tips"_s), u"No"_s);
        QCOMPARE(desk.Caption(u"AutoShowToolTips"_s), u"Auto Show Tool Tips"_s);
    }

    void HidingTheStatusBarForNowWritesNothing() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.ClickItem(u"StatusBarAction"_s, 1);
        QVERIFY(!desk.Shell->findChild<StatusBar*>()->isVisible());
        QCOMPARE(Stored(desk, u"Status Bar"_s), u"Yes"_s);
    }

    void ColoursOfTheShell() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(10);  // the late menus
        desk.ClickItem(u"BGColour"_s, 6);
        QCOMPARE(desk.Shell->BackColor(), 0x0000FF);
        QCOMPARE(Stored(desk, u"Window Background Colour"_s), u"Red"_s);
        desk.Machine.Dialogs.ColourAnswers = {0x123456};
        desk.ClickItem(u"BGColour"_s, 9);
        QCOMPARE(desk.Shell->BackColor(), 0x123456);
        QCOMPARE(Stored(desk, u"Window Background Colour"_s), u"1193046"_s);
        desk.Machine.Dialogs.ColourAnswers = {-1};
        desk.ClickItem(u"BGColour"_s, 9);
        QCOMPARE(Stored(desk, u"Window Background Colour"_s), u"1193046"_s);
        desk.Stop();
        QVERIFY(desk.Start());
        QCOMPARE(desk.Shell->BackColor(), 0x123456);
    }

    void SettingsAreSaved() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.ClickItem(u"ToolBarSize"_s, 1);
        desk.ClickItem(u"ToolBarPositions"_s, 2);
        desk.ClickItem(u"StatusBarAction"_s, 1);
        desk.ClickItem(u"MainItem"_s, 8);
        QCOMPARE(Stored(desk, u"Toolbar Size"_s), u"Small Size"_s);
        QCOMPARE(Stored(desk, u"Tool Bar"_s), u"Bottom"_s);
        QCOMPARE(Stored(desk, u"Status Bar"_s), u"No"_s);
        QCOMPARE(Stored(desk, u"Window State"_s), u"Normal"_s);
        QCOMPARE(Stored(desk, u"Window Background Colour"_s), u"8411709"_s);
    }

    void EachSaveAnswers_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("what");
        QTest::newRow("header") << u"MainItem"_s << 8 << u"the settings of Tempolark Central"_s;
        QTest::newRow("CProperty")
            << u"SaveTempolarkCentralSettings"_s << 1 << u"the settings of Tempolark Central"_s;
        QTest::newRow("toolbar") << u"SaveToolbarSetting"_s << 1 << u"the toolbar"_s;
    }

    /// A second save has its own answer, though the first may still stand there.
    void EachSaveAnswers() {
        QFETCH(QString, entry);
        QFETCH(int, index);
        QFETCH(QString, what);
        Desk desk;
        QVERIFY(desk.Start());
        desk.ClickItem(entry, index);
        QCOMPARE(desk.Status(), u"Saved %1 at 12:00:00"_s.arg(what));
        desk.Machine.Clock.Advance(65000);
        desk.ClickItem(entry, index);
        QCOMPARE(desk.Status(), u"Saved %1 at 12:01:05 << Saved %1 at 12:00:00"_s.arg(what));
    }

    void AFailedSaveIsNoneThatWorked() {
        Desk desk;
        QVERIFY(desk.Start());
        const QString path = desk.Machine.AppFolder() + u"/tester/TempolarkCentral.ini"_s;
        desk.Machine.Files.Unwritable += path;
        desk.ClickItem(u"MainItem"_s, 8);
        QCOMPARE(desk.Status(), path + u" can't be written"_s);
    }

    void ANewLayoutIsKeptAtTheExit() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Shell->findChild<ToolBar*>()->Offer(2, false);
        const auto layout = [&desk] {
            return desk.Machine.Settings.Value(u"TempolarkCentralToolbar"_s, u"tester"_s)
                .toString();
        };
        QCOMPARE(layout(), QString());
        desk.Stop();
        QCOMPARE(layout(),
                 u"\"1,1\" \"1,3\" \"1,4\" \"1,5\" \"1,6\" \"1,7\" \"1,8\" \"3,9\" "
                 "\"3,10\" \"3,11\" \"3,12\" \"3,14\" \"3,15\" \"3,16\" \"9,19\" "
                 "\"2,20\""_s);
    }

    void APictureBehindTheClocks() {
        Desk desk;
        QImage picture(20, 10, QImage::Format_RGB32);
        picture.fill(Qt::green);
        const QString file = desk.Machine.AppFolder() + u"/back.png"_s;
        QVERIFY(picture.save(file));
        Write(desk, "Window Background File=.\\back.png\r\n");
        QVERIFY(desk.Start());
        const auto* area = desk.Shell->findChild<ClockArea*>();
        QVERIFY(area->Picture().isNull());
        desk.Machine.Clock.Advance(10);
        QCOMPARE(area->Picture().size(), QSize(20, 10));
        QCOMPARE(area->viewport()->grab().toImage().pixelColor(3, 3), QColor(Qt::green));
        QVERIFY(desk.Shell->findChild<HeaderArt*>()->IsOverPicture());
        desk.Stop();
        QVERIFY(QFile::remove(file));
        QVERIFY(desk.Start());
        desk.Machine.Clock.Advance(10);
        QVERIFY(desk.Shell->findChild<ClockArea*>()->Picture().isNull());
        QVERIFY(!desk.Shell->findChild<HeaderArt*>()->IsOverPicture());
    }

    void AWindowOffEveryScreenComesBack_data() {
        QTest::addColumn<QByteArray>("keys");
        QTest::newRow("far right") << QByteArray("Window Top=0\r\nWindow Left=300000\r\n");
        QTest::newRow("far left") << QByteArray("Window Top=0\r\nWindow Left=-300000\r\n");
        QTest::newRow("above") << QByteArray("Window Top=-9000\r\nWindow Left=0\r\n");
        QTest::newRow("below") << QByteArray("Window Top=11999\r\nWindow Left=0\r\n");
        QTest::newRow("huge") << QByteArray("Window Top=9e9\r\nWindow Left=-9e99\r\n");
    }

    void AWindowOffEveryScreenComesBack() {
        QFETCH(QByteArray, keys);
        Desk desk;
        Write(desk, keys);
        QVERIFY(desk.Start());
        const QRect screen = QApplication::primaryScreen()->availableGeometry();
        const QRect place(desk.Shell->pos(), desk.Shell->size());
        QVERIFY2(screen.contains(place), qPrintable(u"%1,%2"_s.arg(place.x()).arg(place.y())));
    }

    void GarbageInEachKey() {
        Desk desk;
        QByteArray lines;
        for (const char* key :
             {"Window Top", "Window Left", "Window Width", "Window Height", "Window State",
              "Window Background Colour", "Window Background File", "Window Border",
              "Window Title Bar", "Toolbar Size", "Tool Bar", "Auto Show Balloon Tips",
              "Status Bar", "Heading Variation", "Start Message"}) {
            lines += key + QByteArray("=\xC3\xA9:%n;;1e99=\\\r\n");
        }
        desk.Machine.WriteFile(u"tester/TempolarkCentral.ini"_s, lines);
        QVERIFY(desk.Start());
        QVERIFY(desk.Shell->isVisible());
        QVERIFY(desk.HeaderShows());
        desk.Stop();
    }

    // "Transparent" leaves the shell's colour as it is: at the start that of the default file, and
    // the clocks that show it through have it from their first paint on.
    void TransparentLeavesTheColour() {
        class FirstColours final : public QObject {
        public:
            QList<QRgb> Seen;
            bool eventFilter(QObject* watched, QEvent* event) override {
                const auto* clock = dynamic_cast<const frmTempolark*>(watched);
                if (event->type() == QEvent::Paint && clock != nullptr) {
                    Seen += clock->PaintedSurface().Image().pixel(1, 1);
                }
                return false;
            }
        };
        const QRgb stock = qRgb(0x3D, 0x5A, 0x80);  // 8411709
        Desk desk;
        Write(desk, "Window Background Colour=Transparent\r\n");
        desk.Machine.WriteFile(u"ini/Tempolark.ini"_s,
                               desk.Machine.ReadFile(u"ini/Tempolark.ini"_s)
                                   .replace("Window Background Colour=15397106",
                                            "Window Background Colour=Transparent"));
        desk.Zone(u"UTC"_s);
        QVERIFY(desk.Start());
        QCOMPARE(desk.Shell->BackColor(), 8411709);
        FirstColours colours;
        qApp->installEventFilter(&colours);
        desk.Shell->LaunchTempolark(u"UTC"_s);
        desk.Settle();
        QTRY_VERIFY(!colours.Seen.isEmpty());
        QCOMPARE(colours.Seen, QList<QRgb>(colours.Seen.size(), stock));
    }

    void ACustomColourInTheFileAsksNobody() {
        Desk desk;
        Write(desk, "Window Background Colour=Custom\r\n");
        QVERIFY(desk.Start());  // a picker that nobody expects would fail the test
        QVERIFY(desk.Shell->isVisible());
        desk.Stop();
        QCOMPARE(Stored(desk, u"Window Background Colour"_s), u"Custom"_s);
    }

    void RefreshFormTakesTheExchangeSlot() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.ClickItem(u"NewClock"_s, 1);
        desk.Module.CurrentProperties = {};
        mduLib::PutProperty(u"Window Background Colour"_s, u"Blue"_s,
                            desk.Module.CurrentProperties);
        // "True" has the number 0, so that a new clock launches nothing here.
        QCOMPARE(desk.Shell->RefreshForm(u"Tokyo Standard Time"_s), 0);
        QCOMPARE(desk.Clocks(), QStringList());
        QCOMPARE(desk.Shell->BackColor(), 0xFF0000);
    }

    void TheMessageLineHasItsStages() {
        Desk desk;
        QVERIFY(desk.Start());
        const auto* bar = desk.Shell->findChild<StatusBar*>();
        desk.Machine.Clock.Advance(1);
        QCOMPARE(bar->TimeText(), u"12:00"_s);
        desk.Machine.Clock.Advance(400);
        QCOMPARE(bar->EyeFrame(), 0);
        desk.Shell->ShowStatusMsg(u"A"_s);
        desk.Shell->ShowStatusMsg(u"B"_s);
        desk.Shell->ShowStatusMsg(u"A"_s);
        QCOMPARE(bar->Message(), u"B << A"_s);
        desk.Machine.Clock.Advance(400);
        QCOMPARE(bar->Message(), u" << A"_s);
        QCOMPARE(bar->EyeFrame(), 1);
        desk.Machine.Clock.Advance(400);
        QCOMPARE(bar->Message(), u"A"_s);
        QCOMPARE(bar->EyeFrame(), 2);
        desk.ClickItem(u"ClearStatusMessage"_s, 1);
        QCOMPARE(bar->Message(), QString());
        desk.Machine.Clock.Advance(400);
        QCOMPARE(bar->EyeFrame(), 0);
        desk.Machine.Clock.Advance(70000);
        QCOMPARE(bar->TimeText(), u"12:01"_s);
    }

    void TheHeaderComesAndGoes() {
        Desk desk;
        QVERIFY(desk.Start());
        const auto* header = desk.Shell->findChild<HeaderArt*>();
        QCOMPARE(header->Letters().front(), u"Chick"_s);
        for (int i = 0; i < 500; ++i) {
            desk.Machine.Clock.Advance(8);
        }
        QVERIFY(!header->IsMoving());
        QCOMPARE(header->Letters().front(), u"T"_s);
        // "Bend Up": the ends hang lower than the middle.
        QVERIFY(header->Places().front().y() > header->Places()[8].y() + 60);
        const int handle = desk.Shell->LaunchTempolark(u"UTC"_s);
        QVERIFY(!desk.HeaderShows());
        desk.Windows.Find(handle)->Unload();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTRY_VERIFY(desk.HeaderShows());
    }

    void AToolbarThatCantBeKeptIsNotSaved() {
        Desk desk;
        QVERIFY(desk.Start());
        desk.Machine.Settings.Unwritable = true;
        desk.ClickItem(u"SaveToolbarSetting"_s, 1);
        QCOMPARE(desk.Status(), u"The toolbar can't be written"_s);
        QVERIFY(!desk.Machine.Settings.Value(u"TempolarkCentralToolbar"_s, u"tester"_s).isValid());
        desk.Machine.Settings.Unwritable = false;
        desk.ClickItem(u"SaveToolbarSetting"_s, 1);
        QVERIFY(desk.Status().startsWith(u"Saved the toolbar at 12:00:00"_s));
    }
};

QTEST_MAIN(tst_SettingsInTheShell)
#include "tst_SettingsInTheShell.moc"
