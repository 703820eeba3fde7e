#include "editor/TypeAhead.h"

#include <algorithm>

#include "editor/ItemSearch.h"
#include "platform/WallClock.h"

namespace editor {

TypeAhead::TypeAhead(platform::WallClock& clock) : timer_(clock.MakeTicker([this] { End(); })) {}

TypeAhead::~TypeAhead() = default;

int TypeAhead::Typed(const QString& character, const QString& text, const QStringList& items) {
    timer_->SetInterval(0);  // a shot that is due sooner would come otherwise
    timer_->SetInterval(std::max(wait_, 0));
    typedText_ += character;
    listItem_ = FindItemBeginning(items, text);
    return listItem_;
}

void TypeAhead::End() {
    timer_->SetInterval(0);
    typedText_.clear();
    listItem_ = -1;
}

}  // namespace editor
