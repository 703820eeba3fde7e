#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/HelpPage.h"
#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;

/// Which page a help file has for a context number.
class tst_HelpPage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void takesTheExtensionOff_data();
    void takesTheExtensionOff();
    void findsThePageOfANumber();
    void fallsBackOnTheIndex();
    void goesWithoutPages();
    void keepsToItsOwnHelpFile();

private:
    void Page(const QString& relativePath) const {
        const QFileInfo page(folder_->filePath(relativePath));
        QDir().mkpath(page.path());
        QFile file(page.filePath());
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    /// The page found, relative to the folder; "" where there is none.
    QString Found(const QString& helpFile, int number) const {
        const QString page = platform::HelpPage(files_, folder_->filePath(helpFile), number);
        return page.isEmpty() ? page : QDir(folder_->path()).relativeFilePath(page);
    }

    std::unique_ptr<QTemporaryDir> folder_;
    platform::LocalFiles files_;
};

void tst_HelpPage::takesTheExtensionOff_data() {
    QTest::addColumn<QString>("helpFile");
    QTest::addColumn<QString>("pages");
    QTest::newRow("of the clock") << u"/a/Help/Tempolark.chm"_s << u"/a/Help/Tempolark"_s;
    QTest::newRow("in capitals") << u"/a/Help/Tempolark.CHM"_s << u"/a/Help/Tempolark"_s;
    QTest::newRow("only the last") << u"/a.chm/Other.chm.chm"_s << u"/a.chm/Other.chm"_s;
    QTest::newRow("none") << u"/a/Help/Tempolark"_s << u"/a/Help/Tempolark"_s;
    QTest::newRow("another") << u"/a/Help/Tempolark.txt"_s << u"/a/Help/Tempolark.txt"_s;
}

void tst_HelpPage::takesTheExtensionOff() {
    QFETCH(const QString, helpFile);
    QTEST(platform::HelpFolder(helpFile), "pages");
}

void tst_HelpPage::findsThePageOfANumber() {
    Page(u"Help/Tempolark/600.html"_s);
    Page(u"Help/Tempolark/index.html"_s);
    QCOMPARE(Found(u"Help/Tempolark.chm"_s, 600), u"Help/Tempolark/600.html"_s);
}

void tst_HelpPage::fallsBackOnTheIndex() {
    Page(u"Help/Tempolark/600.html"_s);
    Page(u"Help/Tempolark/index.html"_s);
    QCOMPARE(Found(u"Help/Tempolark.chm"_s, 200), u"Help/Tempolark/index.html"_s);
}

void tst_HelpPage::goesWithoutPages() {
    QCOMPARE(Found(u"Help/Tempolark.chm"_s, 600), QString());
    QDir(folder_->path()).mkpath(u"Help/Tempolark"_s);
    QCOMPARE(Found(u"Help/Tempolark.chm"_s, 600), QString());
}

void tst_HelpPage::keepsToItsOwnHelpFile() {
    Page(u"Help/TempolarkCentral/100.html"_s);
    QCOMPARE(Found(u"Help/Tempolark.chm"_s, 100), QString());
    QCOMPARE(Found(u"Help/TempolarkCentral.chm"_s, 100), u"Help/TempolarkCentral/100.html"_s);
}

QTEST_GUILESS_MAIN(tst_HelpPage)
#include "tst_HelpPage.moc"
