#include "editor/EditorPlace.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::EditorKind;

class tst_EditorPlace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PlacesEditors_data();
    void PlacesEditors();
    void PlacesTheChooser();
};

void tst_EditorPlace::PlacesEditors_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QRectF>("cell");
    QTest::addColumn<QRectF>("place");
    const QRectF cell(100, 50, 1000, 300);
    QTest::newRow("list") << 1 << cell << QRectF(90, 50, 1000, 240);
    QTest::newRow("spin") << 2 << cell << QRectF(110, 60, 990, 300);
    QTest::newRow("line") << 3 << cell << QRectF(110, 60, 990, 300);
    QTest::newRow("line with a list") << 4 << cell << QRectF(90, 50, 1000, 240);
    QTest::newRow("a low cell") << 3 << QRectF(0, 0, 500, 240) << QRectF(10, 10, 490, 285);
    QTest::newRow("a narrow cell") << 3 << QRectF(0, 0, 4, 300) << QRectF(10, 10, 0, 300);
}

void tst_EditorPlace::PlacesEditors() {
    QFETCH(int, kind);
    QFETCH(QRectF, cell);
    QTEST(editor::PlaceCellEditor(static_cast<EditorKind>(kind), cell), "place");
}

void tst_EditorPlace::PlacesTheChooser() {
    QCOMPARE(editor::PlaceColChooser({30, 15, 900, 240}), QRectF(30, 15, 900, 285));
    QCOMPARE(editor::PlaceColChooser({30, 15, 900, 400}), QRectF(30, 15, 900, 400));
}

QTEST_GUILESS_MAIN(tst_EditorPlace)
#include "tst_EditorPlace.moc"
