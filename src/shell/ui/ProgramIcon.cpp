#include "shell/ui/ProgramIcon.h"

using namespace Qt::StringLiterals;

QIcon ProgramIcon() {
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64, 96, 128, 256}) {
        icon.addFile(u":/tempolark/icon/%1.png"_s.arg(side));
    }
    return icon;
}
