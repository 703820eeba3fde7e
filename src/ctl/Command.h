#pragma once

#include <QJsonDocument>
#include <QMap>
#include <QStringList>
#include <optional>
#include <vector>

#include "ctl/GlobalOptions.h"
#include "foundation/ModuleState.h"
#include "platform/Services.h"

/// The commands of `tempolarkctl`. Each is a few lines over the operation that it names.
/// They are found by their words: `ParseCommandLine` looks them up, `main` runs the one that was
/// chosen.
namespace ctl {

/// What the process gives back to its caller, and a command to `main`.
enum ExitStatus {
    Done = 0,
    OperationFailed = 1,  ///< the operation reported failure; the JSON still says what it can
    WrongArguments = 2    ///< the usage goes to standard error
};

/// What a command works with. `main` makes it for one run; all that it refers to outlives the
/// command.
struct Context {
    const GlobalOptions& Global;
    const platform::Services& Services;
    ModuleState& State;  ///< `AppFolder` and the folders beside it are set; no user's file is
    /// As many as `LeastArguments` and `MostArguments` allow.
    QStringList Arguments;
    QMap<QString, QString> Options;  ///< by name, "--file"; an option without a value maps to ""

    /// The value of an option, by its name with "--" and without "="; empty when it is not given.
    QString Option(const QString& name) const { return Options.value(name); }
    /// Tells an option that is not given from one with an empty value.
    bool HasOption(const QString& name) const { return Options.contains(name); }

    /// An argument as a whole number, counted from 0; nothing when it is none, or when there are
    /// fewer.
    std::optional<int> Integer(int index) const;
};

/// What a command needs of the program folder.
enum class FolderNeed {
    None,   ///< nothing: it works with the named files alone
    Reads,  ///< a folder that is named is taken as it stands, be it empty
    Starts  ///< what the program does at its start: a folder that is new or empty is filled
};

/// One command. "zones show NAME [--file INI]" is {"zones", "show", "NAME [--file INI]", 1, 1,
/// {"--file="}, ZonesShow}: an option that takes a value is listed with "=" behind it.
struct Command {
    QString Group;
    QString Name;
    QString Usage;
    int LeastArguments = 0;
    int MostArguments = 0;  ///< -1: any number
    QStringList Options;
    /// Does the work and prints the answer. Gives an `ExitStatus` back; `main` tells the usage
    /// behind `WrongArguments`.
    int (*Run)(Context& context) = nullptr;
    bool DrawsPictures = false;  ///< runs with windows, on the platform without a screen
    FolderNeed Folder = FolderNeed::Reads;
};

/// The same commands as a group that works with the named files alone: each with
/// `FolderNeed::None`.
std::vector<Command> WithoutAppFolder(std::vector<Command> commands);

/// The groups. `ClockCommands` and `ClockRunCommands` both belong to the group "clock".
std::vector<Command> PropertiesCommands();
std::vector<Command> ValuesCommands();
std::vector<Command> FilesCommands();
std::vector<Command> ClockCommands();
std::vector<Command> ClockPlaceCommands();
std::vector<Command> ClockRunCommands();
std::vector<Command> MenusCommands();
/// "menus clock", the one of its group that reads the program folder.
Command ClockMenuCommand();
std::vector<Command> ShellCommands();
std::vector<Command> ShortcutsCommands();
std::vector<Command> TimersCommands();
std::vector<Command> ZonesCommands();
std::vector<Command> SpeechCommands();
std::vector<Command> GridCommands();
std::vector<Command> EditorCommands();

/// Every command, group by group. A new group is declared above and added there.
std::vector<Command> AllCommands();

/// Prints the one JSON document of a command, or one line of those that tell events: compact, on
/// one line of standard output, which is flushed at once.
void PrintJson(const QJsonDocument& document);

/// Prints a lone answer, as an object of one field.
///
///     PrintValue(3)  // {"value":3}
void PrintValue(const QJsonValue& value);

/// Prints a text and a line end, in UTF-8: the answers that are no JSON.
void PrintText(const QString& text);

/// A message for people, on standard error, where it disturbs no reader of the JSON.
void Complain(const QString& message);

}  // namespace ctl
