#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "foundation/Forms.h"

/// A shell that remembers what a window of properties asks it for; a box that was not expected
/// fails the test.
struct PropertyShell final : IShell {
    QStringList Messages, Boxes, Launched, Refreshed;
    std::vector<int> Answers;
    std::function<void()> OnBox = [] {};  ///< while a box stands open
    int LaunchHandle = 1;
    int Helps = 0;

    void ShowStatusMsg(const QString& text) override { Messages += text; }
    int ShowMsgbox(const QString& text, int flags, const QString& title) override {
        Boxes += QStringLiteral("%1|%2|%3").arg(text).arg(flags).arg(title);
        if (Answers.empty()) {
            qFatal("a box that the test did not expect: %s", qPrintable(text));
        }
        const int answer = Answers.front();
        Answers.erase(Answers.begin());
        OnBox();
        return answer;
    }
    int RefreshForm(const QString& zoneName) override {
        Refreshed += zoneName;
        return 0;
    }
    void SpeakMessage(const QString&) override {}
    void PurgeSpeech() override {}
    void DoMenuItem(float, int) override {}
    int BackColor() const override { return 0; }
    int LaunchTempolark(const QString& name) override {
        Launched += name;
        return LaunchHandle;
    }
    QString Setting(const QString&) const override { return {}; }
    QString RemoveZone(const QString&) override { return {}; }
    void ShowClockHelp() override { ++Helps; }
    void OpenWindow(ShellWindow) override {}
    void SetAutoStart(const QString&, bool) override {}
};
