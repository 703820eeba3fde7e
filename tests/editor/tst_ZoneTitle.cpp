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
    void StripsTheCaret_data();
    void StripsTheCaret();
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

void tst_ZoneTitle::StripsTheCaret_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("caret") << u"Properties - Tokyo _"_s << u"Tokyo"_s;
    QTest::newRow("no caret") << u"Properties - Tokyo"_s << u"Tokyo"_s;
    QTest::newRow("no caret, blanks") << u"Properties - Tokyo "_s << u"Tokyo "_s;
    QTest::newRow("one of two") << u"Properties - Tokyo__"_s << u"Tokyo_"_s;
    QTest::newRow("a bare name") << u"Tokyo _"_s << u"Tokyo"_s;
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("the caret alone") << u"_"_s << QString();
}

void tst_ZoneTitle::StripsTheCaret() {
    QFETCH(QString, text);
    QTEST(editor::StripCaret(text), "name");
}

void tst_ZoneTitle::NamesKeys_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("shift");
    QTest::addColumn<bool>("capsLock");
    QTest::addColumn<int>("key");
    QTest::newRow("small") << 65 << 0 << false << 97;
    QTest::newRow("Shift") << 65 << 1 << false << 65;
    QTest::newRow("Caps Lock") << 90 << 0 << true << 90;
    QTest::newRow("both") << 90 << 1 << true << 122;
    QTest::newRow("Ctrl is no Shift") << 65 << 2 << false << 97;
    QTest::newRow("below the letters") << 64 << 0 << false << 64;
    QTest::newRow("the last") << 122 << 0 << false << 154;
    QTest::newRow("above the letters") << 123 << 0 << false << 123;
    QTest::newRow("line") << 189 << 0 << false << 95;
    QTest::newRow("line with Shift") << 189 << 1 << false << 45;
    QTest::newRow("line with Caps Lock") << 189 << 0 << true << 95;
    QTest::newRow("a character") << drawing::TypedKey(u'A') << 0 << false << 0x1000041;
}

void tst_ZoneTitle::NamesKeys() {
    QFETCH(int, code);
    QFETCH(int, shift);
    QFETCH(bool, capsLock);
    QTEST(editor::NameKey(code, shift, capsLock), "key");
}

QTEST_GUILESS_MAIN(tst_ZoneTitle)
#include "tst_ZoneTitle.moc"
