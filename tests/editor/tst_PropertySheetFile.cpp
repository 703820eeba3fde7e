#include <QTest>

#include "editor/SheetDesk.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;
using editor::ButtonTag;
using editor::FileState;
using editor::PropertySheet;
using editor::SheetAnswer;
using editor::SheetOutcome;
using editor::SheetQuestion;

namespace {

const QByteArray London =
    "Size=3\r\nWindow Top=100\r\nWindow Left=200\r\nWindow State=Normal,Normal,Minimized\r\n";

/// Written, and whoever shows the file takes it over.
SheetOutcome Written(const QString& path) {
    return {{}, path, {}};
}

QString Current(const SheetDesk& desk, const QString& key) {
    return mduLib::GetPropertyRaw(key, desk.Module.CurrentProperties);
}

/// Properties of a window that stands elsewhere now.
ClockProperties Moved() {
    ClockProperties properties;
    mduLib::AppendProperty({}, u"Window Top"_s, u"150"_s, properties);
    mduLib::AppendProperty({}, u"Window Left"_s, u"250"_s, properties);
    mduLib::AppendProperty({}, u"Window State"_s, u"Minimized,x"_s, properties);
    mduLib::AppendProperty({}, u"Window Width"_s, u"999"_s, properties);
    mduLib::AppendProperty({}, u"Size"_s, u"77"_s, properties);
    return properties;
}

}  // namespace

class tst_PropertySheetFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AppliesToItsOwnFile();
    void AppliesTheCellThatIsOpen();
    void AppliesWithoutAChange();
    void TakesThePlaceThatTheWindowHasNow();
    void TakesThePlaceThatAClosedClockHasLeft();
    void AnEditedPlaceIsWritten();
    void AFailureLosesNothing();
    void NeverWritesOverWhatItCantRead();
    void SavesTheShell();
    void MarksAndGapsAreWrittenAsEver();

    void NamesANewZone_data();
    void NamesANewZone();
    void TheShellHasNoNewFile();
    void CreatesAFile();
    void AsksBeforeItWritesOver();
    void TellsWhyItCantCreate();
    void ANewFileTakesNoPlaceBeforeItIsShown();
    void LaunchesWhatItMade();
    void LaunchesByTheNameOfTheFile();
    void AChangeComesBeforeTheLaunch();
    void LaunchesTheCellThatIsOpen();
    void FlipsToANewFileAndBack();
    void FlipsBackToTheDefaultFile();
    void FlipsBackWithoutAName();
    void CopiesAnOpenFile();

    void AsksBeforeItCloses();
    void SavesAtClose();
    void SavesANewFileAtClose();
    void AFailureAtCloseIsTold();

    void AsksAfterAChange();
    void AsksWhenAClockTells();
    void NoKeepsWhatIsHere();
    void YesTakesWhatIsThere();
    void AnApplyEndsTheQuestion();
    void WhatTheOwnerWritesIsNoChange();
    void WhatIsDismissedIsAskedBeforeItIsWritten();
    void AGoneFileIsWrittenAnew();
    void AGoneFileIsLaunchedAnew();
};

void tst_PropertySheetFile::AppliesToItsOwnFile() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    desk.WriteZone(u"Paris.ini"_s, "Size=9\r\n");
    desk.MakeCurrent(desk.ZoneFile(u"Paris.ini"_s));
    sheet->Commit(1, u"4"_s);
    const QString path = desk.ZoneFile(u"London.ini"_s);
    QCOMPARE(sheet->PropertyFilePath(), path);
    QCOMPARE(sheet->Press(0, {}, {}), (SheetOutcome{{}, path, {}}));
    QCOMPARE(desk.Zone(u"London.ini"_s), QByteArray(London).replace("Size=3", "Size=4"));
    QCOMPARE(desk.Zone(u"Paris.ini"_s), QByteArray("Size=9\r\n"));
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, path);
    QCOMPARE(Current(desk, u"Size"_s), u"4"_s);
    QVERIFY(!sheet->IsDirty());
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
    sheet->Records().Undo().undo();
    QVERIFY(sheet->IsDirty());
}

void tst_PropertySheetFile::AppliesTheCellThatIsOpen() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Press(1, u"8"_s, {});
    QVERIFY(desk.Zone(u"London.ini"_s).startsWith("Size=8\r\n"));
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheetFile::AppliesWithoutAChange() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    desk.Machine.Files.Delete(sheet->Path());
    QCOMPARE(sheet->Press(0, {}, {}).RefreshOwner, std::optional(sheet->Path()));
    QCOMPARE(desk.Zone(u"London.ini"_s), London);
}

void tst_PropertySheetFile::TakesThePlaceThatTheWindowHasNow() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    sheet->Press(0, {}, Moved());
    const QByteArray moved =
        "Size=4\r\nWindow Top=150\r\nWindow Left=250\r\n"
        "Window State=Minimized,Normal,Minimized\r\n";
    QCOMPARE(desk.Zone(u"London.ini"_s), moved);
    QCOMPARE(Current(desk, u"Window Top"_s), u"150"_s);
    QCOMPARE(sheet->Cell(2), u"150"_s);
    QVERIFY(!sheet->IsDirty());
    sheet->Records().Undo().undo();
    QCOMPARE(sheet->Cell(2), u"150"_s);
    QCOMPARE(sheet->Cell(1), u"3"_s);
}

void tst_PropertySheetFile::TakesThePlaceThatAClosedClockHasLeft() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    sheet->Commit(3, u"500"_s);
    desk.WriteZone(u"London.ini"_s, "Size=9\r\nWindow Top=900\r\nWindow Left=800\r\n");
    sheet->AnswerChange(SheetAnswer::No);
    sheet->SaveAtClose(0, {}, {});
    QCOMPARE(desk.Zone(u"London.ini"_s),
             QByteArray("Size=4\r\nWindow Top=900\r\nWindow Left=500\r\n"
                        "Window State=Normal,Normal,Minimized\r\n"));
}

void tst_PropertySheetFile::AnEditedPlaceIsWritten() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(2, u"500"_s);
    sheet->Press(0, {}, Moved());
    QCOMPARE(desk.Zone(u"London.ini"_s),
             QByteArray("Size=3\r\nWindow Top=500\r\nWindow Left=250\r\n"
                        "Window State=Minimized,Normal,Minimized\r\n"));
    sheet->Press(0, {}, Moved());
    QCOMPARE(sheet->Cell(2), u"150"_s);
}

void tst_PropertySheetFile::AFailureLosesNothing() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    const QString path = sheet->Path();
    sheet->Commit(1, u"4"_s);
    desk.MakeCurrent(u"elsewhere"_s);
    sheet->SetPropertyChanged(true);
    desk.Machine.Files.Unwritable += path;
    QCOMPARE(sheet->Press(0, {}, {}), (SheetOutcome{path + u" can't be written"_s, {}, {}}));
    QVERIFY(sheet->IsDirty());
    QVERIFY(sheet->ChangeQuestion());
    QCOMPARE(sheet->Cell(1), u"4"_s);
    QCOMPARE(desk.Zone(u"London.ini"_s), London);
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, u"elsewhere"_s);
    desk.Machine.Files.Unwritable.clear();
    QCOMPARE(sheet->Press(0, {}, {}).Problem, QString());
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheetFile::NeverWritesOverWhatItCantRead() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    const QByteArray locked("a\0b", 3);
    desk.WriteZone(u"London.ini"_s, locked);
    QCOMPARE(sheet->CheckFile(), FileState::Unreadable);
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    QCOMPARE(sheet->Press(0, {}, {}).Problem,
             sheet->Path() + u" can't be read as a property file; it is left as it is"_s);
    QCOMPARE(desk.Zone(u"London.ini"_s), locked);
    QVERIFY(sheet->IsDirty());
}

void tst_PropertySheetFile::SavesTheShell() {
    SheetDesk desk;
    const auto sheet = desk.OpenShell("Size=1\r\nWindow Top=5\r\n");
    QCOMPARE(sheet->Press(1, u"2"_s, Moved()), (SheetOutcome{{}, sheet->Path(), {}}));
    QCOMPARE(sheet->Button(), ButtonTag::Save);
    QCOMPARE(desk.Machine.ReadFile(u"tester/TempolarkCentral.ini"_s),
             QByteArray("Size=2\r\nWindow Top=150\r\n"));
    sheet->Commit(1, u"3"_s);
    sheet->Press(0, {}, {});
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
}

void tst_PropertySheetFile::MarksAndGapsAreWrittenAsEver() {
    SheetDesk desk;
    const auto sheet =
        desk.Open("[Clock]\r\nA=^Red,Red\r\n\r\nA=second\r\nC:D=a=b\r\n; remark\r\n");
    sheet->Commit(4, u"third"_s);
    sheet->Press(0, {}, {});
    QCOMPARE(desk.Zone(u"London.ini"_s),
             QByteArray("[Clock]=\r\nA=Red,Red\r\nA=third\r\nC:D=a=b\r\n; remark=\r\n"));
    QCOMPARE(sheet->CheckFile(), FileState::Same);
}

void tst_PropertySheetFile::NamesANewZone_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<QString>("file");
    const QString separator = u"A time zone's name can't hold a path separator"_s;
    const QString shell = u"TempolarkCentral is the name of the shell's own settings"_s;
    QTest::newRow("plain") << u"Rome"_s << QString() << u"Rome.ini"_s;
    QTest::newRow("blanks") << u" Rome "_s << QString() << u"Rome.ini"_s;
    QTest::newRow("an ending") << u"Rome.ini"_s << QString() << u"Rome.ini"_s;
    QTest::newRow("an ending within") << u"a.ini.b"_s << QString() << u"a.ini.b"_s;
    QTest::newRow("on disk in small letters") << u"Oslo"_s << QString() << u"oslo.ini"_s;
    QTest::newRow("on disk in both") << u"Bern"_s << QString() << u"Bern.ini"_s;
    QTest::newRow("none") << QString() << u"The time zone has no name"_s << QString();
    QTest::newRow("blanks alone") << u"  "_s << u"The time zone has no name"_s << QString();
    QTest::newRow("up") << u".."_s << u"A time zone's name can't hold \"..\""_s << QString();
    QTest::newRow("a path") << u"a/b"_s << separator << QString();
    QTest::newRow("the screen saver's") << u"/s"_s << separator << QString();
    QTest::newRow("a backslash") << u"a\\b"_s << separator << QString();
    QTest::newRow("the shell") << u"tempolarkcentral"_s << shell << u"*"_s;
}

void tst_PropertySheetFile::NamesANewZone() {
    SheetDesk desk;
    for (const QString& name : {u"oslo.ini"_s, u"bern.ini"_s, u"Bern.ini"_s}) {
        desk.WriteZone(name, {});
    }
    desk.Module.Paths.CentralFile = desk.ZoneFile(u"*"_s);
    const auto sheet = desk.OpenNew();
    QFETCH(QString, name);
    QFETCH(QString, file);
    TypeName(*sheet, name);
    QTEST(sheet->NameProblem(), "problem");
    QCOMPARE(sheet->PropertyFilePath(), file.isEmpty() ? QString() : desk.ZoneFile(file));
    QCOMPARE(mduLib::GetPropertyRaw(u"Time Zone Standard Name"_s, sheet->Properties()),
             name.trimmed());
    QVERIFY(!sheet->IsDirty());
    QCOMPARE(sheet->CloseQuestion(), std::nullopt);
}

void tst_PropertySheetFile::TheShellHasNoNewFile() {
    SheetDesk desk;
    const auto sheet = desk.OpenShell("Size=1\r\n");
    sheet->Commit(1, u"2"_s);
    sheet->Press(0, {}, {});
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
    for (int flip = 0; flip < 2; ++flip) {
        sheet->FlipNewFile();
        QVERIFY(!sheet->IsForNewFile());
        QCOMPARE(sheet->Button(), ButtonTag::Save);
        QCOMPARE(sheet->Caption(), u"Properties - TempolarkCentral"_s);
        QCOMPARE(sheet->Properties().UpperBound(), 1);
    }
    QCOMPARE(sheet->Press(0, {}, {}), Written(desk.Module.Paths.CentralFile));
    QCOMPARE(desk.Machine.ReadFile(u"tester/TempolarkCentral.ini"_s), QByteArray("Size=2\r\n"));
}

void tst_PropertySheetFile::CreatesAFile() {
    SheetDesk desk;
    desk.WriteDefault("Size=3\r\nTime Zone Standard Name=\r\n");
    const auto sheet = desk.OpenNew();
    TypeName(*sheet, u"Rome"_s);
    QVERIFY(sheet->TitleKey(13));
    QCOMPARE(sheet->WriteQuestion(), std::nullopt);
    const QString path = desk.ZoneFile(u"Rome.ini"_s);
    QCOMPARE(sheet->Press(0, {}, {}), Written(path));
    QCOMPARE(desk.Zone(u"Rome.ini"_s), QByteArray("Size=3\r\nTime Zone Standard Name=Rome\r\n"));
    QCOMPARE(sheet->Path(), path);
    QCOMPARE(sheet->ZoneName(), u"Rome"_s);
    QCOMPARE(sheet->Caption(), u"Properties - Rome"_s);
    QVERIFY(!sheet->IsForNewFile());
    QVERIFY(!sheet->IsDirty());
    QCOMPARE(sheet->Button(), ButtonTag::Launch);
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, path);
    QCOMPARE(sheet->CheckFile(), FileState::Same);
    QVERIFY(sheet->Edits(path));
    QVERIFY(!sheet->TitleKey(u'x'));
    QCOMPARE(sheet->Caption(), u"Properties - Rome"_s);
}

void tst_PropertySheetFile::AsksBeforeItWritesOver() {
    SheetDesk desk;
    desk.WriteZone(u"rome.ini"_s, "Size=1\r\n");
    const auto sheet = desk.OpenNew();
    QCOMPARE(sheet->WriteQuestion(), std::nullopt);
    QVERIFY(!sheet->NamesAFile());
    TypeName(*sheet, u"Rome"_s);
    QVERIFY(sheet->NamesAFile());
    QCOMPARE(sheet->WriteQuestion(),
             (SheetQuestion{desk.ZoneFile(u"rome.ini"_s) +
                                u"\r\nexists, do you want to over write this file?"_s,
                            u"Property File Exists"_s, 292}));
    QCOMPARE(sheet->Press(0, {}, {}), Written(desk.ZoneFile(u"rome.ini"_s)));
    QVERIFY(desk.Zone(u"rome.ini"_s).contains("Time Zone Standard Name=Rome"));
    QCOMPARE(sheet->ZoneName(), u"rome"_s);
    QCOMPARE(sheet->Caption(), u"Properties - rome"_s);
    QCOMPARE(sheet->WriteQuestion(), std::nullopt);
    QVERIFY(!sheet->NamesAFile());
}

void tst_PropertySheetFile::TellsWhyItCantCreate() {
    SheetDesk desk;
    const auto sheet = desk.OpenNew();
    QCOMPARE(sheet->Press(0, {}, {}), (SheetOutcome{u"The time zone has no name"_s, {}, {}}));
    TypeName(*sheet, u"Rome"_s);
    const QString path = desk.ZoneFile(u"Rome.ini"_s);
    desk.Machine.Files.Unwritable += path;
    QCOMPARE(sheet->Press(0, {}, {}), (SheetOutcome{path + u" can't be written"_s, {}, {}}));
    QVERIFY(sheet->IsForNewFile());
    QCOMPARE(sheet->Caption(), u"Properties - Rome _"_s);
    QCOMPARE(sheet->Path(), QString());
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.Module.Paths.ZoneDefaultFile());
}

void tst_PropertySheetFile::ANewFileTakesNoPlaceBeforeItIsShown() {
    SheetDesk desk;
    desk.WriteDefault("Size=3\r\nWindow Top=-1\r\n");
    const auto sheet = desk.OpenNew();
    TypeName(*sheet, u"Rome"_s);
    sheet->Press(0, {}, Moved());
    QVERIFY(desk.Zone(u"Rome.ini"_s).startsWith("Size=3\r\nWindow Top=-1\r\n"));
    sheet->Commit(1, u"4"_s);
    sheet->Press(0, {}, {});
    QVERIFY(desk.Zone(u"Rome.ini"_s).startsWith("Size=4\r\nWindow Top=-1\r\n"));
    sheet->Commit(1, u"5"_s);
    sheet->Press(0, {}, Moved());  // its clock has been launched meanwhile
    QVERIFY(desk.Zone(u"Rome.ini"_s).startsWith("Size=5\r\nWindow Top=150\r\n"));
    QCOMPARE(sheet->Button(), ButtonTag::Launch);
}

void tst_PropertySheetFile::LaunchesWhatItMade() {
    SheetDesk desk;
    desk.WriteZone(u"rome.ini"_s, {});
    const auto sheet = desk.OpenNew();
    TypeName(*sheet, u"Rome"_s);
    sheet->Press(0, {}, {});
    desk.MakeCurrent(u"elsewhere"_s);
    QCOMPARE(sheet->Press(0, {}, {}), (SheetOutcome{{}, {}, u"rome"_s}));
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, desk.ZoneFile(u"rome.ini"_s));
    QCOMPARE(Current(desk, u"Time Zone Standard Name"_s), u"Rome"_s);
    QCOMPARE(sheet->CloseQuestion(), std::nullopt);
}

void tst_PropertySheetFile::LaunchesByTheNameOfTheFile() {
    SheetDesk desk;
    const auto sheet = desk.OpenNew();
    TypeName(*sheet, u"a.ini.b"_s);
    sheet->Press(0, {}, {});
    QCOMPARE(sheet->ZoneName(), u"a.ini.b"_s);
    QCOMPARE(sheet->Press(0, {}, {}).Launch, u"a.ini.b"_s);
}

void tst_PropertySheetFile::AChangeComesBeforeTheLaunch() {
    SheetDesk desk;
    const auto sheet = desk.OpenNew();
    TypeName(*sheet, u"Rome"_s);
    sheet->Press(0, {}, {});
    sheet->Commit(2, u"8"_s);
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
    QCOMPARE(sheet->Press(0, {}, {}), Written(sheet->Path()));
    QVERIFY(desk.Zone(u"Rome.ini"_s).contains("Hands:Size=8\r\n"));
    QCOMPARE(sheet->Button(), ButtonTag::Launch);
}

void tst_PropertySheetFile::LaunchesTheCellThatIsOpen() {
    SheetDesk desk;
    const auto sheet = desk.OpenNew();
    TypeName(*sheet, u"Rome"_s);
    sheet->Press(0, {}, {});
    QCOMPARE(sheet->Press(2, u"8"_s, {}).Launch, u"Rome"_s);
    QVERIFY(desk.Zone(u"Rome.ini"_s).contains("Hands:Size=8\r\n"));
    desk.Machine.Files.Unwritable += sheet->Path();
    QCOMPARE(sheet->Press(2, u"9"_s, {}),
             (SheetOutcome{sheet->Path() + u" can't be written"_s, {}, {}}));
}

void tst_PropertySheetFile::FlipsToANewFileAndBack() {
    SheetDesk desk;
    const auto sheet = desk.Open("Time Zone Standard Name=GMT\r\nSize=1\r\n");
    sheet->FlipNewFile();
    QVERIFY(sheet->IsForNewFile());
    QCOMPARE(sheet->Button(), ButtonTag::Save);
    QCOMPARE(sheet->Caption(), u"Properties - London _"_s);
    TypeName(*sheet, u"er"_s);
    QCOMPARE(sheet->Caption(), u"Properties - Londoner _"_s);
    QCOMPARE(sheet->Cell(1), u"Londoner"_s);
    QCOMPARE(sheet->Path(), desk.ZoneFile(u"London.ini"_s));
    QCOMPARE(sheet->PropertyFilePath(), desk.ZoneFile(u"Londoner.ini"_s));
    sheet->FlipNewFile();
    QVERIFY(!sheet->IsForNewFile());
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
    QCOMPARE(sheet->Caption(), u"Properties - London"_s);
    QCOMPARE(sheet->Cell(1), u"GMT"_s);
    QCOMPARE(sheet->PropertyFilePath(), desk.ZoneFile(u"London.ini"_s));
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheetFile::FlipsBackToTheDefaultFile() {
    SheetDesk desk;
    desk.WriteDefault("Size=3\r\n");
    const auto sheet = desk.OpenNew();
    sheet->FlipNewFile();
    const QString path = desk.Module.Paths.ZoneDefaultFile();
    QCOMPARE(sheet->Path(), path);
    QCOMPARE(sheet->PropertyFilePath(), path);
    QCOMPARE(sheet->Press(1, u"4"_s, {}), Written(path));
    QCOMPARE(desk.Machine.ReadFile(u"ini/Tempolark.ini"_s), QByteArray("Size=4\r\n"));
    sheet->FlipNewFile();
    TypeName(*sheet, u"Rome"_s);
    QCOMPARE(sheet->PropertyFilePath(), desk.ZoneFile(u"Rome.ini"_s));
}

void tst_PropertySheetFile::FlipsBackWithoutAName() {
    SheetDesk desk;
    const auto sheet = desk.Open("Size=1\r\n");
    sheet->FlipNewFile();
    sheet->FlipNewFile();
    QCOMPARE(sheet->Properties().UpperBound(), 1);
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheetFile::CopiesAnOpenFile() {
    SheetDesk desk;
    const auto sheet = desk.Open("Time Zone Standard Name=GMT\r\nSize=1\r\n");
    sheet->FlipNewFile();
    TypeName(*sheet, u"er"_s);
    const QString path = desk.ZoneFile(u"Londoner.ini"_s);
    QCOMPARE(sheet->Press(0, {}, {}), Written(path));
    QCOMPARE(desk.Zone(u"London.ini"_s), QByteArray("Time Zone Standard Name=GMT\r\nSize=1\r\n"));
    QCOMPARE(desk.Zone(u"Londoner.ini"_s),
             QByteArray("Time Zone Standard Name=Londoner\r\nSize=1\r\n"));
    sheet->Commit(2, u"5"_s);
    QCOMPARE(sheet->Press(0, {}, {}), Written(path));
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, path);
    sheet->Commit(2, u"6"_s);
    QCOMPARE(sheet->SaveAtClose(0, {}, {}), Written(QString()));
    QVERIFY(desk.Zone(u"Londoner.ini"_s).endsWith("Size=6\r\n"));
}

void tst_PropertySheetFile::AsksBeforeItCloses() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    QCOMPARE(sheet->CloseQuestion(), std::nullopt);
    sheet->Commit(1, u"4"_s);
    QCOMPARE(sheet->CloseQuestion(),
             (SheetQuestion{u"Do you want to save the London?"_s, u"Save Property"_s}));
    sheet->FlipNewFile();
    TypeName(*sheet, u"er"_s);
    QCOMPARE(sheet->CloseQuestion()->Text, u"Do you want to save the Londoner?"_s);
}

void tst_PropertySheetFile::SavesAtClose() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    desk.MakeCurrent(u"elsewhere"_s);
    QCOMPARE(sheet->SaveAtClose(2, u"600"_s, Moved()), (SheetOutcome{{}, QString(), {}}));
    QCOMPARE(desk.Zone(u"London.ini"_s),
             QByteArray("Size=4\r\nWindow Top=600\r\nWindow Left=250\r\n"
                        "Window State=Minimized,Normal,Minimized\r\n"));
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, sheet->Path());
    QCOMPARE(Current(desk, u"Size"_s), u"4"_s);
}

void tst_PropertySheetFile::SavesANewFileAtClose() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    sheet->FlipNewFile();
    TypeName(*sheet, u"er"_s);
    QCOMPARE(sheet->SaveAtClose(0, {}, {}), Written(desk.ZoneFile(u"Londoner.ini"_s)));
    QVERIFY(desk.Zone(u"Londoner.ini"_s).startsWith("Size=4\r\n"));
    QCOMPARE(desk.Zone(u"London.ini"_s), London);
}

void tst_PropertySheetFile::AFailureAtCloseIsTold() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    desk.Machine.Files.Unwritable += sheet->Path();
    QCOMPARE(sheet->SaveAtClose(0, {}, {}),
             (SheetOutcome{sheet->Path() + u" can't be written"_s, {}, {}}));
    QVERIFY(sheet->CloseQuestion());
}

void tst_PropertySheetFile::AsksAfterAChange() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    desk.WriteZone(u"London.ini"_s, "Size=5\r\n");
    QCOMPARE(
        sheet->ChangeQuestion(),
        (SheetQuestion{u"Property has been changed, do you want to refresh with the new values?"_s,
                       u"Property Changed"_s}));
    sheet->FlipNewFile();
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
}

void tst_PropertySheetFile::AsksWhenAClockTells() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->SetPropertyChanged(true);
    QVERIFY(sheet->ChangeQuestion());
    sheet->SetPropertyChanged(false);
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
}

void tst_PropertySheetFile::NoKeepsWhatIsHere() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->SetPropertyChanged(true);
    desk.WriteZone(u"London.ini"_s, "Size=5\r\n");
    QCOMPARE(sheet->AnswerChange(SheetAnswer::No), QString());
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    QCOMPARE(sheet->Cell(1), u"3"_s);
    desk.WriteZone(u"London.ini"_s, "Size=6\r\n");
    QVERIFY(sheet->ChangeQuestion());
}

void tst_PropertySheetFile::YesTakesWhatIsThere() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    sheet->View().Sort(3, 1);
    desk.WriteZone(u"London.ini"_s, "Size=5\r\n");
    QCOMPARE(sheet->AnswerChange(SheetAnswer::Yes), QString());
    QCOMPARE(sheet->Cell(1), u"5"_s);
    QCOMPARE(sheet->View().Tag(), u"2,0"_s);
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    sheet->Records().Undo().undo();
    QCOMPARE(sheet->Cell(1), u"4"_s);
    desk.Machine.Files.Delete(sheet->Path());
    sheet->SetPropertyChanged(true);
    QCOMPARE(sheet->AnswerChange(SheetAnswer::Yes), sheet->Path() + u" is not there any more"_s);
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
}

void tst_PropertySheetFile::AnApplyEndsTheQuestion() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    desk.WriteZone(u"London.ini"_s, "Size=5\r\n");
    sheet->SetPropertyChanged(true);
    sheet->Press(0, {}, {});
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    QCOMPARE(desk.Zone(u"London.ini"_s), London);
}

void tst_PropertySheetFile::WhatTheOwnerWritesIsNoChange() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Press(0, {}, {});
    desk.WriteZone(u"London.ini"_s, QByteArray(London).replace("Size=3", "Size=6"));
    sheet->SetPropertyChanged(true);
    sheet->OwnerHasTaken();
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    QCOMPARE(sheet->Cell(1), u"6"_s);
    QVERIFY(!sheet->IsDirty());
    desk.WriteZone(u"London.ini"_s, "Other=6\r\n");
    sheet->OwnerHasTaken();
    QVERIFY(sheet->ChangeQuestion());
}

void tst_PropertySheetFile::WhatIsDismissedIsAskedBeforeItIsWritten() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->Commit(1, u"4"_s);
    desk.WriteZone(u"London.ini"_s, "Size=5\r\n");
    QVERIFY(sheet->FocusQuestion());
    QCOMPARE(sheet->AnswerChange(SheetAnswer::Neither), QString());
    QCOMPARE(sheet->FocusQuestion(), std::nullopt);
    QVERIFY(sheet->ChangeQuestion());
    QCOMPARE(sheet->Cell(1), u"4"_s);
    sheet->SetPropertyChanged(true);  // a clock has written it once more
    QVERIFY(sheet->FocusQuestion());
    sheet->AnswerChange(SheetAnswer::Neither);
    sheet->AnswerChange(SheetAnswer::No);
    desk.WriteZone(u"London.ini"_s, "Size=6\r\n");
    QVERIFY(sheet->FocusQuestion());
}

void tst_PropertySheetFile::AGoneFileIsWrittenAnew() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    desk.Machine.Files.Delete(sheet->Path());
    QCOMPARE(sheet->CheckFile(), FileState::Gone);
    sheet->SetPropertyChanged(true);  // its clock has stored its place before
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    QCOMPARE(sheet->WriteQuestion(),
             (SheetQuestion{sheet->Path() + u"\r\nis gone, do you want to save it anew?"_s,
                            u"Property File Gone"_s, 36}));
    QCOMPARE(sheet->Press(1, u"4"_s, {}).Problem, QString());
    QCOMPARE(desk.Zone(u"London.ini"_s), QByteArray(London).replace("Size=3", "Size=4"));
    QCOMPARE(sheet->CheckFile(), FileState::Same);
    QCOMPARE(sheet->WriteQuestion(), std::nullopt);
}

void tst_PropertySheetFile::AGoneFileIsLaunchedAnew() {
    SheetDesk desk;
    const auto sheet = desk.OpenNew();
    TypeName(*sheet, u"Rome"_s);
    sheet->Press(0, {}, {});
    const QByteArray made = desk.Zone(u"Rome.ini"_s);
    desk.Machine.Files.Delete(sheet->Path());
    QVERIFY(sheet->WriteQuestion());
    QCOMPARE(sheet->Press(0, {}, {}).Launch, u"Rome"_s);
    QCOMPARE(desk.Zone(u"Rome.ini"_s), made);
}

QTEST_GUILESS_MAIN(tst_PropertySheetFile)
#include "tst_PropertySheetFile.moc"
