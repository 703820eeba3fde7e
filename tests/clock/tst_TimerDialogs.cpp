#include "clock/TimerDialogs.h"

#include <QTest>

#include "clock/DialDesk.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;

namespace {

/// Pickers beside which something happens before they answer.
class BusyDialogs final : public platform::Dialogs {
public:
    std::function<void()> Meanwhile;

    int MessageBox(const QString&, int, const QString&) override { return 1; }
    QString OpenFile(const QString&, const QString&, const QString&) override {
        Meanwhile();
        return u"/usr/bin/env"_s;
    }
    QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
    int PickColour(int) override {
        Meanwhile();
        return 0xFF00;
    }
};

}  // namespace

class tst_TimerDialogs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AnAnswerThatComesTooLateDoesNothing_data() {
        QTest::addColumn<QString>("meanwhile");
        for (const char* what : {"the clock goes", "the clock closes", "the timer fires"}) {
            QTest::newRow(what) << QString::fromLatin1(what);
        }
    }

    void AnAnswerThatComesTooLateDoesNothing() {
        QFETCH(QString, meanwhile);
        using Ask = void (clockcore::TimerDialogs::*)(const clockcore::ChosenTimer&);
        for (const Ask ask :
             {&clockcore::TimerDialogs::PickColour, &clockcore::TimerDialogs::PickSound,
              &clockcore::TimerDialogs::PickProgram}) {
            DialDesk desk;
            BusyDialogs pickers;
            const platform::Services services = desk.Services.With(pickers);
            auto clock = std::make_unique<QObject>();
            timers::ActionList actions{desk.Context};
            actions.FillActionMenu();
            clockcore::TimerDialogs dialogs(*clock, {services, desk.Module, desk.Windows},
                                            desk.Dial, actions);
            desk.Add(u"12:00"_s, u"Tea"_s);
            pickers.Meanwhile = [&] {
                if (meanwhile == u"the clock goes"_s) {
                    clock.reset();
                } else if (meanwhile == u"the clock closes"_s) {
                    desk.Data.State = clockcore::ClockState::Closing;
                } else {
                    desk.Timers.CheckTimers(u"15/06/2026 12:00:01"_s);
                }
            };
            const auto chosen = desk.Dial.Choose(1);
            const timers::ClockTimer before = desk.Timers.Timer(1);
            (dialogs.*ask)(chosen);
            const bool fired = meanwhile == u"the timer fires"_s;
            QCOMPARE(desk.Timers.Timer(1).IsFree(), fired);
            QVERIFY(fired || desk.Timers.Timer(1) == before);
            QCOMPARE(desk.Timers.Timer(1).SoundFile, QString());
            QCOMPARE(actions.Entries().size(), 8U);
        }
    }
};

QTEST_MAIN(tst_TimerDialogs)
#include "tst_TimerDialogs.moc"
