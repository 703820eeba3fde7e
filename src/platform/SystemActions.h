#pragma once

#include <QString>
#include <functional>

namespace platform {

/// What a timer may do to the machine. Each answers an empty text, or the reason for a refusal.
class SystemActions {
public:
    virtual ~SystemActions() = default;
    /// Ends the session, or the machine's work: @p flags are those of the system's call of that
    /// name.
    virtual QString ExitWindowsEx(unsigned flags) = 0;
    virtual QString LockWorkStation() = 0;
    /// Opens a program, a document or an address as the desktop would, from a working folder.
    virtual QString Open(const QString& path, const QString& workingFolder) = 0;

    /// Does one of the above without keeping the caller waiting: @p action is called at once or in
    /// a thread of its own, and @p answer is given what it answered, then or from the event loop.
    virtual void Begin(const std::function<QString(SystemActions&)>& action,
                       const std::function<void(const QString& reason)>& answer) {
        answer(action(*this));
    }
};

}  // namespace platform
