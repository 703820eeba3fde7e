#include <sys/wait.h>
#include <unistd.h>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
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

    /// Nor does a voice or a player that it has started and that is still there.
    void AKilledHolderLetsGo() {
        int ends[2] = {};
        QCOMPARE(pipe(ends), 0);
        const pid_t holder = fork();
        if (holder == 0) {
            LockFile lock(path_);
            if (lock.Take("holder") == Outcome::Taken && fork() == 0) {
                dup2(ends[1], STDOUT_FILENO);
                execlp("sh", "sh", "-c", "echo $$; exec sleep 60", nullptr);
            }
            pause();
            _exit(1);
        }
        char text[16] = {};
        QVERIFY(read(ends[0], text, sizeof text - 1) > 0);
        LockFile lock(path_);
        const Outcome meanwhile = lock.Take("next");
        kill(holder, SIGKILL);
        waitpid(holder, nullptr, 0);
        const Outcome afterwards = lock.Take("next");
        kill(QByteArray(text).trimmed().toInt(), SIGKILL);
        QCOMPARE(meanwhile, Outcome::HeldByAnother);
        QCOMPARE(afterwards, Outcome::Taken);
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
