#include "editor/PropertyClip.h"

#include <QHash>
#include <QRegularExpression>

#include "editor/PropertyRows.h"

using namespace Qt::StringLiterals;

namespace editor {

namespace {

/// A key and its value, with as many tabs as it has.
struct ClipLine {
    QString Key;
    QString Value;
};

/// Nothing for a line that does not begin with a key.
std::optional<ClipLine> ReadLine(const QString& line) {
    const qsizetype tab = line.indexOf(u'\t');
    return tab < 1 ? std::nullopt
                   : std::optional(ClipLine{line.left(tab).trimmed(), line.mid(tab + 1)});
}

/// The records of each key, in the order of the file.
QHash<QString, std::vector<int>> RecordsByKey(const ClockProperties& properties) {
    QHash<QString, std::vector<int>> records;
    for (int record = 1; record <= properties.UpperBound(); ++record) {
        const QString key = properties[record].Name.trimmed();
        if (!key.isEmpty()) {
            records[key].push_back(record);
        }
    }
    return records;
}

QStringList LinesOf(const QString& text) {
    static const QRegularExpression lineEnds(u"\\r\\n|\\r|\\n"_s);
    return text.split(lineEnds, Qt::SkipEmptyParts);
}

/// The values of the lines that begin with a key of the file.
std::vector<PastedValue> ValuesOfKeys(const QStringList& lines, const ClockProperties& properties) {
    QHash<QString, std::vector<int>> records = RecordsByKey(properties);
    std::vector<PastedValue> pasted;
    for (const QString& line : lines) {
        const std::optional<ClipLine> read = ReadLine(line);
        const auto found = read ? records.find(read->Key) : records.end();
        if (found != records.end() && !found->empty()) {
            pasted.push_back({found->front(), read->Value});
            found->erase(found->begin());
        }
    }
    return pasted;
}

/// A value alone goes to the current record of its key, where it is that.
std::vector<PastedValue> AtCurrent(const PastedValue& pasted, const ClockProperties& properties,
                                   int current) {
    const bool isIts =
        HasRecord(properties, current) &&
        properties[current].Name.trimmed() == properties[pasted.Record].Name.trimmed();
    return {{isIts ? current : pasted.Record, pasted.Cell}};
}

}  // namespace

QString ClipText(const ClockProperties& properties, const std::vector<int>& records) {
    QStringList lines;
    for (const int record : records) {
        if (HasRecord(properties, record)) {
            lines += properties[record].Name + u'\t' + PropertyCell(properties[record].Value);
        }
    }
    return lines.join(u'\n');
}

std::vector<PastedValue> PastedValues(const QString& text, const ClockProperties& properties,
                                      int current) {
    const QStringList lines = LinesOf(text);
    const std::vector<PastedValue> pasted = ValuesOfKeys(lines, properties);
    if (!pasted.empty()) {
        return lines.size() > 1 ? pasted : AtCurrent(pasted.front(), properties, current);
    }
    if (!HasRecord(properties, current) || lines.isEmpty()) {
        return {};
    }
    return {{current, lines.join(u' ')}};
}

int LinesWithoutRecord(const QString& text, const ClockProperties& properties) {
    const QStringList lines = LinesOf(text);
    const auto pasted = static_cast<int>(ValuesOfKeys(lines, properties).size());
    return pasted == 0 ? 0 : static_cast<int>(lines.size()) - pasted;
}

}  // namespace editor
