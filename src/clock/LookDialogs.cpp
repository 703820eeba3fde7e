#include "clock/LookDialogs.h"

#include <QPointer>

#include "foundation/FilePickers.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;

namespace clockcore {

std::optional<int> LookDialogs::PickColour(int present) {
    const QPointer<const QObject> clock = &clock_;
    const int colour = program_.Services.Dialog.PickColour(present);
    const bool counts = clock && state_ != ClockState::Closing && colour >= 0;
    return counts ? std::optional(colour) : std::nullopt;
}

void LookDialogs::PickWindowBackColour() {
    if (const auto colour = PickColour(canvas_.BackColor())) {
        look_.SetWindowBackColour(QString::number(*colour), u"Custom"_s);
    }
}

void LookDialogs::SetClockStyle(const QString& styleFile) {
    QString name = styleFile;
    if (name.isEmpty() || name == u"More"_s) {
        const QPointer<const QObject> clock = &clock_;
        name = mduUILib::PickFile(program_.Services.Dialog, u"Clock Styles"_s, u"Clock Styles"_s,
                                  program_.Module.Paths);
        if (!clock || state_ == ClockState::Closing) {
            return;
        }
    }
    look_.ApplyClockStyle(name);
}

bool LookDialogs::Confirms(const QString& question, const QString& title) {
    const QPointer<const QObject> clock = &clock_;
    const int answer = program_.Services.Dialog.MessageBox(question, MsgBox::YesNoQuestion, title);
    return clock && state_ != ClockState::Closing && answer == MsgBox::Yes;
}

void LookDialogs::SaveStyleAs() {
    const QPointer<const QObject> clock = &clock_;
    const QString chosen = program_.Services.Dialog.SaveFile(
        u"Save Style As"_s, program_.Module.Paths.StylesFolder, u"Ini File (*.ini)"_s);
    if (clock && state_ != ClockState::Closing && !chosen.isEmpty()) {
        look_.SaveStyle(chosen);
    }
}

}  // namespace clockcore
