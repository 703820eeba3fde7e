#pragma once

#include <functional>

#include "platform/Files.h"
#include "platform/HelpViewer.h"

namespace platform {

/// The help as pages in the desktop's browser.
class DesktopHelp final : public HelpViewer {
public:
    /// Opens a file. Answers an empty text, or why it could not be done.
    using Opener = std::function<QString(const QString& file)>;

    /// @param open what a page is opened with; the desktop's own program for it when it is empty
    explicit DesktopHelp(const Files& files, Opener open = {});

    QString Show(const QString& path, int contextNumber) override;

private:
    const Files& files_;
    Opener open_;
};

}  // namespace platform
