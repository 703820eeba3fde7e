#include "timezones/ZoneEdition.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

/// The last day on which that edition is likely to have come out; an invalid date for a text that
/// names none. edition = year letters, and a patch's mark behind them
QDate LatestIssue(const QString& edition) {
    static const QRegularExpression form(u"^(\\d{4})([a-z]+)"_s);
    const QRegularExpressionMatch match = form.match(edition);
    if (!match.hasMatch()) {
        return {};
    }
    const int year = match.captured(1).toInt();
    const QString letter = match.captured(2);
    return letter == "a"_L1   ? QDate(year, 4, 30)
           : letter == "b"_L1 ? QDate(year, 10, 31)
                              : QDate(year, 12, 31);
}

}  // namespace

bool IsOldEdition(const QString& edition, const QDate& today) {
    const QDate issue = LatestIssue(edition);
    return issue.isValid() && today > issue.addYears(1);
}

QString EditionText(const QString& edition) {
    return u"Time zone database: "_s +
           (edition.isEmpty() ? u"of an unknown edition"_s : u"edition "_s + edition);
}

QString OldEditionNotice(const QString& edition, const QDate& today) {
    if (!IsOldEdition(edition, today)) {
        return {};
    }
    return u"The time zone database of this machine (edition %1) is older than a year: clocks may "
           "be wrong. The package tzdata brings a new one"_s.arg(edition);
}

}  // namespace mduTimeZones
