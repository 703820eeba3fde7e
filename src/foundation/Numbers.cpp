#include "foundation/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace mduAPILib {

namespace {

struct ScannedNumber {
    double Value = 0;
    qsizetype Length = 0;  ///< characters that belong to the number; 0 when there is none
};

bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool IsHexDigit(QChar character) {
    const QChar lower = character.toLower();
    return IsDigit(character) || (lower >= u'a' && lower <= u'f');
}

qsizetype SkipDigits(QStringView text, qsizetype position) {
    while (position < text.size() && IsDigit(text[position])) {
        ++position;
    }
    return position;
}

// hexadecimal = "&H" digit { digit }, read as a 32-bit number with a sign
ScannedNumber ScanHexadecimal(QStringView text) {
    qsizetype end = 2;
    while (end < text.size() && IsHexDigit(text[end])) {
        ++end;
    }
    bool fits = false;
    const quint32 value = text.mid(2, end - 2).toUInt(&fits, 16);
    return fits ? ScannedNumber{double(static_cast<qint32>(value)), end} : ScannedNumber{};
}

// exponent = ( "e" | "d" ) [ sign ] digit { digit }
qsizetype SkipExponent(QStringView text, qsizetype position) {
    if (position == text.size() || !u"eEdD"_s.contains(text[position])) {
        return position;
    }
    qsizetype digits = position + 1;
    if (digits < text.size() && (text[digits] == u'+' || text[digits] == u'-')) {
        ++digits;
    }
    const qsizetype end = SkipDigits(text, digits);
    return end > digits ? end : position;
}

// decimal = [ sign ] digits [ "." digits ] [ exponent ]
ScannedNumber ScanDecimal(QStringView text) {
    const qsizetype start = text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
    qsizetype end = SkipDigits(text, start);
    if (end < text.size() && text[end] == u'.') {
        end = SkipDigits(text, end + 1);
    }
    end = SkipExponent(text, end);
    bool ok = false;
    const QByteArray number = text.left(end).toLatin1().replace('d', 'e').replace('D', 'e');
    const double value = number.toDouble(&ok);
    return ok && std::isfinite(value) ? ScannedNumber{value, end} : ScannedNumber{};
}

ScannedNumber ScanNumber(QStringView text) {
    return text.startsWith(u"&h", Qt::CaseInsensitive) ? ScanHexadecimal(text) : ScanDecimal(text);
}

bool IsSkippedByVal(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

}  // namespace

double Val(const QString& text) {
    if (std::none_of(text.begin(), text.end(), IsSkippedByVal)) {
        return ScanNumber(text).Value;
    }
    QString packed = text;
    packed.removeIf(IsSkippedByVal);
    return ScanNumber(packed).Value;
}

bool IsNumeric(const QString& text) {
    const QStringView trimmed = QStringView(text).trimmed();
    return !trimmed.isEmpty() && ScanNumber(trimmed).Length == trimmed.size();
}

int IntegerValue(const QString& text) {
    return RoundToInteger(Val(text));
}

std::int16_t ToInt16(double value, std::int16_t fallback) {
    const double rounded = std::nearbyint(value);
    const bool fits = rounded >= std::numeric_limits<std::int16_t>::min() &&
                      rounded <= std::numeric_limits<std::int16_t>::max();
    return fits ? static_cast<std::int16_t>(rounded) : fallback;
}

QString SingleText(float value) {
    if (!std::isfinite(value) || value == 0.0F) {
        return u"0"_s;
    }
    std::array<char, 64> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::fixed);
    return QString::fromLatin1(digits.data(), written.ptr - digits.data());
}

QString ShortSingleText(float value) {
    constexpr int most = 7;
    return SingleText(QString::number(static_cast<double>(value), 'g', most).toFloat());
}

}  // namespace mduAPILib
