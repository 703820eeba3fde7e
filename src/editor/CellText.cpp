#include "editor/CellText.h"

#include <cmath>

#include "foundation/Dates.h"
#include "foundation/Numbers.h"

namespace editor {

namespace {

constexpr double LargestNumber = 1e15;  ///< up to there every unit is told from the next

QString NumberText(double number, bool hasPoint) {
    const QString text = QString::number(number, 'f', hasPoint ? 2 : 0);
    const bool isZero = mduAPILib::Val(text) == 0.0;
    return isZero && text.startsWith(u'-') ? text.mid(1) : text;
}

std::optional<QString> SpunDate(const QString& text, int days, int presentYear) {
    const auto moment = mduAPILib::ParseMoment(text, presentYear);
    if (!moment || !moment->HasDate) {
        return std::nullopt;
    }
    const QDateTime spun = moment->Moment.addDays(days);
    const QDate date = spun.date();
    if (!mduAPILib::ValidDate(date.day(), date.month(), date.year())) {
        return std::nullopt;
    }
    return moment->HasTime ? mduAPILib::MomentText(spun) : mduAPILib::ShortDate(date);
}

}  // namespace

QString FormattedNumber(const QString& text) {
    QString trimmed = text.trimmed();
    const double number = mduAPILib::Val(trimmed);
    if (!mduAPILib::IsNumeric(trimmed) || std::abs(number) >= LargestNumber) {
        return trimmed;
    }
    return NumberText(number, trimmed.contains(u'.'));
}

std::optional<QString> SpunText(const QString& text, int step, int presentYear) {
    const QString trimmed = text.trimmed();
    if (!mduAPILib::IsNumeric(trimmed)) {
        return SpunDate(trimmed, step, presentYear);
    }
    const double spun = mduAPILib::Val(trimmed) + step;
    if (std::abs(spun) >= LargestNumber) {
        return std::nullopt;
    }
    return NumberText(spun, trimmed.contains(u'.'));
}

}  // namespace editor
