#pragma once

#include <QString>
#include <memory>
#include <set>
#include <vector>

/// One line of a property file.
struct ClockProperty {
    QString Category;  ///< the part of the key before its first ":"; empty when there is none
    QString Name;      ///< the rest of the key, or the whole line when the line has no "="
    QString Value;     ///< everything behind the first "=", raw: with any "^", comma and choices

    bool operator==(const ClockProperty&) const = default;
};

/// The names that have been asked for, letter case as it was asked.
using AskedNames = std::set<QString>;

/// A property file in memory. Rows are numbered from 1; row 0 exists and stays empty. It is a value
/// and is copied whole when it passes between owners.
///
///     Clock:Clocks=Analogue,Analogue,Digital      row 1: {"Clock", "Clocks", "Analogue,..."}
///     Clock:Enable=Yes,Yes,No                     row 2: {"Clock", "Enable", "Yes,Yes,No"}
class ClockProperties {
public:
    /// Rows 0 and 1, both empty: what a reader resets an array to.
    ClockProperties() : rows_(2) {}

    /// The number of the last row that counts.
    int UpperBound() const { return static_cast<int>(rows_.size()) - 1; }

    void Reset() { rows_.assign(2, ClockProperty{}); }

    /// Gives the array the rows 0 to @p upperBound (at least 0), keeping what is in them.
    void Resize(int upperBound) { rows_.resize(static_cast<std::size_t>(upperBound) + 1); }

    /// A row from 0 to `UpperBound`; there is no check.
    ClockProperty& operator[](int row) { return rows_[static_cast<std::size_t>(row)]; }
    const ClockProperty& operator[](int row) const { return rows_[static_cast<std::size_t>(row)]; }

    /// Collects in @p names, from now on, what values are asked for by name in this array and in
    /// its copies: for those who check which keys a program goes by. It goes on when the array is
    /// given other rows.
    void CollectAskedNames(std::shared_ptr<AskedNames> names) { asked_.Names = std::move(names); }
    void NoteAsked(const QString& name) const {
        if (asked_.Names) {
            asked_.Names->insert(name);
        }
    }

    /// An array without rows whose names go to the same collection.
    ClockProperties EmptyOfItsKind() const {
        ClockProperties empty;
        empty.asked_ = asked_;
        return empty;
    }

    bool operator==(const ClockProperties& other) const { return rows_ == other.rows_; }

private:
    /// Where the names go. An array that has none leaves the other's when it is assigned.
    struct Collection {
        std::shared_ptr<AskedNames> Names;

        Collection() = default;
        Collection(const Collection&) = default;
        Collection& operator=(const Collection& other) {
            if (this != &other && other.Names) {
                Names = other.Names;
            }
            return *this;
        }
    };

    std::vector<ClockProperty> rows_;
    Collection asked_;
};
