#pragma once

#include <QString>

namespace shell {

/// The message line of the status bar: the newest message stands at the left, and the older ones
/// scroll away.
class StatusMessages {
public:
    /// Adds a message; one that the line already holds is not added again.
    void ShowStatusMsg(const QString& text);

    /// One step: while the line holds several messages, its left end moves on by a character.
    void Tick();

    void Clear() { panel_.clear(); }

    const QString& Panel() const { return panel_; }

private:
    QString panel_;
};

}  // namespace shell
