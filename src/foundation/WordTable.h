#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

namespace mduUILib {

/// A closed list of a property's words, each with what it stands for. The words are exact, blanks
/// around one aside; the table's order is that of its rows.
///
///     constexpr WordTable<int, 2> Borders = {{{{"No Border"_L1, 1}, {"Classic"_L1, 7}}}};
///     Borders.Find(u" Classic ")   // 7
///     Borders.Find(u"classic")     // nothing
template <class Meaning, std::size_t Count>
struct WordTable {
    /// A word as it is written, and what it stands for. Words may share a meaning.
    struct Row {
        QLatin1StringView Word;
        Meaning Value;
    };
    std::array<Row, Count> Rows;

    /// The meaning of the first row with exactly this word, letter case and inner blanks included;
    /// nothing for any other text. Callers choose what that means, mostly with `value_or`.
    std::optional<Meaning> Find(QStringView text) const {
        const QStringView word = text.trimmed();
        for (const Row& row : Rows) {
            if (word == row.Word) {
                return row.Value;
            }
        }
        return std::nullopt;
    }

    /// The first word with that meaning; empty when there is none.
    QString NameOf(const Meaning& value) const {
        for (const Row& row : Rows) {
            if (row.Value == value) {
                return row.Word;
            }
        }
        return {};
    }

    /// All words in the order of the rows, as a menu lists them.
    QStringList Words() const {
        QStringList words;
        for (const Row& row : Rows) {
            words += row.Word;
        }
        return words;
    }
};

}  // namespace mduUILib
