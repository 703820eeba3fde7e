#include <QJsonArray>

#include "ctl/Command.h"
#include "shell/LastOpened.h"
#include "shell/StatusMessages.h"

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

// The line after the last message, then after each tick up to the first that changes nothing.
int StatusQueue(Context& context) {
    shell::StatusMessages messages;
    for (const QString& text : context.Arguments) {
        messages.ShowStatusMsg(text);
    }
    QJsonArray panels = {messages.Panel()};
    QString before;
    do {
        before = messages.Panel();
        messages.Tick();
        panels += messages.Panel();
    } while (messages.Panel() != before);
    PrintJson(QJsonDocument(panels));
    return Done;
}

}  // namespace

std::vector<Command> ShellCommands() {
    constexpr int any = -1;
    return WithoutAppFolder(
        {{u"shell"_s, u"push-opened"_s, u"FILE NAME"_s, 2, 2, {}, PushOpened},
         {u"shell"_s, u"status-queue"_s, u"TEXT..."_s, 1, any, {}, StatusQueue}});
}

}  // namespace ctl
