#pragma once

#include <QString>
#include <QVariant>

namespace platform {

/// The settings store that stands in for the registry: the same keys and values. A key is a path
/// of names with "/" between them; the names of its values are looked up below it.
///
///     store.SetValue(u"A/B"_s, u"C"_s, 7);    // kept as 7, or as the text "7"
///     store.Value(u"A/B"_s, u"C"_s).toInt();  // 7
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// What is kept under that name; invalid when there is nothing.
    virtual QVariant Value(const QString& key, const QString& name) const = 0;
    /// @return false when the value can't be kept: the next run then finds what was there before
    virtual bool SetValue(const QString& key, const QString& name, const QVariant& value) = 0;
    /// A value that is not there is removed already.
    virtual void Remove(const QString& key, const QString& name) = 0;
};

}  // namespace platform
