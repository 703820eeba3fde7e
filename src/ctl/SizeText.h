#pragma once

#include <QSize>
#include <QString>
#include <optional>

namespace ctl {

/// "300x200" as a size, 1 to 16000 pixels each way; nothing for any other text.
std::optional<QSize> ReadSize(const QString& text);

}  // namespace ctl
