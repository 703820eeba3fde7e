#pragma once

#include <QIcon>

/// The program's icon: a dial at ten past ten. Each size of a desktop has its own picture.
QIcon ProgramIcon();
