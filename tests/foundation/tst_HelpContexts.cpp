#include "foundation/HelpContexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_HelpContexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PagesOfWindows_data() {
        QTest::addColumn<QString>("window");
        QTest::addColumn<int>("context");
        QTest::newRow("time zones") << u"frmTimeZones"_s << 200;
        QTest::newRow("shortcuts") << u"frmShortcuts"_s << 300;
        QTest::newRow("properties") << u"frmProperties"_s << 400;
        QTest::newRow("a clock") << u"frmTempolark"_s << 0;
        QTest::newRow("none") << u""_s << 0;
    }
    void PagesOfWindows() {
        QFETCH(QString, window);
        QTEST(HelpContext::OfWindow(window), "context");
    }
};

QTEST_APPLESS_MAIN(tst_HelpContexts)
#include "tst_HelpContexts.moc"
