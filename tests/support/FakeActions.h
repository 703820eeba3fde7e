#pragma once

#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

#include "platform/SystemActions.h"

/// System actions that are written down and not carried out.
class FakeActions final : public platform::SystemActions {
public:
    QString Refusal;    ///< what each call answers
    bool Slow = false;  ///< what is begun waits for `DoTheRest`
    QStringList Log;

    QString ExitWindowsEx(unsigned flags) override {
        return Note(QStringLiteral("exit %1").arg(flags));
    }
    QString LockWorkStation() override { return Note(QStringLiteral("lock")); }
    QString Open(const QString& path, const QString& workingFolder) override {
        return Note(QStringLiteral("open %1 in %2").arg(path, workingFolder));
    }
    void Begin(const std::function<QString(SystemActions&)>& action,
               const std::function<void(const QString&)>& answer) override {
        begun_.push_back([this, action, answer] { answer(action(*this)); });
        if (!Slow) {
            DoTheRest();
        }
    }
    void DoTheRest() {
        for (const auto& rest : std::exchange(begun_, {})) {
            rest();
        }
    }

private:
    QString Note(const QString& what) {
        Log += what;
        return Refusal;
    }

    std::vector<std::function<void()>> begun_;
};
