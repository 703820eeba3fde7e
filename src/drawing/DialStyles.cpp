#include "drawing/DialStyles.h"

#include "foundation/Numbers.h"
#include "foundation/WordTable.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

using mduUILib::WordTable;
using Look = NumberStyle::Look;

/// What a word asks for; a text may hold several.
enum Marks : unsigned {
    None = 1,
    Minutes = 2,
    Hours = 4,
    Diagonals = 8,  // the hours between the quarters
    Quarters = 16,
    Level = 32,   // 3 and 9
    Upright = 64  // 6 and 12
};

// A longer word stands before one that it holds.
constexpr WordTable<Look, 4> Looks = {{{
    {"True Roman"_L1, Look::TrueRoman},
    {"Roman"_L1, Look::Roman},
    {"3D"_L1, Look::Digits3D},
    {"Number"_L1, Look::Caption},
}}};

constexpr WordTable<Marks, 4> Numbered = {{{
    {"12"_L1, Hours},
    {"Cross 4"_L1, Quarters},
    {"Horizontal 2"_L1, Level},
    {"Vertical 2"_L1, Upright},
}}};

constexpr auto NoNumbers = "No Numbers"_L1;

constexpr WordTable<Marks, 7> Spots = {{{
    {"No Spots"_L1, None},
    {"Spot 8"_L1, Diagonals},
    {"Spot 12"_L1, Hours},
    {"Spot 60"_L1, Minutes},
    {"Cross 4"_L1, Quarters},
    {"Horizontal 2"_L1, Level},
    {"Vertical 2"_L1, Upright},
}}};

template <std::size_t Count>
unsigned MarksIn(const QString& text, const WordTable<Marks, Count>& table) {
    unsigned marks = 0;
    for (const auto& row : table.Rows) {
        marks |= text.contains(row.Word, Qt::CaseInsensitive) ? row.Value : 0U;
    }
    return marks;
}

/// What there is at an hour.
unsigned MarksAt(int hour) {
    const bool level = hour == 3 || hour == 9;
    const bool upright = hour == 6 || hour == 12;
    return Hours | (level     ? Quarters | Level
                    : upright ? Quarters | Upright
                              : static_cast<unsigned>(Diagonals));
}

Look LookOf(const QString& text) {
    for (const auto& row : Looks.Rows) {
        if (text.contains(row.Word, Qt::CaseInsensitive)) {
            return row.Value;
        }
    }
    return Look::Caption;
}

}  // namespace

NumberStyle::NumberStyle(const QString& text)
    : text_(text.trimmed()),
      look_(LookOf(text_)),
      isNone_(text_.compare(NoNumbers, Qt::CaseInsensitive) == 0),
      hasShadow_(text_.contains("3D"_L1, Qt::CaseInsensitive)) {}

bool NumberStyle::IsNumbered(int index) const {
    const int hour = mduAPILib::RoundToInteger(index / 5.0);
    return !isNone_ && (MarksIn(text_, Numbered) & MarksAt(hour)) != 0;
}

bool NumberStyle::ShowsCaption(int hour) const {
    const QString hidingStyles = hour == 6 || hour == 12 ? u"Number Horizontal 2,No Numbers"_s
                                 : hour == 3 || hour == 9
                                     ? u"Number Vertical 2,No Numbers"_s
                                     : u"Number Horizontal 2,Number Vertical 2,Number Cross 4,"
                                       "No Numbers"_s;
    return !hidingStyles.contains(text_, Qt::CaseInsensitive);
}

QStringList NumberStyleNames() {
    QStringList names;
    for (const QString& look : Looks.Words()) {
        for (const QString& numbers : Numbered.Words()) {
            names += look + u' ' + numbers;
        }
    }
    return names + QStringList(NoNumbers);
}

SpotStyle::SpotStyle(const QString& text) : words_(MarksIn(text, Spots)) {}

bool SpotStyle::Wants(int index) const {
    if (words_ & None) {
        return false;
    }
    if (words_ & Minutes) {
        return true;
    }
    return index % 5 == 0 && (words_ & MarksAt(index / 5)) != 0;
}

QStringList SpotStyleNames() {
    return Spots.Words();
}

}  // namespace drawing
