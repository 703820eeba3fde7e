#include "MenuClicks.h"

namespace {

/// What all keys of a default file are called.
AskedNames KeysOf(const QByteArray& file) {
    AskedNames keys;
    for (const QByteArray& line : file.split('\n')) {
        const QString key = QString::fromUtf8(line).section(u'=', 0, 0).section(u':', -1).trimmed();
        if (!key.isEmpty()) {
            keys.insert(key);
        }
    }
    return keys;
}

/// A clock of each kind in the shell, at work over the turn of an hour: it speaks, plays, and a
/// timer with an action fires.
struct BusyDesk : ClickedDesk {
    std::shared_ptr<AskedNames> Asked = std::make_shared<AskedNames>();

    void Run(const QString& kind) {
        const QString zone = u"UTC"_s;
        Base.Machine.WriteFile(u"tester/Timers/UTCTimer.txt"_s, "1,red,,Log Off,0#13:1=Tea\r\n");
        Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s,
                               Base.Machine.ReadFile(u"ini/Tempolark.ini"_s)
                                   .replace("Clocks=Analogue", "Clocks=" + kind.toUtf8())
                                   .replace("Music Volume=0", "Music Volume=50")
                                   .replace("Clock Image File=", "Clock Image File=.\\dial.bmp"));
        QImage dial(20, 20, QImage::Format_RGB32);
        dial.fill(Qt::red);
        QVERIFY(dial.save(Base.Machine.AppFolder() + u"/dial.bmp"_s));
        Base.Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), QTime(12, 59, 30), Qt::UTC));
        auto* clock = new frmTempolark(TheProgram, &Base.Shell, &Base.Area);
        clock->Watch({.Keys = Asked});
        QVERIFY(clock->ShowMeMDIChild(zone));
        Base.Machine.Clock.Advance(150'000);
        Click(*clock, clock->Controls().imgSpeaker(1), Qt::RightButton);
        if (QMenu* menu = OpenMenu()) {
            menu->close();
        }
        SetATimer(*clock);
        Base.Close(clock);
    }

    /// A timer a little behind three, from the spot there; on a dial that nothing covers.
    void SetATimer(const frmTempolark& clock) {
        if (clock.Data().Is(clockcore::ClockKind::Analogue)) {
            Click(clock, clock.Controls().imgClockNumber(16), Qt::RightButton);
            Choose({QStringLiteral("03:12")});
        }
    }

    void RunAlone() {
        frmTempolark clock(TheProgram, nullptr, nullptr);
        clock.Watch({.Keys = Asked});
        Base.Module.Paths.CurrentPropertyFile = Base.Path(u"UTC"_s);
        clock.ShowMe(u"UTC"_s, {});
        Base.Machine.Clock.Advance(2000);
        Base.Machine.Clock.SetNow(QDateTime(QDate(2026, 6, 15), QTime(13, 59, 57), Qt::UTC));
        Base.Machine.Clock.Advance(5000);
    }
};

}  // namespace

/// A key that no clock goes by is a promise to the user that nobody keeps.
class tst_KeysInUse : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryKeyOfTheDefaultFileIsRead() {
        BusyDesk desk;
        for (const QString& kind : clockcore::ClockKindNames()) {
            desk.Run(kind);
        }
        desk.RunAlone();
        QStringList unread;
        for (const QString& key : KeysOf(desk.Base.Machine.ReadFile(u"ini/Tempolark.ini"_s))) {
            if (!desk.Asked->contains(key)) {
                unread += key;
            }
        }
        // It belongs to a menu of the clock that is still to come: the details of its zone.
        QCOMPARE(unread.join(u", "_s), u"Speak Time Zone Details"_s);
    }

    void AKeyThatNobodyReadsIsFound() {
        QVERIFY(KeysOf("Clock:Sun Colour=Red,Red\r\n\r\nStay Time=0\r\n") ==
                AskedNames({u"Stay Time"_s, u"Sun Colour"_s}));
        BusyDesk desk;
        desk.RunAlone();
        QVERIFY(!desk.Asked->empty());
        QVERIFY(!desk.Asked->contains(u"Sun Colour"_s));
    }
};

QTEST_MAIN(tst_KeysInUse)
#include "tst_KeysInUse.moc"
