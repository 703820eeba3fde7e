#include <QJsonArray>

#include "ctl/Command.h"
#include "shell/LastOpened.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

int PushOpened(Context& context) {
    const QString file = context.Arguments[0];
    shell::LastOpened opened;
    opened.LoadOpenedForms(context.Services.FileSystem, file);
    opened.PushLastOpened(context.Arguments[1]);
    const bool saved = opened.SaveOpenedForms(context.Services.FileSystem, file);
    QJsonArray names;
    for (int row = 1; row <= opened.List().UpperBound(); ++row) {
        if (!opened.List()[row].Name.isEmpty()) {
            names += opened.List()[row].Name;
        }
    }
    PrintJson(QJsonDocument(names));
    return saved ? Done : OperationFailed;
}

}  // namespace

std::vector<Command> ShellCommands() {
    return WithoutAppFolder({{u"shell"_s, u"push-opened"_s, u"FILE NAME"_s, 2, 2, {}, PushOpened}});
}

}  // namespace ctl
