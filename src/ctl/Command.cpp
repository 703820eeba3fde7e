#include "ctl/Command.h"

#include <QJsonObject>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

void PrintLine(std::FILE* stream, const QByteArray& text) {
    const QByteArray line = text + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stream);
    std::fflush(stream);
}

}  // namespace

std::optional<int> Context::Integer(int index) const {
    bool ok = false;
    const int value = Arguments.value(index).toInt(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

std::vector<Command> WithoutAppFolder(std::vector<Command> commands) {
    for (Command& command : commands) {
        command.Folder = FolderNeed::None;
    }
    return commands;
}

std::vector<Command> AllCommands() {
    std::vector<Command> commands;
    for (const auto& group :
         {PropertiesCommands(), ValuesCommands(), FilesCommands(), ClockCommands(),
          ClockPlaceCommands(), ClockRunCommands(), MenusCommands(), ShellCommands(),
          ShortcutsCommands(), ZonesCommands(), TimersCommands(), SpeechCommands(), GridCommands(),
          EditorCommands()}) {
        commands.insert(commands.end(), group.begin(), group.end());
    }
    return commands;
}

void PrintJson(const QJsonDocument& document) {
    PrintLine(stdout, document.toJson(QJsonDocument::Compact));
}

void PrintValue(const QJsonValue& value) {
    PrintJson(QJsonDocument(QJsonObject{{u"value"_s, value}}));
}

void PrintText(const QString& text) {
    PrintLine(stdout, text.toUtf8());
}

void Complain(const QString& message) {
    PrintLine(stderr, message.toUtf8());
}

}  // namespace ctl
