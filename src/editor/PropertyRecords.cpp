#include "editor/PropertyRecords.h"

#include <QUndoCommand>

#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

/// Keys that change by themselves while a window is open.
const QStringList& QuietKeys() {
    static const QStringList keys = PlaceKeys() + QStringList{u"Time Zone Standard Name"_s};
    return keys;
}

std::vector<int> NamedRows(const ClockProperties& properties) {
    return mduLib::SortPropertyRows(properties, 0, 0);
}

bool IsSameKey(const ClockProperty& first, const ClockProperty& second) {
    return first.Name == second.Name && first.Category == second.Category;
}

bool HaveSameKeys(const ClockProperties& first, const ClockProperties& second) {
    const std::vector<int> rows = NamedRows(first);
    const std::vector<int> others = NamedRows(second);
    return std::equal(rows.begin(), rows.end(), others.begin(), others.end(),
                      [&](int row, int other) { return IsSameKey(first[row], second[other]); });
}

void Put(const QString& name, const QString& value, ClockProperties& properties) {
    if (const int row = mduLib::FindPropertyRow(name, properties); row != 0) {
        properties[row].Value = value;
    }
}

/// Nothing where the key has no row.
std::optional<QString> ValueOf(const QString& name, const ClockProperties& properties) {
    const int row = mduLib::FindPropertyRow(name, properties);
    return row == 0 ? std::nullopt : std::optional(properties[row].Value);
}

constexpr int NeverMerges = -1;

}  // namespace

/// Another value for one record.
class ValueCommand final : public QUndoCommand {
public:
    /// @param visit commits of one visit merge; `NeverMerges` for a command that stands alone
    ValueCommand(PropertyRecords& records, int record, const QString& value, int visit,
                 const QString& commandText)
        : QUndoCommand(commandText),
          records_(records),
          record_(record),
          visit_(visit),
          before_(records.Now()[record].Value),
          after_(value) {}

    void undo() override { records_.SetValue(record_, before_); }
    void redo() override { records_.SetValue(record_, after_); }
    int id() const override { return visit_; }

    bool mergeWith(const QUndoCommand* later) override {
        const auto* next = dynamic_cast<const ValueCommand*>(later);
        if (next == nullptr || next->record_ != record_) {
            return false;
        }
        after_ = next->after_;
        setObsolete(after_ == before_);
        return true;
    }

private:
    PropertyRecords& records_;
    int record_;
    int visit_;
    QString before_;
    QString after_;
};

/// Other records in the place of all.
class ListCommand final : public QUndoCommand {
public:
    ListCommand(PropertyRecords& records, const ClockProperties& properties,
                const QString& commandText)
        : QUndoCommand(commandText),
          records_(records),
          before_(records.Now()),
          after_(properties) {}

    void undo() override { records_.SetAll(before_, after_); }
    void redo() override { records_.SetAll(after_, before_); }

private:
    PropertyRecords& records_;
    ClockProperties before_;
    ClockProperties after_;
};

const QStringList& PlaceKeys() {
    static const QStringList keys = {u"Window Top"_s, u"Window Left"_s, u"Window Width"_s,
                                     u"Window Height"_s, u"Window State"_s};
    return keys;
}

RowCommit PropertyRecords::Commit(int record, const QString& cell) {
    if (!HasRecord(now_, record)) {
        return {cell, false};
    }
    ClockProperties alone;
    alone[1] = now_[record];
    RowCommit commit = CommitRow(alone, 1, cell);
    if (commit.Dirty) {
        undo_.push(new ValueCommand(*this, record, alone[1].Value, visit_,
                                    u"Change "_s + alone[1].Name.trimmed()));
    }
    return commit;
}

void PropertyRecords::PutValue(int record, const QString& value, const QString& commandText) {
    if (HasRecord(now_, record) && now_[record].Value != value) {
        undo_.push(new ValueCommand(*this, record, value, NeverMerges, commandText));
    }
}

void PropertyRecords::Replace(const ClockProperties& properties, const QString& commandText) {
    if (properties != now_) {
        undo_.push(new ListCommand(*this, properties, commandText));
    }
}

void PropertyRecords::PutQuietly(const QString& name, const QString& value) {
    const int record = mduLib::FindPropertyRow(name, now_);
    mduLib::PutProperty(name, value, now_);
    mduLib::PutProperty(name, value, written_);
    changed_(record);
}

// A row that is added has a gap before it, see `mduLib::PutProperty`.
void PropertyRecords::DropQuietly(const QString& name) {
    for (ClockProperties* properties : {&now_, &written_}) {
        const int last = properties->UpperBound();
        if (last > 2 && mduLib::FindPropertyRow(name, *properties) == last) {
            properties->Resize(last - 2);
        }
    }
    changed_(0);
}

bool PropertyRecords::Follow(const ClockProperties& file) {
    if (!HaveSameKeys(written_, file)) {
        return false;
    }
    const std::vector<int> rows = NamedRows(file);
    std::size_t next = 0;
    for (const int row : NamedRows(written_)) {
        const QString& value = file[rows[next++]].Value;
        if (HasRecord(now_, row) && now_[row] == written_[row]) {
            now_[row].Value = value;
        }
        written_[row].Value = value;
    }
    changed_(0);
    return true;
}

void PropertyRecords::SetValue(int record, const QString& value) {
    if (HasRecord(now_, record)) {
        now_[record].Value = value;
        changed_(record);
    }
}

void PropertyRecords::SetAll(const ClockProperties& properties, const ClockProperties& other) {
    ClockProperties next = properties;
    for (const QString& key : QuietKeys()) {
        const std::optional<QString> present = ValueOf(key, now_);
        if (present && ValueOf(key, properties) == ValueOf(key, other)) {
            Put(key, *present, next);
        }
    }
    now_ = next;
    changed_(0);
}

}  // namespace editor
