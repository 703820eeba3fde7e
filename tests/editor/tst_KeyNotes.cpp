#include "editor/KeyNotes.h"

#include <QTest>

#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using editor::KeyNotes;
using editor::RowInfo;

namespace {

const QByteArray Notes =
    "Tempolark:Colour=The colour  of a=b: it is told.\n"
    "TempolarkCentral:Colour=Of the shell.\n"
    "Tempolark:Speech Day Pattern=At midnight.\n"
    "Tempolark:Left=In twips; -1 lets it choose.\n"
    "Tempolark:East=Minutes: -10 or -1.5 for some.\n"
    "Tempolark:Rate=Milliseconds in which it opens.\n"
    "Tempolark:Wait=Seconds after which it closes.\n"
    "Tempolark:Width=In pixels, or a percentage.\n"
    "Tempolark:Height(%)=In pixels.\n"
    "Tempolark:Font=Its size, in points.\n";

}  // namespace

class tst_KeyNotes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TellsOfKeys_data();
    void TellsOfKeys();
    void AMissingFileTellsNothing();
    void NamesTheFile();
    void TellsUnits_data();
    void TellsUnits();
    void TellsChoicesOnce();
    void IsOneLine_data();
    void IsOneLine();

private:
    std::unique_ptr<FakeServices> machine_;
    KeyNotes notes_;
};

void tst_KeyNotes::init() {
    machine_ = std::make_unique<FakeServices>();
    notes_ =
        KeyNotes(machine_->Files, machine_->WriteFile(u"Help/keys.txt"_s, Notes), u"Tempolark"_s);
}

void tst_KeyNotes::TellsOfKeys_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("sentence");
    const QString colour = u"The colour of a=b: it is told."_s;
    QTest::newRow("as it stands") << u"Colour"_s << colour;
    QTest::newRow("letter case and blanks") << u" cOLOUR "_s << colour;
    QTest::newRow("a number behind it") << u"Speech Day Pattern7"_s << u"At midnight."_s;
    QTest::newRow("a number before it") << u"7Colour"_s << QString();
    QTest::newRow("unknown") << u"Colours"_s << QString();
    QTest::newRow("none") << QString() << QString();
}

void tst_KeyNotes::TellsOfKeys() {
    QFETCH(QString, key);
    QTEST(notes_.Of(key), "sentence");
}

void tst_KeyNotes::AMissingFileTellsNothing() {
    QCOMPARE(KeyNotes(machine_->Files, u"/nowhere/keys.txt"_s, u"Tempolark"_s).Of(u"Colour"_s),
             QString());
    QCOMPARE(KeyNotes().Of(QString()), QString());
}

void tst_KeyNotes::NamesTheFile() {
    QCOMPARE(editor::KeyNotesPath(u"/app"_s), u"/app/Help/keys.txt"_s);
}

void tst_KeyNotes::TellsUnits_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<bool>("byItself");
    QTest::newRow("twips") << u"Left"_s << u"-1"_s << u"twips"_s << true;
    QTest::newRow("of the key") << u"GMT (Minutes)"_s << u"60"_s << u"minutes"_s << false;
    QTest::newRow("percent") << u"Size(%)"_s << u"100,40,50"_s << u"percent"_s << false;
    QTest::newRow("the key first") << u"Height(%)"_s << u"5"_s << u"percent"_s << false;
    QTest::newRow("milliseconds") << u"Rate"_s << u"0"_s << u"milliseconds"_s << false;
    QTest::newRow("seconds") << u"Wait"_s << u" 0 "_s << u"seconds"_s << false;
    QTest::newRow("points") << u"Font"_s << u"8.5"_s << u"points"_s << false;
    QTest::newRow("no number") << u"Font"_s << u"Arial"_s << QString() << false;
    QTest::newRow("two units") << u"Width"_s << u"7"_s << QString() << false;
    QTest::newRow("no unit") << u"Colour"_s << u"7"_s << QString() << false;
    QTest::newRow("other numbers") << u"East"_s << u"7"_s << u"minutes"_s << true;
}

void tst_KeyNotes::TellsUnits() {
    QFETCH(QString, key);
    QFETCH(QString, value);
    const RowInfo info = RowInfoOf({{}, key, value}, notes_);
    QTEST(info.Unit, "unit");
    QTEST(info.ByItself, "byItself");
}

void tst_KeyNotes::TellsChoicesOnce() {
    const RowInfo info = RowInfoOf({u"Hands"_s, u"Colour"_s, u"Red,Red,Green,Red"_s}, notes_);
    QCOMPARE(
        info,
        (RowInfo{u"The colour of a=b: it is told."_s, {u"Red"_s, u"Green"_s}, QString(), false}));
}

void tst_KeyNotes::IsOneLine_data() {
    QTest::addColumn<RowInfo>("info");
    QTest::addColumn<QString>("line");
    const QString sentence = u"How wide."_s;
    QTest::newRow("nothing") << RowInfo() << QString();
    QTest::newRow("all") << RowInfo{sentence, {u"1"_s, u"2"_s}, u"points"_s, false}
                         << u"How wide. Choices: 1, 2. In points."_s;
    QTest::newRow("one choice") << RowInfo{sentence, {u"1"_s}, {}, false} << sentence;
    QTest::newRow("a unit that is told")
        << RowInfo{u"In Points."_s, {}, u"points"_s, true} << u"In Points."_s;
    QTest::newRow("eight choices") << RowInfo{{}, u"a b c d e f g h"_s.split(u' '), {}, false}
                                   << u"Choices: a, b, c, d, e, f, g, h."_s;
    QTest::newRow("nine choices") << RowInfo{{}, u"a b c d e f g h i"_s.split(u' '), {}, false}
                                  << u"Choices: a, b, c, d, e, f, g, h, …"_s;
}

void tst_KeyNotes::IsOneLine() {
    QFETCH(RowInfo, info);
    QTEST(info.Text(), "line");
}

QTEST_GUILESS_MAIN(tst_KeyNotes)
#include "tst_KeyNotes.moc"
