#include <QTest>

#include "ClockDesk.h"
#include "platform/Dialogs.h"

namespace {

/// Pickers beside which the clock is closed and gone before they answer.
class ClosingDialogs final : public platform::Dialogs {
public:
    std::function<void()> Close;

    int MessageBox(const QString&, int, const QString&) override { return 1; }
    QString OpenFile(const QString&, const QString&, const QString&) override { return Answer(); }
    QString SaveFile(const QString&, const QString&, const QString&) override { return Answer(); }
    int PickColour(int) override {
        Close();
        return 0xFF;
    }

private:
    QString Answer() {
        Close();
        return u"/nonexistent/style.ini"_s;
    }
};

}  // namespace

/// The program is told to quit, or the clock's time is up, while the user has a picker open.
class tst_ClosedBesideAPicker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void LeavesTheClockAlone_data() {
        QTest::addColumn<int>("picker");
        QTest::addColumn<bool>("gone");
        for (const char* picker : {"colour", "style", "save"}) {
            const int number = picker[0] == 'c' ? 0 : picker[1] == 't' ? 1 : 2;
            QTest::addRow("%s, closed", picker) << number << false;
            QTest::addRow("%s, gone", picker) << number << true;
        }
    }

    void LeavesTheClockAlone() {
        QFETCH(int, picker);
        QFETCH(bool, gone);
        Desk desk;
        ClosingDialogs dialogs;
        const platform::Services services = desk.Services.With(dialogs);
        const QPointer<frmTempolark> clock =
            new frmTempolark(Program{services, desk.Module, desk.Windows}, &desk.Shell, &desk.Area);
        QVERIFY(clock->ShowMeMDIChild(u"UTC"_s));
        desk.Machine.Clock.Advance(30);
        dialogs.Close = [&] {
            clock->Unload();
            if (gone) {
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
        };
        desk.Shell.Messages.clear();
        switch (picker) {
            case 0:
                clock->PickWindowBackColour();
                break;
            case 1:
                clock->SetClockStyle(u"More"_s);
                break;
            default:
                clock->SaveStyleAs();
        }
        QCOMPARE(clock.isNull(), gone);
        QCOMPARE(desk.Shell.Messages, QStringList());
    }
};

QTEST_MAIN(tst_ClosedBesideAPicker)
#include "tst_ClosedBesideAPicker.moc"
