#include "clock/TimerDialogs.h"

#include <QPointer>

#include "foundation/FileHelpers.h"
#include "platform/Dialogs.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace clockcore {

void TimerDialogs::PickColour(const ChosenTimer& chosen) {
    const QPointer<const QObject> clock = &clock_;
    const int colour = program_.Services.Dialog.PickColour(chosen.Timer.MessageColour);
    if (clock && colour >= 0) {
        timers_.Change(chosen,
                       [colour](timers::ClockTimer& timer) { timer.MessageColour = colour; });
    }
}

void TimerDialogs::PickSound(const ChosenTimer& chosen) {
    const QPointer<const QObject> clock = &clock_;
    const QString file = program_.Services.Dialog.OpenFile(
        u"Timer Sound"_s, program_.Module.Paths.SoundFilesFolder,
        u"Sound Files (*.wav *.mp3 *.ogg *.flac);;All Files (*)"_s);
    if (clock && !file.isEmpty()) {
        timers_.ChangeText(chosen, &timers::ClockTimer::SoundFile, mduLib::ToStoredPath(file));
    }
}

void TimerDialogs::PickProgram(const ChosenTimer& chosen) {
    const QPointer<const QObject> clock = &clock_;
    const QString file = program_.Services.Dialog.OpenFile(
        u"Timer Action"_s, program_.Module.Paths.AppFolder, u"All Files (*)"_s);
    if (!clock || file.isEmpty() || !timers_.IsThere(chosen)) {
        return;
    }
    timers_.ChangeText(chosen, &timers::ClockTimer::TimerAction, file);
    if (timers::CanBeKept(file) && mduLib::FileExists(program_.Services.FileSystem, file)) {
        actions_.AddActionProgram(file);
    }
}

bool TimerDialogs::MayLoseTimers(const QString& path, const QString& caption) const {
    constexpr int yesNoExclamation = 4 + 48 + 256;  // with No as the default
    constexpr int yes = 6;
    return program_.Services.Dialog.MessageBox(
               path + u" can't be written.\n\nClose the clock and lose its timers?"_s,
               yesNoExclamation, caption) == yes;
}

}  // namespace clockcore
