#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/devices/OpenPath.h"

using namespace Qt::StringLiterals;
using platform::OpenPath;

class tst_OpenPath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void startsAProgramInItsFolder();
    void startsAProgramInAnotherFolder();
    void findsAProgramByName();
    void handsAFileToItsProgram();
    void leavesTheHandlerAtWork();
    void tellsWhatIsMissing();
    void tellsThatAProgramCannotStart();
    void tellsThatNoProgramIsMeantForIt();
    void tellsThatTheOpenerIsMissing();

private:
    QString Write(const QString& name, const QByteArray& content, bool executable) const;
    QString Told() const;

    std::unique_ptr<QTemporaryDir> folder_;
    QByteArray path_;
};

/// What a started program wrote, once it is all there.
QString tst_OpenPath::Told() const {
    QFile file(folder_->filePath(u"told"_s));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
}

QString tst_OpenPath::Write(const QString& name, const QByteArray& content, bool executable) const {
    const QString path = folder_->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qWarning("can't write %s", qPrintable(path));
    }
    if (executable) {
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }
    return path;
}

void tst_OpenPath::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    path_ = qgetenv("PATH");
    qputenv("PATH", folder_->filePath(u"bin"_s).toUtf8() + ":/usr/bin:/bin");
    qputenv("TOLD", folder_->filePath(u"told"_s).toUtf8());
}

void tst_OpenPath::cleanup() {
    qputenv("PATH", path_);
}

void tst_OpenPath::startsAProgramInItsFolder() {
    const QString program =
        Write(u"with blank/prog = @#"_s,
              "#!/bin/sh\npwd > \"$TOLD.new\"; mv \"$TOLD.new\" \"$TOLD\"\n", true);
    QCOMPARE(OpenPath(program, {}), QString());
    QTRY_COMPARE(Told(), QFileInfo(folder_->filePath(u"with blank"_s)).canonicalFilePath());
}

void tst_OpenPath::startsAProgramInAnotherFolder() {
    const QString program =
        Write(u"prog"_s, "#!/bin/sh\npwd > \"$TOLD.new\"; mv \"$TOLD.new\" \"$TOLD\"\n", true);
    QCOMPARE(OpenPath(program, u"/usr"_s), QString());
    QTRY_COMPARE(Told(), u"/usr"_s);
}

void tst_OpenPath::findsAProgramByName() {
    Write(u"bin/tempolark-test-prog"_s, "#!/bin/sh\necho found > \"$TOLD\"\n", true);
    QCOMPARE(OpenPath(u"tempolark-test-prog"_s, {}), QString());
    QTRY_COMPARE(Told(), u"found"_s);
}

void tst_OpenPath::handsAFileToItsProgram() {
    Write(u"bin/xdg-open"_s, "#!/bin/sh\necho \"$1\" > \"$TOLD\"\n", true);
    const QString file = Write(u"a \"text\" $HOME.txt"_s, "text", false);
    QCOMPARE(OpenPath(file, {}), QString());
    QCOMPARE(Told(), file);
    QCOMPARE(OpenPath(folder_->path(), {}), QString());
    QCOMPARE(Told(), folder_->path());
}

void tst_OpenPath::leavesTheHandlerAtWork() {
    // It goes on only when it is told to, which is after the call has returned.
    Write(u"bin/xdg-open"_s,
          "#!/bin/sh\nwhile [ ! -e \"$TOLD.go\" ]; do sleep 0.05; done\necho done > \"$TOLD\"\n",
          true);
    QCOMPARE(OpenPath(Write(u"a.txt"_s, "text", false), {}), QString());
    QCOMPARE(Told(), QString());
    Write(u"told.go"_s, {}, false);
    QTRY_COMPARE(Told(), u"done"_s);
}

void tst_OpenPath::tellsWhatIsMissing() {
    const QString missing = folder_->filePath(u"missing"_s);
    QCOMPARE(OpenPath(missing, {}), u"There is no "_s + missing);
    QCOMPARE(OpenPath(u"tempolark-no-such-program"_s, {}),
             u"There is no tempolark-no-such-program"_s);
    QCOMPARE(OpenPath({}, {}), u"There is no "_s);
}

void tst_OpenPath::tellsThatAProgramCannotStart() {
    const QString program = Write(u"prog"_s, "#!/nonexistent/interpreter\n", true);
    Write(u"bin/xdg-open"_s, "#!/bin/sh\nexit 4\n", true);
    const QString reason = OpenPath(program, {});
    QVERIFY2(reason.startsWith(program + u" can't be started. "_s), qPrintable(reason));
    QVERIFY(!reason.endsWith(u". "_s));
}

void tst_OpenPath::tellsThatNoProgramIsMeantForIt() {
    const QString file = Write(u"a.txt"_s, "text", false);
    Write(u"bin/xdg-open"_s, "#!/bin/sh\nexit 3\n", true);
    QCOMPARE(OpenPath(file, {}), u"There is no program to open %1 with"_s.arg(file));
    Write(u"bin/xdg-open"_s, "#!/bin/sh\nexit 4\n", true);
    QCOMPARE(OpenPath(file, {}), u"%1 can't be opened (4)"_s.arg(file));
}

void tst_OpenPath::tellsThatTheOpenerIsMissing() {
    qputenv("PATH", folder_->filePath(u"bin"_s).toUtf8());
    const QString file = Write(u"a.txt"_s, "text", false);
    QCOMPARE(OpenPath(file, {}),
             u"There is no program to open %1 with: xdg-open is missing"_s.arg(file));
}

QTEST_GUILESS_MAIN(tst_OpenPath)
#include "tst_OpenPath.moc"
