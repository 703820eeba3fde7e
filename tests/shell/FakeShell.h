#pragma once

#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

#include "foundation/Forms.h"

/// A shell that writes down what it is asked for, each as one line; a box that was not expected
/// fails the test.
struct FakeShell final : IShell {
    QStringList Log;
    std::vector<int> BoxAnswers;        ///< taken from the front
    std::function<void()> WhileAsking;  ///< what happens, once, while a box stands
    int Colour = 0;

    /// What was written down since the last time.
    QStringList Take() { return std::exchange(Log, {}); }

    void ShowStatusMsg(const QString& text) override { Log += text; }
    int ShowMsgbox(const QString& text, int flags, const QString& title) override {
        Log += QStringLiteral("box %1, %2: %3").arg(flags).arg(title, text);
        if (BoxAnswers.empty()) {
            qFatal("a box that the test did not expect: %s", qPrintable(text));
        }
        const int answer = BoxAnswers.front();
        BoxAnswers.erase(BoxAnswers.begin());
        if (WhileAsking) {
            std::exchange(WhileAsking, {})();
        }
        return answer;
    }
    int RefreshForm(const QString&) override { return 0; }
    void SpeakMessage(const QString& text) override { Log += QStringLiteral("speak ") + text; }
    void PurgeSpeech() override { Log += QStringLiteral("purge"); }
    void DoMenuItem(float, int) override {}
    int BackColor() const override { return Colour; }
    int LaunchTempolark(const QString& name) override {
        Log += QStringLiteral("launch ") + name;
        return 1;
    }
    QString Setting(const QString&) const override { return {}; }
    QString RemoveZone(const QString&) override { return {}; }
    void ShowClockHelp() override { Log += QStringLiteral("clock help"); }
    void OpenWindow(ShellWindow window) override {
        Log += QStringLiteral("open window %1").arg(static_cast<int>(window));
    }
    void SetAutoStart(const QString& name, bool on) override {
        Log += QStringLiteral("auto start %1 %2").arg(name).arg(on);
    }
};
