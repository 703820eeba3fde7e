#include <QTest>

#include "drawing/FlagPosition.h"

using namespace Qt::StringLiterals;
using drawing::FlagPosition;

class tst_FlagPosition : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Read_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<FlagPosition>("position");
        QTest::newRow("top right") << u"Top right"_s << FlagPosition::TopRight;
        QTest::newRow("top left") << u"Top left"_s << FlagPosition::TopLeft;
        QTest::newRow("bottom right") << u"Bottom right"_s << FlagPosition::BottomRight;
        QTest::newRow("bottom left") << u"Bottom left"_s << FlagPosition::BottomLeft;
        QTest::newRow("icon") << u"Icon"_s << FlagPosition::Icon;
        QTest::newRow("icon goes first") << u"Bottom left icon"_s << FlagPosition::Icon;
        QTest::newRow("letter case") << u"BOTTOM LEFT"_s << FlagPosition::BottomLeft;
        QTest::newRow("left alone") << u"left"_s << FlagPosition::TopLeft;
        QTest::newRow("bottom alone") << u" bottom "_s << FlagPosition::BottomRight;
        QTest::newRow("empty") << QString() << FlagPosition::TopRight;
        QTest::newRow("missing key") << u"0"_s << FlagPosition::TopRight;
        QTest::newRow("unknown") << u"Middle"_s << FlagPosition::TopRight;
    }

    void Read() {
        QFETCH(QString, text);
        QTEST(drawing::ReadFlagPosition(text), "position");
    }

    void Names() {
        QCOMPARE(drawing::FlagPositionNames(),
                 QStringList({u"Top right"_s, u"Top left"_s, u"Bottom right"_s, u"Bottom left"_s,
                              u"Icon"_s}));
    }
};

QTEST_GUILESS_MAIN(tst_FlagPosition)
#include "tst_FlagPosition.moc"
