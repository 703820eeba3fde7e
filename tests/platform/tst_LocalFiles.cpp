#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;

class tst_LocalFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }
    void tellsWhatExists();
    void replacesAFileInOneStep();
    void leavesEqualContentAlone();
    void keepsTheOldFileWhereItCantWrite();
    void setsTimes();
    void copies();
    void readsPlainFilesOnly();
    void makesOneLevelOfAFolder();
    void listsPlainFiles();

private:
    QString Path(const QString& name) const { return folder_->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder_;
    platform::LocalFiles files_;
};

void tst_LocalFiles::tellsWhatExists() {
    QVERIFY(files_.Write(Path(u"a"_s), "1"));
    QVERIFY(files_.Exists(Path(u"a"_s)));
    QVERIFY(!files_.FolderExists(Path(u"a"_s)));
    QVERIFY(files_.Exists(folder_->path()));
    QVERIFY(files_.FolderExists(folder_->path()));
    QVERIFY(!files_.Exists(Path(u"b"_s)));
}

// Whoever has the old file open goes on reading it whole: the new one is another file.
void tst_LocalFiles::replacesAFileInOneStep() {
    QVERIFY(files_.Write(Path(u"a"_s), "the old content"));
    QFile reader(Path(u"a"_s));
    QVERIFY(reader.open(QIODevice::ReadOnly));
    QVERIFY(files_.Write(Path(u"a"_s), "new"));
    QCOMPARE(reader.readAll(), "the old content"_ba);
    QCOMPARE(files_.Read(Path(u"a"_s)), std::optional("new"_ba));
    QCOMPARE(QDir(folder_->path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"a"_s});
}

void tst_LocalFiles::leavesEqualContentAlone() {
    QVERIFY(files_.Write(Path(u"a"_s), "same"));
    QVERIFY(files_.SetModifiedSeconds(Path(u"a"_s), 1000000000));
    QVERIFY(files_.Write(Path(u"a"_s), "same"));
    QCOMPARE(files_.ModifiedSeconds(Path(u"a"_s)), std::optional<qint64>(1000000000));
    QVERIFY(files_.Write(Path(u"a"_s), "other"));
    QVERIFY(files_.ModifiedSeconds(Path(u"a"_s)) > std::optional<qint64>(1000000000));
}

void tst_LocalFiles::keepsTheOldFileWhereItCantWrite() {
    QVERIFY(!files_.Write(Path(u"no/such/folder"_s), "1"));
    QVERIFY(!files_.Write(folder_->path(), "1"));
    QVERIFY(!files_.Write(QString(), "1"));
}

void tst_LocalFiles::setsTimes() {
    QVERIFY(files_.Write(Path(u"a"_s), "1"));
    QVERIFY(files_.SetModifiedSeconds(Path(u"a"_s), 1000000000));
    QCOMPARE(files_.ModifiedSeconds(Path(u"a"_s)), std::optional<qint64>(1000000000));
    QVERIFY(files_.Touch(Path(u"a"_s)));
    QVERIFY(files_.ModifiedSeconds(Path(u"a"_s)) > std::optional<qint64>(1700000000));
    QCOMPARE(files_.Read(Path(u"a"_s)), std::optional("1"_ba));
    QVERIFY(!files_.Touch(Path(u"b"_s)));
    QVERIFY(!files_.SetModifiedSeconds(Path(u"b"_s), 1));
    QVERIFY(!files_.Exists(Path(u"b"_s)));
    QVERIFY(!files_.ModifiedSeconds(Path(u"b"_s)));
}

void tst_LocalFiles::copies() {
    QVERIFY(files_.Write(Path(u"a"_s), "1"));
    QVERIFY(files_.SetModifiedSeconds(Path(u"a"_s), 1000000000));
    QVERIFY(files_.Write(Path(u"b"_s), "2"));
    QVERIFY(files_.Copy(Path(u"a"_s), Path(u"b"_s)));
    QCOMPARE(files_.Read(Path(u"b"_s)), std::optional("1"_ba));
    QVERIFY(files_.ModifiedSeconds(Path(u"b"_s)) > std::optional<qint64>(1700000000));
    QVERIFY(!files_.Copy(Path(u"missing"_s), Path(u"b"_s)));
    QCOMPARE(files_.Read(Path(u"b"_s)), std::optional("1"_ba));
}

void tst_LocalFiles::readsPlainFilesOnly() {
    QVERIFY(!files_.Read(folder_->path()));
    QVERIFY(!files_.Read(Path(u"missing"_s)));
    QVERIFY(!files_.Read(QString()));
    QVERIFY(files_.Write(Path(u"empty"_s), {}));
    QCOMPARE(files_.Read(Path(u"empty"_s)), std::optional(QByteArray()));
}

void tst_LocalFiles::makesOneLevelOfAFolder() {
    QVERIFY(!files_.MakeFolder(Path(u"a/b/"_s)));
    QVERIFY(files_.MakeFolder(Path(u"a/"_s)));
    QVERIFY(files_.MakeFolder(Path(u"a/b/"_s)));
    QVERIFY(files_.FolderExists(Path(u"a/b"_s)));
}

void tst_LocalFiles::listsPlainFiles() {
    QVERIFY(files_.Write(Path(u"b"_s), "1"));
    QVERIFY(files_.Write(Path(u".a"_s), "1"));
    QVERIFY(files_.MakeFolder(Path(u"folder"_s)));
    QStringList names = files_.FileNames(folder_->path());
    names.sort();
    QCOMPARE(names, QStringList({u".a"_s, u"b"_s}));
    QVERIFY(files_.Delete(Path(u"b"_s)));
    QCOMPARE(files_.FileNames(folder_->path()), QStringList{u".a"_s});
}

QTEST_GUILESS_MAIN(tst_LocalFiles)
#include "tst_LocalFiles.moc"
