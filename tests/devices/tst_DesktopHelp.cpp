#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/LocalFiles.h"
#include "platform/devices/DesktopHelp.h"

using namespace Qt::StringLiterals;

/// How a page of the help reaches the browser, and what is told when it does not.
class tst_DesktopHelp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { qputenv("PATH", path_); }

    void opensThePage();
    void opensTheIndexForOtherNumbers();
    void tellsThatAPageIsMissing();
    void passesARefusalOn();
    void asksTheDesktop();
    void tellsThatTheDesktopHasNoBrowser();
    void tellsThatTheDesktopOpensNothing();

private:
    QString Write(const QString& name, const QByteArray& content) const;
    QString Read(const QString& name) const {
        QFile file(folder_->filePath(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    /// Stands in for what the desktop opens files with.
    void Desktop(const QByteArray& script) const {
        const QString file = Write(u"bin/xdg-open"_s, "#!/bin/sh\n" + script + '\n');
        QVERIFY(QFile(file).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QString HelpFile() const { return folder_->filePath(u"Help/Tempolark.chm"_s); }

    std::unique_ptr<QTemporaryDir> folder_;
    QByteArray path_ = qgetenv("PATH");
    platform::LocalFiles files_;
};

void tst_DesktopHelp::init() {
    folder_ = std::make_unique<QTemporaryDir>();
    qputenv("PATH", folder_->filePath(u"bin"_s).toUtf8());
}

QString tst_DesktopHelp::Write(const QString& name, const QByteArray& content) const {
    const QString path = folder_->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("can't write %s", qPrintable(path));
    }
    return path;
}

void tst_DesktopHelp::opensThePage() {
    const QString page = Write(u"Help/Tempolark/600.html"_s, "x");
    QString opened;
    platform::DesktopHelp help(files_, [&opened](const QString& file) {
        opened = file;
        return QString();
    });
    QCOMPARE(help.Show(HelpFile(), 600), QString());
    QCOMPARE(opened, page);
}

void tst_DesktopHelp::opensTheIndexForOtherNumbers() {
    const QString page = Write(u"Help/Tempolark/index.html"_s, "x");
    QString opened;
    platform::DesktopHelp help(files_, [&opened](const QString& file) {
        opened = file;
        return QString();
    });
    QCOMPARE(help.Show(HelpFile(), 1234), QString());
    QCOMPARE(opened, page);
}

void tst_DesktopHelp::tellsThatAPageIsMissing() {
    bool asked = false;
    platform::DesktopHelp help(files_, [&asked](const QString&) {
        asked = true;
        return QString();
    });
    QCOMPARE(help.Show(HelpFile(), 600),
             u"There is no help in "_s + folder_->filePath(u"Help/Tempolark"_s));
    QVERIFY(!asked);
}

void tst_DesktopHelp::passesARefusalOn() {
    Write(u"Help/Tempolark/600.html"_s, "x");
    platform::DesktopHelp help(files_, [](const QString&) { return u"Out of order"_s; });
    QCOMPARE(help.Show(HelpFile(), 600), u"Out of order"_s);
}

void tst_DesktopHelp::asksTheDesktop() {
    const QString page = Write(u"Help/Tempolark/600.html"_s, "x");
    Desktop("printf '%s' \"$1\" >'" + folder_->filePath(u"told"_s).toUtf8() + '\'');
    platform::DesktopHelp help(files_);
    QCOMPARE(help.Show(HelpFile(), 600), QString());
    QTRY_COMPARE(Read(u"told"_s), page);
}

void tst_DesktopHelp::tellsThatTheDesktopHasNoBrowser() {
    const QString page = Write(u"Help/Tempolark/600.html"_s, "x");
    Desktop("exit 3");
    platform::DesktopHelp help(files_);
    QCOMPARE(help.Show(HelpFile(), 600), u"There is no program to open %1 with"_s.arg(page));
}

void tst_DesktopHelp::tellsThatTheDesktopOpensNothing() {
    const QString page = Write(u"Help/Tempolark/600.html"_s, "x");
    platform::DesktopHelp help(files_);
    QCOMPARE(help.Show(HelpFile(), 600),
             u"There is no program to open %1 with: xdg-open is missing"_s.arg(page));
}

QTEST_GUILESS_MAIN(tst_DesktopHelp)
#include "tst_DesktopHelp.moc"
