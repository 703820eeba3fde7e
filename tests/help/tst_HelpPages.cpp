#include <QTest>
#include <QUrl>

#include "help/HelpPages.h"
#include "platform/HelpPage.h"
#include "platform/LocalFiles.h"

using namespace Qt::StringLiterals;

/// That the pages of the help can be opened and lead to each other.
class tst_HelpPages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thereAreAllChapters();
    void contextNumbersHavePages_data();
    void contextNumbersHavePages();
    void aPageIsInOrder_data();
    void aPageIsInOrder();
    void linksLeadSomewhere_data() { aPageIsInOrder_data(); }
    void linksLeadSomewhere();
    void eachPageIsReachedFromEach_data() { aPageIsInOrder_data(); }
    void eachPageIsReachedFromEach();
};

namespace {

/// The page, or other file, that a link of a page leads to, relative to the help.
QString Target(const QString& page, const QUrl& link) {
    return link.path().isEmpty() ? page
                                 : QDir::cleanPath(QFileInfo(page).path() + u'/' + link.path());
}

}  // namespace

void tst_HelpPages::thereAreAllChapters() {
    QStringList paths;
    for (const auto& [path, page] : help::Pages()) {
        paths += path;
    }
    QCOMPARE(paths, (QStringList{u"Tempolark/600.html"_s, u"Tempolark/index.html"_s,
                                 u"TempolarkCentral/100.html"_s, u"TempolarkCentral/200.html"_s,
                                 u"TempolarkCentral/300.html"_s, u"TempolarkCentral/400.html"_s,
                                 u"TempolarkCentral/index.html"_s, u"common/command-line.html"_s,
                                 u"common/files.html"_s, u"common/keyboard.html"_s,
                                 u"common/looks.html"_s, u"common/music.html"_s,
                                 u"common/properties.html"_s, u"common/speech.html"_s,
                                 u"common/timers.html"_s, u"common/troubleshooting.html"_s}));
}

void tst_HelpPages::contextNumbersHavePages_data() {
    QTest::addColumn<QString>("helpFile");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("page");
    QTest::newRow("shell") << u"TempolarkCentral.chm"_s << 100 << u"TempolarkCentral/100.html"_s;
    QTest::newRow("zones") << u"TempolarkCentral.chm"_s << 200 << u"TempolarkCentral/200.html"_s;
    QTest::newRow("clock") << u"Tempolark.chm"_s << 600 << u"Tempolark/600.html"_s;
    QTest::newRow("other window of the shell")
        << u"TempolarkCentral.chm"_s << 999 << u"TempolarkCentral/index.html"_s;
    QTest::newRow("other window of a clock")
        << u"Tempolark.chm"_s << 200 << u"Tempolark/index.html"_s;
}

void tst_HelpPages::contextNumbersHavePages() {
    QFETCH(const QString, helpFile);
    QFETCH(const int, number);
    QFETCH(const QString, page);
    const QString found =
        platform::HelpPage(platform::LocalFiles(), help::Folder() + u'/' + helpFile, number);
    QCOMPARE(found, help::Folder() + u'/' + page);
}

void tst_HelpPages::aPageIsInOrder_data() {
    QTest::addColumn<QString>("path");
    for (const auto& [path, page] : help::Pages()) {
        QTest::newRow(qPrintable(path)) << path;
    }
}

void tst_HelpPages::aPageIsInOrder() {
    QFETCH(const QString, path);
    const help::Page& page = help::Pages().at(path);
    QCOMPARE(page.Error, QString());
    QVERIFY2(QSet<QString>(page.Ids.begin(), page.Ids.end()).size() == page.Ids.size(),
             "an id stands twice");
    for (const QString& element : {u"script"_s, u"iframe"_s, u"style"_s, u"object"_s}) {
        QVERIFY2(!page.Elements.contains(element), qPrintable(element));
    }
    for (const QString& element : {u"title"_s, u"nav"_s, u"main"_s, u"h1"_s}) {
        QVERIFY2(page.Elements.contains(element), qPrintable(element));
    }
}

void tst_HelpPages::linksLeadSomewhere() {
    QFETCH(const QString, path);
    for (const QString& link : help::Pages().at(path).Links) {
        const QUrl url(link);
        QVERIFY2(url.isValid() && url.isRelative(), qPrintable(link));
        const QString target = Target(path, url);
        QVERIFY2(QFileInfo(help::Folder() + u'/' + target).isFile(), qPrintable(link));
        if (url.hasFragment()) {
            QVERIFY2(help::Pages().at(target).Ids.contains(url.fragment()), qPrintable(link));
        }
    }
}

// By the list of chapters, which each page has.
void tst_HelpPages::eachPageIsReachedFromEach() {
    QFETCH(const QString, path);
    QSet<QString> reached;
    for (const QString& link : help::Pages().at(path).Links) {
        reached += Target(path, QUrl(link));
    }
    for (const auto& [other, page] : help::Pages()) {
        // The second way in is a copy of the first.
        const bool copy = other == "Tempolark/index.html"_L1;
        QVERIFY2(copy || reached.contains(other), qPrintable(other));
    }
}

QTEST_GUILESS_MAIN(tst_HelpPages)
#include "tst_HelpPages.moc"
