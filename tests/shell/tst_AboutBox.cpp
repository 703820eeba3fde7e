#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <functional>

#include "shell/ui/AboutBox.h"

using namespace Qt::StringLiterals;

/// The box waits until it is closed: what is to be seen of it is seen from the event loop.
class tst_AboutBox : public QObject {
    Q_OBJECT

    static void WhileItIsOpen(const QString& edition, const std::function<void(QDialog&)>& look) {
        QWidget parent;
        bool seen = false;
        QMetaObject::invokeMethod(
            qApp,
            [&] {
                auto* box = parent.findChild<QDialog*>(u"aboutBox"_s);
                QVERIFY(box != nullptr && box->isVisible());
                look(*box);
                seen = true;
            },
            Qt::QueuedConnection);
        ShowAboutBox(&parent, edition);
        QVERIFY(seen);
        QVERIFY(parent.findChild<QDialog*>(u"aboutBox"_s) == nullptr);
    }

    static QString Text(const QDialog& box) {
        QString text;
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            text += label->text();
        }
        return text;
    }

private Q_SLOTS:
    void TellsVersionAndEdition() {
        QCoreApplication::setApplicationVersion(u"1.2 <beta>"_s);
        WhileItIsOpen(u"Zones & rules of 2026b"_s, [](QDialog& box) {
            QCOMPARE(box.windowTitle(), u"About Tempolark Central"_s);
            QVERIFY(Text(box).contains(u"<p>Version 1.2 &lt;beta&gt;</p>"_s));
            QVERIFY(Text(box).contains(u"<p>Zones &amp; rules of 2026b</p>"_s));
            QVERIFY(box.isModal());
            box.reject();
        });
    }

    /// A text that wraps keeps a width of its own, or the box becomes a tower.
    void IsWiderThanHigh() {
        WhileItIsOpen(u"x"_s, [](QDialog& box) {
            QVERIFY2(box.width() > box.height(), qPrintable(u"%1"_s.arg(box.width())));
            QVERIFY(box.width() >= 320);
            box.reject();
        });
    }

    void OkClosesIt() {
        WhileItIsOpen({}, [](QDialog& box) {
            auto* buttons = box.findChild<QDialogButtonBox*>();
            QCOMPARE(buttons->buttons().size(), 1);
            QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
            QCOMPARE(box.result(), static_cast<int>(QDialog::Accepted));
        });
    }

    void EscapeClosesIt() {
        WhileItIsOpen({}, [](QDialog& box) {
            QTest::keyClick(&box, Qt::Key_Escape);
            QVERIFY(!box.isVisible());
        });
    }
};

QTEST_MAIN(tst_AboutBox)
#include "tst_AboutBox.moc"
