#include <QJsonArray>

#include "ctl/Command.h"
#include "foundation/FileMenu.h"
#include "platform/WallClock.h"
#include "timers/TimeMenus.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

void PrintCaptions(const QStringList& captions) {
    PrintJson(QJsonDocument(QJsonArray::fromStringList(captions)));
}

int Files(Context& context) {
    bool isNumber = true;
    const int limit =
        context.HasOption(u"--limit"_s) ? context.Option(u"--limit"_s).toInt(&isNumber) : 0;
    if (!isNumber || limit < 0) {
        return WrongArguments;
    }
    PrintCaptions(mduUILib::FillFileMenu(context.Services.FileSystem, context.Arguments[0],
                                         context.Option(u"--filter"_s),
                                         context.Option(u"--current"_s), limit) +
                  QStringList{u"More"_s});
    return Done;
}

int Times(Context& context) {
    const QString& text = context.Arguments[0];
    const QStringList captions =
        timers::FillTimeMenu(text, context.Services.Clock.Now().date().year());
    PrintCaptions(captions);
    return captions.isEmpty() && !text.isEmpty() ? OperationFailed : Done;
}

int Minutes(Context& context) {
    const std::optional<int> start = context.Integer(0);
    if (!start) {
        return WrongArguments;
    }
    PrintCaptions(timers::FillMinutesMenu(*start));
    return Done;
}

}  // namespace

std::vector<Command> MenusCommands() {
    const QString group = u"menus"_s;
    std::vector<Command> commands = WithoutAppFolder({
        {group,
         u"files"_s,
         u"FOLDER [--filter TEXT] [--current NAME] [--limit N]"_s,
         1,
         1,
         {u"--filter="_s, u"--current="_s, u"--limit="_s},
         Files},
        {group, u"times"_s, u"TEXT"_s, 1, 1, {}, Times},
        {group, u"minutes"_s, u"START"_s, 1, 1, {}, Minutes},
    });
    commands.push_back(ClockMenuCommand());
    return commands;
}

}  // namespace ctl
