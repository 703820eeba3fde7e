#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QTest>

#include "platform/ui/DesktopDialogs.h"

using namespace Qt::StringLiterals;

namespace {

/// A window that owns boxes.
struct Desk {
    QWidget Window;
    platform::DesktopDialogs Dialogs;

    Desk() {
        Window.show();
        Dialogs.SetOwner(&Window);
    }
    void Post(const QString& text) { Dialogs.PostMessageBox(text, 16, u"ExecuteLink"_s); }

    /// The texts of the boxes that can be seen.
    QStringList Standing() const {
        QStringList texts;
        for (const QMessageBox* box : Window.findChildren<QMessageBox*>()) {
            texts += box->isVisible() ? QStringList{box->text()} : QStringList{};
        }
        return texts;
    }
    QMessageBox* Box() const { return Window.findChild<QMessageBox*>(); }
    void PressOk() const {
        QTest::mouseClick(Box()->button(QMessageBox::Ok), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

}  // namespace

/// Boxes that nobody waits for.
class tst_DesktopDialogs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PostsBehindWhatIsUnderWay() {
        Desk desk;
        desk.Post(u"There is no program"_s);
        QCOMPARE(desk.Standing(), QStringList());
        QTRY_COMPARE(desk.Standing(), QStringList{u"There is no program"_s});
        QCOMPARE(desk.Box()->windowTitle(), u"ExecuteLink"_s);
        QCOMPARE(desk.Box()->icon(), QMessageBox::Critical);
        QVERIFY(!desk.Box()->isModal());
        desk.PressOk();
        QVERIFY(desk.Box() == nullptr);
    }

    void ShowsOneAfterTheOther() {
        Desk desk;
        for (const QString& text : {u"one"_s, u"two"_s, u"one"_s}) {
            desk.Post(text);
        }
        QTRY_COMPARE(desk.Standing(), QStringList{u"one"_s});
        desk.Post(u"one"_s);
        QCoreApplication::processEvents();
        QCOMPARE(desk.Standing(), QStringList{u"one"_s});
        desk.PressOk();
        QTRY_COMPARE(desk.Standing(), QStringList{u"two"_s});
        QTest::keyClick(desk.Box(), Qt::Key_Escape);
        QTRY_VERIFY(desk.Box() == nullptr);
        desk.Post(u"one"_s);
        QTRY_COMPARE(desk.Standing(), QStringList{u"one"_s});
    }

    // The program is told to quit while a box stands and another one waits.
    void GoesWithItsOwner() {
        platform::DesktopDialogs dialogs;
        QPointer<QMessageBox> box;
        {
            QWidget window;
            window.show();
            dialogs.SetOwner(&window);
            dialogs.PostMessageBox(u"one"_s, 48, {});
            QTRY_VERIFY(window.findChild<QMessageBox*>() != nullptr);
            box = window.findChild<QMessageBox*>();
            dialogs.PostMessageBox(u"two"_s, 48, {});
            window.close();
        }
        QVERIFY(box.isNull());
        dialogs.PostMessageBox(u"three"_s, 48, {});
        QCoreApplication::processEvents();
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    void ShowsNoneBesideAClosedOwner() {
        Desk desk;
        desk.Post(u"one"_s);
        desk.Window.close();
        QCoreApplication::processEvents();
        QVERIFY(desk.Box() == nullptr);
    }
};

QTEST_MAIN(tst_DesktopDialogs)
#include "tst_DesktopDialogs.moc"
