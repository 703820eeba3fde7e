#include <QApplication>
#include <QTest>

#include "ClockDesk.h"

using clockcore::ClockState;

class tst_frmTempolark : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LoadsInTwoHalves() {
        Desk desk;
        frmTempolark* clock = desk.Launch(u"Nepal Standard Time"_s);
        QVERIFY(clock != nullptr);
        QCOMPARE(clock->Data().State, ClockState::FirstTickDue);
        QVERIFY(!clock->isVisible());
        QCOMPARE(clock->Data().Tag.Text(), u"1"_s);
        QCOMPARE(clock->Data().Zone.HoursFromLocal, 5.75F);
        QCOMPARE(clock->GetLocation(), u"Nepal Standard Time"_s);
        QCOMPARE(clock->IniFile(), desk.Path(u"Nepal Standard Time"_s));
        QCOMPARE(desk.Module.Paths.TimerFile,
                 desk.Machine.AppFolder() + u"/tester/Timers/Nepal Standard TimeTimer.txt"_s);
        QCOMPARE(desk.Module.CurrentProperties.UpperBound(),
                 clock->Data().Properties().UpperBound());
        desk.Machine.Clock.Advance(10);
        QCOMPARE(clock->Data().State, ClockState::RedrawRequested);
        QVERIFY(clock->isVisible());
        QCOMPARE(clock->Caption(), u"Nepal Standard Time"_s);
        desk.Machine.Clock.Advance(10);
        QCOMPARE(clock->Data().State, ClockState::Running);
        QCOMPARE(clock->Controls().lblClock(1).Caption, u"17:45:00"_s);
    }

    void TicksOnTheSecond() {
        Desk desk;
        const frmTempolark* clock = desk.Running(u"Nepal Standard Time"_s);
        desk.Machine.Clock.Advance(970);
        QCOMPARE(clock->Controls().lblClock(1).Caption, u"17:45:01"_s);
        desk.Machine.Clock.Advance(3599000);
        QCOMPARE(clock->Controls().lblClock(1).Caption, u"18:45:00"_s);
    }

    void QuarterOfTheShellInItsMiddle() {
        Desk desk;
        const frmTempolark* clock = desk.Running(u"UTC"_s);
        const QRect frame = clock->parentWidget()->geometry();
        // The shell is 800 by 600; a pixel or two more with its frame.
        QVERIFY(qAbs(frame.width() - 200) <= 1);
        QVERIFY(qAbs(frame.height() - 150) <= 1);
        const QRect inner = desk.Area.viewport()->rect();
        QVERIFY(qAbs(frame.center().x() - inner.center().x()) <= 1);
        QVERIFY(qAbs(frame.center().y() - inner.center().y()) <= 1);
    }

    void StoredRectangleIsTaken() {
        Desk desk;
        QByteArray file = desk.Machine.ReadFile(u"ini/Tempolark.ini"_s);
        file.replace("Window Left=-1", "Window Left=150")
            .replace("Window Top=-1", "Window Top=300");
        file.replace("Window Width=-1", "Window Width=4500");
        file.replace("Window Height=-1", "Window Height=2250");
        desk.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, file);
        const frmTempolark* clock = desk.Running(u"UTC"_s);
        QCOMPARE(clock->parentWidget()->geometry(), QRect(10, 20, 300, 150));
    }

    void ClosingKeepsThePlace() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->parentWidget()->setGeometry(33, 44, 222, 111);
        desk.Close(clock);
        QCOMPARE(desk.Windows.Count(), 0);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Left"_s), u"495"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Top"_s), u"660"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Width"_s), u"3330"_s);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Height"_s), u"1665"_s);
    }

    void MaximisedKeepsTheNormalPlace() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetWindowState(2);
        QCOMPARE(clock->WindowState(), 2);
        desk.Close(clock);
        QCOMPARE(desk.Key(u"UTC"_s, u"Window Left"_s), u"-1"_s);
    }

    void ClosingKeepsWhatOthersSaved() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        ClockProperties properties;
        mduLib::ReadPropertyFile(desk.Machine.Files, desk.Path(u"UTC"_s), properties);
        mduLib::SavePropertyNow(desk.Machine.Files, u"Hour Hand Colour"_s, u"Green"_s, properties,
                                desk.Path(u"UTC"_s));
        desk.Close(clock);
        QCOMPARE(desk.Key(u"UTC"_s, u"Hour Hand Colour"_s), u"Green"_s);
    }

    void ActivationMakesAClockCurrent() {
        Desk desk;
        frmTempolark* first = desk.Running(u"UTC"_s);
        desk.Running(u"Nepal Standard Time"_s);
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Path(u"Nepal Standard Time"_s));
        first->SetFocus();
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Path(u"UTC"_s));
        QVERIFY(desk.Module.CurrentProperties == first->Data().Properties());
    }

    void ZoneKeysAreFilledIn() {
        Desk desk;
        desk.Running(u"India Standard Time"_s);
        const QString zone = u"India Standard Time"_s;
        QCOMPARE(desk.Key(zone, u"Time Zone Standard Name"_s), zone);
        QCOMPARE(desk.Key(zone, u"Time Zone Standard GMT (Minutes)"_s), u"-330"_s);
        QCOMPARE(desk.Key(zone, u"Time Zone Daylight Start Time"_s), u"0.0.0 0:00:00"_s);
    }

    void DaylightTimeIsInForce() {
        Desk desk;
        const frmTempolark* clock = desk.Running(u"Pacific Standard Time"_s);
        QCOMPARE(clock->Data().Zone.CurrentName, u"Pacific Daylight Time"_s);
        QCOMPARE(clock->Controls().lblClock(1).Caption, u"05:00:00"_s);
    }

    void RefusedNames_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("slash") << u"a/b"_s;
        QTest::newRow("backslash") << u"a\\b"_s;
        QTest::newRow("parent") << u".."_s;
        QTest::newRow("parent inside") << u"../../x"_s;
        QTest::newRow("control") << u"a\nb"_s;
        QTest::newRow("too long") << QString(300, u'x');
    }

    void RefusedNames() {
        QFETCH(QString, name);
        Desk desk;
        const QStringList before = desk.Machine.Files.Writes;
        QVERIFY(desk.Launch(name) == nullptr);
        QCOMPARE(desk.Shell.Messages.size(), 1);
        QCOMPARE(desk.Machine.Files.Writes, before);
        QCOMPARE(desk.Windows.Count(), 0);
    }

    void UnknownZoneRunsAtGmt() {
        Desk desk;
        const frmTempolark* clock = desk.Running(u"Nowhere Ünïcode"_s);
        QCOMPARE(clock->Data().Zone.StandardName, u"Nowhere Ünïcode"_s);
        QCOMPARE(clock->Controls().lblClock(1).Caption, u"12:00:00"_s);
    }

    /// Files that can't be taken in whole: the clock stands, the user is told, the file is left.
    void OddFiles_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("binary") << QByteArray("GIF89a\0\0\xFF\xFEno lines", 19);
        QTest::newRow("40,000 lines") << QByteArray("key=value\r\n").repeated(40000);
    }

    void OddFiles() {
        QFETCH(QByteArray, content);
        Desk desk;
        desk.Machine.WriteFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s, content);
        frmTempolark* clock = desk.Running(u"Tokyo Standard Time"_s);
        QVERIFY(clock != nullptr);
        QCOMPARE(clock->Data().State, ClockState::Running);
        QVERIFY(!desk.Shell.Messages.isEmpty());
        desk.Close(clock);
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s), content);
    }

    void UnreadableFileIsLeft() {
        Desk desk;
        const QByteArray content = "Clocks=Analogue\r\n";
        desk.Machine.Files.Unreadable +=
            desk.Machine.WriteFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s, content);
        frmTempolark* clock = desk.Running(u"Tokyo Standard Time"_s);
        QVERIFY(!desk.Shell.Messages.isEmpty());
        desk.Close(clock);
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s), content);
    }

    void UnreadableOldFileIsNotMergedAway() {
        Desk desk;
        const QByteArray content = "Clocks=Digital\r\n";
        desk.Machine.Files.Unreadable +=
            desk.Machine.WriteFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s, content);
        desk.Machine.SetAge(u"tester/TimeZones/Tokyo Standard Time.ini"_s, 100000);
        desk.Close(desk.Running(u"Tokyo Standard Time"_s));
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s), content);
    }

    void ReadOnlyFileIsTold() {
        Desk desk;
        const QString path = desk.Path(u"Tokyo Standard Time"_s);
        desk.Machine.WriteFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s,
                               "Clocks=Analogue\r\n");
        desk.Machine.Files.Unwritable += path;
        frmTempolark* clock = desk.Running(u"Tokyo Standard Time"_s);
        QCOMPARE(desk.Shell.Messages, QStringList{path + u" can't be written"_s});
        desk.Close(clock);
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s),
                 QByteArray("Clocks=Analogue\r\n"));
    }

    void EmptyFileStands() {
        Desk desk;
        desk.Machine.WriteFile(u"tester/TimeZones/Tokyo Standard Time.ini"_s, {});
        const frmTempolark* clock = desk.Running(u"Tokyo Standard Time"_s);
        QVERIFY(clock != nullptr);
        QVERIFY(clock->Data().Properties().UpperBound() < 25);
        QCOMPARE(desk.Key(u"Tokyo Standard Time"_s, u"Time Zone Standard Name"_s),
                 u"Tokyo Standard Time"_s);
    }

    void HandsAreOnTheSurface() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const drawing::Surface& surface = clock->PaintedSurface();
        QCOMPARE(surface.ScaleWidth(), clock->width());
        // Noon: all hands point up; the second hand lies on top of them.
        const int cx = surface.ScaleWidth() / 2;
        const int cy = surface.ScaleHeight() / 2;
        QCOMPARE(surface.Image().pixel(cx, cy - cy / 2), qRgb(0xC8, 0x10, 0x2E));
        QCOMPARE(surface.Image().pixel(cx / 2, cy + cy / 3), qRgb(0xF2, 0xF0, 0xEA));
    }

    void ModesAndColoursOfTheShell() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->SetClocks(2);
        QCOMPARE(clock->Data().Tag.Text(), u"2"_s);
        QCOMPARE(mduLib::GetProperty(u"Clocks"_s, clock->Data().Properties()), u"Digital"_s);
        clock->SetClocks(1);
        clock->SetWindowBackColour({}, u"Transparent"_s);
        QCOMPARE(clock->DrawStyle(), 1);
        QCOMPARE(clock->PaintedSurface().Image().pixel(1, 1), qRgb(0x20, 0x40, 0x80));
        clock->SetWindowBackColour(u"255"_s, u"Custom"_s);
        QCOMPARE(clock->DrawStyle(), 0);
        QCOMPARE(clock->PaintedSurface().Image().pixel(1, 1), qRgb(255, 0, 0));
        clock->SetBackward();
        QCOMPARE(mduLib::GetProperty(u"Clock Special"_s, clock->Data().Properties()),
                 u"Analogue Backward"_s);
    }

    void TheMouseShowsTheMarkOfANumber() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        QTest::mouseMove(clock, clock->Controls().lblHour(15).Rect().center().toPoint());
        QCOMPARE(clock->cursor().shape(), Qt::BitmapCursor);
        QTest::mouseMove(clock, {1, 1});
        QCOMPARE(clock->cursor().shape(), Qt::ArrowCursor);
    }

    void PaintedNumbersFollowTheSpecialAtTheNextPass() {
        Desk desk;
        QByteArray file = desk.Machine.ReadFile(u"ini/Tempolark.ini"_s);
        file.replace("Hour Number Style=Number 12", "Hour Number Style=True Roman 12");
        file.replace("Minute Spot Style=Spot 60", "Minute Spot Style=No Spots");
        desk.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, file);
        frmTempolark* clock = desk.Running(u"UTC"_s);
        const QImage forward = clock->PaintedSurface().Image().copy();
        clock->SetBackward();
        QVERIFY(clock->PaintedSurface().Image() == forward);  // draws nothing itself
        clock->Tick();
        const QImage next = clock->PaintedSurface().Image().copy();
        desk.Module.CurrentProperties = clock->Data().Properties();
        clock->RefreshForm({});
        clock->Tick();
        QVERIFY(clock->PaintedSurface().Image() == next);
    }

    void RefreshTakesTheExchangeSlot() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        mduLib::PutProperty(u"Time Zone Rules"_s, u"As Stored"_s, desk.Module.CurrentProperties);
        mduLib::PutProperty(u"Time Zone Standard GMT (Minutes)"_s, u"-90"_s,
                            desk.Module.CurrentProperties);
        mduLib::PutProperty(u"Window Background Colour"_s, u"Red"_s, desk.Module.CurrentProperties);
        clock->RefreshForm({});
        QCOMPARE(clock->Data().State, ClockState::RedrawRequested);
        QCOMPARE(clock->Data().Zone.HoursFromLocal, 1.5F);
        desk.Machine.Clock.Advance(2000);
        QCOMPARE(clock->Controls().lblClock(1).Caption, u"13:30:02"_s);
        QCOMPARE(clock->PaintedSurface().Image().pixel(1, 1), qRgb(255, 0, 0));
    }

    void AnotherClockIsSizedLikeThisOne() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        clock->parentWidget()->resize(321, 234);
        clock->LaunchMDITempolark(u"Nepal Standard Time"_s);
        QCOMPARE(desk.Windows.Count(), 2);
        desk.Machine.Clock.Advance(30);
        auto& other = dynamic_cast<frmTempolark&>(desk.Windows[1]);
        QCOMPARE(other.parentWidget()->size(), QSize(321, 234));
        QCOMPARE(other.Data().Zone.HoursFromLocal, 5.75F);
    }

    void LaunchingAnOpenClockRestoresIt() {
        Desk desk;
        frmTempolark* clock = desk.Running(u"UTC"_s);
        frmTempolark* other = desk.Running(u"Nepal Standard Time"_s);
        other->SetWindowState(1);
        clock->SetFocus();
        QCOMPARE(other->WindowState(), 1);
        clock->LaunchMDITempolark(u"Nepal Standard Time"_s);
        QCOMPARE(other->WindowState(), 0);
        QCOMPARE(desk.Area.activeSubWindow()->widget(), other);
        QCOMPARE(desk.Windows.Count(), 2);
        other->SetWindowState(2);
        clock->LaunchMDITempolark(u"Nepal Standard Time"_s);
        QCOMPARE(other->WindowState(), 2);  // one that fills the area goes on doing so
    }

    void DisabledByItsFile() {
        Desk desk;
        QByteArray file = desk.Machine.ReadFile(u"ini/Tempolark.ini"_s);
        file.replace("Enable=Yes", "Enable=No");
        desk.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, file);
        frmTempolark* clock = desk.Running(u"UTC"_s);
        QVERIFY(!clock->IsEnabled());
        QCOMPARE(clock->Style(), WindowStyle::Disabled);
        clock->EnableWindow(true);
        QVERIFY(clock->IsEnabled());
    }

    void Inventory() {
        Desk desk;
        const frmTempolark* clock = desk.Launch(u"UTC"_s);
        mduUILib::ClockControls controls = clock->Controls();
        QStringList counts;
        for (const mduUILib::ControlArray* array : controls.All()) {
            counts += u"%1 %2"_s.arg(array->Name).arg(array->Count());
        }
        QCOMPARE(
            counts.join(u','),
            u"picFrame 1,txtMsg 100,imgSpeaker 1,shpArea 1,imgAction 1,lblLocation 1,"
            "imgSunMoon 2,shpHourHand 2,shpMinuteHand 2,shpSecondHand 2,lblDigitalNumber 6,"
            "imgTimer 100,imgClockNumber 60,lblHour 60,lblMsg 1,lblActionMsg 1,lblClock 1,"
            "lblTimeInput 1,lblTimeOutput 1,imgFlag 1,imgClock 2,timClock 1,imgList 1,objDialog 1,"
            "MusicPlayer 1"_s);
        QCOMPARE(clock->Controls().imgTimer(1).Left, 13.0F);
        QCOMPARE(clock->Controls().imgTimer(100).Top, 13.0F);
    }

    void AloneItIsCurrentWhileItIsActive() {
        Desk desk;
        frmTempolark clock(desk.TheProgram, nullptr, nullptr);
        QVERIFY(clock.ShowMeMDIChild(u"UTC"_s));
        desk.Machine.Clock.Advance(30);
        desk.Module.Paths.CurrentPropertyFile = u"/another.ini"_s;
        desk.Module.CurrentProperties.Reset();
        QEvent activate(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&clock, &activate);
        QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Path(u"UTC"_s));
        QCOMPARE(desk.Module.CurrentProperties, clock.Data().Properties());
    }
};

QTEST_MAIN(tst_frmTempolark)
#include "tst_frmTempolark.moc"
