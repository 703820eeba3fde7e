#pragma once

#include <QProcess>
#include <memory>

namespace platform {

/// A helper process that is never waited for while the program runs. One that still lives when this
/// object goes is killed, and waited for a second at most. What it writes to the standard error is
/// dropped.
class ChildProcess final : public QProcess {
public:
    ChildProcess();
    ~ChildProcess() override;
    Q_DISABLE_COPY_MOVE(ChildProcess)
};

/// Kills a process without waiting for its end, which is cleared up from the event loop; nothing of
/// it is heard any more. Null is let be.
void LetGo(std::unique_ptr<ChildProcess> process);

}  // namespace platform
