#include "drawing/LabelMotion.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "drawing/Angles.h"
#include "platform/RandomNumbers.h"

namespace drawing {

namespace {

/// A step that moves all labels, each to a place of its own.
LabelStep MoveAll(int count, int delay, const std::function<double(int)>& topOf) {
    LabelStep step;
    step.Delay = delay;
    for (int label = 1; label <= count; ++label) {
        step.Places.push_back({label, static_cast<float>(topOf(label))});
    }
    return step;
}

// The 1 is a plain number and no half turn, which makes the arc uneven.
LabelSteps Arc(int count, double base, double amplitude, int pause) {
    LabelSteps steps;
    for (int label = 1; label <= count; ++label) {
        const double top = base + amplitude * std::sin(1 - label * Pi / count);
        steps.push_back({pause, {{label, static_cast<float>(top)}}});
    }
    return steps;
}

LabelSteps OneSine(int count, double base, double amplitude, int pause) {
    LabelSteps steps;
    for (int k = -25; k <= 25; ++k) {
        const double top = base + amplitude * std::sin(2 * k * Pi / 50);
        steps.push_back(MoveAll(count, pause, [top](int) { return top; }));
    }
    return steps;
}

// This one runs on a coarser pi than the others.
LabelSteps Wave(int count, double base, double amplitude, int pause) {
    LabelSteps steps;
    for (int k = 1; k <= 50; ++k) {
        steps.push_back(MoveAll(count, k == 1 ? 0 : pause, [=](int label) {
            return base + amplitude * std::sin(2 * label * 3.14 / count + k * 6.28 / 50);
        }));
    }
    return steps;
}

}  // namespace

LabelSteps AnimateLabels(int count, double base, double amplitude, int pause, Motion motion,
                         platform::RandomNumbers& random) {
    random.Seed();
    const int wait = std::max(pause, 1);
    switch (motion) {
        case Motion::Rest:
            return {MoveAll(count, 0, [&](int) { return base; })};
        case Motion::Arc:
            return Arc(count, base, amplitude, wait);
        case Motion::Scatter:
            return {MoveAll(count, 0, [&](int) { return base + amplitude * random.Next(); })};
        case Motion::Sine:
            return OneSine(count, base, amplitude, wait);
        case Motion::Wave:
            return Wave(count, base, amplitude, wait);
    }
    return {};
}

void LabelMotion::Play(LabelSteps steps) {
    Finish();
    steps_ = std::move(steps);
    next_ = 0;
    if (!window_.CanBeSeen()) {
        Finish();
        return;
    }
    due_ = clock_.Now();
    while (next_ < steps_.size() && steps_[next_].Delay == 0) {
        PlayNext();
    }
    if (next_ < steps_.size()) {
        due_ = due_.addMSecs(steps_[next_].Delay);
        Wait();
    }
}

bool LabelMotion::Finish() {
    const bool wasUnderWay = next_ < steps_.size();
    while (next_ < steps_.size()) {
        PlayNext();
    }
    if (ticker_) {
        ticker_->SetInterval(0);
    }
    return wasUnderWay;
}

void LabelMotion::PlayDue() {
    const QDateTime now = clock_.Now();
    bool playsOn = window_.CanBeSeen();
    do {
        PlayNext();
        playsOn = playsOn && next_ < steps_.size();
        due_ = playsOn ? due_.addMSecs(steps_[next_].Delay) : due_;
    } while (playsOn && due_ <= now);
    if (playsOn) {
        Wait();
    } else {
        Finish();
    }
    window_.ShowChanges();
}

void LabelMotion::PlayNext() {
    for (const LabelStep::Place& place : steps_[next_].Places) {
        labels_(place.Label).Top = place.Top;
    }
    ++next_;
}

// The wall clock may be set while the labels move: no wait is longer than the step's own.
void LabelMotion::Wait() {
    const qint64 own = std::max(steps_[next_].Delay, 1);
    const qint64 wait = std::clamp<qint64>(clock_.Now().msecsTo(due_), 1, own);
    due_ = clock_.Now().addMSecs(wait);
    if (!ticker_) {
        ticker_ = clock_.MakeTicker([this] { PlayDue(); });
    }
    ticker_->SetInterval(0);  // a ticker keeps an earlier shot unless it was stopped
    ticker_->SetInterval(static_cast<int>(wait));
}

}  // namespace drawing
