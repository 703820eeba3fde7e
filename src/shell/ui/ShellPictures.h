#pragma once

#include <QIcon>

#include "platform/Files.h"

/// A picture of the shell's own; a null icon, without a complaint, where the file is missing.
QIcon ShellPicture(const platform::Files& files, const QString& path);
