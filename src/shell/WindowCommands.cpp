#include "shell/WindowCommands.h"

#include "foundation/FilePickers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "platform/Dialogs.h"
#include "shell/ClockCommands.h"

using namespace Qt::StringLiterals;

namespace shell {

void AddWindowCommands(MenuCommands& commands, const Forms& windows, IForm& shellWindow,
                       const std::function<void(Arrangement)>& arrange) {
    commands.Handle(u"Tile"_s, [arrange] { arrange(Arrangement::TileRows); });
    // Tiles, too: meant so.
    commands.Handle(u"Cascade"_s, [arrange] { arrange(Arrangement::TileColumns); });
    commands.Handle(u"ArrangeIcons"_s, [arrange] { arrange(Arrangement::Icons); });
    commands.Handle(u"MaximiseAll"_s,
                    [&windows, &shellWindow] { MaximiseAllChildren(windows, shellWindow); });
    commands.Handle(u"RestoreAll"_s, [&windows] { RestoreAllChildren(windows); });
    commands.Handle(u"MinimiseAll"_s, [&windows] { MinimiseAllChildren(windows); });
    commands.Handle(u"CloseAll"_s, [&windows] { CloseAllChildren(windows); });
    commands.Handle(u"OpenedWindow"_s, [&windows](int, const MenuItem& item) {
        ActivateWindowByHandle(windows, mduAPILib::IntegerValue(item.Tag));
    });
}

void AddClockCommands(MenuCommands& commands, const Program& program, const IShell& shell) {
    const auto tell = [&windows = program.Windows](Broadcast kind) {
        return [&windows, kind](int index, const MenuItem& item) {
            BroadcastToClocks(windows, kind, index, item.Tag, item.Caption);
        };
    };
    commands.Handle(u"Clocks"_s, tell(Broadcast::Clocks));
    commands.Handle(u"SaveSettings"_s, tell(Broadcast::SaveSettings));
    commands.Handle(u"ClockStyles"_s, [program, tell](int index, MenuItem item) {
        if (item.Tag.isEmpty()) {
            item.Tag = mduUILib::PickFile(program.Services.Dialog, u"Clock Styles"_s,
                                          u"Clock Styles"_s, program.Module.Paths);
        }
        if (!item.Tag.isEmpty()) {
            tell(Broadcast::ClockStyles)(index, item);
        }
    });
    commands.Handle(u"ClockColours"_s, [program, tell, &shell](int index, MenuItem item) {
        if (mduUILib::IsCustomColour(item.Caption)) {
            const int picked = program.Services.Dialog.PickColour(shell.BackColor());
            if (picked < 0) {
                return;
            }
            item.Tag = QString::number(picked);
        }
        tell(Broadcast::ClockColours)(index, item);
    });
}

}  // namespace shell
