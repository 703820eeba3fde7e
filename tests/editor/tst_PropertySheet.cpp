#include "editor/PropertySheet.h"

#include <QTest>

#include "editor/SheetDesk.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeForms.h"

using namespace Qt::StringLiterals;
using editor::ButtonTag;
using editor::PropertySheet;
using editor::RowCommit;
using editor::RowInfo;

namespace {

const QByteArray London =
    "Hands:Colour=Green,Red,Green,Blue\r\n"
    "Hands:Size=3\r\n"
    "Own File=.\\a.wav\r\n"
    "Time Zone:Time Zone Standard Name=London\r\n";

/// A clock that writes its zone's name into its file when asked for the zone's details.
class ZoneClock final : public RecordingForm<IClock> {
public:
    ZoneClock(SheetDesk& desk, const QString& file)
        : RecordingForm(desk.Windows, ClockWindowName, u"London"_s, Log),
          desk_(desk),
          file_(file) {}

    QStringList Log;

    QString IniFile() const override { return file_; }
    void RefreshDefaultTimeZoneDetails(const QString& zone) override {
        Note(zone);
        desk_.MakeCurrent(file_);
        mduLib::PutProperty(u"Time Zone Standard Name"_s, u"Renewed"_s,
                            desk_.Module.CurrentProperties);
        mduLib::WritePropertyFile(desk_.Machine.Files, desk_.Module.CurrentProperties, file_);
        desk_.Module.Paths.CurrentPropertyFile = u"another"_s;
    }

    bool ShowMeMDIChild(const QString&) override { return false; }
    void SetClocks(int) override {}
    void SetClockStyle(const QString&) override {}
    void SetWindowBackColour(const QString&, const QString&) override {}
    void SaveCurrentStyle() override {}
    void RefreshForm(const QString&) override {}
    void Refresh() override {}
    void LayOutAgain() override {}
    void SetProperty() override {}
    void PreviewProperties(const ClockProperties&) override {}
    int DrawStyle() const override { return 0; }
    void SetBackColor(int) override {}

private:
    SheetDesk& desk_;
    QString file_;
};

}  // namespace

class tst_PropertySheet : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Opens();
    void OpensForANewClock();
    void OpensForTheShell();
    void KeepsItsOwnCopy();
    void TellsOfItsRecords();
    void TellsNothingWithoutARecord();
    void TheButtonFollowsWhatIsDirty();
    void GoesBackToTheDefault();
    void Reloads();
    void AReloadThatFailsChangesNothing();
    void RefreshesFromTheDefault();
    void NeedsADefaultToRefreshFrom();
    void CanRefreshAZoneItKnows();
    void RefreshesTheZoneByItsOwner();
    void ARefreshOfTheZoneHidesNoChange();
    void RefreshesNoZoneThatCantBeRead();
    void RefreshesTheZoneByItself();
    void OneOfManyRecords();
};

void tst_PropertySheet::Opens() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    QCOMPARE(sheet->Path(), desk.ZoneFile(u"London.ini"_s));
    QCOMPARE(sheet->ZoneName(), u"London"_s);
    QCOMPARE(sheet->Caption(), u"Properties - London"_s);
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
    QVERIFY(!sheet->IsForNewFile());
    QVERIFY(!sheet->IsDirty());
    QCOMPARE(sheet->View().Tag(), u"2,0"_s);
    QCOMPARE(sheet->Shown(), (std::vector<int>{1, 2, 3, 4}));
    QVERIFY(sheet->Edits(desk.ZoneFile(u"London.ini"_s)));
    QVERIFY(!sheet->Edits(desk.ZoneFile(u"Paris.ini"_s)));
}

void tst_PropertySheet::OpensForANewClock() {
    SheetDesk desk;
    const auto sheet = desk.OpenNew();
    QCOMPARE(sheet->Path(), QString());
    QCOMPARE(sheet->Caption(), u"Properties -  _"_s);
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
    QVERIFY(sheet->IsForNewFile());
    QCOMPARE(sheet->Shown(), (std::vector<int>{1, 2}));
    QVERIFY(!sheet->Edits(QString()));
    QCOMPARE(sheet->CheckFile(), editor::FileState::Same);
}

void tst_PropertySheet::OpensForTheShell() {
    SheetDesk desk;
    desk.Machine.WriteFile(u"Help/keys.txt"_s,
                           "Tempolark:Window Top=Of a clock.\n"
                           "TempolarkCentral:Window Top=Of the shell.\n");
    const auto sheet = desk.OpenShell("Window:Window Top=-1\r\n");
    QCOMPARE(sheet->Button(), ButtonTag::Save);
    QCOMPARE(sheet->Caption(), u"Properties - TempolarkCentral"_s);
    QCOMPARE(sheet->Info(1).Sentence, u"Of the shell."_s);
    QVERIFY(!sheet->CanRefreshTimeZone());
    const auto clock = desk.Open("Window:Window Top=-1\r\n");
    QCOMPARE(clock->Info(1).Sentence, u"Of a clock."_s);
}

void tst_PropertySheet::KeepsItsOwnCopy() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    desk.WriteZone(u"Paris.ini"_s, "Hands:Size=9\r\n");
    desk.MakeCurrent(desk.ZoneFile(u"Paris.ini"_s));
    QCOMPARE(sheet->Path(), desk.ZoneFile(u"London.ini"_s));
    QCOMPARE(sheet->Cell(2), u"3"_s);
    sheet->Commit(2, u"4"_s);
    QCOMPARE(mduLib::GetPropertyRaw(u"Size"_s, desk.Module.CurrentProperties), u"9"_s);
}

void tst_PropertySheet::TellsOfItsRecords() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    QCOMPARE(sheet->Key(1), u"Colour"_s);
    QCOMPARE(sheet->Cell(1), u"Green"_s);
    QCOMPARE(sheet->Choices(1), (QStringList{u"Red"_s, u"Green"_s, u"Blue"_s}));
    QVERIFY(sheet->IsPicked(1));
    QVERIFY(!sheet->IsPicked(2));
    QVERIFY(sheet->DiffersFromDefault(1));
    QVERIFY(!sheet->DiffersFromDefault(2));
    QCOMPARE(sheet->Info(1).Choices, (QStringList{u"Red"_s, u"Green"_s, u"Blue"_s}));
    QCOMPARE(sheet->PickerOf(1), std::nullopt);
    QCOMPARE(sheet->PickerOf(3)->Folder, desk.Folder());
    const auto zone = desk.Open("Time Zone=a.ini\r\n");
    QCOMPARE(zone->PickerOf(1), std::nullopt);
}

void tst_PropertySheet::TellsNothingWithoutARecord() {
    SheetDesk desk;
    const auto sheet = desk.Open({});
    QCOMPARE(sheet->Shown(), std::vector<int>{});
    for (const int record : {-1, 2}) {
        QCOMPARE(sheet->Key(record), QString());
        QCOMPARE(sheet->Cell(record), QString());
        QCOMPARE(sheet->Choices(record), QStringList());
        QVERIFY(!sheet->IsPicked(record));
        QVERIFY(!sheet->DiffersFromDefault(record));
        QCOMPARE(sheet->Info(record), RowInfo());
        QCOMPARE(sheet->PickerOf(record), std::nullopt);
        sheet->BackToDefault(record);
        QCOMPARE(sheet->Commit(record, u"x"_s), (RowCommit{u"x"_s, false}));
    }
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheet::TheButtonFollowsWhatIsDirty() {
    SheetDesk desk;
    const auto sheet = desk.OpenShell("Size=1\r\n");
    sheet->Commit(1, u"1"_s);
    QCOMPARE(sheet->Button(), ButtonTag::Save);
    sheet->Commit(1, u"2"_s);
    QCOMPARE(sheet->Button(), ButtonTag::Apply);
    sheet->Records().Undo().undo();
    QCOMPARE(sheet->Button(), ButtonTag::Save);
}

void tst_PropertySheet::GoesBackToTheDefault() {
    SheetDesk desk;
    desk.WriteDefault(
        "Hands:Colour=^Red,Red,White\r\nHands:Size=3\r\nTime Zone:Time Zone Standard Name=\r\n");
    const auto sheet = desk.Open(London);
    sheet->BackToDefault(4);
    QCOMPARE(sheet->Cell(4), u"London"_s);  // the default leaves it to each clock
    sheet->BackToDefault(1);
    QCOMPARE(sheet->Properties()[1].Value, u"Red,Red,White"_s);
    QCOMPARE(sheet->Records().Undo().undoText(), u"Colour Back to Default"_s);
    QVERIFY(!sheet->DiffersFromDefault(1));
    sheet->BackToDefault(3);
    QCOMPARE(sheet->Cell(3), u".\\a.wav"_s);
    QCOMPARE(sheet->Records().Undo().count(), 1);
    sheet->Records().Undo().undo();
    QCOMPARE(sheet->Properties()[1].Value, u"Green,Red,Green,Blue"_s);
}

void tst_PropertySheet::Reloads() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->View().Sort(3, 1);
    sheet->Commit(2, u"7"_s);
    desk.WriteZone(u"London.ini"_s, "Hands:Size=5\r\nNew=1\r\n");
    sheet->SetPropertyChanged(true);
    QCOMPARE(sheet->Reload(), QString());
    QCOMPARE(sheet->View().Tag(), u"2,0"_s);
    QCOMPARE(sheet->Cell(1), u"5"_s);
    QCOMPARE(sheet->Key(2), u"New"_s);
    QVERIFY(!sheet->IsDirty());
    QCOMPARE(sheet->ChangeQuestion(), std::nullopt);
    QCOMPARE(sheet->Records().Undo().undoText(), u"Reload Properties"_s);
    sheet->Records().Undo().undo();
    QCOMPARE(sheet->Cell(2), u"7"_s);
    QVERIFY(sheet->IsDirty());
}

void tst_PropertySheet::AReloadThatFailsChangesNothing() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->View().Sort(3, 1);
    const QString path = sheet->Path();
    desk.Machine.Files.Delete(path);
    QCOMPARE(sheet->Reload(), path + u" is not there any more"_s);
    desk.WriteZone(u"London.ini"_s, QByteArray("a\0b", 3));
    QCOMPARE(sheet->Reload(), path + u" can't be read as a property file; it is left as it is"_s);
    QCOMPARE(sheet->View().Tag(), u"3,1"_s);
    QCOMPARE(sheet->Cell(2), u"3"_s);
    QCOMPARE(sheet->Records().Undo().count(), 0);
}

void tst_PropertySheet::RefreshesFromTheDefault() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->View().Sort(1, 2);
    desk.WriteDefault("Hands:Colour=Blue,Blue,Red\r\nHands:New=1\r\n");
    QCOMPARE(sheet->RefreshFromDefault(), QString());
    QCOMPARE(sheet->View().Tag(), u"2,0"_s);
    QCOMPARE(sheet->Properties()[1].Value, u"Blue,Blue,Red"_s);
    QCOMPARE(sheet->Cell(2), u"3"_s);
    QCOMPARE(sheet->Key(5), u"New"_s);
    QVERIFY(sheet->IsDirty());
    QVERIFY(!sheet->DiffersFromDefault(1));
    QCOMPARE(sheet->Records().Undo().undoText(), u"Refresh By Default"_s);
    sheet->Records().Undo().undo();
    QCOMPARE(sheet->Properties().UpperBound(), 4);
    QCOMPARE(sheet->Cell(1), u"Green"_s);
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheet::NeedsADefaultToRefreshFrom() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    sheet->View().Sort(1, 2);
    desk.Machine.Files.Delete(desk.Module.Paths.ZoneDefaultFile());
    QCOMPARE(sheet->RefreshFromDefault(),
             desk.Module.Paths.ZoneDefaultFile() + u" can't be read"_s);
    QCOMPARE(sheet->View().Tag(), u"1,2"_s);
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheet::CanRefreshAZoneItKnows() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    QVERIFY(sheet->CanRefreshTimeZone());
    desk.Machine.Files.Delete(desk.ZoneFile(u"London.ini"_s));
    QVERIFY(!sheet->CanRefreshTimeZone());
    desk.Machine.Zones.Add(u"London"_s, 0);
    QVERIFY(sheet->CanRefreshTimeZone());
    QVERIFY(!desk.OpenNew()->CanRefreshTimeZone());
}

void tst_PropertySheet::RefreshesTheZoneByItsOwner() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    ZoneClock owner(desk, sheet->Path());
    sheet->View().Sort(1, 2);
    sheet->Commit(2, u"7"_s);
    sheet->RefreshTimeZoneDefaults(&owner);
    QCOMPARE(owner.Log, QStringList{u"London: London"_s});
    QCOMPARE(sheet->Cell(4), u"Renewed"_s);
    QCOMPARE(sheet->Cell(2), u"7"_s);
    QCOMPARE(sheet->View().Tag(), u"2,0"_s);
    QCOMPARE(desk.Module.CurrentProperties, sheet->Properties());
    QCOMPARE(desk.Module.Paths.CurrentPropertyFile, sheet->Path());
    QCOMPARE(sheet->CheckFile(), editor::FileState::Same);
    QCOMPARE(sheet->Records().Undo().undoText(), u"Refresh Time Zone By Default"_s);
    sheet->Records().Undo().undo();
    sheet->Records().Undo().undo();
    QCOMPARE(sheet->Cell(2), u"3"_s);
    QCOMPARE(sheet->Cell(4), u"London"_s);
    QVERIFY(sheet->IsDirty());
}

void tst_PropertySheet::ARefreshOfTheZoneHidesNoChange() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    ZoneClock owner(desk, sheet->Path());
    desk.WriteZone(u"London.ini"_s, QByteArray(London).replace("Size=3", "Size=9"));
    sheet->RefreshTimeZoneDefaults(&owner);
    QCOMPARE(sheet->Cell(4), u"Renewed"_s);
    QCOMPARE(sheet->Cell(2), u"3"_s);
    QVERIFY(sheet->ChangeQuestion());
}

void tst_PropertySheet::RefreshesNoZoneThatCantBeRead() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    ZoneClock owner(desk, sheet->Path());
    desk.WriteZone(u"London.ini"_s, QByteArray("a\0b", 3));
    QCOMPARE(sheet->RefreshTimeZoneDefaults(&owner),
             sheet->Path() + u" can't be read as a property file; it is left as it is"_s);
    QCOMPARE(owner.Log, QStringList());
    QVERIFY(!sheet->IsDirty());
}

void tst_PropertySheet::RefreshesTheZoneByItself() {
    SheetDesk desk;
    const auto sheet = desk.Open(London);
    desk.Machine.Zones.Add(u"London"_s, -60);
    ZoneClock other(desk, desk.ZoneFile(u"Paris.ini"_s));
    sheet->RefreshTimeZoneDefaults(&other);
    QCOMPARE(other.Log, QStringList());
    QCOMPARE(mduLib::GetPropertyRaw(u"Time Zone Standard GMT (Minutes)"_s, sheet->Properties()),
             u"-60"_s);
    QCOMPARE(desk.Module.CurrentProperties, sheet->Properties());
    QCOMPARE(desk.Zone(u"London.ini"_s), London);
    QVERIFY(sheet->IsDirty());
    sheet->Records().Undo().undo();
    sheet->RefreshTimeZoneDefaults(nullptr);
    QVERIFY(sheet->IsDirty());
}

void tst_PropertySheet::OneOfManyRecords() {
    SheetDesk desk;
    QByteArray content;
    for (int row = 1; row <= 5000; ++row) {
        content += "Key " + QByteArray::number(row) + "=" + QByteArray::number(row % 7) + "\r\n";
    }
    const auto sheet = desk.Open(content);
    QCOMPARE(sheet->Shown().size(), std::size_t(5000));
    sheet->View().SetFilter(u"key 4999"_s);
    QCOMPARE(sheet->Shown(), std::vector<int>{4999});
    sheet->Commit(4999, u"x"_s);
    QCOMPARE(sheet->Press(0, {}, {}).Problem, QString());
    content.replace("Key 4999=1\r\n", "Key 4999=x\r\n");
    QCOMPARE(desk.Zone(u"London.ini"_s), content);
}

QTEST_GUILESS_MAIN(tst_PropertySheet)
#include "tst_PropertySheet.moc"
