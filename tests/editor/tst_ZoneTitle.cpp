#include "editor/ZoneTitle.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::ZoneTitle;

class tst_ZoneTitle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsAName();
    void IsTypedInto();
    void KeepsItsNameWhenTheEditEnds();
    void NamesKeys_data();
    void NamesKeys();
};

void tst_ZoneTitle::ShowsAName() {
    ZoneTitle title(u"London"_s);
    QCOMPARE(title.Caption(), u"Properties - London"_s);
    QVERIFY(!title.Key(u'x'));
    QCOMPARE(title.Name(), u"London"_s);
    title.SetName(u"Tokyo"_s);
    QCOMPARE(title.Caption(), u"Properties - Tokyo"_s);
}

void tst_ZoneTitle::IsTypedInto() {
    ZoneTitle title{QString()};
    title.SetEdited(true);
    QCOMPARE(title.Caption(), u"Properties -  _"_s);
    QVERIFY(!title.Key(13));
    for (const int key : {82, 111, 101, 37, 109}) {
        QVERIFY(!title.Key(key));
    }
    QCOMPARE(title.Name(), u"Rome"_s);
    QCOMPARE(title.Caption(), u"Properties - Rom_"_s);
    QVERIFY(title.Key(13));
    QCOMPARE(title.Caption(), u"Properties - Rome"_s);
}

void tst_ZoneTitle::KeepsItsNameWhenTheEditEnds() {
    ZoneTitle title(u"Oslo"_s);
    title.SetEdited(true);
    QVERIFY(title.IsEdited());
    QCOMPARE(title.Caption(), u"Properties - Oslo _"_s);
    title.Key(u's');
    title.SetEdited(false);
    QVERIFY(!title.IsEdited());
    QCOMPARE(title.Name(), u"Oslos"_s);
    QCOMPARE(title.Caption(), u"Properties - Oslos"_s);
}

void tst_ZoneTitle::NamesKeys_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isShift");
    QTest::addColumn<QString>("typed");
    QTest::newRow("line") << u"-"_s << false << u"_"_s;
    QTest::newRow("line with Shift") << u"_"_s << true << u"-"_s;
    QTest::newRow("- elsewhere, with Shift") << u"-"_s << true << u"-"_s;
    QTest::newRow("_ elsewhere") << u"_"_s << false << u"_"_s;
    QTest::newRow("a letter") << u"a"_s << false << u"a"_s;
    QTest::newRow("two") << u"--"_s << false << u"--"_s;
}

void tst_ZoneTitle::NamesKeys() {
    QFETCH(QString, text);
    QFETCH(bool, isShift);
    QTEST(editor::NameKey(text, isShift), "typed");
}

QTEST_GUILESS_MAIN(tst_ZoneTitle)
#include "tst_ZoneTitle.moc"
