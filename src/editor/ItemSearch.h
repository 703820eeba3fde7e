#pragma once

#include <QStringList>

/// Finding entries of a list. Each gives the entry's place, from 0, or -1 where there is none.
namespace editor {

/// The first entry that equals the text, to the letter.
int FindItem(const QStringList& items, const QString& text);
/// The first that begins with the text to the letter, else letter case aside; none for an empty
/// text.
int FindItemBeginning(const QStringList& items, const QString& text);
/// The first with that initial, letter case aside.
int FindItemByInitial(const QStringList& items, const QString& character);

}  // namespace editor
