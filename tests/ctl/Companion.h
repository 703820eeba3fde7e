#pragma once

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

/// What a run of the companion has given back.
struct CompanionAnswer {
    int Status = -1;
    QByteArray Output;
    QByteArray Messages;

    QJsonDocument Json() const { return QJsonDocument::fromJson(Output); }
    QJsonObject Object() const { return Json().object(); }
    QJsonArray Array() const { return Json().array(); }
};

/// Runs the real companion in a folder of its own.
class Companion {
public:
    CompanionAnswer Run(const QStringList& arguments) const {
        QProcess process;
        process.setWorkingDirectory(Folder.path());
        process.setProcessEnvironment(Environment);
        process.start(QStringLiteral(TEMPOLARK_BIN_DIR "/tempolarkctl"), arguments);
        constexpr int longestRun = 300'000;  // milliseconds
        if (!process.waitForFinished(longestRun) || process.exitStatus() != QProcess::NormalExit) {
            return {};
        }
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

    QString Write(const QString& name, const QByteArray& content) const {
        const QString path = Folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("the test can't write %s", qPrintable(path));
        }
        return path;
    }

    QByteArray Read(const QString& name) const {
        QFile file(Folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir Folder;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
};
