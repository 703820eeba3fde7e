#include "foundation/ModuleState.h"

using namespace Qt::StringLiterals;

QString PathTable::ZoneDefaultFile() const {
    return AppFolder + u"/ini/Tempolark.ini"_s;
}

QString PathTable::CentralDefaultFile() const {
    return AppFolder + u"/ini/TempolarkCentral.ini"_s;
}

QString PathTable::DefaultShortcutsFile() const {
    return AppFolder + u"/ini/Shortcuts.txt"_s;
}

QString PathTable::DefaultActionFile() const {
    return AppFolder + u"/ini/Action.txt"_s;
}

// Without a user the file lies in the program folder: the root of the disk is nobody's place.
QString PathTable::OpenedFormsFile() const {
    return (DataFolder.isEmpty() ? AppFolder : DataFolder) + u"/OpenedForms.txt"_s;
}

QString PathTable::AppEXEName() const {
    return AppFolder + u"/TempolarkCentral.exe"_s;
}
