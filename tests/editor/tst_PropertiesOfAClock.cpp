// The window of properties beside a clock that lives: closed, opened again, saved by itself.
#include <QApplication>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "clock/ClockDesk.h"
#include "editor/PropertyShell.h"
#include "editor/ui/ctlEditGrid.h"
#include "editor/ui/frmProperties.h"

namespace {

const QString Zone = u"Nepal Standard Time"_s;
constexpr auto GoneBox = "\r\nis gone, do you want to save it anew?|36|Property File Gone";
constexpr auto ChangedBox =
    "Property has been changed, do you want to refresh with the new values?|36|Property Changed";

/// A clock that runs, and the window of its properties.
struct ClockAndWindow : Desk {
    PropertyShell Asked;
    frmTempolark* Clock = Running(Zone);
    std::unique_ptr<frmProperties> Window;

    ClockAndWindow() {
        Module.Paths.CurrentPropertyFile = Clock->IniFile();
        Clock->SetProperty();
        Window = std::make_unique<frmProperties>(TheProgram, &Asked, nullptr);
        Window->ShowProperty(Zone, Clock->hwnd());
        Window->setAttribute(Qt::WA_DeleteOnClose, false);
    }

    ctlEditGrid& Grid() {
        return *static_cast<ctlEditGrid*>(Window->findChild<QWidget*>(u"grdProperty"_s));
    }
    int RowOf(const QString& key) {
        for (int row = 1; row < Grid().Data().Rows(); ++row) {
            if (Grid().Data().TextMatrix(row, 0) == key) {
                return row;
            }
        }
        qFatal("no such key");
    }
    QString Cell(const QString& key) { return Grid().Data().TextMatrix(RowOf(key), 1); }
    void Enter(const QString& key, const QString& text) {
        QTableView& view = Grid().View();
        view.setFocus();
        view.setCurrentIndex(view.model()->index(RowOf(key) - 1, 1));
        QTest::keyClick(&view, Qt::Key_Backspace);
        QWidget* editor = view.focusWidget() != nullptr ? view.focusWidget() : &view;
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
    }
    void Apply() {
        QTest::mouseClick(Window->findChild<QPushButton*>(u"cmdButton0"_s), Qt::LeftButton);
    }
    QString Stored(const QString& key) const { return Key(Zone, key); }
    void WriteByAnother(const QString& key, const QString& value) {
        ClockProperties properties;
        mduLib::ReadPropertyFile(Machine.Files, Path(Zone), properties);
        mduLib::PutProperty(key, value, properties);
        QVERIFY(mduLib::WritePropertyFile(Machine.Files, properties, Path(Zone)));
    }
};

}  // namespace

class tst_PropertiesOfAClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AClockThatIsOpenedAgainTakesWhatIsApplied() {
        ClockAndWindow desk;
        desk.Close(desk.Clock);
        desk.Clock = desk.Running(Zone);
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.Asked.Answers = {7};  // it has stored its place at closing
        desk.Apply();
        QCOMPARE(desk.Asked.Boxes, QStringList{QString::fromLatin1(ChangedBox)});
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"7"_s);
        QCOMPARE(mduLib::GetProperty(u"Stay Time"_s, desk.Clock->Data().Properties()), u"7"_s);
        desk.Clock->SaveCurrentStyle();
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"7"_s);
    }

    void AClosedClocksPlaceStays() {
        ClockAndWindow desk;
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.Clock->parentWidget()->setGeometry(33, 44, 222, 111);
        desk.Close(desk.Clock);
        desk.Asked.Answers = {6, 7};
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Stored(u"Window Left"_s), u"495"_s);
        QCOMPARE(desk.Stored(u"Window Height"_s), u"1665"_s);
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"7"_s);
    }

    void AZoneThatIsRemovedMeanwhileStaysRemoved() {
        ClockAndWindow desk;
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.Close(desk.Clock);
        QVERIFY(QFile::remove(desk.Path(Zone)));
        desk.Asked.Answers = {6, 7};
        QVERIFY(!desk.Window->close());
        QCOMPARE(desk.Asked.Boxes.last(), desk.Path(Zone) + QString::fromLatin1(GoneBox));
        QVERIFY(!QFile::exists(desk.Path(Zone)));
        desk.Asked.Answers = {7};
        QVERIFY(desk.Window->close());
        QVERIFY(!QFile::exists(desk.Path(Zone)));
    }

    void RenewedRulesKeepWhatAnotherHasWritten() {
        ClockAndWindow desk;
        desk.WriteByAnother(u"Stay Time"_s, u"9"_s);
        desk.WriteByAnother(u"Time Zone Standard GMT (Minutes)"_s, u"1"_s);
        desk.Clock->RefreshDefaultTimeZoneDetails(Zone);
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"9"_s);
        QCOMPARE(desk.Stored(u"Time Zone Standard GMT (Minutes)"_s), u"-345"_s);
    }

    void RulesAreNotRenewedInAFileThatCantBeRead() {
        ClockAndWindow desk;
        const QByteArray locked("a\0b", 3);
        desk.Machine.WriteFile(u"tester/TimeZones/"_s + Zone + u".ini"_s, locked);
        desk.Clock->RefreshDefaultTimeZoneDetails(Zone);
        QCOMPARE(desk.Machine.ReadFile(u"tester/TimeZones/"_s + Zone + u".ini"_s), locked);
    }

    void WhatAnotherHasWrittenIsAskedForAtClosing() {
        ClockAndWindow desk;
        desk.Enter(u"Stay Time"_s, u"7"_s);
        desk.WriteByAnother(u"Stay Time"_s, u"9"_s);
        desk.Asked.Answers = {6, 6};
        QVERIFY(!desk.Window->close());
        QCOMPARE(desk.Stored(u"Stay Time"_s), u"9"_s);
        QCOMPARE(desk.Cell(u"Stay Time"_s), u"9"_s);
        QVERIFY(desk.Window->close());
        QCOMPARE(desk.Asked.Boxes.size(), 2);
    }
};

QTEST_MAIN(tst_PropertiesOfAClock)
#include "tst_PropertiesOfAClock.moc"
