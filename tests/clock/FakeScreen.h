#pragma once

#include <QStringList>
#include <vector>

#include "clock/ClockScreen.h"

/// A screen of a clock without a window, each answer open to the test.
class FakeScreen final : public clockcore::ClockScreen {
public:
    QSize Extent{60, 40};  ///< logical pixels
    double Ratio = 1;
    bool MDIChild = true, InSight = true;
    int ShellColour = 0x804020;
    std::vector<QRegion> Updates;
    QStringList Status;
    IShell* TheShell = nullptr;

    QSize Size() const override { return Extent; }
    double DevicePixelRatio() const override { return Ratio; }
    void Update(const QRegion& part) override { Updates.push_back(part); }
    bool IsMDIChild() const override { return MDIChild; }
    bool IsInSight() const override { return InSight; }
    int ShellBackColor() const override { return ShellColour; }
    IShell* Shell() const override { return TheShell; }
    void ShowStatus(const QString& text) override { Status += text; }
};
