#include "ctl/CommandLine.h"

#include "platform/TzFolder.h"
#include "timezones/ZoneEdition.h"

using namespace Qt::StringLiterals;

namespace ctl {

namespace {

QString Help(const std::vector<Command>& commands) {
    QString text =
        u"tempolarkctl [options] GROUP COMMAND ...\n\n"
        "  --app-folder DIR            the program folder\n"
        "  --user NAME                 the account name; empty when none is known\n"
        "  --now YYYY-MM-DDTHH:MM:SS   the local date and time\n"
        "  --utc YYYY-MM-DDTHH:MM:SS   the instant, in GMT\n"
        "  --local-zone IANA           the machine's zone\n"
        "  --seed N                    seed of every random choice\n"
        "  --help, --version           this text; the version and the edition of the zone "
        "database\n\n"
        "Behind \"--\" nothing is taken for an option.\n"_s;
    for (const Command& command : commands) {
        text += u"\n  "_s + command.Group + u' ' + command.Name + u' ' + command.Usage;
    }
    return text;
}

QString Version() {
    return u"tempolarkctl " TEMPOLARK_VERSION "\n"_s +
           mduTimeZones::EditionText(platform::TzEdition());
}

const Command* FindCommand(const QStringList& arguments, const std::vector<Command>& commands) {
    for (const Command& command : commands) {
        if (arguments.value(0) == command.Group && arguments.value(1) == command.Name) {
            return &command;
        }
    }
    return nullptr;
}

bool HasRightCount(const Command& command, qsizetype count) {
    return count >= command.LeastArguments &&
           (command.MostArguments < 0 || count <= command.MostArguments);
}

// words = { argument | option [ value ] } [ "--" { argument } ]
QString TakeWords(QStringList words, CommandLine& line) {
    while (!words.isEmpty()) {
        const QString word = words.takeFirst();
        if (word == "--"_L1) {
            line.Arguments += words;
            return {};
        }
        if (!word.startsWith("--"_L1)) {
            line.Arguments += word;
            continue;
        }
        const QString name = word.section(u'=', 0, 0);
        const bool takesValue = line.Chosen->Options.contains(name + u'=');
        if (!takesValue && !line.Chosen->Options.contains(word)) {
            return u"Unknown option "_s + word;
        }
        if (!takesValue) {
            line.Options[word] = QString();
        } else if (word.contains(u'=')) {
            line.Options[name] = word.section(u'=', 1);
        } else if (words.isEmpty()) {
            return name + u" wants a value"_s;
        } else {
            line.Options[name] = words.takeFirst();
        }
    }
    return {};
}

}  // namespace

QString UsageOf(const Command& command) {
    return u"Usage: tempolarkctl [options] "_s + command.Group + u' ' + command.Name + u' ' +
           command.Usage;
}

CommandLine ParseCommandLine(QStringList arguments, const std::vector<Command>& commands) {
    CommandLine line;
    line.Problem = TakeGlobalOptions(arguments, line.Global);
    if (!line.Problem.isEmpty()) {
        line.Problem += u'\n' + Help(commands);
        return line;
    }
    if (line.Global.Help || line.Global.Version) {
        line.Answer = line.Global.Help ? Help(commands) : Version();
        return line;
    }
    line.Chosen = FindCommand(arguments, commands);
    if (line.Chosen == nullptr) {
        line.Problem =
            (arguments.isEmpty() ? u"No command"_s
                                 : u"Unknown command "_s + arguments.mid(0, 2).join(u' ')) +
            u'\n' + Help(commands);
        return line;
    }
    const QString problem = TakeWords(arguments.mid(2), line);
    if (!problem.isEmpty() || !HasRightCount(*line.Chosen, line.Arguments.size())) {
        line.Problem =
            problem.isEmpty() ? UsageOf(*line.Chosen) : problem + u'\n' + UsageOf(*line.Chosen);
        line.Chosen = nullptr;
    }
    return line;
}

}  // namespace ctl
