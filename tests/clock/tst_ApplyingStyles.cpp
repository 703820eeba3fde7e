#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

#include "ClockDesk.h"
#include "support/FakeDialogs.h"

using clockcore::ClockState;

namespace {

QString Value(const frmTempolark* clock, const QString& key) {
    return mduLib::GetProperty(key, clock->Data().Properties());
}

/// A style like the default but for some values.
QString WriteStyle(Desk& desk, const QString& name,
                   const std::vector<std::pair<QString, QString>>& values) {
    ClockProperties style;
    mduLib::ReadPropertyFile(desk.Machine.Files, desk.Module.Paths.ZoneDefaultFile(), style);
    for (const auto& [key, value] : values) {
        mduLib::PutProperty(key, value, style);
    }
    return desk.Machine.WriteFile(u"Styles/"_s + name, mduLib::PropertyFileContent(style));
}

QRgb Corner(const frmTempolark* clock) {
    return clock->PaintedSurface().Image().pixel(1, 1);
}

}  // namespace

class tst_ApplyingStyles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void StyleBringsItsPlaceAndKeepsTheZone() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"Nepal Standard Time"_s);
        const QString style = WriteStyle(desk, u"Red.ini"_s,
                                         {{u"Window Background Colour"_s, u"Red"_s},
                                          {u"Window Left"_s, u"300"_s},
                                          {u"Window Top"_s, u"150"_s},
                                          {u"Window Width"_s, u"3000"_s},
                                          {u"Window Height"_s, u"2250"_s}});
        clock->SetClockStyle(style);
        QCOMPARE(clock->parentWidget()->geometry(), QRect(20, 10, 200, 150));
        QCOMPARE(clock->Data().Zone.HoursFromLocal, 5.75F);
        QCOMPARE(clock->Data().Zone.StandardName, u"Nepal Standard Time"_s);
        QCOMPARE(Corner(clock), qRgb(255, 0, 0));  // at once, before any tick
        QCOMPARE(clock->Data().State, ClockState::RedrawRequested);
        QVERIFY(desk.Module.CurrentProperties == clock->Data().Properties());
        desk.Machine.Clock.Advance(1000);
        QCOMPARE(clock->Data().State, ClockState::Running);
        QCOMPARE(clock->Controls().lblClock(1).Caption, u"17:45:01"_s);
    }

    void StyleMakesAMaximisedClockNormal() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(2);
        clock->SetClockStyle(WriteStyle(desk, u"S.ini"_s, {}));
        QCOMPARE(clock->WindowState(), 0);
    }

    void EmptyNameAsksForAStyle() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        desk.Machine.Dialogs.FileAnswers = {
            WriteStyle(desk, u"Blue.ini"_s, {{u"Window Background Colour"_s, u"Blue"_s}})};
        clock->SetClockStyle({});
        QCOMPARE(desk.Machine.Dialogs.PickerTitles, QStringList{u"Clock Styles"_s});
        QCOMPARE(desk.Machine.Dialogs.PickerFolders,
                 QStringList{desk.Machine.AppFolder() + u"/Styles/"_s});
        QCOMPARE(Corner(clock), qRgb(0, 0, 255));
    }

    void CancelledPickerChangesNothing() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        frmTempolark* other = desk.Running(u"Nepal Standard Time"_s);
        other->SetProperty();  // the exchange slot holds another clock
        const ClockProperties before = clock->Data().Properties();
        desk.Machine.Dialogs.FileAnswers = {u""_s};
        clock->SetClockStyle(u"More"_s);
        QVERIFY(clock->Data().Properties() == before);
        QCOMPARE(clock->Data().Zone.StandardName, u"UTC"_s);
    }

    void MissingStyleChangesNothing() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const ClockProperties before = clock->Data().Properties();
        clock->SetClockStyle(desk.Machine.AppFolder() + u"/Styles/none.ini"_s);
        QVERIFY(clock->Data().Properties() == before);
        QVERIFY(desk.Shell.Messages.isEmpty());
    }

    void FileThatIsNoStyleIsRefused() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const ClockProperties before = clock->Data().Properties();
        const QString letter = desk.Machine.WriteFile(u"Styles/Letter.ini"_s, "Dear Sir,\n");
        clock->SetClockStyle(letter);
        QVERIFY(clock->Data().Properties() == before);
        QCOMPARE(desk.Shell.Messages, QStringList{letter + u" is no clock style"_s});
    }

    void StyleBeforeTheFirstTick() {
        Desk desk;
        frmTempolark* clock = desk.Launch(u"UTC"_s);
        clock->SetClockStyle(WriteStyle(desk, u"D.ini"_s, {{u"Clocks"_s, u"Digital"_s}}));
        QCOMPARE(clock->Data().State, ClockState::FirstTickDue);
        QVERIFY(!clock->isVisible());
        desk.Machine.Clock.Advance(30);
        QCOMPARE(clock->Data().State, ClockState::Running);
        QVERIFY(clock->isVisible());
        QCOMPARE(clock->Controls().lblDigitalNumber(1).Caption, u"12"_s);
        QVERIFY(clock->Controls().lblDigitalNumber(1).Visible);
    }

    void ModesShowTheirOwnParts() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const mduUILib::ClockControls& controls = clock->Controls();
        const auto shown = [&] {
            QStringList parts;
            const auto add = [&parts](bool visible, const QString& name) {
                if (visible) {
                    parts += name;
                }
            };
            add(controls.lblHour(15).Visible, u"numbers"_s);
            add(controls.imgClockNumber(7).Visible, u"spots"_s);
            add(controls.lblDigitalNumber(3).Visible, u"digits"_s);
            add(controls.lblTimeInput(1).Visible, u"lines"_s);
            add(controls.lblLocation(1).Visible, u"location"_s);
            add(controls.imgSunMoon(0).Visible || controls.imgSunMoon(1).Visible, u"mark"_s);
            return parts.join(u' ');
        };
        QCOMPARE(shown(), u"numbers spots location mark"_s);
        clock->SetClocks(2);
        QCOMPARE(shown(), u"digits location"_s);
        clock->SetClocks(3);
        QCOMPARE(shown(), u"lines"_s);
        clock->SetClocks(4);
        QCOMPARE(shown(), u"numbers spots digits mark"_s);
        clock->SetClocks(1);
        QCOMPARE(shown(), u"numbers spots location mark"_s);
        clock->SetClocks(9);  // no such mode
        QCOMPARE(clock->Data().Tag.Text(), u"1"_s);
        QCOMPARE(Value(clock, u"Clocks"_s), u"Analogue"_s);
    }

    void RefreshKeepsTheCurrentFileUnlessOneIsNamed() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QString before = desk.Module.Paths.CurrentPropertyFile;
        clock->RefreshForm({});
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, before);
        clock->RefreshForm(u"/some/file.ini"_s);
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, u"/some/file.ini"_s);
    }

    void RefreshDisablesTheWindowAndItsParts() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        mduLib::PutProperty(u"Enable"_s, u"No"_s, desk.Module.CurrentProperties);
        clock->RefreshForm({});
        QVERIFY(!clock->IsEnabled());
        QVERIFY(!clock->Controls().lblHour(60).Enabled);
        mduLib::PutProperty(u"Enable"_s, u"Yes"_s, desk.Module.CurrentProperties);
        clock->RefreshForm({});
        QVERIFY(clock->IsEnabled());
        QVERIFY(clock->Controls().lblHour(60).Enabled);
    }

    void RefreshShowsTheNameOfTheZone() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        mduLib::PutProperty(u"Time Zone Standard Name"_s, u"My Time"_s,
                            desk.Module.CurrentProperties);
        clock->RefreshForm({});
        QCOMPARE(clock->GetLocation(), u"My Time"_s);
    }

    /// What a style brings along is loaded with it, and gone with the next style.
    void StyleBringsItsPictureAndItsFlag() {
        Desk desk;
        QImage picture(6, 4, QImage::Format_RGB32);
        picture.fill(qRgb(200, 20, 30));
        picture.save(desk.Machine.AppFolder() + u"/red.bmp"_s);
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const mduUILib::ClockControls& controls = clock->Controls();
        clock->SetClockStyle(WriteStyle(desk, u"Red.ini"_s,
                                        {{u"Clock Image File"_s, u".\\red.bmp"_s},
                                         {u"Flag File"_s, u".\\red.bmp"_s},
                                         {u"Flag Position"_s, u"Top left"_s}}));
        QVERIFY(controls.imgClock(1).Picture != nullptr);
        QCOMPARE(Corner(clock), qRgb(200, 20, 30));
        QVERIFY(controls.imgFlag(1).Visible);
        QCOMPARE(controls.imgFlag(1).Picture->pixel(0, 0), qRgb(200, 20, 30));
        clock->SetClockStyle(
            WriteStyle(desk, u"Bare.ini"_s,
                       {{u"Clock Image File"_s, u"None"_s}, {u"Flag File"_s, u"None"_s}}));
        QVERIFY(controls.imgClock(1).Picture == nullptr);
        QVERIFY(!controls.imgFlag(1).Visible);
    }

    // The flag makes way for the digits as they are after the change of size.
    void AResizedShapeKeepsTheFlagOffTheDigits() {
        Desk desk;
        QImage picture(6, 4, QImage::Format_RGB32);
        picture.fill(qRgb(200, 20, 30));
        picture.save(desk.Machine.AppFolder() + u"/red.bmp"_s);
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetClockStyle(WriteStyle(desk, u"D.ini"_s,
                                        {{u"Clocks"_s, u"Digital"_s},
                                         {u"Window Shape"_s, u"Diamond"_s},
                                         {u"Flag File"_s, u".\\red.bmp"_s},
                                         {u"Flag Position"_s, u"Top right"_s}}));
        const mduUILib::ClockControls& controls = clock->Controls();
        for (const QSize& size : {QSize(300, 250), QSize(500, 300), QSize(260, 200)}) {
            clock->parentWidget()->resize(size);
            QCOMPARE(clock->PaintedSurface().Image().size(), size);
            QVERIFY(controls.imgFlag(1).Visible);
            for (int digit = 1; digit <= 5; ++digit) {
                const QRectF digits = controls.lblDigitalNumber(digit).Rect();
                QVERIFY(!digits.intersects(controls.imgFlag(1).Rect()));
            }
        }
    }

    void ColourPickerOfTheClock() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        desk.Machine.Dialogs.ColourAnswers = {-1, 0x00FF00};
        clock->PickWindowBackColour();  // cancelled
        QCOMPARE(Value(clock, u"Window Background Colour"_s), u"15397106"_s);
        clock->PickWindowBackColour();
        QCOMPARE(Value(clock, u"Window Background Colour"_s), u"65280"_s);
        QCOMPARE(Corner(clock), qRgb(0, 255, 0));
        QCOMPARE(clock->Controls().picFrame(1).ForeColor, 0x00FF00);
    }

    void TransparencyComesAndGoes() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowBackColour({}, u"Transparent"_s);
        QCOMPARE(clock->DrawStyle(), 1);
        QCOMPARE(Corner(clock), qRgb(0x20, 0x40, 0x80));  // the shell's colour
        QVERIFY(clock->Controls().shpArea(1).Visible);    // the handle
        clock->SetWindowBackColour({}, u"Yellow"_s);
        QCOMPARE(clock->DrawStyle(), 0);
        QCOMPARE(Corner(clock), qRgb(255, 255, 0));
        QVERIFY(!clock->Controls().shpArea(1).Visible);
    }

    void SaveCurrentStyleWritesTheState() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->parentWidget()->setGeometry(10, 20, 240, 180);
        clock->SetWindowBackColour({}, u"Green"_s);
        clock->SaveCurrentStyle();
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Background Colour"_s), u"Green"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window State"_s), u"Normal"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Left"_s), u"150"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Height"_s), u"2700"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Time Zone Name Left"_s), u"-1"_s);  // stays automatic
        QCOMPARE(desk.Key(u"UTC"_s, u"Hour Number Font"_s), u"Lato"_s);
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Path(u"UTC"_s));
        QCOMPARE(desk.Shell.Messages, QStringList{u"Saved the style of UTC at 12:00:00"_s});
    }

    void SaveCurrentStyleTellsOfAFailure() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        desk.Machine.Files.Unwritable += desk.Path(u"UTC"_s);
        clock->SaveCurrentStyle();
        QCOMPARE(desk.Shell.Messages, QStringList{desk.Path(u"UTC"_s) + u" can't be written"_s});
    }

    void SaveCurrentStyleKeepsTheFontBehindPaintedNumbers_data() {
        QTest::addColumn<QString>("numbers");
        QTest::newRow("Roman") << u"Roman 12"_s;
        QTest::newRow("True Roman") << u"True Roman 12"_s;
        QTest::newRow("3D") << u"3D 12"_s;
        QTest::newRow("captions") << u"Number 12"_s;
    }
    void SaveCurrentStyleKeepsTheFontBehindPaintedNumbers() {
        QFETCH(QString, numbers);
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetClockStyle(WriteStyle(
            desk, u"S.ini"_s,
            {{u"Hour Number Style"_s, numbers}, {u"Hour Number Font"_s, u"Cantarell"_s}}));
        desk.Machine.Clock.Advance(1000);
        clock->SaveCurrentStyle();
        QCOMPARE(desk.Key(u"UTC"_s, u"Hour Number Font"_s), u"Cantarell"_s);
    }

    void SaveCurrentStyleOfAMaximisedClock() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(2);
        clock->SaveCurrentStyle();
        QCOMPARE(desk.Key(u"UTC"_s, u"Window State"_s), u"Maximized"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Left"_s), u"-1"_s);
        QCOMPARE(desk.Shell.Messages, QStringList{u"Saved the style of UTC at 12:00:00"_s});
    }

    void SaveStyleAsLeavesTheZoneOut() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->parentWidget()->setGeometry(10, 20, 240, 180);
        const QString path = desk.Machine.AppFolder() + u"/Mine.ini"_s;
        desk.Machine.Dialogs.FileAnswers = {path, u""_s};
        clock->SaveStyleAs();
        ClockProperties style;
        QVERIFY(mduLib::ReadPropertyFile(desk.Machine.Files, path, style));
        QCOMPARE(mduLib::GetProperty(u"Time Zone Standard Name"_s, style), u""_s);
        QCOMPARE(mduLib::GetProperty(u"Window Width"_s, style), u"3600"_s);
        QCOMPARE(Value(clock, u"Time Zone Standard Name"_s), u"UTC"_s);
        clock->SaveStyleAs();  // cancelled
        QCOMPARE(desk.Shell.Messages, QStringList{u"Saved the style Mine at 12:00:00"_s});
    }

    void SaveStyleAsOfAMaximisedClockKeepsTheStoredPlace() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(2);
        const QString path = desk.Machine.AppFolder() + u"/Mine.ini"_s;
        desk.Machine.Dialogs.FileAnswers = {path};
        clock->SaveStyleAs();
        ClockProperties style;
        QVERIFY(mduLib::ReadPropertyFile(desk.Machine.Files, path, style));
        QCOMPARE(mduLib::GetProperty(u"Window Width"_s, style), u"-1"_s);
    }

    void SaveStyleAsTellsOfAFailure() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QString path = desk.Machine.AppFolder() + u"/none/Mine.ini"_s;
        desk.Machine.Dialogs.FileAnswers = {path};
        clock->SaveStyleAs();
        QCOMPARE(desk.Shell.Messages, QStringList{path + u" can't be written"_s});
    }

    /// Tab takes a calculator into its input state; the keys go to its lines.
    void KeysOfTheCalculator() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"Nepal Standard Time"_s);
        clock->SetClocks(3);
        desk.Machine.Clock.Advance(1000);
        const QString running = clock->Controls().lblTimeInput(1).Caption;
        QVERIFY(running.startsWith(u"Local Time: 15/06/2026 12:00:0"_s));
        QTest::keyClick(clock, Qt::Key_Tab);
        QCOMPARE(clock->Data().Tag.Text(), u"5"_s);
        QCOMPARE(clock->Controls().lblTimeInput(1).Caption, running + u" _"_s);
        desk.Machine.Clock.Advance(2000);
        QCOMPARE(clock->Controls().lblTimeInput(1).Caption, running + u" _"_s);  // stands still
        for (int i = 0; i < 19; ++i) {
            QTest::keyClick(clock, Qt::Key_Backspace);
        }
        QTest::keyClicks(clock, u"1/2/2026 10:15"_s);
        QCOMPARE(clock->Controls().lblTimeInput(1).Caption, u"Local Time: 1/2/2026 10:15 _"_s);
        QCOMPARE(clock->Controls().lblTimeOutput(1).Caption,
                 u"Nepal Standard Time: 01/02/2026 16:00:00"_s);
        QTest::keyClick(clock, Qt::Key_C, Qt::ControlModifier);  // not for the calculator
        QCOMPARE(clock->Controls().lblTimeInput(1).Caption, u"Local Time: 1/2/2026 10:15 _"_s);
        QTest::keyClick(clock, Qt::Key_Home);
        QTest::keyClicks(clock, u".-"_s);
        QTest::keyClick(clock, Qt::Key_End);
        QTest::keyClicks(clock, u"%'"_s);
        QCOMPARE(clock->Controls().lblTimeInput(1).Tag, u".-1/2/2026 10:15%'"_s);
        const mduUILib::Control& hint = clock->Controls().lblClock(1);
        QVERIFY(hint.Visible);
        const QImage painted = clock->PaintedSurface().Image().copy(hint.Rect().toRect());
        QImage blank = painted;
        blank.fill(Corner(clock));
        QVERIFY(painted != blank);
        clock->SetClocks(1);  // leaves the input state
        QVERIFY(!hint.Visible);
        QCOMPARE(clock->GetLocation(), u"Nepal Standard Time"_s);
        clock->SetClocks(3);
        QTest::keyClick(clock, Qt::Key_Tab);
        QTest::keyClick(clock, Qt::Key_Escape);
        QCOMPARE(clock->Data().Tag.Text(), u"3"_s);
        desk.Machine.Clock.Advance(1000);
        QVERIFY(clock->Controls().lblTimeInput(1).Caption.startsWith(
            u"Local Time: 15/06/2026 12:00:0"_s));
    }

    /// A window that becomes low and wide: the lines and the hint follow at once, and stay so.
    void TypedLinesFollowTheWindow() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"Nepal Standard Time"_s);
        clock->SetClocks(3);
        desk.Machine.Clock.Advance(1000);
        QTest::keyClick(clock, Qt::Key_Tab);
        const mduUILib::Control& hint = clock->Controls().lblClock(1);
        const QString typed = clock->Controls().lblTimeInput(1).Caption;
        clock->parentWidget()->resize(700, 130);
        for (int i = 0; i < 3; ++i) {
            const QRectF surface(0, 0, clock->width(), clock->height());
            QVERIFY(hint.Visible);
            QVERIFY(surface.contains(hint.Rect()));
            QVERIFY(qAbs(hint.Rect().center().x() - surface.center().x()) <= 1);
            QVERIFY(surface.contains(clock->Controls().lblTimeInput(1).Rect()));
            QVERIFY(clock->Controls().lblTimeOutput(1).Rect().bottom() < hint.Rect().top());
            QCOMPARE(clock->Controls().lblTimeInput(1).Caption, typed);
            desk.Machine.Clock.Advance(1000);
        }
    }

    /// A right click offers the kinds, the styles of the folder and the colours.
    void MenuOfTheLook() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        WriteStyle(desk, u"Fish & Chips.ini"_s, {{u"Window Background Colour"_s, u"Cyan"_s}});
        WriteStyle(desk, u"Ale.ini"_s, {});
        const auto open = [clock] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5},
                                    clock->mapToGlobal(QPoint{5, 5}));
            QApplication::sendEvent(clock, &event);
            return clock->findChildren<QMenu*>(u"FormPopup"_s).constLast();
        };
        const auto choose = [&](const QString& subMenu, const QString& caption) {
            for (QAction* action : open()->findChild<QMenu*>(subMenu)->actions()) {
                if (action->text() == caption) {
                    action->trigger();
                    return true;
                }
            }
            return false;
        };
        QStringList styles;
        for (const QAction* action : open()->findChild<QMenu*>(u"ClockStyle"_s)->actions()) {
            styles += action->text();
        }
        QCOMPARE(styles.takeLast(), u"More"_s);
        styles.sort();
        QCOMPARE(styles, (QStringList{u"Ale"_s, u"Fish && Chips"_s}));
        QVERIFY(choose(u"ClockStyle"_s, u"Fish && Chips"_s));
        QCOMPARE(Corner(clock), qRgb(0, 255, 255));
        QVERIFY(choose(u"Clocks"_s, u"Calculator"_s));
        QCOMPARE(clock->Data().Tag.Text(), u"3"_s);
        QVERIFY(open()->findChild<QMenu*>(u"Clocks"_s)->actions()[2]->isChecked());
        QVERIFY(choose(u"ClockColour"_s, u"Magenta"_s));
        QCOMPARE(Corner(clock), qRgb(255, 0, 255));
        desk.Machine.Dialogs.ColourAnswers = {0x102030};
        QVERIFY(choose(u"ClockColour"_s, u"Custom"_s));
        QCOMPARE(Value(clock, u"Window Background Colour"_s), u"1056816"_s);
        for (QAction* action : open()->actions()) {
            if (action->text() == u"Help"_s) {
                action->trigger();
            }
        }
        QCOMPARE(desk.Shell.Helps, 1);
    }

    void SharedPictureIsHeldOnce() {
        Desk desk;
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(qRgb(10, 200, 30));
        picture.save(desk.Machine.AppFolder() + u"/green.bmp"_s);
        QByteArray file = desk.Machine.ReadFile(u"ini/Tempolark.ini"_s);
        file.replace("Clock Image File=", "Clock Image File=.\\green.bmp");
        desk.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, file);
        desk.Machine.WriteFile(u"tester/TimeZones/Nepal Standard Time.ini"_s, file);
        const frmTempolark* first = desk.Running(u"UTC"_s);
        const frmTempolark* second = desk.Running(u"Nepal Standard Time"_s);
        QVERIFY(first->Controls().imgClock(1).Picture != nullptr);
        QCOMPARE(first->Controls().imgClock(1).Picture, second->Controls().imgClock(1).Picture);
        QCOMPARE(Corner(first), qRgb(10, 200, 30));
    }
};

QTEST_MAIN(tst_ApplyingStyles)
#include "tst_ApplyingStyles.moc"
