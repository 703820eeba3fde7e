#pragma once

#include <QHash>
#include <QStringList>

#include "foundation/ClockProperty.h"
#include "platform/Files.h"

namespace editor {

/// What the help says of each key, a sentence or two in plain text.
///
/// The file is a property file whose categories are the names of the default files:
///
///     Tempolark:Hour Hand Colour=The colour of the hour hand.
///     TempolarkCentral:Start Message=Spoken when the shell opens; 0 for nothing.
class KeyNotes {
public:
    KeyNotes() = default;
    /// The notes of one default file, such as "Tempolark". A file that is missing has none.
    KeyNotes(const platform::Files& files, const QString& path, const QString& defaultFile);

    /// Empty for a key that the help does not know. Letter case and blanks around it don't count,
    /// nor does a number behind it: "Speech Day Pattern7" is told of as "Speech Day Pattern".
    QString Of(const QString& key) const;

private:
    static QString Folded(const QString& key) { return key.trimmed().toLower(); }

    QHash<QString, QString> sentences_;
};

/// Where the program's help keeps the notes.
QString KeyNotesPath(const QString& appFolder);

/// What is told of a record while it is current.
struct RowInfo {
    QString Sentence;     ///< of the help; empty where there is none
    QStringList Choices;  ///< each once, as the editor offers them
    QString Unit;  ///< such as "percent", "twips", "seconds"; empty for a value that is no measure
    bool ByItself = false;  ///< "-1" has a meaning of its own: the program chooses

    /// On one line: the sentence, up to eight of the choices, the unit unless the sentence names
    /// it.
    QString Text() const;
    bool operator==(const RowInfo&) const = default;
};

RowInfo RowInfoOf(const ClockProperty& record, const KeyNotes& notes);

}  // namespace editor
