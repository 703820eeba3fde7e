#include "timezones/ZoneSearch.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace mduTimeZones {

namespace {

// Letters that are no letter with an accent.
constexpr std::pair<char16_t, char16_t> plainLetters[] = {
    {u'ø', u'o'}, {u'ł', u'l'},       {u'đ', u'd'},      {u'ð', u'd'},
    {u'ı', u'i'}, {u'\u2019', u'\''}, {u'\u02BB', u'\''}};

QChar PlainLetter(QChar letter) {
    for (const auto& [from, to] : plainLetters) {
        if (letter == from) {
            return to;
        }
    }
    return letter;
}

/// All ways to write the offset; GMT itself is written with either sign.
QString OffsetTexts(float hoursWest) {
    const int east = mduAPILib::RoundToInteger(static_cast<double>(hoursWest) * -60);
    const int size = std::abs(east);
    const QString minutes = QString::number(size % 60).rightJustified(2, u'0');
    QString texts;
    for (const QChar sign : {u'+', u'-'}) {
        if (east != 0 && (east > 0) != (sign == u'+')) {
            continue;
        }
        for (const int width : {1, 2}) {
            const QString offset =
                sign + QString::number(size / 60).rightJustified(width, u'0') + u':' + minutes;
            texts += u" gmt"_s + offset + u" utc"_s + offset;
        }
    }
    return texts;
}

}  // namespace

QString FoldForSearch(const QString& text) {
    QString folded;
    folded.reserve(text.size());
    for (const QChar character : text.toLower().normalized(QString::NormalizationForm_KD)) {
        if (!character.isMark()) {
            folded += PlainLetter(character);
        }
    }
    return folded;
}

QString ZoneSearchText(const TimeZoneRecord& record, const QStringList& countries) {
    const QString names = record.StandardName + u' ' + record.DaylightName + u' ' +
                          record.DisplayName + u' ' + countries.join(u' ');
    return FoldForSearch(names) + OffsetTexts(record.CurrentGMTHours);
}

QStringList SearchWords(const QString& typed) {
    return FoldForSearch(typed).simplified().split(u' ', Qt::SkipEmptyParts);
}

int MatchRank(const QString& name, const QString& displayName, const QStringList& words) {
    const QString typed = words.join(u' ');
    const QString folded = FoldForSearch(name);
    if (folded == typed) {
        return 0;
    }
    if (folded.startsWith(typed)) {
        return folded[typed.size()].isLetterOrNumber() ? 2 : 1;
    }
    if (folded.contains(u' ' + typed)) {
        return 3;
    }
    return FoldForSearch(displayName).contains(u' ' + typed) ? 4 : 5;
}

bool IsFound(const QString& searchText, const QStringList& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return searchText.contains(word); });
}

}  // namespace mduTimeZones
