#include "timers/ClockTimers.h"

#include <algorithm>

#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "platform/Files.h"
#include "timers/DialSpot.h"
#include "timers/TimerFile.h"

using namespace Qt::StringLiterals;

namespace timers {

namespace {

/// Only a time that stands as "hh:mm" ever equals the present one.
int DueMinute(const ClockTimer& timer) {
    const QTime time = QTime::fromString(timer.TimerTime, u"HH:mm"_s);
    const bool due = timer.OnDial && time.isValid() && HourMinute(time) == timer.TimerTime;
    return due ? DialMinute(time) : -1;
}

}  // namespace

ClockTimers::ClockTimers(const TimerContext& context, ClockMessages& messages)
    : context_(context),
      messages_(messages),
      effects_(context, messages),
      timers_(static_cast<std::size_t>(context.Controls.imgTimer.Count())),
      dueMinutes_(timers_.size(), -1),
      lateTimers_(context, *this, messages) {}

void ClockTimers::SetTemplate() {
    ClockTimer timer = Timer(1);
    timer.MessageColour =
        mduUILib::ColourValue(Property(u"Message Colour"_s), context_.Services.Random);
    timer.SoundFile = NewTimersSound();
    ChangeTimer(1, timer);
}

void ClockTimers::LoadTimers(const QString& path) {
    ReadKeys();
    loaded_ = true;
    path_ = path;
    const platform::Files& files = context_.Services.FileSystem;
    if (path.isEmpty() || !mduLib::FileExists(files, path)) {
        return;
    }
    const std::optional<QByteArray> content = files.Read(path);
    if (!content || !mduLib::MayRewrite(files, path)) {
        unreadPath_ = path;
        return;
    }
    for (const QString& line : mduLib::FileLines(*content)) {
        LoadLine(line.trimmed());
    }
    if (lateTimers_.IsOn()) {
        SaveTimer(path);  // lines of an older program have been given their instants
    }
}

void ClockTimers::LoadLine(const QString& line) {
    const QDateTime clockTime = context_.ClockTime();
    const std::optional<TimerLine> parsed = ParseTimerLine(line, clockTime.date().year());
    if (!parsed) {
        return;
    }
    const KeptTimes& times = lateTimers_.Times();
    const TimerLineUse use = times.IsOn() ? times.UseOf(*parsed) : UseOf(*parsed, clockTime);
    if (use.Defer) {
        DeferLine(line, times.IsOn() ? times.DueOf(*parsed) : std::nullopt);
    }
    if (use.Load) {
        const int slot = GetFreeTimerSlot();
        ClockTimer timer = Timer(slot);
        FillTimer(*parsed, context_.Services.Random, timer);
        if (times.IsOn()) {
            times.Fill(*parsed, timer);
        }
        ChangeTimer(slot, timer);
        PlaceTimerMark(slot, timer.TimerTime);
    }
}

void ClockTimers::SaveTimer(const QString& path) {
    if (path.isEmpty() || !MayWrite(path)) {
        return;
    }
    QString text;
    for (const QString& line : TimerLines()) {
        text += line + u"\r\n"_s;
    }
    NoteSaved(path, context_.Services.FileSystem.Write(path, text.toUtf8()));
}

// What has not been read may not be lost.
bool ClockTimers::MayWrite(const QString& path) {
    const platform::Files& files = context_.Services.FileSystem;
    if (!loaded_ && files.Exists(path)) {
        return false;
    }
    if (path != unreadPath_ && mduLib::MayRewrite(files, path)) {
        return true;
    }
    if (toldPath_ != path) {
        toldPath_ = path;
        context_.Host.ShowStatus(path + u" can't be read and is left as it is"_s);
    }
    return false;
}

QStringList ClockTimers::TimerLines() const {
    const QDateTime clockTime = context_.ClockTime();
    QStringList lines;
    for (const ClockTimer& timer : timers_) {
        if (!timer.IsFree()) {
            lines += TimerLineText(timer, clockTime);
        }
    }
    return lines + deferredTimerLines_;
}

void ClockTimers::ChangeTimer(int slot, const ClockTimer& timer) {
    ClockTimer& own = timers_[Index(slot)];
    if (own.TimerTime != timer.TimerTime) {
        late_.erase(slot);
        std::erase_if(fired_, [slot](const Fired& fired) { return fired.Slot == slot; });
    }
    own = lateTimers_.Times().Completed(own, timer);
    lateTimers_.Changed();
    dueMinutes_[Index(slot)] = DueMinute(own);
    if (own.IsFree()) {
        firstMaybeFree_ = std::min(firstMaybeFree_, Index(slot));
    }
    context_.Controls.imgTimer(slot).Visible = own.OnDial;
    context_.Controls.txtMsg(slot).Caption = own.Message;
}

int ClockTimers::GetFreeTimerSlot() {
    while (firstMaybeFree_ < timers_.size() && !timers_[firstMaybeFree_].IsFree()) {
        ++firstMaybeFree_;
    }
    if (firstMaybeFree_ == timers_.size()) {
        AddSlot();
    }
    return static_cast<int>(firstMaybeFree_) + 1;
}

void ClockTimers::AddSlot() {
    const mduUILib::Control& first = context_.Controls.imgTimer(1);
    mduUILib::Control mark;
    mark.Picture = first.Picture;
    mark.Enabled = first.Enabled;
    mark.Width = first.Width;
    mark.Height = first.Height;
    context_.Controls.imgTimer.Members.push_back(mark);
    context_.Controls.txtMsg.Members.emplace_back();
    timers_.emplace_back();
    dueMinutes_.push_back(-1);
}

void ClockTimers::ClearTimerSlot(int slot) {
    ClockTimer timer;
    timer.Permanent = Timer(slot).Permanent;
    timer.MessageColour = Timer(slot).MessageColour;
    timer.MusicVolume = Timer(slot).MusicVolume;
    ChangeTimer(slot, timer);
}

void ClockTimers::PlaceTimerMark(int slot, const QString& time) {
    const std::optional<QTime> parsed = TimeOfText(time, context_.ClockTime().date().year());
    if (!parsed) {
        return;
    }
    lateTimers_.FollowClock();
    ClockTimer timer = Timer(slot);
    timer.TimerTime = HourMinute(*parsed);
    ChangeTimer(slot, timer);
    const DialSpot at = SpotOfTime(*parsed);
    context_.Host.PlaceMark(slot, at.Spot, at.Place);
}

void ClockTimers::PlaceTimerMarks() {
    for (int slot = 1; slot <= SlotCount(); ++slot) {
        if (Timer(slot).OnDial) {
            PlaceTimerMark(slot, Timer(slot).TimerTime);
        }
    }
}

int ClockTimers::SetNewTimer(const QString& time) {
    lateTimers_.FollowClock();
    const int slot = GetFreeTimerSlot();
    ClockTimer timer;
    timer.SoundFile = NewTimersSound();
    timer.MessageColour =
        mduUILib::ColourValue(Property(u"Message Colour"_s), context_.Services.Random);
    timer.OnDial = true;
    timer.TimerTime = time;
    timer.DisplayMinutes = Property(u"Message Display Time"_s);
    context_.Controls.imgTimer(slot).Picture = context_.Controls.imgTimer(1).Picture;
    ChangeTimer(slot, timer);
    PlaceTimerMark(slot, time);
    return slot;
}

// A sound that would break the timers' lines is left out.
QString ClockTimers::NewTimersSound() const {
    QString sound = Property(u"Timer Sound File"_s);
    if (CanBeKept(sound)) {
        return sound;
    }
    context_.Host.ShowStatus(NotKept(sound));
    return {};
}

QString ClockTimers::Property(const QString& name) const {
    return mduLib::GetProperty(name, context_.Properties);
}

}  // namespace timers
