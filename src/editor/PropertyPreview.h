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

    /// Shows the records as they are, a record with another value, or the clock's own look. The
    /// clock is told only what it was not told last; one that has been opened anew was told
    /// nothing.
    void Show() { Send(Values(0, {})); }
    void Highlight(int record, const QString& value) { Send(Values(record, value)); }
    void End() { Send({}); }
    /// The clock has taken all of it, or has given itself its own look back.
    void Forget() { shown_ = {}; }

private:
    ClockProperties Values(int highlighted, const QString& value) const;
    void Send(const ClockProperties& values);

    const PropertyOwner& owner_;
    const PropertyRecords& records_;
    ClockProperties shown_;
    int shownBy_ = 0;  ///< the handle of the clock that shows them; 0 while there was none
};

}  // namespace editor
