#include "drawing/BackgroundWipe.h"

#include <QPainter>
#include <algorithm>

#include "foundation/Numbers.h"

namespace drawing {

namespace {

constexpr int StepTime = 16;      // milliseconds
constexpr double WipeTime = 500;  // milliseconds
constexpr int BandLines = 20;
constexpr int Blinds = 24;  // columns of mode 5

int PartOf(int extent, double part) {
    return mduAPILib::RoundToInteger(extent * std::clamp(part, 0.0, 1.0));
}

/// Every second column of mode 5, by a height from the top or from below.
QRegion Blind(int first, const QSize& size, int height, bool fromTop) {
    QRegion region;
    for (int i = first; i < Blinds; i += 2) {
        const int left = size.width() * i / Blinds;
        const int right = size.width() * (i + 1) / Blinds;
        region += QRect(left, fromTop ? 0 : size.height() - height, right - left, height);
    }
    return region;
}

QRegion RevealedBlinds(const QSize& size, double part) {
    return Blind(0, size, PartOf(size.height(), part * 2), true) +
           Blind(1, size, PartOf(size.height(), part * 2 - 1), false);
}

bool IsByColumns(int mode) {
    return mode == 2 || mode == 4;
}

}  // namespace

QRegion WipeRevealed(int mode, const QSize& size, double part) {
    const QRect rows(0, 0, size.width(), PartOf(size.height(), part));
    const QRect columns(0, 0, PartOf(size.width(), part), size.height());
    if (IsByColumns(mode)) {
        return columns;
    }
    if (mode == 3) {
        return QRegion(rows) + columns;
    }
    return mode == 5 ? RevealedBlinds(size, part) : QRegion(rows);
}

void PaintWipeBand(QPainter& painter, int mode, const QSize& size, double part,
                   double devicePixelRatio) {
    if (part <= 0 || part >= 1 || mode == 3 || mode == 4 || mode == 5) {
        return;
    }
    const bool columns = IsByColumns(mode);
    const int edge = PartOf(columns ? size.width() : size.height(), part);
    for (int k = 1; k <= BandLines; ++k) {
        const int from = edge + mduAPILib::RoundToInteger((k - 1) * devicePixelRatio);
        const int to = edge + mduAPILib::RoundToInteger(k * devicePixelRatio);
        const int grey = std::min(255, 10 * k + 30);
        painter.fillRect(columns ? QRect(from, 0, to - from, size.height())
                                 : QRect(0, from, size.width(), to - from),
                         QColor(grey, grey, grey));
    }
}

BackgroundWipe::BackgroundWipe(platform::WallClock& clock, std::function<void()> onStep)
    : clock_(clock), onStep_(std::move(onStep)) {}

void BackgroundWipe::Start(int mode) {
    mode_ = mode;
    part_ = 0;
    steps_ = 0;
    started_ = clock_.Now();
    underWay_ = true;
    if (!ticker_) {
        ticker_ = clock_.MakeTicker([this] { Step(); });
    }
    ticker_->SetInterval(StepTime);
}

void BackgroundWipe::Stop() {
    underWay_ = false;
    if (ticker_) {
        ticker_->SetInterval(0);
    }
}

// By the clock, so that slow steps become fewer; and by the number of steps, should the clock be
// set back meanwhile.
void BackgroundWipe::Step() {
    if (!underWay_) {
        return;
    }
    ++steps_;
    const auto elapsed = static_cast<double>(started_.msecsTo(clock_.Now()));
    part_ = std::min(1.0, std::max({part_, elapsed / WipeTime, steps_ * StepTime / WipeTime}));
    if (part_ >= 1) {
        Stop();
    }
    onStep_();
}

}  // namespace drawing
