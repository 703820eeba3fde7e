#include <signal.h>

#include <QProcess>
#include <QTest>

#include "foundation/FileHelpers.h"
#include "foundation/PropertyFile.h"
#include "platform/LocalFiles.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// A program that saves a file for as long as it runs is killed again and again; the file is whole
/// each time.
class tst_SaveSurvivesKill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavesTheOldFileOrTheNewOne();
};

namespace {

ClockProperties Content(int rows) {
    ClockProperties array;
    array.Resize(rows);
    for (int row = 1; row <= rows; ++row) {
        array[row] = {u"Category"_s, u"Key %1"_s.arg(row), u"%1,choice,choice"_s.arg(rows)};
    }
    return array;
}

const ClockProperties Short = Content(3);
const ClockProperties Long = Content(3000);

// What the child does until it is killed. The byte tells that the saving has begun.
int SaveForEver(const QString& path) {
    platform::LocalFiles files;
    mduLib::WritePropertyFile(files, Short, path);
    std::fputc('.', stdout);
    std::fflush(stdout);
    while (mduLib::WritePropertyFile(files, Long, path) &&
           mduLib::WritePropertyFile(files, Short, path)) {
    }
    return 1;
}

void KillWhileSaving(const QString& path, int milliseconds) {
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {u"--save"_s, path});
    QVERIFY(child.waitForReadyRead());
    QVERIFY(!child.waitForFinished(milliseconds));
    ::kill(static_cast<pid_t>(child.processId()), SIGKILL);
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
}

}  // namespace

void tst_SaveSurvivesKill::leavesTheOldFileOrTheNewOne() {
    constexpr int Kills = 500;
    FakeServices machine;
    const QString path = machine.AppFolder() + u"/Tokyo.ini"_s;
    int shortOnes = 0;
    int longOnes = 0;
    for (int kill = 0; kill < Kills; ++kill) {
        KillWhileSaving(path, kill % 13);
        if (QTest::currentTestFailed()) {
            return;
        }
        ClockProperties found;
        QVERIFY(mduLib::ReadPropertyFile(machine.Files, path, found));
        shortOnes += found == Short ? 1 : 0;
        longOnes += found == Long ? 1 : 0;
        QCOMPARE(shortOnes + longOnes, kill + 1);
    }
    QVERIFY(shortOnes > 0);
    QVERIFY(longOnes > 0);

    // What a killed save leaves behind is not taken for a property file.
    const QStringList names =
        mduLib::ListFolderFiles(machine.Files, machine.AppFolder(), u".ini"_s, u"@"_s)
            .split(u'@', Qt::SkipEmptyParts);
    QStringList propertyFiles;
    for (const QString& name : names) {
        if (name.endsWith(u".ini"_s)) {
            propertyFiles += name;
        }
    }
    QCOMPARE(propertyFiles, QStringList{u"Tokyo.ini"_s});
}

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--save"_s) {
        return SaveForEver(arguments.value(2));
    }
    tst_SaveSurvivesKill test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SaveSurvivesKill.moc"
