#pragma once

#include <functional>

#include "shell/ShellSettings.h"
#include "shell/UserLists.h"

/// The part of the start that lays out files, and what a command line says about it.
namespace shell {

/// Whether it asks for the screen saver: "/s" alone.
bool IsScreenSaverRun(const QString& commandLine);

/// Whether it names a clock to be opened: a name that can be one of a file, blanks around it aside.
bool NamesAClock(const QString& commandLine);

/// What is to be told about the zone that a command line names; empty when nothing is.
QString NoticeOf(const Program& program, const QString& commandLine);

/// Finds the zone for the command line, lays out the folders, and reads the settings and the lists;
/// @p tell is given what went wrong on the way. @return false when the program must end: its
/// default file is lost
bool ConfigSetup(const Program& program, ShellSettings& settings, const UserLists& lists,
                 const std::function<void(const QString&)>& tell);

/// Launches the clocks that start by themselves, then the one that the command line names: it is
/// what the user wants to see. @p launch answers whether a clock was launched. @return whether one
/// was at all
bool LaunchAtStart(const ModuleState& module, const std::function<bool(const QString&)>& launch);

}  // namespace shell
