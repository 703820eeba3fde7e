#pragma once

#include "platform/OneProgram.h"

/// Answers what it is told to, and lets a test be the later start.
class FakeOneProgram final : public platform::OneProgram {
public:
    Outcome Answer;
    QStringList CommandLines;  ///< those that were claimed with
    std::function<void(const QString&)> LaterStart;

    Outcome Claim(const QString& commandLine) override {
        CommandLines += commandLine;
        return Answer;
    }
    QString Listen(std::function<void(const QString&)> onCommandLine) override {
        LaterStart = std::move(onCommandLine);
        return {};
    }
};
