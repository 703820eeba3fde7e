#include "clock/ui/ActionMenu.h"

#include "clock/ui/MenuEntries.h"
#include "foundation/NamedValues.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

void AddTimes(QMenu& menu, const std::vector<int>& minutes,
              const std::function<void(int)>& choose) {
    QMenu* times = menu.addMenu(u"Action Time"_s);
    times->setObjectName(u"ActionTime"_s);
    for (const int minute : minutes) {
        AddEntry(*times, QString::number(minute), [choose, minute] { choose(minute); });
    }
}

void AddColours(QMenu& menu, const QString& present,
                const std::function<void(const QString&)>& choose) {
    QMenu* colours = menu.addMenu(u"Set Action Message Font Colour"_s);
    colours->setObjectName(u"SetActionMsgColour"_s);
    for (const QString& name : mduUILib::MenuColours()) {
        Mark(*AddEntry(*colours, name, [choose, name] { choose(name); }), name == present);
    }
}

}  // namespace

QMenu* MakeActionMenu(QWidget* clock, const std::vector<int>& minutes, const QString& colour,
                      const ActionCommands& commands) {
    auto* menu = new QMenu(clock);
    menu->setObjectName(u"ActionMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    AddTimes(*menu, minutes, commands.Postpone);
    AddEntry(*menu, u"Cancel Action"_s, commands.Cancel)->setObjectName(u"CancelAction"_s);
    AddColours(*menu, colour, commands.SetColour);
    return menu;
}

}  // namespace clockcore
