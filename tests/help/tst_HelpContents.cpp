#include <QMenu>
#include <QProcess>
#include <QTest>

#include "clock/FormMenu.h"
#include "clock/PartMenuCatalogue.h"
#include "editor/ui/PropertyMenu.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "help/HelpPages.h"
#include "platform/LocalFiles.h"
#include "shell/MenuCatalogue.h"
#include "shell/ToolCommands.h"
#include "shell/ui/frmShortcuts.h"
#include "speech/SpeechPatterns.h"
#include "support/FakeServices.h"
#include "timers/SystemActions.h"
#include "timezones/ui/ZoneMenu.h"

using namespace Qt::StringLiterals;

/// That the help tells of everything there is.
class tst_HelpContents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsOfTheShellsMenus();
    void tellsOfTheToolbar();
    void tellsOfTheClocksMenu();
    void tellsOfTheClocksKeys();
    void tellsOfTheMenusOfParts_data();
    void tellsOfTheMenusOfParts();
    void tellsOfTheZonesMenus();
    void tellsOfThePropertyMenu();
    void tellsOfTheShortcutMenu();
    void tellsOfEveryProperty_data();
    void tellsOfEveryProperty();
    void showsAPropertyAsItsFileHasIt();
    void tellsOfNoPropertyThatIsGone_data() { tellsOfEveryProperty_data(); }
    void tellsOfNoPropertyThatIsGone();
    void tellsOfEveryToken();
    void tellsOfEveryAction();
    void tellsOfEveryCommand();
    void tellsOfEveryOption();
};

namespace {

const QString ShellPage = u"TempolarkCentral/100.html"_s;
const QString ZonesPage = u"TempolarkCentral/200.html"_s;
const QString ShortcutsPage = u"TempolarkCentral/300.html"_s;
const QString EditorPage = u"TempolarkCentral/400.html"_s;
const QString ClockPage = u"Tempolark/600.html"_s;
const QString PropertiesPage = u"common/properties.html"_s;

const help::Page& PageOf(const QString& path) {
    static const help::Page none;
    const auto found = help::Pages().find(path);
    return found == help::Pages().end() ? none : found->second;
}

/// A caption as it is read: without the mark of its key.
QString Read(QString caption) {
    return caption.replace(u"&&"_s, u"\1"_s).remove(u'&').replace(u'\1', u'&');
}

/// Those that a page does not show as captions.
QStringList Missing(const QStringList& captions, const QString& page) {
    QStringList missing;
    for (const QString& caption : captions) {
        const QString text = Read(caption);
        if (!text.isEmpty() && text != "-"_L1 && !PageOf(page).Bold.contains(text)) {
            missing += text;
        }
    }
    return missing;
}

void AddCaptions(QStringList& captions, const std::vector<shell::MenuEntry>& entries) {
    for (const shell::MenuEntry& entry : entries) {
        for (const shell::MenuRow& row : entry.Rows) {
            captions += row.Caption;
        }
        AddCaptions(captions, entry.Children);
    }
}

void AddCaptions(QStringList& captions, std::span<const clockcore::PartMenuRow> rows) {
    for (const clockcore::PartMenuRow& row : rows) {
        captions += row.Caption.toString();
        AddCaptions(captions, row.Rows);
    }
}

/// The captions of a menu itself; its lists come from files.
QStringList Captions(const QMenu& menu) {
    QStringList captions;
    for (const QAction* action : menu.actions()) {
        captions += action->text();
    }
    return captions;
}

QStringList SubCaptions(const QMenu& menu, const QString& name) {
    const auto* sub = menu.findChild<QMenu*>(name);
    return sub == nullptr ? QStringList() : Captions(*sub);
}

ClockProperties DefaultFile(const QString& name) {
    ClockProperties rows;
    mduLib::ReadPropertyFile(platform::LocalFiles(),
                             QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/ini/") + name, rows);
    return rows;
}

/// "clock-hour-hand-length"
QString Anchor(const QString& prefix, const QString& name) {
    QString anchor = name.toLower();
    static const QRegularExpression others(u"[^a-z0-9]+"_s);
    anchor.replace(others, u"-"_s);
    return prefix + (anchor.endsWith(u'-') ? anchor.chopped(1) : anchor);
}

/// What the companion says when it is asked for its help.
QString CompanionHelp() {
    QProcess companion;
    companion.start(QStringLiteral(TEMPOLARK_BIN_DIR "/tempolarkctl"), {u"--help"_s});
    companion.waitForFinished();
    return QString::fromUtf8(companion.readAllStandardOutput());
}

}  // namespace

void tst_HelpContents::tellsOfTheShellsMenus() {
    QStringList captions;
    for (const shell::MenuTable& menu : shell::MenuCatalogue()) {
        AddCaptions(captions, menu.Entries);
    }
    QVERIFY(captions.size() > 80);
    QCOMPARE(Missing(captions, ShellPage), QStringList());
}

void tst_HelpContents::tellsOfTheToolbar() {
    QStringList tags;
    for (int i = 1; i <= shell::Tool::Count; ++i) {
        tags += shell::SetupToolButton(i, {}).Tag;
    }
    QCOMPARE(tags.size(), 20);
    QCOMPARE(Missing(tags, ShellPage), QStringList());
}

/// Of a maximised clock that nobody has named; what depends on its name is told by its last words.
void tst_HelpContents::tellsOfTheClocksMenu() {
    const clockcore::MenuNode menu =
        clockcore::MakeFormMenu({.WindowState = 2,
                                 .ScreenSaverTimes = {u"10"_s, u"120"_s, u"Disabled"_s},
                                 .HiddenParts = {u"Speaker"_s, u"Flag"_s, u"Zone Name"_s,
                                                 u"Hour Numbers"_s, u"Minute Spots"_s}},
                                {});
    QStringList captions;
    for (const clockcore::MenuNode& node : menu.Children) {
        if (node.Name != u"AutoStart"_s && node.Caption != u"-"_s) {
            captions += node.Caption;
        }
        for (const clockcore::MenuNode& member : node.Children) {
            captions += member.Caption;
        }
    }
    captions += {u"Auto Start"_s, u"Enable Clock"_s};
    QCOMPARE(captions.size(), 53);
    QCOMPARE(Missing(captions, ClockPage), QStringList());
}

void tst_HelpContents::tellsOfTheClocksKeys() {
    QStringList names;
    const ClockProperties shortcuts = DefaultFile(u"Shortcuts.txt"_s);
    for (int row = 1; row <= shortcuts.UpperBound(); ++row) {
        names += shortcuts[row].Name;
    }
    names.removeAll(QString());
    QCOMPARE(names.size(), 20);
    QCOMPARE(Missing(names, u"common/keyboard.html"_s), QStringList());
}

void tst_HelpContents::tellsOfTheMenusOfParts_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("page");
    const auto menus = clockcore::PartMenuCatalogue();
    QCOMPARE(menus.size(), std::size_t{11});
    for (int number = 0; number < 10; ++number) {  // the last is the tray's, which nothing opens
        const QString name = menus[static_cast<std::size_t>(number)].Name.toString();
        const QString page = name == "SpeakerMenu"_L1  ? u"common/speech.html"_s
                             : name == "ActionMenu"_L1 ? u"common/timers.html"_s
                                                       : ClockPage;
        QTest::newRow(qPrintable(name)) << number << page;
    }
}

void tst_HelpContents::tellsOfTheMenusOfParts() {
    QFETCH(const int, number);
    QFETCH(const QString, page);
    QStringList captions;
    AddCaptions(captions, clockcore::PartMenuCatalogue()[static_cast<std::size_t>(number)].Rows);
    QVERIFY(!captions.isEmpty());
    QCOMPARE(Missing(captions, page), QStringList());
}

void tst_HelpContents::tellsOfTheZonesMenus() {
    QWidget owner;
    ZoneMenu menus(&owner, {});
    ZoneMenu::State state;
    state.MapVisible = false;
    QStringList captions = Captions(menus.TimeZoneMenu()) + Captions(menus.MapMenu());
    menus.Refresh(state);
    captions += Captions(menus.TimeZoneMenu());  // what shows the map is another caption
    for (const QString& sub : {u"SortTimeZoneName"_s, u"SortGMTTime"_s, u"ShowListSource"_s}) {
        captions += SubCaptions(menus.TimeZoneMenu(), sub);
    }
    QVERIFY(captions.contains(u"Show Map"_s) && captions.contains(u"Descending"_s));
    QCOMPARE(Missing(captions, ZonesPage), QStringList());
}

void tst_HelpContents::tellsOfThePropertyMenu() {
    QWidget owner;
    const PropertyMenu menu(&owner, {});
    QStringList captions;
    for (const QAction* action : owner.findChild<QMenu*>()->findChildren<QAction*>()) {
        captions += action->text().section(u'\t', 0, 0).simplified();
    }
    QVERIFY(captions.contains(u"Sort by Default"_s) && captions.contains(u"Descending"_s));
    captions += {u"Apply"_s, u"Launch"_s, u"Close"_s};
    QCOMPARE(Missing(captions, EditorPage), QStringList());
}

void tst_HelpContents::tellsOfTheShortcutMenu() {
    const FakeServices machine;
    ModuleState module;
    Forms windows;
    const frmShortcuts window({machine.Services, module, windows}, nullptr, nullptr);
    QStringList captions = Captions(*window.findChild<QMenu*>(u"Menu"_s));
    QCOMPARE(captions.size(), 5);
    QCOMPARE(captions.takeAt(1).simplified(), u"Refresh By Default (F5)"_s);
    captions +=
        {u"Refresh By Default (F5)"_s, u"Save"_s, u"Close"_s, u"Used"_s, u"Invalid"_s, u"Value"_s};
    QCOMPARE(Missing(captions, ShortcutsPage), QStringList());
}

void tst_HelpContents::tellsOfEveryProperty_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<int>("count");
    QTest::newRow("shell") << u"TempolarkCentral"_s << u"shell-"_s << 15;
    QTest::newRow("clock") << u"Tempolark"_s << u"clock-"_s << 93;
}

void tst_HelpContents::tellsOfEveryProperty() {
    QFETCH(const QString, file);
    QFETCH(const QString, prefix);
    QFETCH(const int, count);
    const help::Page& page = PageOf(PropertiesPage);
    const ClockProperties rows = DefaultFile(file + u".ini"_s);
    QVERIFY(rows.UpperBound() >= count);
    for (int row = 1; row <= rows.UpperBound(); ++row) {
        const QString name = rows[row].Name;
        const QString anchor = Anchor(prefix, name);
        QVERIFY2(page.Rows.contains(anchor), qPrintable(name));
        const QString value = rows[row].Value.section(u',', 0, 0);
        const QString choices = rows[row].Value.section(u',', 1).split(u',').join(u", "_s);
        QCOMPARE(page.Rows.at(anchor), (QStringList{name, value.isEmpty() ? u"(empty)"_s : value,
                                                    choices.isEmpty() ? u"any"_s : choices}));
        QVERIFY2(page.Notes.contains(anchor) && !page.Notes.at(anchor).isEmpty(),
                 qPrintable(name + u" has no note in tools/help/notes"_s));
    }
}

void tst_HelpContents::showsAPropertyAsItsFileHasIt() {
    const help::Page& page = PageOf(PropertiesPage);
    QVERIFY(page.Rows.contains(u"clock-speech-second-pattern"_s));
    QCOMPARE(page.Rows.at(u"clock-speech-second-pattern"_s),
             (QStringList{u"Speech Second Pattern"_s, u"None"_s, u"None, <Second>, <LongTime>"_s}));
    QCOMPARE(page.Rows.at(u"clock-flag-file"_s),
             (QStringList{u"Flag File"_s, u"(empty)"_s, u"any"_s}));
}

void tst_HelpContents::tellsOfNoPropertyThatIsGone() {
    QFETCH(const QString, file);
    const ClockProperties rows = DefaultFile(file + u".ini"_s);
    QFile notes(QStringLiteral(TEMPOLARK_SOURCE_DIR "/tools/help/notes/") + file + u".txt"_s);
    QVERIFY(notes.open(QIODevice::ReadOnly));
    while (!notes.atEnd()) {
        const QString name = QString::fromUtf8(notes.readLine()).section(u'=', 0, 0);
        QVERIFY2(mduLib::FindPropertyRow(name, rows) > 0, qPrintable(name));
    }
}

void tst_HelpContents::tellsOfEveryToken() {
    const QDateTime moment(QDate(2026, 6, 15), QTime(15, 10), Qt::UTC);
    for (const QString& token : {u"<Past/To>"_s, u"<Location>"_s, u"<ShortTime>"_s, u"<LongTime>"_s,
                                 u"<ShortDate>"_s, u"<LongDate>"_s, u"<Minute>"_s, u"<Second>"_s}) {
        QVERIFY2(speech::ExpandPattern(moment, token, u"Here"_s) != token, qPrintable(token));
        QVERIFY2(PageOf(u"common/speech.html"_s).Code.contains(token), qPrintable(token));
    }
}

void tst_HelpContents::tellsOfEveryAction() {
    namespace Text = timers::ActionText;
    for (const QLatin1StringView action :
         {Text::None, Text::LogOff, Text::NormalShutdown, Text::Reboot, Text::ForcedShutdown,
          Text::LockWorkstation}) {
        QVERIFY2(PageOf(u"common/timers.html"_s).Code.contains(QString(action)), action.data());
    }
}

void tst_HelpContents::tellsOfEveryCommand() {
    const QString told = CompanionHelp();
    const QStringList lines = told.mid(told.indexOf(u"option.\n"_s) + 8).split(u'\n');
    int commands = 0;
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty()) {
            ++commands;
            QVERIFY2(PageOf(u"common/command-line.html"_s).Code.contains(line.trimmed()),
                     qPrintable(line));
        }
    }
    QVERIFY(commands > 20);
}

void tst_HelpContents::tellsOfEveryOption() {
    static const QRegularExpression option(u"\n  (--[a-z-]+)( [A-Z][A-Z:-]*)?"_s);
    QRegularExpressionMatchIterator found = option.globalMatch(CompanionHelp());
    int options = 0;
    while (found.hasNext()) {
        ++options;
        const QString text = found.next().captured(0).trimmed();
        QVERIFY2(PageOf(u"common/command-line.html"_s).Code.contains(text), qPrintable(text));
    }
    QCOMPARE(options, 7);
}

QTEST_MAIN(tst_HelpContents)
#include "tst_HelpContents.moc"
