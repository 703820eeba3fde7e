#include "clock/ui/WindowReveal.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <algorithm>

#include "clock/ui/WindowOutline.h"

namespace clockcore {

namespace {

constexpr int StepInterval = 15;  // milliseconds

/// The last sight of a window that has gone.
class Afterimage final : public QWidget {
public:
    Afterimage(const QWidget& window, platform::WallClock& clock)
        : QWidget(window.parentWidget()),
          sight_(const_cast<QWidget&>(window).grab()),
          outline_(*this),
          shrink_(clock, [this](double passed) { Shrink(passed); }) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(window.geometry());
        outline_.SetFigure(window.mask());
    }

    void Start(int milliseconds) {
        show();
        raise();
        shrink_.Start(milliseconds);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, sight_); }

private:
    void Shrink(double passed) {
        outline_.SetRevealed(1 - passed);
        if (passed >= 1) {
            hide();
            deleteLater();
        }
    }

    QPixmap sight_;
    WindowOutline outline_;
    WindowReveal shrink_;
};

}  // namespace

WindowReveal::WindowReveal(platform::WallClock& clock, std::function<void(double)> step)
    : clock_(clock), step_(std::move(step)), ticker_(clock.MakeTicker([this] { Step(); })) {}

void WindowReveal::Start(int milliseconds) {
    milliseconds_ = std::min(milliseconds, LongestReveal);
    started_ = clock_.Now();
    step_(0);
    ticker_->SetInterval(StepInterval);
}

// A clock that was set back must not hold the window.
void WindowReveal::Step() {
    const qint64 passed = started_.msecsTo(clock_.Now());
    if (passed < 0 || passed >= milliseconds_) {
        Finish();
    } else {
        step_(static_cast<double>(passed) / milliseconds_);
    }
}

void WindowReveal::Finish() {
    if (IsRunning()) {
        ticker_->SetInterval(0);
        step_(1);
    }
}

void ShowShrinking(const QWidget& window, platform::WallClock& clock, int milliseconds) {
    if (window.parentWidget() != nullptr && window.isVisible()) {
        (new Afterimage(window, clock))->Start(milliseconds);
    }
}

}  // namespace clockcore
