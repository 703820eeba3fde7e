#include "ctl/SizeText.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace ctl {

std::optional<QSize> ReadSize(const QString& text) {
    constexpr int largest = 16000;
    static const QRegularExpression form(u"^(\\d{1,5})x(\\d{1,5})$"_s);
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool fits = size.width() >= 1 && size.height() >= 1 && size.width() <= largest &&
                      size.height() <= largest;
    return match.hasMatch() && fits ? std::optional(size) : std::nullopt;
}

}  // namespace ctl
