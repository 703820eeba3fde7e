#include "foundation/PropertyMerge.h"

#include <QHash>

#include "foundation/PropertyFile.h"

using namespace Qt::StringLiterals;

namespace mduLib {

namespace {

bool IsHeaderLine(const QString& line) {
    return line.contains(u'[') && line.contains(u']');
}

QString FirstField(const QString& line) {
    return line.section(u'=', 0, 0);
}

// What stands between the first and the second "="; nothing for a line without "=".
std::optional<QString> SecondField(const QString& line) {
    if (!line.contains(u'=')) {
        return std::nullopt;
    }
    return line.section(u'=', 1, 1);
}

/// The lines of the user's file by their keys.
class OldLines {
public:
    // Only header lines carry a prefix. The second line of one key ends the collecting.
    explicit OldLines(const QStringList& lines) {
        for (const QString& line : lines) {
            if (line.isEmpty()) {
                continue;
            }
            const QString section = IsHeaderLine(line) ? line : QString();
            const QString key = (section + FirstField(line)).toLower();
            if (lines_.contains(key)) {
                return;
            }
            lines_.insert(key, line);
        }
    }

    std::optional<QString> Find(const QString& key) const {
        const auto found = lines_.constFind(key.toLower());
        return found == lines_.cend() ? std::nullopt : std::optional(*found);
    }

private:
    QHash<QString, QString> lines_;
};

/// The pass through the new file. A line that it can't place yields nothing and ends the merge.
class NewFilePass {
public:
    explicit NewFilePass(const OldLines& old) : old_(old) {}

    std::optional<QString> Output(const QString& line) {
        if (IsHeaderLine(line)) {
            section_ = line;
            return line;
        }
        if (line.trimmed().isEmpty()) {
            return QString();
        }
        const std::optional<QString> oldLine = old_.Find(section_ + FirstField(line));
        return oldLine ? SameKey(line, *oldLine) : NewKey(line);
    }

private:
    static QString Line(const QString& newLine, const QString& value) {
        return FirstField(newLine).trimmed() + u'=' + value;
    }

    // The user's current value survives, the new list of choices replaces the old.
    static std::optional<QString> SameKey(const QString& line, const QString& oldLine) {
        const std::optional<QString> field = SecondField(line);
        if (!field) {
            return std::nullopt;
        }
        const QString newValue = field->trimmed();
        if (newValue.startsWith(u'^')) {
            return Line(line, newValue.mid(1));
        }
        const std::optional<QString> oldValue = SecondField(oldLine);
        if (!oldValue) {
            return std::nullopt;
        }
        const qsizetype oldComma = oldValue->indexOf(u',');
        const qsizetype newComma = newValue.indexOf(u',');
        if (oldComma < 0 || newComma < 0 ||
            QStringView(*oldValue).mid(oldComma) == QStringView(newValue).mid(newComma)) {
            return oldLine;
        }
        return Line(line, oldValue->left(oldComma) + newValue.mid(newComma));
    }

    // A key that is new, or that has gained a category. The short name of a line without a category
    // is the one that an earlier line left.
    std::optional<QString> NewKey(const QString& line) {
        const QString key = FirstField(line);
        const qsizetype colon = key.indexOf(u':');
        if (colon >= 0) {
            shortName_ = key.mid(colon + 1);
        }
        const std::optional<QString> oldLine = old_.Find(section_ + shortName_);
        if (!oldLine) {
            return line;
        }
        if (key.contains(u':' + FirstField(*oldLine))) {
            const std::optional<QString> oldValue = SecondField(*oldLine);
            return oldValue ? std::optional(Line(line, *oldValue)) : std::nullopt;
        }
        const std::optional<QString> newValue = SecondField(line);
        return newValue && newValue->startsWith(u'^') ? Line(line, newValue->mid(1)) : line;
    }

    const OldLines& old_;
    QString section_;
    QString shortName_;
};

QStringList LinesOf(const std::optional<QByteArray>& content) {
    return content ? FileLines(*content) : QStringList();
}

/// A user's file that can't be read, or is no text, is not replaced by the defaults.
bool HoldsNothingOrText(const platform::Files& files, const QString& path) {
    if (!files.Exists(path)) {
        return true;
    }
    const std::optional<QByteArray> content = files.Read(path);
    return content && !content->contains('\0');
}

}  // namespace

bool MergePropertyFile(platform::Files& files, const QString& oldFile, const QString& newFile,
                       const QString& outFile, const std::function<void()>& yield) {
    const std::optional<QByteArray> newContent = files.Read(newFile);
    if (!newContent || (outFile == oldFile && !HoldsNothingOrText(files, oldFile))) {
        return false;
    }
    const OldLines old(LinesOf(files.Read(oldFile)));
    NewFilePass pass(old);
    QString text;
    for (const QString& line : FileLines(*newContent)) {
        const std::optional<QString> output = pass.Output(line);
        if (!output) {
            return false;
        }
        text += *output + u"\r\n"_s;
        if (yield) {
            yield();
        }
    }
    return files.Write(outFile, text.toUtf8());
}

}  // namespace mduLib
