#include <QApplication>

#include "foundation/NamedValues.h"
#include "foundation/WindowBorder.h"
#include "shell/HeaderLetters.h"
#include "shell/ShellDesk.h"
#include "shell/StartMessage.h"
#include "shell/ToolbarLook.h"

namespace {

QStringList Sorted(QStringList words) {
    words.sort();
    return words;
}

/// The captions of an entry of the menus.
QStringList MenuWords(const std::vector<shell::MenuEntry>& entries, const QString& name) {
    QStringList words;
    for (const shell::MenuEntry& entry : entries) {
        words += entry.Children.empty() ? QStringList() : MenuWords(entry.Children, name);
        for (const shell::MenuRow& row : entry.Rows) {
            words += entry.Name == name ? QStringList(row.Caption) : QStringList();
        }
    }
    return words;
}

QStringList ToolbarSizes() {
    for (const shell::MenuTable& menu : shell::MenuCatalogue()) {
        const QStringList words = MenuWords(menu.Entries, u"ToolBarSize"_s);
        if (!words.isEmpty()) {
            return words;
        }
    }
    return {};
}

}  // namespace

/// What the shell's default file offers, held against what the code knows and what it reads.
class tst_CentralWords : public QObject {
    Q_OBJECT

    const QByteArray file_ = MachineWithZones().Machine.ReadFile(u"ini/TempolarkCentral.ini"_s);
    const QStringList yesNo_ = {u"Yes"_s, u"No"_s};

    /// The choices of each key, by its name.
    std::map<QString, QStringList> Choices() const {
        std::map<QString, QStringList> choices;
        for (const QString& line : QString::fromUtf8(file_).split(u"\r\n"_s, Qt::SkipEmptyParts)) {
            const QString value = line.section(u'=', 1);
            choices[line.section(u'=', 0, 0).section(u':', 1)] =
                value.contains(u',') ? value.section(u',', 1).split(u',') : QStringList();
        }
        return choices;
    }

private Q_SLOTS:
    void Words_data() {
        QTest::addColumn<QStringList>("words");
        const QStringList colours = mduUILib::MenuColours();
        QTest::newRow("Window Top") << QStringList();
        QTest::newRow("Window Left") << QStringList();
        QTest::newRow("Window Width") << QStringList();
        QTest::newRow("Window Height") << QStringList();
        QTest::newRow("Window State")
            << QStringList{mduUILib::WindowStateName(0), mduUILib::WindowStateName(1),
                           mduUILib::WindowStateName(2)};
        // The first is the ground's own colour, which has no name.
        QTest::newRow("Window Background Colour")
            << colours + QStringList{u"8411709"_s, u"Transparent"_s, u"Random"_s, u"Custom"_s};
        QTest::newRow("Window Background File") << QStringList();
        QTest::newRow("Window Border") << mduUILib::WindowBorderNames();
        QTest::newRow("Window Title Bar") << yesNo_;
        QTest::newRow("Toolbar Size") << ToolbarSizes();
        QStringList places = shell::ToolbarPositionNames();
        places.removeOne(u"Hide"_s);
        QTest::newRow("Tool Bar") << places;
        QTest::newRow("Auto Show Balloon Tips") << yesNo_;
        QTest::newRow("Status Bar") << yesNo_;
        QTest::newRow("Heading Variation") << shell::HeadingVariationNames();
        QTest::newRow("Start Message")
            << QStringList{u"0"_s, u"Good <Morning/Afternoon/Evening>"_s,
                           u"Good <Morning/Afternoon/Evening>. Today is <date>"_s};
        QTest::newRow("Speak Time Zone Details") << yesNo_;
        QCOMPARE(Choices().size(), 16U);
        QCOMPARE(file_.count("\r\n"), 16);
    }

    void Words() {
        QFETCH(QStringList, words);
        const auto choices = Choices();
        const auto found = choices.find(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(found != choices.end());
        QCOMPARE(Sorted(found->second), Sorted(words));
    }

    void NoUnknownToken() {
        const QDateTime noon(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC);
        const QStringList patterns = Choices()[u"Start Message"_s];
        for (const QString& pattern : patterns) {
            QVERIFY2(!shell::StartMessage(pattern, noon).contains(u'<'), qPrintable(pattern));
        }
    }

    void EveryKeyIsRead() {
        Desk desk;
        const auto asked = std::make_shared<AskedNames>();
        desk.Shell = std::make_unique<frmMain>(desk.TheProgram);
        desk.Shell->CollectAskedNames(asked);
        QVERIFY(desk.Shell->Load());
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(desk.Button(u"Launch"_s), &enter);
        desk.Machine.Clock.Advance(5000);
        desk.Shell->Setting(u"Nobody's Key"_s);
        QStringList unread;
        const auto all = Choices();
        for (const auto& [key, choices] : all) {
            unread += asked->contains(key) ? QStringList() : QStringList(key);
        }
        // The window of zones asks for it.
        QCOMPARE(unread.join(u", "_s), u"Speak Time Zone Details"_s);
        QVERIFY(asked->contains(u"Nobody's Key"_s));
    }
};

QTEST_MAIN(tst_CentralWords)
#include "tst_CentralWords.moc"
