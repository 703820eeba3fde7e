#pragma once

#include <QString>

/// The sentences of the shortcut window's line of information.
namespace shell {

/// What a command does to the clock in front, as a sentence; empty for a name that no clock knows.
QString CommandHint(const QString& command);

/// What the key that a row shows means, and what may be pressed for another.
QString KeyHint(const QString& keyText);

/// Why a key was refused. @param holder the command that has it
QString RefusedKeyHint(const QString& keyText, const QString& holder);

}  // namespace shell
