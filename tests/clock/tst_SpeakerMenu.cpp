#include "MenuClicks.h"

namespace {

const QString Zone = u"UTC"_s;

/// A clock with two voices, its speaker's menu open.
struct SpeakerDesk : ClickedDesk {
    frmTempolark* Clock = Running(Zone);

    const mduUILib::Control& Speaker() const { return Clock->Controls().imgSpeaker(1); }
    void Open() { Click(*Clock, Speaker(), Qt::RightButton); }
    QMenu* Menu(const QString& name) const { return Clock->findChild<QMenu*>(name); }
    void ChooseFromNew(const QStringList& captions) {
        Open();
        Choose(captions);
    }

    /// What the clock goes by, and what its file says.
    QString Present(const QString& key) const {
        return mduLib::GetProperty(key, Clock->Data().Properties());
    }
    QString Stored(const QString& key) const { return Base.Key(Zone, key); }
};

}  // namespace

/// The menu of the speaker mark, by real clicks: at noon of 15 June 2026 in GMT.
class tst_SpeakerMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HasItsEntriesInTheirOrder();
    void OpensOnTheSpeakerOnly();
    void DoesNothingWithControlHeld();
    void SpeaksTheTimeOnALeftClick();
    void HidesTheSpeaker();
    void ListsTheChoices_data();
    void ListsTheChoices();
    void TakesAPattern_data();
    void TakesAPattern();
    void SwitchesWhatIsSpoken_data();
    void SwitchesWhatIsSpoken();
    void TakesAVoice();
    void TakesAVolume();
    void MutesTheSpeaker();
    void TakesARate();
    void TakesAMusicVolume();
    void PutsTheSpeakerInItsPlace();
    void SavesNothingElse();
    void LeavesAFileThatCantBeRead();
    void OnlyTheClockInFrontSpeaks();
};

void tst_SpeakerMenu::HasItsEntriesInTheirOrder() {
    SpeakerDesk desk;
    desk.Open();
    const QMenu* menu = SpeakerDesk::OpenMenu();
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->objectName(), u"SpeakerMenu"_s);
    QCOMPARE(
        SpeakerDesk::Captions(*menu),
        (QStringList{u"Hide Speaker"_s, u"Day Speak Pattern"_s, u"Hour Speak Pattern"_s,
                     u"Minute Speak Pattern"_s, u"Second Speak Pattern"_s, u"Speak Timer Message"_s,
                     u"Speak Action Message"_s, u"Speaker Voice"_s, u"Speaker Volume"_s,
                     u"Speak Rate"_s, u"Music Volume"_s, u"Auto Position"_s}));
}

void tst_SpeakerMenu::OpensOnTheSpeakerOnly() {
    SpeakerDesk desk;
    mduUILib::Control other;
    other.Left = 120;
    other.Top = 40;
    desk.Click(*desk.Clock, other, Qt::RightButton);
    QVERIFY(SpeakerDesk::OpenMenu() != nullptr);
    QCOMPARE(SpeakerDesk::OpenMenu()->objectName(), u"FormPopup"_s);
}

void tst_SpeakerMenu::DoesNothingWithControlHeld() {
    SpeakerDesk desk;
    desk.Click(*desk.Clock, desk.Speaker(), Qt::RightButton, Qt::ControlModifier);
    desk.Click(*desk.Clock, desk.Speaker(), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(SpeakerDesk::OpenMenu() == nullptr);
    QCOMPARE(desk.Devices.Voices.Log, QStringList());
}

// The day's pattern goes first on a click, and a purge goes before it.
void tst_SpeakerMenu::SpeaksTheTimeOnALeftClick() {
    SpeakerDesk desk;
    desk.ChooseFromNew({u"Minute Speak Pattern"_s, u"<Minute>"_s});
    desk.ChooseFromNew({u"Hour Speak Pattern"_s, u"It is <Past/To>"_s});
    desk.Click(*desk.Clock, desk.Speaker(), Qt::LeftButton);
    QCOMPARE(desk.Devices.Voices.Log, (QStringList{u"2 ."_s, u"2 It is 12 O'Clock "_s}));
}

void tst_SpeakerMenu::HidesTheSpeaker() {
    SpeakerDesk desk;
    QVERIFY(desk.Speaker().Visible);
    desk.ChooseFromNew({u"Hide Speaker"_s});
    QVERIFY(!desk.Speaker().Visible);
    QCOMPARE(desk.Stored(u"Speaker"_s), u"No"_s);
}

void tst_SpeakerMenu::ListsTheChoices_data() {
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<QStringList>("ticked");

    const QStringList none = {u"None"_s};
    const QStringList zero = {u"0"_s};
    QTest::newRow("day") << u"DaySPFormat"_s
                         << QStringList{u"None"_s, u"Today is <LongDate>"_s,
                                        u"In <Location> it is <LongDate>"_s}
                         << none;
    QTest::newRow("hour") << u"HourSPFormat"_s
                          << QStringList{u"None"_s, u"The time is <Past/To> in <Location>"_s,
                                         u"It is <Past/To>"_s, u"<ShortTime>"_s,
                                         u"<LongTime> on <LongDate>"_s}
                          << none;
    QTest::newRow("minute") << u"MinuteSPFormat"_s
                            << QStringList{u"None"_s, u"The time is <Past/To> in <Location>"_s,
                                           u"It is <Past/To>"_s, u"<ShortTime>"_s, u"<Minute>"_s}
                            << none;
    QTest::newRow("second") << u"SecondSPFormat"_s
                            << QStringList{u"None"_s, u"<Second>"_s, u"<LongTime>"_s} << none;
    QTest::newRow("voice") << u"VoiceMenu"_s << QStringList{u"Ann"_s, u"Bob"_s} << QStringList();
    QTest::newRow("volume") << u"SpeakerVolumeMenu"_s
                            << QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s,
                                           u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s}
                            << QStringList{u"8"_s};
    QTest::newRow("rate") << u"SpeakRateMenu"_s
                          << QStringList{u"-10"_s, u"-8"_s, u"-6"_s, u"-4"_s, u"-2"_s, u"0"_s,
                                         u"2"_s,   u"4"_s,  u"6"_s,  u"8"_s,  u"10"_s}
                          << zero;
    QTest::newRow("music") << u"MusicVolumeMenu"_s
                           << QStringList{u"0"_s,  u"10"_s, u"20"_s, u"30"_s, u"40"_s, u"50"_s,
                                          u"60"_s, u"70"_s, u"80"_s, u"90"_s, u"100"_s}
                           << zero;
}

void tst_SpeakerMenu::ListsTheChoices() {
    QFETCH(QString, menu);
    SpeakerDesk desk;
    desk.Open();
    const QMenu* choices = desk.Menu(menu);
    QVERIFY(choices != nullptr);
    QTEST(SpeakerDesk::Captions(*choices), "captions");
    QTEST(SpeakerDesk::Ticked(*choices), "ticked");
}

void tst_SpeakerMenu::TakesAPattern_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("pattern");

    QTest::newRow("day") << u"Day Speak Pattern"_s << u"DaySPFormat"_s << u"Speech Day Pattern"_s
                         << u"Today is <LongDate>"_s;
    QTest::newRow("hour") << u"Hour Speak Pattern"_s << u"HourSPFormat"_s
                          << u"Speech Hour Pattern"_s << u"<ShortTime>"_s;
    QTest::newRow("minute") << u"Minute Speak Pattern"_s << u"MinuteSPFormat"_s
                            << u"Speech Minute Pattern"_s << u"<Minute>"_s;
    QTest::newRow("second") << u"Second Speak Pattern"_s << u"SecondSPFormat"_s
                            << u"Speech Second Pattern"_s << u"<Second>"_s;
}

void tst_SpeakerMenu::TakesAPattern() {
    QFETCH(QString, entry);
    QFETCH(QString, menu);
    QFETCH(QString, key);
    QFETCH(QString, pattern);
    SpeakerDesk desk;
    desk.ChooseFromNew({entry, pattern});
    QCOMPARE(desk.Present(key), pattern);
    QCOMPARE(desk.Stored(key), pattern);
    desk.Open();
    QCOMPARE(SpeakerDesk::Ticked(*desk.Menu(menu)), QStringList{pattern});
    desk.Choose({entry, u"None"_s});
    QCOMPARE(desk.Present(key), u"None"_s);
    QCOMPARE(desk.Stored(key), u"None"_s);
}

void tst_SpeakerMenu::SwitchesWhatIsSpoken_data() {
    QTest::addColumn<QString>("key");
    QTest::newRow("timer") << u"Speak Timer Message"_s;
    QTest::newRow("action") << u"Speak Action Message"_s;
}

void tst_SpeakerMenu::SwitchesWhatIsSpoken() {
    QFETCH(QString, key);
    SpeakerDesk desk;
    desk.Open();
    QVERIFY(SpeakerDesk::Entry(*SpeakerDesk::OpenMenu(), key)->isChecked());
    desk.Choose({key});
    QCOMPARE(desk.Present(key), u"No"_s);
    QCOMPARE(desk.Stored(key), u"No"_s);
    desk.Open();
    QVERIFY(!SpeakerDesk::Entry(*SpeakerDesk::OpenMenu(), key)->isChecked());
    desk.Choose({key});
    QCOMPARE(desk.Stored(key), u"Yes"_s);
}

void tst_SpeakerMenu::TakesAVoice() {
    SpeakerDesk desk;
    desk.ChooseFromNew({u"Speaker Voice"_s, u"Bob"_s});
    QCOMPARE(desk.Devices.Voices.Log, QStringList{u"voice 1"_s});
    QCOMPARE(desk.Stored(u"Speaker Voice"_s), u"Bob"_s);
    desk.Open();
    QCOMPARE(SpeakerDesk::Ticked(*desk.Menu(u"VoiceMenu"_s)), QStringList{u"Bob"_s});
}

void tst_SpeakerMenu::TakesAVolume() {
    SpeakerDesk desk;
    desk.ChooseFromNew({u"Speaker Volume"_s, u"3"_s});
    QCOMPARE(desk.Devices.Voices.Log, QStringList{u"volume 30"_s});
    QCOMPARE(desk.Speaker().Tag, u"3"_s);
    QCOMPARE(desk.Stored(u"Speaker Volume"_s), u"3"_s);
    desk.Open();
    QCOMPARE(SpeakerDesk::Ticked(*desk.Menu(u"SpeakerVolumeMenu"_s)), QStringList{u"3"_s});
}

void tst_SpeakerMenu::MutesTheSpeaker() {
    SpeakerDesk desk;
    const auto idle = desk.Speaker().Picture;
    desk.ChooseFromNew({u"Speaker Volume"_s, u"0"_s});
    QVERIFY(desk.Speaker().Picture != idle);
    desk.Devices.Voices.Log.clear();
    desk.ChooseFromNew({u"Minute Speak Pattern"_s, u"<Minute>"_s});
    desk.Click(*desk.Clock, desk.Speaker(), Qt::LeftButton);
    QCOMPARE(desk.Devices.Voices.Log, QStringList());
}

void tst_SpeakerMenu::TakesARate() {
    SpeakerDesk desk;
    desk.ChooseFromNew({u"Speak Rate"_s, u"-4"_s});
    QCOMPARE(desk.Devices.Voices.Log, QStringList{u"rate -4"_s});
    QCOMPARE(desk.Stored(u"Speak Rate"_s), u"-4"_s);
    desk.Open();
    QCOMPARE(SpeakerDesk::Ticked(*desk.Menu(u"SpeakRateMenu"_s)), QStringList{u"-4"_s});
}

// The next tick finds the volume and starts the music.
void tst_SpeakerMenu::TakesAMusicVolume() {
    SpeakerDesk desk;
    desk.Base.Machine.WriteFile(u"Music/Waltz.mp3"_s, "music");
    desk.ChooseFromNew({u"Music Volume"_s, u"40"_s});
    QCOMPARE(desk.Stored(u"Music Volume"_s), u"40"_s);
    desk.Base.Machine.Clock.Advance(1000);
    QVERIFY(desk.Devices.Players.Log.contains(u"volume 40"_s));
    QVERIFY(desk.Devices.Players.Log.contains(u"url "_s + desk.Base.Machine.AppFolder() +
                                              u"/Music/Waltz.mp3"_s));
}

void tst_SpeakerMenu::PutsTheSpeakerInItsPlace() {
    SpeakerDesk desk;
    ClockProperties moved = desk.Clock->Data().Properties();
    mduLib::PutProperty(u"Speaker Image Left"_s, u"60"_s, moved);
    mduLib::PutProperty(u"Speaker Image Top"_s, u"70"_s, moved);
    desk.Base.Module.CurrentProperties = moved;
    desk.Clock->RefreshForm({});
    desk.Base.Machine.Clock.Advance(1000);
    QCOMPARE(desk.Speaker().Left, 60.0F);
    QCOMPARE(desk.Speaker().Top, 70.0F);
    desk.ChooseFromNew({u"Auto Position"_s});
    QCOMPARE(desk.Speaker().Left, 4.0F);
    QCOMPARE(desk.Speaker().Top + desk.Speaker().Height,
             static_cast<float>(desk.Clock->PaintedSurface().ScaleHeight() - 4));
    QCOMPARE(desk.Stored(u"Speaker Image Left"_s), u"-1"_s);
    QCOMPARE(desk.Stored(u"Speaker Image Top"_s), u"-1"_s);
}

// A colour that was only tried on stays out of the file.
void tst_SpeakerMenu::SavesNothingElse() {
    SpeakerDesk desk;
    const QString colour = desk.Stored(u"Window Background Colour"_s);
    desk.Clock->SetWindowBackColour({}, u"Green"_s);
    desk.ChooseFromNew({u"Speak Rate"_s, u"2"_s});
    QCOMPARE(desk.Present(u"Window Background Colour"_s), u"Green"_s);
    QCOMPARE(desk.Stored(u"Window Background Colour"_s), colour);
    QCOMPARE(desk.Stored(u"Speak Rate"_s), u"2"_s);
}

void tst_SpeakerMenu::LeavesAFileThatCantBeRead() {
    SpeakerDesk desk;
    const QByteArray odd("Speech:Speak Rate=0\0\r\n", 22);
    const QString file = u"tester/TimeZones/UTC.ini"_s;
    desk.Base.Machine.WriteFile(file, odd);
    desk.ChooseFromNew({u"Speak Rate"_s, u"2"_s});
    QCOMPARE(desk.Present(u"Speak Rate"_s), u"2"_s);
    QCOMPARE(desk.Base.Machine.ReadFile(file), odd);
}

// Both are to speak each minute.
void tst_SpeakerMenu::OnlyTheClockInFrontSpeaks() {
    SpeakerDesk desk;
    desk.ChooseFromNew({u"Minute Speak Pattern"_s, u"<Minute>"_s});
    frmTempolark* nepal = desk.Running(u"Nepal Standard Time"_s);
    desk.Base.Area.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.Base.Area));
    desk.Devices.Voices.Log.clear();
    desk.Base.Machine.Clock.Advance(61000);
    QCOMPARE(desk.Devices.Voices.Log, QStringList());  // Nepal, which is in front, has no pattern
    desk.Clock->SetFocus();
    desk.Base.Machine.Clock.Advance(60000);
    QVERIFY(!desk.Devices.Voices.Log.isEmpty());
    nepal->SetFocus();
    desk.Devices.Voices.Log.clear();
    desk.Base.Machine.Clock.Advance(60000);
    QCOMPARE(desk.Devices.Voices.Log, QStringList());
}

QTEST_MAIN(tst_SpeakerMenu)
#include "tst_SpeakerMenu.moc"
