#include "timers/HourAndSecondSounds.h"

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"
#include "platform/WallClock.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

constexpr int BusyCount = 5;

}  // namespace

bool HourAndSecondSounds::PlayHourSound() {
    const QTime time = context_.Services.Clock.Now().time();
    if (time.minute() == 0 && time.second() == 0 && Play(u"Hour Sound File"_s)) {
        hourSoundCount_ = 1;
        return true;
    }
    if (hourSoundCount_ == 0) {
        return false;
    }
    hourSoundCount_ = hourSoundCount_ < BusyCount ? hourSoundCount_ + 1 : 0;
    return true;
}

void HourAndSecondSounds::PlaySecondSound() {
    const int second = context_.Services.Clock.Now().time().second();
    if (second != lastSecond_) {
        Play(u"Second Sound File"_s);
        lastSecond_ = second;
    }
}

bool HourAndSecondSounds::Play(const QString& property) {
    const QString file = mduLib::GetProperty(property, context_.Properties);
    if (mduUILib::IsNoneValue(file)) {
        return false;
    }
    const QString path = mduLib::ResolveAppPath(file, context_.Module.Paths.AppFolder);
    if (!mduLib::FileExists(context_.Services.FileSystem, path)) {
        return false;
    }
    context_.Host.PlaySound(path);
    return true;
}

}  // namespace timers
