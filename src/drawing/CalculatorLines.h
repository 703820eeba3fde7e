#pragma once

#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"

namespace drawing {

/// The calculator: the local time and the same moment in the clock's zone, converted both ways.
class CalculatorLines final : public CalculatorClock {
public:
    explicit CalculatorLines(const FaceContext& face) : face_(face) {}

    void DrawCalculatorClock() override;
    void SetCalculatorClock(bool fill) override;
    void SetCalculatorLayout() override;
    void HideCalculatorClock() override;
    void BeginInput() override;
    bool EditCalculatorKey(int keyCode) override;

private:
    FaceContext face_;
};

}  // namespace drawing
