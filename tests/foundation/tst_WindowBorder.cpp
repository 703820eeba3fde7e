#include <QTest>

#include "foundation/WindowBorder.h"

using namespace Qt::StringLiterals;
using mduUILib::WindowBorder;

class tst_WindowBorder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Read_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::newRow("none") << u"No Border"_s << 1;
        QTest::newRow("3D") << u"3D Border"_s << 3;
        QTest::newRow("classic") << u"Classic"_s << 7;
        QTest::newRow("blanks") << u" Classic "_s << 7;
        QTest::newRow("letter case") << u"classic"_s << 0;
        QTest::newRow("missing key") << u"0"_s << 0;
        QTest::newRow("unknown") << u"Thick"_s << 0;
    }

    void Read() {
        QFETCH(QString, text);
        QTEST(static_cast<int>(mduUILib::ReadWindowBorder(text)), "number");
    }

    void Names() {
        QCOMPARE(mduUILib::WindowBorderNames(),
                 QStringList({u"No Border"_s, u"3D Border"_s, u"Classic"_s}));
    }
};

QTEST_GUILESS_MAIN(tst_WindowBorder)
#include "tst_WindowBorder.moc"
