#include "shell/StatusMessages.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

const QString Separator = u" << "_s;

}  // namespace

void StatusMessages::ShowStatusMsg(const QString& text) {
    if (panel_.isEmpty()) {
        panel_ = text;
    } else if (!panel_.contains(text)) {
        panel_ = text + Separator + panel_;
    }
}

void StatusMessages::Tick() {
    if (panel_.startsWith(Separator)) {
        panel_.remove(0, Separator.size());
    } else if (panel_.contains(Separator)) {
        panel_.remove(0, 1);
    }
}

}  // namespace shell
