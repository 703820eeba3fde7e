#include "editor/ValueForm.h"

#include <QTest>

#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;
using editor::EditorKind;
using editor::ValueForm;
using editor::ValueSort;

namespace {

void AddColumns() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<ValueSort>("sort");
    QTest::addColumn<EditorKind>("kind");
}

ClockProperties StockFile(const QString& name) {
    ClockProperties properties;
    mduLib::ReadPropertyFile(platform::LocalFiles(),
                             QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/") + name, properties);
    return properties;
}

}  // namespace

class tst_ValueForm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TellsByTheValue_data();
    void TellsByTheValue();
    void KnowsTheKeysOfAClock_data();
    void KnowsTheKeysOfAClock();
    void KnowsTheKeysOfTheShell_data();
    void KnowsTheKeysOfTheShell();
    void TellsByTheKey();
    void TakesWhatFits_data();
    void TakesWhatFits();
};

void tst_ValueForm::TellsByTheValue_data() {
    AddColumns();
    const auto row = [](const char* what, const QString& value, ValueSort sort, EditorKind kind) {
        QTest::newRow(what) << u"Any Key"_s << value << sort << kind;
    };
    row("nothing", {}, ValueSort::Text, EditorKind::Text);
    row("a word", u"Normal"_s, ValueSort::Text, EditorKind::Text);
    row("a word with itself", u"A,A"_s, ValueSort::Text, EditorKind::Text);
    row("two words", u"A,A,B"_s, ValueSort::Choice, EditorKind::Combo);
    row("two words, none chosen", u",A,B"_s, ValueSort::Choice, EditorKind::Combo);
    row("a number", u"12"_s, ValueSort::Number, EditorKind::UpDown);
    row("a negative number", u"-1"_s, ValueSort::Number, EditorKind::UpDown);
    row("a number with blanks", u" 1.5 "_s, ValueSort::Number, EditorKind::UpDown);
    row("a number with itself", u"3,3"_s, ValueSort::Number, EditorKind::UpDown);
    row("a number with a word", u"3,None"_s, ValueSort::Text, EditorKind::Text);
    row("numbers", u"3,1,2,3"_s, ValueSort::Number, EditorKind::ComboEdit);
    row("numbers, none chosen", u",1,2"_s, ValueSort::Choice, EditorKind::Combo);
    row("a number among words", u"0,0,Rarely,Often"_s, ValueSort::Choice, EditorKind::Combo);
    row("yes", u"Yes"_s, ValueSort::Text, EditorKind::Text);
    row("yes and no", u"Yes,Yes,No"_s, ValueSort::YesNo, EditorKind::Combo);
    row("no and yes", u"no,NO,yes"_s, ValueSort::YesNo, EditorKind::Combo);
    row("neither yes nor no", u"Maybe,Yes,No"_s, ValueSort::Choice, EditorKind::Combo);
    row("yes, no and more", u"Yes,Yes,No,Maybe"_s, ValueSort::Choice, EditorKind::Combo);
    row("a colour among words", u"None,None,red"_s, ValueSort::Colour, EditorKind::Combo);
    row("a colour's name alone", u"Red"_s, ValueSort::Text, EditorKind::Text);
    row("a date", u"28/02/2024"_s, ValueSort::Date, EditorKind::UpDown);
    row("a date with a time", u"01/11/2026 2:00:00"_s, ValueSort::Date, EditorKind::UpDown);
    row("a rule of a zone", u"0.0.0 0:00:00"_s, ValueSort::Text, EditorKind::Text);
    row("sentences", u"None,None,It is <Hour>"_s, ValueSort::Text, EditorKind::ComboEdit);
    row("pairs", u"A:Red,B:Blue,C:Red"_s, ValueSort::Text, EditorKind::ComboEdit);
    row("times", u"hh:mm,hh:mm,mm:ss"_s, ValueSort::Choice, EditorKind::Combo);
}

void tst_ValueForm::TellsByTheValue() {
    QFETCH(QString, name);
    QFETCH(QString, value);
    const ValueForm form = editor::FormOf(name, value);
    QTEST(form.Sort, "sort");
    QTEST(form.Kind, "kind");
}

void tst_ValueForm::KnowsTheKeysOfAClock_data() {
    AddColumns();
    const auto row = [properties = StockFile(u"Tempolark.ini"_s)](const QString& name,
                                                                  ValueSort sort, EditorKind kind) {
        QTest::newRow(qPrintable(name))
            << name << mduLib::GetPropertyRaw(name, properties) << sort << kind;
    };
    row(u"Clocks"_s, ValueSort::Choice, EditorKind::Combo);
    row(u"Enable"_s, ValueSort::YesNo, EditorKind::Combo);
    row(u"Stay Time"_s, ValueSort::Number, EditorKind::UpDown);
    row(u"Clock Image File"_s, ValueSort::File, EditorKind::Text);
    row(u"Clock Image Size(%)"_s, ValueSort::Number, EditorKind::ComboEdit);
    row(u"Clock CentralX(%)"_s, ValueSort::Number, EditorKind::UpDown);
    row(u"Window Background Colour"_s, ValueSort::Colour, EditorKind::Combo);
    row(u"Hour Hand Style"_s, ValueSort::Choice, EditorKind::Combo);
    row(u"Hour Hand Colour"_s, ValueSort::Colour, EditorKind::Combo);
    row(u"Hour Number Font"_s, ValueSort::Font, EditorKind::ComboEdit);
    row(u"Hour Number Size"_s, ValueSort::Number, EditorKind::ComboEdit);
    row(u"Digital Clock Format"_s, ValueSort::Choice, EditorKind::Combo);
    row(u"Digital Font Size"_s, ValueSort::Number, EditorKind::ComboEdit);
    row(u"Calculator Time Font Colour"_s, ValueSort::Colour, EditorKind::Combo);
    row(u"Time Zone Standard Name"_s, ValueSort::Text, EditorKind::Text);
    row(u"Time Zone Standard GMT (Minutes)"_s, ValueSort::Text, EditorKind::Text);
    row(u"Timer Sound File"_s, ValueSort::File, EditorKind::ComboEdit);
    row(u"Music File"_s, ValueSort::File, EditorKind::Text);
    row(u"Speaker Voice"_s, ValueSort::Text, EditorKind::Text);
    row(u"Speech Second Pattern"_s, ValueSort::Text, EditorKind::ComboEdit);
    row(u"Message Colour"_s, ValueSort::Colour, EditorKind::Combo);
    row(u"Message Action Colour"_s, ValueSort::Text, EditorKind::ComboEdit);
}

void tst_ValueForm::KnowsTheKeysOfAClock() {
    TellsByTheValue();
}

void tst_ValueForm::KnowsTheKeysOfTheShell_data() {
    AddColumns();
    const auto row = [properties = StockFile(u"TempolarkCentral.ini"_s)](
                         const QString& name, ValueSort sort, EditorKind kind) {
        QTest::newRow(qPrintable(name))
            << name << mduLib::GetPropertyRaw(name, properties) << sort << kind;
    };
    row(u"Window Width"_s, ValueSort::Number, EditorKind::UpDown);
    row(u"Window Background Colour"_s, ValueSort::Colour, EditorKind::Combo);
    row(u"Window Background File"_s, ValueSort::File, EditorKind::Text);
    row(u"Toolbar Size"_s, ValueSort::Choice, EditorKind::Combo);
    row(u"Status Bar"_s, ValueSort::YesNo, EditorKind::Combo);
    row(u"Start Message"_s, ValueSort::Text, EditorKind::ComboEdit);
}

void tst_ValueForm::KnowsTheKeysOfTheShell() {
    TellsByTheValue();
}

void tst_ValueForm::TellsByTheKey() {
    QCOMPARE(editor::FormOf(u"PROFILE "_s, u"12"_s),
             (ValueForm{ValueSort::File, EditorKind::Text}));
    QCOMPARE(editor::FormOf(u"Flag Files"_s, u"12"_s),
             (ValueForm{ValueSort::Number, EditorKind::UpDown}));
    QCOMPARE(editor::FormOf(u"Ink Colour"_s, u"4731430"_s),
             (ValueForm{ValueSort::Colour, EditorKind::Text}));
    QCOMPARE(editor::FormOf(u"COLOUR"_s, u""_s), (ValueForm{ValueSort::Colour, EditorKind::Text}));
    QCOMPARE(editor::FormOf(u"Log Colour"_s, u"Log Off:Red"_s),
             (ValueForm{ValueSort::Text, EditorKind::Text}));
    QCOMPARE(editor::FormOf(u"Any Font"_s, u"Lato"_s),
             (ValueForm{ValueSort::Font, EditorKind::Text}));
}

void tst_ValueForm::TakesWhatFits_data() {
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("fits");
    QTest::addColumn<QString>("taken");
    QTest::newRow("a line takes all") << u"x"_s << u" any thing "_s << true << u" any thing "_s;
    QTest::newRow("a number, too") << u"3,1,2,3"_s << u"4.5"_s << true << u"4.5"_s;
    QTest::newRow("a choice") << u"A,A,Bold"_s << u" bOLD "_s << true << u"Bold"_s;
    QTest::newRow("a choice with blanks") << u"A, A ,Bold"_s << u"a"_s << true << u" A "_s;
    QTest::newRow("none of the choices") << u"A,A,Bold"_s << u"Bol"_s << false << QString();
    QTest::newRow("nothing") << u"A,A,Bold"_s << QString() << false << QString();
    QTest::newRow("no") << u"Yes,Yes,No"_s << u"no"_s << true << u"No"_s;
    QTest::newRow("a colour's word") << u"Red,Red,Random"_s << u"random"_s << true << u"Random"_s;
    QTest::newRow("another colour") << u"Red,Red,Random"_s << u"cyan"_s << true << u"cyan"_s;
    QTest::newRow("a colour's number")
        << u"Red,Red,Random"_s << u"4731430"_s << true << u"4731430"_s;
    QTest::newRow("no colour") << u"Red,Red,Random"_s << u"Noon"_s << false << QString();
    QTest::newRow("a number that is no choice") << u"A,A,B"_s << u"3"_s << false << QString();
}

void tst_ValueForm::TakesWhatFits() {
    QFETCH(QString, value);
    QFETCH(QString, text);
    const std::optional<QString> taken = editor::FittingText(u"Any Key"_s, value, text);
    QTEST(taken.has_value(), "fits");
    QTEST(taken.value_or(QString()), "taken");
}

QTEST_APPLESS_MAIN(tst_ValueForm)
#include "tst_ValueForm.moc"
