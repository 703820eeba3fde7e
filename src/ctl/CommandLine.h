#pragma once

#include "ctl/Command.h"

namespace ctl {

/// A command line taken apart: a command with what it was given, an answer, or a problem.
/// Exactly one of `Chosen`, `Answer` and `Problem` is set.
struct CommandLine {
    GlobalOptions Global;
    const Command* Chosen = nullptr;  ///< null when there is an answer or a problem
    /// What is no option, in its order, without the group and the name; as many as the command
    /// takes.
    QStringList Arguments;
    /// See `Context::Options`. Of an option that is given twice the last value counts.
    QMap<QString, QString> Options;
    QString Answer;   ///< what "--help" and "--version" ask for
    QString Problem;  ///< what is wrong, and the usage
};

/// Takes a command line apart: global options, group, name, then arguments and the command's
/// options in any order. A value stands behind "=" or as the next word; behind "--" all words are
/// arguments.
///
///     --now 2026-11-22T09:00:00 zones show Tokyo --file=tokyo.ini
///
/// @param arguments without the program's own name
/// @param commands must outlive the result, which points into them
CommandLine ParseCommandLine(QStringList arguments, const std::vector<Command>& commands);

/// One line for people, without a line end:
///
///     Usage: tempolarkctl [options] zones show NAME [--file INI]
QString UsageOf(const Command& command);

}  // namespace ctl
