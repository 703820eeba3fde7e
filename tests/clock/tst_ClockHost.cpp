#include <QTest>

#include "clock/ClockHost.h"
#include "clock/FakeScreen.h"
#include "clock/RecordingParts.h"
#include "drawing/StockPictures.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using clockcore::ClockKind;
using clockcore::ClockState;
using drawing::GetStockPicture;
using drawing::StockPicture;

namespace {

/// A voice and a player that write down what they are asked for.
struct WritingVoice final : speech::ClockVoice {
    QStringList Log;
    bool Speaking = false;
    void SpeakMessage(const QString& text, int flags, Urgency urgency) override {
        Log +=
            u"%1 %2%3"_s.arg(text).arg(flags).arg(urgency == Urgency::Urgent ? u"!"_s : QString());
    }
    void PurgeSpeech(Urgency urgency) override {
        Log += urgency == Urgency::Urgent ? u"purge!"_s : u"purge"_s;
    }
    bool IsSpeaking() const override { return Speaking; }
};

struct WritingMusic final : speech::ClockMusic {
    QStringList Log;
    void PlaySound(const QString& path) override { Log += path; }
    void StopMusic() override { Log += u"stop"_s; }
};

/// A clock of 300 by 200 pixels.
struct HostDesk {
    FakeScreen Screen;
    RecordingParts Parts;
    clockcore::ClockData Data;
    mduUILib::ClockControls Controls;
    clockcore::ClockCanvas Canvas{Data.State, Screen, Parts.ThePlacement};
    clockcore::ClockHost Host{Data, Controls, Parts.TheWindow, Screen, Canvas};
    WritingVoice Voice;
    WritingMusic Music;

    HostDesk() {
        Screen.Extent = {300, 200};
        Canvas.TakeSurface();
        Host.SetSpeech(Voice, Music);
        Data.State = ClockState::Running;
    }
    bool Shows(const mduUILib::Control& control, StockPicture picture) const {
        return control.Picture == GetStockPicture(picture);
    }
};

}  // namespace

class tst_ClockHost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PassesTextsToTheVoice() {
        HostDesk desk;
        desk.Host.SpeakMessage(u"Tea"_s, 2, Urgency::Urgent);
        desk.Host.SpeakMessage(u"Eggs"_s, 0, Urgency::Routine);
        desk.Host.PurgeSpeech(Urgency::Urgent);
        QCOMPARE(desk.Voice.Log, (QStringList{u"Tea 2!"_s, u"Eggs 0"_s, u"purge!"_s}));
        QVERIFY(!desk.Host.IsSpeaking());
        desk.Voice.Speaking = true;
        QVERIFY(desk.Host.IsSpeaking());
    }

    void AClosingClockSaysNothingMore() {
        HostDesk desk;
        QVERIFY(!desk.Host.IsClosing());
        desk.Data.State = ClockState::Closing;
        QVERIFY(desk.Host.IsClosing());
        desk.Host.SpeakMessage(u"Tea"_s, 2, Urgency::Urgent);
        QCOMPARE(desk.Voice.Log, QStringList());
    }

    void PassesSoundsToTheMusic() {
        HostDesk desk;
        desk.Host.PlaySound(u"Bell.wav"_s);
        desk.Host.StopMusic();
        QCOMPARE(desk.Music.Log, (QStringList{u"Bell.wav"_s, u"stop"_s}));
    }

    void WithoutSpeechNothingIsHeard() {
        HostDesk desk;
        clockcore::ClockHost host(desk.Data, desk.Controls, desk.Parts.TheWindow, desk.Screen,
                                  desk.Canvas);
        host.SpeakMessage(u"Tea"_s, 2, Urgency::Urgent);
        host.PurgeSpeech(Urgency::Urgent);
        host.PlaySound(u"Bell.wav"_s);
        host.StopMusic();
        QVERIFY(!host.IsSpeaking());
        QCOMPARE(desk.Voice.Log + desk.Music.Log, QStringList());
    }

    void IsActiveWithFormAndWindow_data() {
        QTest::addColumn<bool>("form");
        QTest::addColumn<bool>("window");
        QTest::addColumn<bool>("active");
        QTest::newRow("both") << true << true << true;
        QTest::newRow("another form") << false << true << false;
        QTest::newRow("another program") << true << false << false;
    }

    void IsActiveWithFormAndWindow() {
        QFETCH(bool, form);
        QFETCH(bool, window);
        HostDesk desk;
        desk.Parts.TheWindow.ActiveForm = form;
        desk.Parts.TheWindow.ActiveWindow = window;
        QTEST(desk.Host.IsActiveClock(), "active");
    }

    void AnswersForWindowAndSurface() {
        HostDesk desk;
        desk.Canvas.SetBackColor(0x112233);
        desk.Host.SetTimerInterval(100);
        QCOMPARE(desk.Parts.TheWindow.Interval, 100);
        QCOMPARE(desk.Host.TimerInterval(), 100);
        QCOMPARE(desk.Host.BackColor(), 0x112233);
        QCOMPARE(desk.Host.ScaleHeight(), 200);
        QCOMPARE(desk.Host.DevicePixelRatio(), 1.0);
        QVERIFY(desk.Host.IsInSight());
        desk.Screen.InSight = false;
        QVERIFY(!desk.Host.IsInSight());
        desk.Host.ShowStatus(u"Late"_s);
        QCOMPARE(desk.Screen.Status, QStringList{u"Late"_s});
    }

    void EditsTheClocksProperties() {
        HostDesk desk;
        const int before = desk.Data.Revision();
        mduLib::PutProperty(u"Speak Rate"_s, u"3"_s, desk.Host.EditProperties());
        QCOMPARE(mduLib::GetProperty(u"Speak Rate"_s, desk.Data.Properties()), u"3"_s);
        QVERIFY(desk.Data.Revision() > before);
    }

    void TheSpeakerShowsItsPicture() {
        HostDesk desk;
        desk.Host.SetSpeakerPicture(4);
        QVERIFY(desk.Shows(desk.Controls.imgSpeaker(1), StockPicture::SpeakerMuted));
        QVERIFY(desk.Shows(desk.Controls.imgAction(1), StockPicture::Action));
    }

    void AnActionSpeaksNoLongerThanTheVoice() {
        HostDesk desk;
        desk.Controls.imgAction(1).Picture = GetStockPicture(StockPicture::ActionSpeaking);
        desk.Host.SetSpeakerPicture(5);
        QVERIFY(desk.Shows(desk.Controls.imgSpeaker(1), StockPicture::SpeakerTalking));
        QVERIFY(desk.Shows(desk.Controls.imgAction(1), StockPicture::ActionSpeaking));
        desk.Host.SetSpeakerPicture(3);
        QVERIFY(desk.Shows(desk.Controls.imgSpeaker(1), StockPicture::SpeakerIdle));
        QVERIFY(desk.Shows(desk.Controls.imgAction(1), StockPicture::Action));
    }

    void FitsALabelToItsCaption() {
        HostDesk desk;
        mduUILib::Control label;
        desk.Host.FitLabel(label);
        QCOMPARE(label.Width, 0.0F);
        label.Caption = u"Tea is ready"_s;
        desk.Host.FitLabel(label);
        QVERIFY(label.Width > 0 && label.Height > 0);
    }

    void ADigitalClocksMarksRunAlongTheBottom() {
        HostDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Host.PlaceMark(1, 30, 1);
        const mduUILib::Control& mark = desk.Controls.imgTimer(1);
        QCOMPARE(mark.Width, 14.0F);  // 7 % of the height
        QCOMPARE(mark.Height, 14.0F);
        QCOMPARE(mark.Left, 94.0F);  // half of the width, less four marks
        QCOMPARE(mark.Top, 186.0F);
        QVERIFY(desk.Shows(mark, StockPicture::TimerMark));
    }

    void OnlyAKindThatShowsSomethingMovesItsMarks_data() {
        QTest::addColumn<ClockKind>("kind");
        QTest::addColumn<bool>("isWrapper");
        QTest::addColumn<float>("top");
        QTest::newRow("both") << ClockKind::AnalogueAndDigital << false << 186.0F;
        QTest::newRow("calculator") << ClockKind::Calculator << false << 186.0F;
        QTest::newRow("typed into") << ClockKind::CalculatorInput << false << 186.0F;
        QTest::newRow("message") << ClockKind::CalculatorMessage << false << 186.0F;
        QTest::newRow("none") << ClockKind::None << false << 50.0F;
        QTest::newRow("wrapper") << ClockKind::Digital << true << 50.0F;
    }

    void OnlyAKindThatShowsSomethingMovesItsMarks() {
        QFETCH(ClockKind, kind);
        QFETCH(bool, isWrapper);
        HostDesk desk;
        desk.Data.Tag = {kind, isWrapper};
        desk.Controls.imgTimer(1).Top = 50;
        desk.Host.PlaceMark(1, 30, 1);
        QTEST(desk.Controls.imgTimer(1).Top, "top");
        QCOMPARE(desk.Controls.imgTimer(1).Width, 14.0F);
    }

    // A quarter past one, at 30 pixels less four marks of 14, would not be seen; nor would twelve
    // o'clock on a ring of twice the dial.
    void EveryMarkCanBeReached() {
        HostDesk desk;
        desk.Data.Tag = {ClockKind::Digital, false};
        desk.Host.PlaceMark(1, 6, 3);
        QCOMPARE(desk.Controls.imgTimer(1).Left, 0.0F);
        desk.Data.Tag = {ClockKind::Analogue, false};
        mduLib::PutProperty(u"Minute Spot Position(%)"_s, u"200"_s, desk.Data.EditProperties());
        mduLib::PutProperty(u"Clock CentralX(%)"_s, u"50"_s, desk.Data.EditProperties());
        mduLib::PutProperty(u"Clock CentralY(%)"_s, u"50"_s, desk.Data.EditProperties());
        desk.Host.PlaceMark(1, 60, 0);
        QCOMPARE(desk.Controls.imgTimer(1).Top, 0.0F);
        desk.Host.PlaceMark(1, 30, 0);
        QCOMPARE(desk.Controls.imgTimer(1).Top, 186.0F);
    }

    void ADialsMarksLieOnItsRing() {
        HostDesk desk;
        mduLib::PutProperty(u"Minute Spot Position(%)"_s, u"100"_s, desk.Data.EditProperties());
        mduLib::PutProperty(u"Clock CentralX(%)"_s, u"-1"_s, desk.Data.EditProperties());
        mduLib::PutProperty(u"Clock CentralY(%)"_s, u"-1"_s, desk.Data.EditProperties());
        desk.Host.PlaceMark(1, 60, 0);  // at twelve, 84 above the middle
        QVERIFY(std::abs(desk.Controls.imgTimer(1).Left - (150 - 14)) < 0.01F);
        QVERIFY(std::abs(desk.Controls.imgTimer(1).Top - (100 - 84 - 14)) < 0.01F);
    }

    void ARowLiesInTheOutlineOfTheWindow() {
        HostDesk desk;
        QVERIFY(!desk.Host.RowInOutline(0, 10, 50));
        desk.Parts.ThePlacement.Offset = {4, 20};
        desk.Canvas.SetWindowRgn(QRegion(104, 120, 80, 50));
        QCOMPARE(desk.Host.RowInOutline(0, 10, 50), QRectF(100, 100, 80, 10));
    }
};

QTEST_MAIN(tst_ClockHost)
#include "tst_ClockHost.moc"
