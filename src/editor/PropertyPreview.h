#pragma once

#include "editor/PropertyOwner.h"
#include "editor/PropertyRecords.h"

namespace editor {

/// The live picture: the owner's clock shows what the window shows, be it stored or not, and the
/// entry that stands highlighted in an open list. Nothing is stored by it.
class PropertyPreview {
public:
    /// Both outlive this.
    PropertyPreview(const PropertyOwner& owner, const PropertyRecords& records)
        : owner_(owner), records_(records) {}

    /// Shows a record with another value, until the next call; 0 ends that.
    void Highlight(int record, const QString& value);
    /// Shows the records as they are. The clock is told only what it was not told last.
    void Show();
    /// The clock has been given all of it, or has its own look back.
    void Forget() { shown_ = {}; }
    /// Gives the clock its own look back.
    void End();

    /// What the clock is to show in the place of what it has stored.
    ClockProperties Values() const;

private:
    void Send(const ClockProperties& values);

    const PropertyOwner& owner_;
    const PropertyRecords& records_;
    int highlighted_ = 0;
    QString highlightedValue_;
    ClockProperties shown_;
};

}  // namespace editor
