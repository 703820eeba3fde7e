#include "timers/TimerEffects.h"

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyLookup.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace timers {

void TimerEffects::Run(const ClockTimer& timer, const QDateTime& clockTime,
                       const std::function<void()>& takeAction) const {
    const int minutes = WholeNumber(timer.DisplayMinutes);
    const std::function<void()> steps[] = {
        [&] { messages_.ShowMessage(timer.Message); },
        [&] { Announce(u"Speak Timer Message"_s, timer.Message); },
        [&] { messages_.SetMessageColour(timer.MessageColour); },
        [&] { messages_.SetMessageExpiry(clockTime, minutes); },
        takeAction,
        [&] { AnnounceAction(timer.TimerAction); },
        [&] { PlayTimerSound(timer.SoundFile); },
        [&] { SetMusicVolume(timer.MusicVolume); },
    };
    for (const auto& step : steps) {
        if (context_.Host.IsClosing()) {
            return;
        }
        step();
    }
}

void TimerEffects::AnnounceAction(const QString& action) const {
    if (messages_.PendingMessage().isEmpty() && action != "None"_L1) {
        Announce(u"Speak Action Message"_s, action);
    }
}

void TimerEffects::Announce(const QString& key, const QString& text) const {
    if (mduUILib::YesNoToBool(Property(key))) {
        context_.Host.PurgeSpeech(Urgency::Urgent);
        context_.Host.SpeakMessage(text, 0, Urgency::Urgent);
    }
}

void TimerEffects::PlayTimerSound(const QString& file) const {
    if (mduUILib::IsNoneValue(file)) {
        return;
    }
    const QString path = mduLib::ResolveAppPath(file, context_.Module.Paths.AppFolder);
    if (mduLib::FileExists(context_.Services.FileSystem, path)) {
        context_.Host.PlaySound(path);
    } else {
        context_.Host.ShowStatus(file + u" does not exist"_s);
    }
}

void TimerEffects::SetMusicVolume(const QString& volume) const {
    const double value = mduAPILib::Val(volume);
    if (value > 0) {
        mduLib::PutProperty(u"Music Volume"_s, QString::number(value, 'g', 15),
                            context_.Host.EditProperties());
    }
}

QString TimerEffects::Property(const QString& name) const {
    return mduLib::GetProperty(name, context_.Properties);
}

}  // namespace timers
