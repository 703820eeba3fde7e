#pragma once

#include <QHash>
#include <QString>
#include <utility>

#include "foundation/ClockProperty.h"

namespace editor {

/// The values that a default file gives.
class PropertyDefaults {
public:
    PropertyDefaults() = default;
    explicit PropertyDefaults(const ClockProperties& defaults);

    /// The default's record of the same key and category, else of the same key; its number, 0 where
    /// there is none.
    int RowOf(const ClockProperty& record) const;
    /// The whole value that the default gives, without a leading "^"; empty where it has none.
    QString ValueOf(const ClockProperty& record) const;
    /// Whether there is a value for a record. An empty one is none for a key of the time zone,
    /// which is each clock's own.
    bool Gives(const ClockProperty& record) const;
    /// Whether a record shows something else than the default gives; false where it gives nothing.
    bool Differs(const ClockProperty& record) const;

    /// The records with the defaults' values and choices in the place of their own. A key that
    /// only the defaults have comes behind them; one for which they give nothing stays as it is.
    ClockProperties MergedOver(const ClockProperties& properties) const;

private:
    ClockProperties defaults_;
    QHash<std::pair<QString, QString>, int> rows_;  ///< by category and key, in small letters
    QHash<QString, int> rowsOfName_;
};

}  // namespace editor
