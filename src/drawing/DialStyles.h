#pragma once

#include <QString>
#include <QStringList>

/// Which numbers and which spots a dial has, and how the numbers look. The words are sought
/// anywhere in a property's text, letter case aside, so that "roman cross 4" reads as well.
///
/// An index runs from 1 to 60 and stands at that minute, 60 at twelve o'clock; an hour runs from 1
/// to 12 and stands at index hour * 5.
namespace drawing {

/// What an "Hour Number Style" says: a look ("True Roman", "Roman", "3D", sought in this order;
/// else captions) and which numbers there are ("12", "Cross 4", "Horizontal 2", "Vertical 2"). A
/// text without a word of the second kind numbers nothing, nor does "No Numbers".
class NumberStyle {
public:
    enum class Look { Caption, Roman, TrueRoman, Digits3D };

    explicit NumberStyle(const QString& text);

    Look NumberLook() const { return look_; }
    bool IsPainted() const { return look_ != Look::Caption; }
    bool HasShadow() const { return hasShadow_; }  ///< the text holds "3D"

    /// Whether an index takes part. Those between the hours go with the nearest hour, half to even:
    /// with "Cross 4" the indexes 13 to 17 take part with hour 3.
    bool IsNumbered(int index) const;

    /// Whether the caption of an hour may be seen.
    bool ShowsCaption(int hour) const;

private:
    QString text_;
    Look look_;
    bool isNone_;
    bool hasShadow_;
};

QStringList NumberStyleNames();  ///< all that a menu offers, "No Numbers" last

/// What a "Minute Spot Style" says: "Spot 60" wants a spot at each minute, "Spot 12" at each hour,
/// "Spot 8" at the hours but for 3, 6, 9 and 12, "Cross 4" at these, "Horizontal 2" at 3 and 9,
/// "Vertical 2" at 6 and 12. Several words add up; "No Spots", or no word at all, wants none.
class SpotStyle {
public:
    SpotStyle() = default;
    explicit SpotStyle(const QString& text);

    bool Wants(int index) const;

    bool operator==(const SpotStyle&) const = default;

private:
    unsigned words_ = 0;  ///< a bit for each word that the text holds
};

QStringList SpotStyleNames();

}  // namespace drawing
