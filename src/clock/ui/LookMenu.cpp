#include "clock/ui/LookMenu.h"

#include "clock/ui/MenuEntries.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

void AddKinds(QMenu& menu, ClockKind present, const std::function<void(ClockKind)>& choose) {
    QMenu* kinds = menu.addMenu(u"Clocks"_s);
    kinds->setObjectName(u"ClocksMenu"_s);
    const QStringList names = ClockKindNames();
    for (int number = 1; number <= names.size(); ++number) {
        const ClockKind kind = NumberedClockKind(number);
        QAction* action =
            kinds->addAction(ClockKindName(kind), &menu, [choose, kind] { choose(kind); });
        Mark(*action, kind == present);
    }
}

void AddStyles(QMenu& menu, QStringList files, const std::function<void(const QString&)>& choose) {
    QMenu* styles = menu.addMenu(u"Clock Style"_s);
    styles->setObjectName(u"ClockStyles"_s);
    files.sort(Qt::CaseInsensitive);
    for (const QString& file : files) {
        QString caption = mduLib::FileBaseName(file, false);
        styles->addAction(caption.replace(u"&"_s, u"&&"_s), &menu,
                          [choose, file] { choose(file); });
    }
    styles->addSeparator();
    styles->addAction(u"More"_s, &menu, [choose] { choose(u"More"_s); });
}

void AddColours(QMenu& menu, const std::function<void(const QString&)>& choose) {
    QMenu* colours = menu.addMenu(u"Clock Colour"_s);
    colours->setObjectName(u"ClockColourMenu"_s);
    for (const QString& name :
         mduUILib::MenuColours() + QStringList{u"Transparent"_s, u"Custom"_s}) {
        colours->addAction(name, &menu, [choose, name] { choose(name); });
    }
}

}  // namespace

QMenu* MakeLookMenu(QWidget* clock, ClockKind present, const QStringList& styleFiles,
                    const LookCommands& commands) {
    auto* menu = new QMenu(clock);
    menu->setObjectName(u"FormPopup"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddKinds(*menu, present, commands.SetClocks);
    AddStyles(*menu, styleFiles, commands.SetClockStyle);
    AddColours(*menu, commands.SetColour);
    menu->addSeparator();
    menu->addAction(u"Save Current Style"_s, menu, commands.SaveCurrentStyle);
    menu->addAction(u"Save Style As"_s, menu, commands.SaveStyleAs);
    menu->addSeparator();
    menu->addAction(u"Help"_s, menu, commands.Help);
    menu->addAction(u"Close"_s, menu, commands.Close);
    return menu;
}

}  // namespace clockcore
