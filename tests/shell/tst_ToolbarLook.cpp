#include "shell/ToolbarLook.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ToolbarLook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Sizes_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("extent");
        QTest::addColumn<int>("side");
        QTest::newRow("small") << u"Small Size"_s << 480 << 24;
        QTest::newRow("small, captions") << u"Small Size with Caption"_s << 830 << 24;
        QTest::newRow("large") << u"Large Size"_s << 850 << 48;
        QTest::newRow("1470.5 goes to the even") << u"Large Size with Caption"_s << 1470 << 48;
        QTest::newRow("garbage") << u"?"_s << 480 << 24;
        QTest::newRow("empty") << QString() << 480 << 24;
        QTest::newRow("Large alone") << u"Large"_s << 850 << 24;
    }

    void Sizes() {
        QFETCH(QString, name);
        QTEST(shell::ToolbarExtent(name), "extent");
        QTEST(shell::ToolbarPictureSide(name), "side");
    }

    void ToolbarPlaces_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<int>("align");
        QTest::addColumn<int>("border");
        QTest::newRow("top") << u"Top"_s << true << 1 << 1;
        QTest::newRow("bottom") << u"Bottom"_s << true << 2 << 1;
        QTest::newRow("left") << u"Left"_s << true << 3 << 1;
        QTest::newRow("right") << u"Right"_s << true << 4 << 1;
        QTest::newRow("none") << u"None"_s << false << 0 << 0;
        QTest::newRow("hide") << u"Hide"_s << false << 0 << 0;
        QTest::newRow("top, hidden") << u"Top:Hide"_s << false << 1 << 0;
        QTest::newRow("left, hidden") << u"Left:Hide"_s << false << 3 << 0;
        QTest::newRow("none, hidden") << u"None:Hide"_s << false << 0 << 0;
        QTest::newRow("blanks around") << u" Right "_s << true << 4 << 1;
    }

    void ToolbarPlaces() {
        QFETCH(QString, value);
        const std::optional<shell::ToolbarPlace> place = shell::ToolbarPosition(value);
        QVERIFY(place);
        QTEST(place->Visible, "visible");
        QTEST(place->Align, "align");
        QTEST(place->Border, "border");
    }

    void OtherTextsSayNothingOfAPlace() {
        for (const QString& value :
             {u"3:4:5"_s, QString(), u"0"_s, u"Topp"_s, u":Hide"_s, u"Middle:Hide"_s, u"Yes"_s}) {
            QVERIFY2(!shell::ToolbarPosition(value), qPrintable(value));
        }
    }

    void StatusBarPlaces_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("visible");
        QTest::addColumn<int>("align");
        QTest::newRow("top") << u"Top"_s << true << 1;
        QTest::newRow("yes") << u"Yes"_s << true << 2;
        QTest::newRow("left") << u"Left"_s << true << 3;
        QTest::newRow("right") << u"Right"_s << true << 4;
        QTest::newRow("none") << u"None"_s << false << 0;
        QTest::newRow("no") << u"No"_s << false << 0;
        QTest::newRow("small no") << u" no "_s << false << 0;
        QTest::newRow("small none") << u"none"_s << false << 0;
        QTest::newRow("small yes") << u"yes"_s << true << 2;
        QTest::newRow("small top") << u"top"_s << true << 1;
        QTest::newRow("missing") << u"0"_s << true << 2;
        QTest::newRow("empty") << QString() << true << 2;
        QTest::newRow("unknown") << u"Maybe"_s << true << 2;
    }

    void StatusBarPlaces() {
        QFETCH(QString, value);
        const shell::StatusBarPlace place = shell::StatusBarPosition(value);
        QTEST(place.Visible, "visible");
        QTEST(place.Align, "align");
    }
};

QTEST_GUILESS_MAIN(tst_ToolbarLook)
#include "tst_ToolbarLook.moc"
