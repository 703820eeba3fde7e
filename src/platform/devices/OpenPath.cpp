#include "platform/devices/OpenPath.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// A handler that fails does so soon; one that is still at work by then has its file open.
constexpr int HandlerFailsWithin = 1000;

QString StartProgram(const QFileInfo& program, const QString& workingFolder) {
    QProcess process;
    process.setProgram(program.absoluteFilePath());
    process.setWorkingDirectory(workingFolder.isEmpty() ? program.absolutePath() : workingFolder);
    if (process.startDetached()) {
        return {};
    }
    const QString reason = process.errorString();
    return u"%1 can't be started. %2"_s.arg(program.filePath(), reason).trimmed();
}

/// The exit codes of the desktop's opener.
QString HandlerReason(int code, const QString& path) {
    switch (code) {
        case 0:
            return {};
        case 3:
            return u"There is no program to open %1 with"_s.arg(path);
        default:
            return u"%1 can't be opened (%2)"_s.arg(path, QString::number(code));
    }
}

QString OpenWithHandler(const QFileInfo& file) {
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    if (opener.isEmpty()) {
        return u"There is no program to open %1 with: xdg-open is missing"_s.arg(file.filePath());
    }
    // The shell in between is what ends with this object; the handler itself lives on.
    QProcess process;
    process.setWorkingDirectory(file.absolutePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(u"/bin/sh"_s, {u"-c"_s, u"\"$1\" \"$2\" & wait $!"_s, u"sh"_s, opener,
                                 file.absoluteFilePath()});
    if (!process.waitForFinished(HandlerFailsWithin)) {
        if (process.state() == QProcess::NotRunning) {
            return u"%1 can't be opened. %2"_s.arg(file.filePath(), process.errorString());
        }
        process.kill();
        process.waitForFinished(HandlerFailsWithin);
        return {};
    }
    return HandlerReason(process.exitCode(), file.filePath());
}

QFileInfo Find(const QString& path) {
    const QFileInfo here(path);
    const bool plainName = !path.isEmpty() && !path.contains(u'/');
    return !here.exists() && plainName ? QFileInfo(QStandardPaths::findExecutable(path)) : here;
}

}  // namespace

QString OpenPath(const QString& path, const QString& workingFolder) {
    const QFileInfo found = Find(path);
    if (path.isEmpty() || !found.exists()) {
        return u"There is no %1"_s.arg(path);
    }
    if (!found.isFile() || !found.isExecutable()) {
        return OpenWithHandler(found);
    }
    const QString reason = StartProgram(found, workingFolder);
    // On some disks every file counts as executable, so a document may have been meant.
    return reason.isEmpty() || OpenWithHandler(found).isEmpty() ? QString() : reason;
}

}  // namespace platform
