#pragma once

#include <QString>

namespace platform {

/// Shows the page of a context number. Answers an empty text, or why there is nothing to be seen.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    /// @param path the file of the help, a native path
    virtual QString Show(const QString& path, int contextNumber) = 0;
};

}  // namespace platform
