#pragma once

#include <QUndoStack>
#include <functional>

#include "editor/PropertyRows.h"
#include "foundation/ClockProperty.h"

namespace editor {

/// The records that a window of properties edits, and every change of them since it opened.
///
/// A record is addressed by its number, its row in the array from 1, never by its key: two rows of
/// the same key are two records. Numbers are those of the array as it is; a command that replaces
/// it (`Replace`) may renumber.
class PropertyRecords {
public:
    /// @p properties count as written
    explicit PropertyRecords(const ClockProperties& properties)
        : now_(properties), written_(properties) {}

    /// Called after each change, by a commit as by undo and redo.
    /// @param record that has changed; 0 when all may have
    void Watch(std::function<void(int record)> changed) { changed_ = std::move(changed); }

    const ClockProperties& Now() const { return now_; }
    /// As last written, or read afresh.
    const ClockProperties& Written() const { return written_; }
    bool IsDirty() const { return now_ != written_; }
    void MarkWritten() { written_ = now_; }

    /// `CommitRow` as a command, "Change <key>". Commits of one record merge till `BeginVisit`.
    RowCommit Commit(int record, const QString& cell);
    /// The whole value of a record, with its choices, as a command. Nothing happens where there is
    /// no such record, and for the value that it has.
    void PutValue(int record, const QString& value, const QString& commandText);
    /// All of the records as one command; nothing happens where they are the same. Keys that are
    /// put quietly keep what they hold now when it is undone, unless the command has changed them.
    void Replace(const ClockProperties& properties, const QString& commandText);
    /// Commits before this one no longer merge with those behind it.
    void BeginVisit() { ++visit_; }

    /// Takes a value that is not the user's: it can't be undone, and counts as written. The first
    /// record of that name takes it and keeps its choices; one that is missing is added.
    void PutQuietly(const QString& name, const QString& value);
    /// Takes the last record away, where it is one of that name that `PutQuietly` has added; that
    /// counts as written, too.
    void DropQuietly(const QString& name);
    /// Takes over what the file holds now: it counts as written, and what is not edited here
    /// follows it. @return false, and nothing happens, where the file has not the keys that were
    /// written, in their order
    bool Follow(const ClockProperties& file);

    /// Every change since opening. Its commands may be grouped (`QUndoStack::beginMacro`); writing
    /// the file leaves it as it is.
    QUndoStack& Undo() { return undo_; }

private:
    friend class ValueCommand;
    friend class ListCommand;

    void SetValue(int record, const QString& value);
    void SetAll(const ClockProperties& properties, const ClockProperties& other);

    ClockProperties now_;
    ClockProperties written_;
    std::function<void(int record)> changed_ = [](int) {};
    int visit_ = 0;
    QUndoStack undo_;
};

/// The keys of a window's place and state: "Window Top" and its like.
const QStringList& PlaceKeys();

}  // namespace editor
