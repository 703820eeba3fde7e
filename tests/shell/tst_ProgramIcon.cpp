#include <QTest>

#include "shell/ui/ProgramIcon.h"

class tst_ProgramIcon : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The window system takes the size that it needs; none is made from another one.
    void HasAPictureOfEachSize_data() {
        QTest::addColumn<int>("side");
        for (const int side : {16, 22, 24, 32, 48, 64, 96, 128, 256}) {
            QTest::addRow("%d", side) << side;
        }
    }

    void HasAPictureOfEachSize() {
        QFETCH(int, side);
        const QIcon icon = ProgramIcon();
        QVERIFY(icon.availableSizes().contains(QSize(side, side)));
        const QImage picture = icon.pixmap(side, side).toImage();
        QCOMPARE(picture.size(), QSize(side, side));
        QVERIFY(qAlpha(picture.pixel(side / 2, side / 2)) > 200);
    }

    void HasNoOtherSize() { QCOMPARE(ProgramIcon().availableSizes().size(), 9); }
};

QTEST_MAIN(tst_ProgramIcon)
#include "tst_ProgramIcon.moc"
