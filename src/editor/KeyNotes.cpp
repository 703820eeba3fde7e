#include "editor/KeyNotes.h"

#include <QRegularExpression>

#include "editor/PropertyRows.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

constexpr qsizetype MostChoicesTold = 8;

/// What a measure is called in a key or in its sentence.
struct UnitWord {
    const char16_t* Pattern;
    const char16_t* Unit;
};
constexpr UnitWord UnitWords[] = {
    {u"\\(%\\)|\\bpercent", u"percent"},
    {u"\\btwips\\b", u"twips"},
    {u"\\bpoints\\b", u"points"},
    {u"\\bpixels\\b", u"pixels"},
    {u"\\bmilliseconds\\b", u"milliseconds"},
    {u"\\bseconds\\b", u"seconds"},
    {u"\\bminutes\\b", u"minutes"},
};

/// The units that a text names, each once.
QStringList UnitsIn(const QString& text) {
    QStringList units;
    for (const UnitWord& word : UnitWords) {
        const QRegularExpression pattern(QString::fromUtf16(word.Pattern),
                                         QRegularExpression::CaseInsensitiveOption);
        if (pattern.match(text).hasMatch()) {
            units += QString::fromUtf16(word.Unit);
        }
    }
    return units;
}

/// A sentence that names two tells of neither.
QString UnitOf(const QString& key, const QString& sentence) {
    QStringList units = UnitsIn(key);
    if (units.isEmpty()) {
        units = UnitsIn(sentence);
    }
    return units.size() == 1 ? units.first() : QString();
}

QString ChoicesTold(const QStringList& choices) {
    const bool isLong = choices.size() > MostChoicesTold;
    return u"Choices: "_s + choices.mid(0, MostChoicesTold).join(u", "_s) +
           (isLong ? u", …"_s : u"."_s);
}

}  // namespace

KeyNotes::KeyNotes(const platform::Files& files, const QString& path, const QString& defaultFile) {
    ClockProperties lines;
    mduLib::ReadPropertyFile(files, path, lines);
    for (int row = 1; row <= lines.UpperBound(); ++row) {
        if (lines[row].Category == defaultFile) {
            sentences_[Folded(lines[row].Name)] = lines[row].Value.simplified();
        }
    }
}

QString KeyNotes::Of(const QString& key) const {
    QString name = Folded(key);
    auto note = sentences_.find(name);
    while (note == sentences_.end() && !name.isEmpty() && name.back().isDigit()) {
        name.chop(1);
        note = sentences_.find(name);
    }
    return note != sentences_.end() ? *note : QString();
}

QString KeyNotesPath(const QString& appFolder) {
    return appFolder + u"/Help/keys.txt"_s;
}

RowInfo RowInfoOf(const ClockProperty& record, const KeyNotes& notes) {
    RowInfo info;
    info.Sentence = notes.Of(record.Name);
    info.Choices = ValueChoices(record.Value);
    info.Choices.removeDuplicates();
    if (mduAPILib::IsNumeric(PropertyCell(record.Value).trimmed())) {
        info.Unit = UnitOf(record.Name, info.Sentence);
    }
    static const QRegularExpression minusOne(u"-1\\b"_s);
    info.ByItself = info.Sentence.contains(minusOne);
    return info;
}

QString RowInfo::Text() const {
    QStringList parts;
    if (!Sentence.isEmpty()) {
        parts += Sentence;
    }
    if (Choices.size() > 1) {
        parts += ChoicesTold(Choices);
    }
    if (!Unit.isEmpty() && !Sentence.contains(Unit, Qt::CaseInsensitive)) {
        parts += u"In %1."_s.arg(Unit);
    }
    return parts.join(u' ');
}

}  // namespace editor
