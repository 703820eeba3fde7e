#pragma once

#include <QString>

namespace shell {

/// The message line of the status bar: the newest message stands at the left, in front of the older
/// ones.
///
///     StatusMessages line;
///     line.ShowStatusMsg("One");
///     line.ShowStatusMsg("Two");  // "Two << One"
///     line.Tick();                // "wo << One", and at last "One", which stays
class StatusMessages {
public:
    /// Adds a message in front. One that the line already holds is not added again, be it a part of
    /// another message; nor is an empty one.
    void ShowStatusMsg(const QString& text);

    /// One step: while the line holds several messages, its left end moves on by a character, so
    /// that the newest is the first to go and the oldest stays.
    void Tick();

    /// Empties the line; nothing else takes the last message away.
    void Clear() { panel_.clear(); }

    const QString& Panel() const { return panel_; }

private:
    QString panel_;
};

}  // namespace shell
