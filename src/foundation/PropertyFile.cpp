#include "foundation/PropertyFile.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>

#include "foundation/FileHelpers.h"

using namespace Qt::StringLiterals;

namespace mduLib {

namespace {

constexpr qsizetype LastCountableLine = 32767;
constexpr QChar ByteOrderMark = u'\uFEFF';

// What the bytes 0x80 to 0x9F stand for; all others stand for the code point of the same number.
constexpr std::array<char16_t, 32> Windows1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString FromWindows1252(const QByteArray& content) {
    QString text = QString::fromLatin1(content);
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (code >= 0x80 && code < 0xA0) {
            character = Windows1252High[code - 0x80U];
        }
    }
    return text;
}

QString Decoded(const QByteArray& content) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(content);
    return utf8.hasError() ? FromWindows1252(content) : text;
}

}  // namespace

// file = { text ( CR LF | LF ) } [ text ]
QStringList FileLines(const QByteArray& content) {
    const QString text = Decoded(content);
    QStringList lines;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype lineFeed = text.indexOf(u'\n', start);
        qsizetype end = lineFeed < 0 ? text.size() : lineFeed;
        const qsizetype next = lineFeed < 0 ? end : lineFeed + 1;
        if (lineFeed > start && text[lineFeed - 1] == u'\r') {
            --end;
        }
        lines += text.mid(start, end - start);
        start = next;
    }
    return lines;
}

// line = [ [ category ":" ] name "=" ] value | name
void ParsePropertyLine(const QString& line, ClockProperty& row) {
    const qsizetype equals = line.indexOf(u'=');
    if (equals < 0) {
        row.Name = line;
        row.Value.clear();
        return;
    }
    row.Name = line.left(equals);
    row.Value = line.mid(equals + 1);
    const qsizetype colon = row.Name.indexOf(u':');
    if (colon >= 0) {
        row.Category = row.Name.left(colon);
        row.Name.remove(0, colon + 1);
    }
}

bool ReadPropertyFile(const platform::Files& files, const QString& path, ClockProperties& array) {
    if (!FileExists(files, path)) {
        return false;
    }
    const std::optional<QByteArray> content = files.Read(path);
    if (!content) {
        return false;
    }
    const QStringList lines = FileLines(*content);
    const int count = static_cast<int>(std::min(lines.size(), LastCountableLine));
    if (count > array.UpperBound()) {
        array.Resize(count);
    }
    for (int row = 1; row <= count; ++row) {
        ParsePropertyLine(lines[row - 1], array[row]);
    }
    return count > 0 && lines.size() <= LastCountableLine;
}

bool MayRewrite(const platform::Files& files, const QString& path) {
    if (!files.Exists(path)) {
        return true;
    }
    const std::optional<QByteArray> content = files.Read(path);
    return content && !content->contains('\0') && FileLines(*content).size() <= LastCountableLine;
}

QByteArray PropertyFileContent(const ClockProperties& array) {
    QString text;
    for (int row = 1; row <= array.UpperBound(); ++row) {
        const ClockProperty& property = array[row];
        if (property.Name.isEmpty()) {
            continue;
        }
        if (!property.Category.isEmpty()) {
            text += property.Category + u':';
        }
        const qsizetype forced = property.Value.startsWith(u'^') ? 1 : 0;
        text += property.Name + u'=' + property.Value.mid(forced) + u"\r\n"_s;
    }
    // A reader takes the first mark off; one that belongs to a name needs another in front of it.
    if (text.startsWith(ByteOrderMark)) {
        text.prepend(ByteOrderMark);
    }
    return text.toUtf8();
}

bool WritePropertyFile(platform::Files& files, const ClockProperties& array, const QString& path) {
    return files.Write(path, PropertyFileContent(array));
}

bool RewritePropertyFile(platform::Files& files, const ClockProperties& array,
                         const QString& path) {
    return MayRewrite(files, path) && WritePropertyFile(files, array, path);
}

}  // namespace mduLib
