#pragma once

#include <QString>
#include <vector>

/// One line of a property file.
struct ClockProperty {
    QString Category;  ///< the part of the key before its first ":"; empty when there is none
    QString Name;      ///< the rest of the key, or the whole line when the line has no "="
    QString Value;     ///< everything behind the first "=", raw: with any "^", comma and choices

    bool operator==(const ClockProperty&) const = default;
};

/// A property file in memory. Rows are numbered from 1; row 0 exists and stays empty. It is a value
/// and is copied whole when it passes between owners.
class ClockProperties {
public:
    /// Rows 0 and 1, both empty: what a reader resets an array to.
    ClockProperties() : rows_(2) {}

    /// The number of the last row that counts.
    int UpperBound() const { return static_cast<int>(rows_.size()) - 1; }

    void Reset() { rows_.assign(2, ClockProperty{}); }

    /// Gives the array the rows 0 to @p upperBound (at least 0), keeping what is in them.
    void Resize(int upperBound) { rows_.resize(static_cast<std::size_t>(upperBound) + 1); }

    ClockProperty& operator[](int row) { return rows_[static_cast<std::size_t>(row)]; }
    const ClockProperty& operator[](int row) const { return rows_[static_cast<std::size_t>(row)]; }

    bool operator==(const ClockProperties&) const = default;

private:
    std::vector<ClockProperty> rows_;
};
