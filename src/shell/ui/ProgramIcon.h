#pragma once

#include <QIcon>

/// The program's icon: a dial at ten past ten.
QIcon ProgramIcon();
