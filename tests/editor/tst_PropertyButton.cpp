#include "editor/PropertyButton.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::ButtonState;
using editor::ButtonTag;

class tst_PropertyButton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void HasACaption();
    void GoesByItsCode_data();
    void GoesByItsCode();
};

void tst_PropertyButton::HasACaption() {
    QCOMPARE(editor::ButtonCaption(ButtonTag(0)), u"Apply"_s);
    QCOMPARE(editor::ButtonCaption(ButtonTag(1)), u"Save"_s);
    QCOMPARE(editor::ButtonCaption(ButtonTag(2)), u"Launch"_s);
}

void tst_PropertyButton::GoesByItsCode_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("forNewFile");
    QTest::addColumn<ButtonTag>("state");
    QTest::newRow("save") << -1 << false << ButtonTag::Save;
    QTest::newRow("save, new file") << -1 << true << ButtonTag::Save;
    QTest::newRow("launch") << 2 << false << ButtonTag::Launch;
    QTest::newRow("launch, new file") << 2 << true << ButtonTag::Launch;
    QTest::newRow("apply") << 0 << false << ButtonTag::Apply;
    QTest::newRow("any other") << 7 << false << ButtonTag::Apply;
    QTest::newRow("stays") << 0 << true << ButtonTag::Launch;
}

void tst_PropertyButton::GoesByItsCode() {
    QFETCH(int, code);
    QFETCH(bool, forNewFile);
    QTEST(ButtonState(code, forNewFile, ButtonTag::Launch), "state");
}

QTEST_GUILESS_MAIN(tst_PropertyButton)
#include "tst_PropertyButton.moc"
