#pragma once

#include "ctl/Command.h"

namespace ctl {

/// A command line taken apart: a command with what it was given, an answer, or a problem.
struct CommandLine {
    GlobalOptions Global;
    const Command* Chosen = nullptr;  ///< null when there is an answer or a problem
    QStringList Arguments;
    QMap<QString, QString> Options;
    QString Answer;   ///< what "--help" and "--version" ask for
    QString Problem;  ///< what is wrong, and the usage
};

/// @p commands must outlive the result.
CommandLine ParseCommandLine(QStringList arguments, const std::vector<Command>& commands);

QString UsageOf(const Command& command);

}  // namespace ctl
