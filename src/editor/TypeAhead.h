#pragma once

#include <QStringList>
#include <memory>

namespace platform {
class Ticker;
class WallClock;
}  // namespace platform

namespace editor {

/// Type-ahead in a line with a list. Keys that follow each other within the time are one burst;
/// during it the entry that begins with the text in the line stands selected in the list.
class TypeAhead {
public:
    explicit TypeAhead(platform::WallClock& clock);
    ~TypeAhead();
    Q_DISABLE_COPY_MOVE(TypeAhead)

    /// How long a burst waits for its next key, in milliseconds. From the next key on; 0 or less
    /// lets it wait for ever.
    void SetTypeCheckingTime(int milliseconds) { wait_ = milliseconds; }

    /// A character has been typed, which starts the wait anew.
    /// @param text what stands in the line now, without anything completed
    /// @return the place of the entry that begins with it; -1 where there is none
    int Typed(const QString& character, const QString& text, const QStringList& items);

    /// Ends the burst: the list is let go of, the line keeps its text.
    void End();

    const QString& TypedText() const { return typedText_; }  ///< the characters of the burst
    int ListItem() const { return listItem_; }  ///< the entry that stands selected; -1 for none

private:
    static constexpr int DefaultWait = 800;  // milliseconds

    std::unique_ptr<platform::Ticker> timer_;  ///< `TimerTypeahead`
    int wait_ = DefaultWait;
    QString typedText_;
    int listItem_ = -1;
};

}  // namespace editor
