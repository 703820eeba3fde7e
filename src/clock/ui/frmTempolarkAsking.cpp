// What a menu asks before it changes a clock's look. The clock may be closed meanwhile.
#include "clock/ui/frmTempolark.h"
#include "foundation/FileHelpers.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;

namespace {

const QString IniFilter = u"Ini File (*.ini)"_s;

}  // namespace

void frmTempolark::PickWindowBackColour() {
    const QPointer<frmTempolark> self = this;
    const int colour = program_.Services.Dialog.PickColour(backColour_);
    if (self && !IsClosing() && colour >= 0) {
        SetWindowBackColour(QString::number(colour), u"Custom"_s);
    }
}

void frmTempolark::SetClockStyle(const QString& styleFile) {
    QString name = styleFile;
    if (name.isEmpty() || name == u"More"_s) {
        const QPointer<frmTempolark> self = this;
        name = program_.Services.Dialog.OpenFile(u"Clock Styles"_s,
                                                 program_.Module.Paths.StylesFolder, IniFilter);
        if (!self || IsClosing()) {
            return;
        }
    }
    ApplyClockStyle(name);
}

void frmTempolark::SaveStyleAs() {
    const QPointer<frmTempolark> self = this;
    const QString chosen = program_.Services.Dialog.SaveFile(
        u"Save Style As"_s, program_.Module.Paths.StylesFolder, IniFilter);
    if (!self || IsClosing() || chosen.isEmpty()) {
        return;
    }
    const QString path = clockcore::StyleFiles::SavePath(chosen);
    if (styles_.Write(path, data_.Properties(), placement_.PlaceToStore())) {
        TellSaved(u"the style "_s + mduLib::FileBaseName(path, false));
    } else {
        Status(path + u" can't be written"_s);
    }
}
