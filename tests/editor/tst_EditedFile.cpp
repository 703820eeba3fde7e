#include "editor/EditedFile.h"

#include <QTest>

#include "foundation/PropertyLookup.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;
using editor::EditedFile;
using editor::FileState;

namespace {

ClockProperties Size(const QString& value) {
    ClockProperties properties;
    mduLib::AppendProperty({}, u"Size"_s, value, properties);
    return properties;
}

}  // namespace

class tst_EditedFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void KnowsWhatOthersDo();
    void ANewFileIsNoChange();
    void KnowsItsOwnWrites();
    void NotesAChange();
    void GoesOverToAnotherFile();
    void AGoneFileIsWrittenAnew();
    void NeverWritesOverWhatItCantRead_data();
    void NeverWritesOverWhatItCantRead();
    void TellsAFailure();
    void ReadsAnEmptyFile();

private:
    std::unique_ptr<FakeServices> machine_;
    QString path_;
};

void tst_EditedFile::init() {
    machine_ = std::make_unique<FakeServices>();
    path_ = machine_->WriteFile(u"a.ini"_s, "Size=1\r\n");
}

void tst_EditedFile::KnowsWhatOthersDo() {
    const EditedFile file(machine_->Files, path_);
    QCOMPARE(file.Path(), path_);
    QCOMPARE(file.State(), FileState::Same);
    machine_->WriteFile(u"a.ini"_s, "Size=2\r\n");
    QCOMPARE(file.State(), FileState::Changed);
    machine_->WriteFile(u"a.ini"_s, "Size=1\r\n");
    QCOMPARE(file.State(), FileState::Same);
    machine_->Files.Delete(path_);
    QCOMPARE(file.State(), FileState::Gone);
    QVERIFY(!file.Read());
    machine_->WriteFile(u"a.ini"_s, QByteArray("Si\0ze", 5));
    QCOMPARE(file.State(), FileState::Unreadable);
    QVERIFY(!file.Read());
    machine_->WriteFile(u"a.ini"_s, "Size=1\r\n");
    machine_->Files.Unreadable += path_;
    QCOMPARE(file.State(), FileState::Unreadable);
    QVERIFY(!file.Read());
}

void tst_EditedFile::ANewFileIsNoChange() {
    const QString path = machine_->AppFolder() + u"/new.ini"_s;
    EditedFile file(machine_->Files, path);
    QCOMPARE(file.State(), FileState::Same);
    machine_->WriteFile(u"new.ini"_s, "Size=1\r\n");
    QCOMPARE(file.State(), FileState::Changed);
    QCOMPARE(EditedFile(machine_->Files, {}).State(), FileState::Same);
}

void tst_EditedFile::KnowsItsOwnWrites() {
    EditedFile file(machine_->Files, path_);
    QCOMPARE(file.Write(Size(u"5"_s)), QString());
    QCOMPARE(machine_->ReadFile(u"a.ini"_s), QByteArray("Size=5\r\n"));
    QCOMPARE(file.State(), FileState::Same);
}

void tst_EditedFile::NotesAChange() {
    EditedFile file(machine_->Files, path_);
    machine_->WriteFile(u"a.ini"_s, "Size=2\r\n");
    QCOMPARE(file.Read(), std::optional(Size(u"2"_s)));
    QCOMPARE(file.State(), FileState::Changed);
    file.Note();
    QCOMPARE(file.State(), FileState::Same);
}

void tst_EditedFile::GoesOverToAnotherFile() {
    EditedFile file(machine_->Files, path_);
    const QString other = machine_->WriteFile(u"b.ini"_s, "Size=9\r\n");
    file.SetPath(other);
    QCOMPARE(file.Path(), other);
    QCOMPARE(file.State(), FileState::Same);
    QCOMPARE(file.Read(), std::optional(Size(u"9"_s)));
}

void tst_EditedFile::AGoneFileIsWrittenAnew() {
    EditedFile file(machine_->Files, path_);
    machine_->Files.Delete(path_);
    QCOMPARE(file.Write(Size(u"5"_s)), QString());
    QCOMPARE(machine_->ReadFile(u"a.ini"_s), QByteArray("Size=5\r\n"));
    QCOMPARE(file.State(), FileState::Same);
}

void tst_EditedFile::NeverWritesOverWhatItCantRead_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no text") << QByteArray("Size=\0", 6);
    QTest::newRow("too many lines") << QByteArray("a=b\n").repeated(32768);
}

void tst_EditedFile::NeverWritesOverWhatItCantRead() {
    QFETCH(QByteArray, content);
    machine_->WriteFile(u"a.ini"_s, content);
    EditedFile file(machine_->Files, path_);
    QVERIFY(!file.Read());
    QCOMPARE(file.Write(Size(u"5"_s)),
             path_ + u" can't be read as a property file; it is left as it is"_s);
    QCOMPARE(machine_->ReadFile(u"a.ini"_s), content);
}

void tst_EditedFile::TellsAFailure() {
    EditedFile file(machine_->Files, path_);
    machine_->Files.Unwritable += path_;
    QCOMPARE(file.Write(Size(u"5"_s)), path_ + u" can't be written"_s);
    QCOMPARE(machine_->ReadFile(u"a.ini"_s), QByteArray("Size=1\r\n"));
    QCOMPARE(file.State(), FileState::Same);
}

void tst_EditedFile::ReadsAnEmptyFile() {
    machine_->WriteFile(u"a.ini"_s, {});
    EditedFile file(machine_->Files, path_);
    QCOMPARE(file.State(), FileState::Same);
    QCOMPARE(file.Read(), std::optional(ClockProperties()));
    machine_->Files.Delete(path_);
    QCOMPARE(file.State(), FileState::Gone);
}

QTEST_GUILESS_MAIN(tst_EditedFile)
#include "tst_EditedFile.moc"
