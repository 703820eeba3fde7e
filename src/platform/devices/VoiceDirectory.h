#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

namespace platform {

/// Which voices the machine has, as far as it has told by now. All of its voices share one; this
/// one has none to tell. It keeps no listener alive: whoever listens keeps its own, and is
/// forgotten when that goes.
class VoiceDirectory {
public:
    /// Is called each time that something is news.
    using Listener = std::function<void()>;

    VoiceDirectory() = default;
    virtual ~VoiceDirectory() = default;
    Q_DISABLE_COPY_MOVE(VoiceDirectory)

    /// One for each voice; none while the machine has not told.
    virtual QStringList Descriptions() { return {}; }
    /// Whether an answer is still to come.
    virtual bool IsAsking() const { return false; }

    /// Calls @p listener, for as long as it lives, whenever the machine has told something.
    void Listen(std::weak_ptr<const Listener> listener) {
        listeners_.push_back(std::move(listener));
    }

protected:
    /// Calls all who still live, in the order in which they came.
    void TellNews() {
        std::erase_if(listeners_, [](const auto& listener) { return listener.expired(); });
        const auto told = listeners_;  // a listener may bring others
        for (const auto& each : told) {
            if (const auto listener = each.lock()) {
                (*listener)();
            }
        }
    }

private:
    std::vector<std::weak_ptr<const Listener>> listeners_;
};

}  // namespace platform
