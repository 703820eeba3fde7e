#include <QDialog>
#include <QLabel>

#include "shell/ShellDesk.h"

namespace {

const QString Old =
    u"The time zone database of this machine (edition 2026a) is older than a year: clocks may be "
    "wrong. The package tzdata brings a new one"_s;
const QString Mistyped =
    u"No time zone is called \"tokyo\": it counts as GMT. The nearest is \"Tokyo Standard Time\""_s;

}  // namespace

/// What the shell tells at its start about zones.
class tst_StartNotices : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsOfAnOldDatabase_data() {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<bool>("told");
        QTest::newRow("a year old") << QDate(2027, 4, 30) << false;
        QTest::newRow("older") << QDate(2027, 5, 1) << true;
    }

    void TellsOfAnOldDatabase() {
        QFETCH(QDate, today);
        Desk desk;
        desk.Machine.Clock.SetNow(QDateTime(today, QTime(12, 0), Qt::UTC));
        QVERIFY(desk.Start());
        QTEST(desk.Status().contains(Old), "told");
    }

    void TellsOfAMistypedZone() {
        Desk desk;
        desk.Module.CommandLine = u" tokyo "_s;
        QVERIFY(desk.Start());
        QCOMPARE(desk.Status(), Mistyped + u" << Launched Tempolark for tokyo successfully."_s);
        QCOMPARE(desk.Shell->NoticeOf(desk.Module.CommandLine), Mistyped);
        desk.Stop();
        // Its file has been filled in meanwhile.
        QVERIFY(desk.User(u"TimeZones/tokyo.ini"_s).contains("GMT (Minutes)=0\r\n"));
        QVERIFY(desk.Start());
        QVERIFY(desk.Status().startsWith(Mistyped));
    }

    void TellsOfNoOther_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::newRow("zone") << u"Tokyo Standard Time"_s;
        QTest::newRow("nothing") << QString();
        QTest::newRow("screen saver") << u"/s"_s;
        QTest::newRow("no name of a file") << u"../tokyo"_s;
    }

    void TellsOfNoOther() {
        QFETCH(QString, commandLine);
        Desk desk;
        desk.Module.CommandLine = commandLine;
        QVERIFY(desk.Start());
        QCOMPARE(desk.Shell->NoticeOf(desk.Module.CommandLine), QString());
        QVERIFY(!desk.Status().contains(u"No time zone"_s));
    }

    void TellsTheEditionInTheAboutBox() {
        Desk desk;
        QVERIFY(desk.Start());
        QString text;
        QMetaObject::invokeMethod(
            desk.Shell.get(),
            [&] {
                auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                for (const QLabel* label : box->findChildren<QLabel*>()) {
                    text += label->text();
                }
                box->accept();
            },
            Qt::QueuedConnection);
        desk.Entry(u"MainItem"_s, 6)->trigger();
        QVERIFY2(text.contains(u"<p>Time zone database: edition 2026a</p>"_s), qPrintable(text));
    }
};

QTEST_MAIN(tst_StartNotices)
#include "tst_StartNotices.moc"
