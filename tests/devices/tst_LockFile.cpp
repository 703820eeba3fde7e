#include <sys/wait.h>
#include <unistd.h>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "platform/devices/LockFile.h"

using namespace Qt::StringLiterals;
using platform::LockFile;
using Outcome = platform::LockFile::Outcome;

class tst_LockFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        path_ = folder_->filePath(u"lock"_s);
    }

    void OneAtATimeHoldsIt() {
        auto first = std::make_unique<LockFile>(path_);
        LockFile second(path_);
        QCOMPARE(first->Take("one"), Outcome::Taken);
        QCOMPARE(second.Take("two"), Outcome::HeldByAnother);
        QCOMPARE(second.Note(), "one"_ba);
        first.reset();
        QCOMPARE(second.Take("two"), Outcome::Taken);
        QCOMPARE(second.Note(), "two"_ba);
    }

    void GoesWithItsHolder() {
        {
            LockFile lock(path_);
            QCOMPARE(lock.Take({}), Outcome::Taken);
            QVERIFY(QFile::exists(path_));
        }
        QVERIFY(!QFile::exists(path_));
    }

    void WhoDoesNotHoldItLeavesIt() {
        LockFile holder(path_);
        QCOMPARE(holder.Take("mine"), Outcome::Taken);
        { LockFile(path_).Take("yours"); }
        QCOMPARE(LockFile(path_).Note(), "mine"_ba);
    }

    /// What a crash leaves: a file, its note longer than the next, and nobody who holds it.
    void AFileThatIsLeftOverHoldsUpNobody() {
        QFile file(path_);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("/run/user/1000/somewhere");
        file.close();
        LockFile lock(path_);
        QCOMPARE(lock.Take("/run/here"), Outcome::Taken);
        QCOMPARE(lock.Note(), "/run/here"_ba);
    }

    void AKilledHolderLetsGo() {
        int ready[2] = {};
        QCOMPARE(pipe(ready), 0);
        const pid_t holder = fork();
        if (holder == 0) {
            LockFile lock(path_);
            const bool taken = lock.Take("holder") == Outcome::Taken;
            [[maybe_unused]] const auto told = write(ready[1], taken ? "+" : "-", 1);
            pause();
            _exit(0);
        }
        char taken = 0;
        QCOMPARE(read(ready[0], &taken, 1), ssize_t{1});
        QCOMPARE(taken, '+');
        LockFile lock(path_);
        QCOMPARE(lock.Take("next"), Outcome::HeldByAnother);
        kill(holder, SIGKILL);
        waitpid(holder, nullptr, 0);
        QCOMPARE(lock.Take("next"), Outcome::Taken);
    }

    /// A voice or a player must not hold the folder when its program is gone.
    void AProcessOfItsHolderDoesNotHoldIt() {
        auto holder = std::make_unique<LockFile>(path_);
        QCOMPARE(holder->Take({}), Outcome::Taken);
        QProcess child;
        child.start(u"sleep"_s, {u"60"_s});
        QVERIFY(child.waitForStarted());
        holder.reset();
        LockFile next(path_);
        QCOMPARE(next.Take({}), Outcome::Taken);
        child.kill();
        child.waitForFinished();
    }

    void TellsWhereNoFileCanBe() {
        LockFile lock(folder_->filePath(u"none/lock"_s));
        QCOMPARE(lock.Take({}), Outcome::Failed);
        QCOMPARE(lock.Note(), QByteArray());
    }

private:
    std::unique_ptr<QTemporaryDir> folder_;
    QString path_;
};

QTEST_GUILESS_MAIN(tst_LockFile)
#include "tst_LockFile.moc"
