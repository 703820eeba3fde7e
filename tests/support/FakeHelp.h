#pragma once

#include <vector>

#include "platform/HelpViewer.h"

/// Keeps which help was asked for.
class FakeHelp final : public platform::HelpViewer {
public:
    struct Page {
        QString Path;
        int ContextNumber = 0;
        bool operator==(const Page&) const = default;
    };
    std::vector<Page> Pages;
    QString Refusal;  ///< what it answers

    QString Show(const QString& path, int contextNumber) override {
        Pages.push_back({path, contextNumber});
        return Refusal;
    }
};
