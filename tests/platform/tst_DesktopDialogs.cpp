#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "platform/ui/DesktopDialogs.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int YesNo = 4 + 32;
constexpr int NoIsDefault = 256;

/// Does something to the box that comes up.
template <typename Action>
int Answer(int flags, const QString& text, const QString& title, Action&& action) {
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                qFatal("no box");
            }
            action(*box);
            if (box->isVisible()) {
                qFatal("the box is still open");
            }
        },
        Qt::QueuedConnection);
    return platform::DesktopDialogs().MessageBox(text, flags, title);
}

}  // namespace

class tst_DesktopDialogs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void KeysAnswer_data() {
        QTest::addColumn<int>("flags");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("answer");
        QTest::newRow("Enter on a question") << YesNo << int(Qt::Key_Return) << 6;
        QTest::newRow("Enter on a removal") << YesNo + NoIsDefault << int(Qt::Key_Return) << 7;
        QTest::newRow("Escape") << YesNo << int(Qt::Key_Escape) << 2;
        QTest::newRow("Escape on a removal") << YesNo + NoIsDefault << int(Qt::Key_Escape) << 2;
        QTest::newRow("Escape on a message") << 16 << int(Qt::Key_Escape) << 1;
        QTest::newRow("Enter on a message") << 16 << int(Qt::Key_Return) << 1;
    }

    void KeysAnswer() {
        QFETCH(int, flags);
        QFETCH(int, key);
        const int answer = Answer(flags, u"Do you?"_s, u"Title"_s, [&](QMessageBox& box) {
            QTest::keyClick(&box, static_cast<Qt::Key>(key));
        });
        QTEST(answer, "answer");
    }

    void ClosingIsNeither() {
        const auto close = [](QMessageBox& box) { box.close(); };
        QCOMPARE(Answer(YesNo, u"Do you?"_s, u"Title"_s, close), 2);
        QCOMPARE(Answer(16, u"Done"_s, u"Title"_s, close), 1);
    }

    void NoNeedsItsButton() {
        QCOMPARE(Answer(YesNo, u"Do you?"_s, u"Title"_s,
                        [](QMessageBox& box) {
                            QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
                        }),
                 7);
    }

    void YesNeedsItsButton() {
        QCOMPARE(Answer(YesNo + NoIsDefault, u"Do you?"_s, u"Title"_s,
                        [&](QMessageBox& box) {
                            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
                        }),
                 6);
    }

    /// The window manager cuts a heading that is wider than the box.
    void HasRoomForItsHeading() {
        const QString title = u"Save Seleted Time Zones"_s;
        int width = 0;
        Answer(YesNo, u"Ok?"_s, title, [&](QMessageBox& box) {
            width = box.width();
            box.button(QMessageBox::No)->click();
        });
        QFont bold = QApplication::font();
        bold.setBold(true);
        const int heading = QFontMetrics(bold).horizontalAdvance(title);
        QVERIFY2(width >= heading + 120, qPrintable(u"%1 for %2"_s.arg(width).arg(heading)));
    }

    void ShowsTheWholeOfItsText_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("a sentence")
            << u"Do you want to save the removal of UTC, with the settings of its clock?"_s;
        QTest::newRow("many") << QString(u"Is it to be told once more? "_s).repeated(30).trimmed();
        QTest::newRow("lines") << u"Do you want to delete these?\n\n3 time zones: A, B, C."_s;
    }

    void ShowsTheWholeOfItsText() {
        QFETCH(QString, text);
        QSize label;
        int needed = 0;
        Answer(YesNo, text, u"Title"_s, [&](QMessageBox& box) {
            const auto* shown = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
            const QFontMetrics metrics(shown->font());
            const auto wrap = shown->wordWrap() ? Qt::TextWordWrap : Qt::TextFlag(0);
            label = shown->size();
            const QRect place = metrics.boundingRect({0, 0, label.width(), 9999}, wrap, text);
            needed = place.height();
            QVERIFY2(place.width() <= label.width(),
                     qPrintable(u"%1 in %2"_s.arg(place.width()).arg(label.width())));
            box.button(QMessageBox::No)->click();
        });
        QVERIFY(label.height() >= needed);
    }
};

QTEST_MAIN(tst_DesktopDialogs)
#include "tst_DesktopDialogs.moc"
