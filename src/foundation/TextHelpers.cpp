#include "foundation/TextHelpers.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <cmath>

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace mduLib {

QString FirstListField(const QString& text) {
    return text.left(text.indexOf(u','));
}

QString RowFirstField(int row, const ClockProperties& array) {
    return row >= 0 && row <= array.UpperBound() ? FirstListField(array[row].Value) : QString();
}

double AtLeast(double value, double limit) {
    return value <= limit ? limit : value;
}

double AtMost(double value, double limit) {
    return value >= limit ? limit : value;
}

double Fraction(const QString& value) {
    const double number = mduAPILib::Val(value);
    return mduAPILib::IsNumeric(value) ? number - std::trunc(number) : 0.0;
}

QString ReplaceFirst(const QString& text, const QString& find, const QString& replacement) {
    const qsizetype position = find.isEmpty() ? -1 : text.indexOf(find);
    return position < 0 ? text : QString(text).replace(position, find.size(), replacement);
}

QString LineBreaksToSpaces(const QString& text) {
    return QString(text).replace(u"\r\n"_s, u" "_s);
}

QString WrapText(const QString& text, int width) {
    QString wrapped = text;
    if (width <= 0 || text.size() <= width) {
        return wrapped;
    }
    for (qsizetype start = 0; wrapped.size() - start >= width;) {
        const qsizetype blank = QStringView(wrapped).mid(start, width).lastIndexOf(u' ');
        if (blank < 0) {
            break;
        }
        wrapped.replace(start + blank, 1, u"\r\n"_s);
        start += blank + 2;
    }
    return wrapped;
}

QString CutAtNul(const QString& text) {
    return text.left(qMax<qsizetype>(text.indexOf(QChar::Null), 0));
}

ColourParts SplitColour(int colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

// Without a screen there are no fonts to ask for, and asking would end the program.
QString SystemFontList() {
    if (qGuiApp == nullptr) {
        return {};
    }
    QStringList names;
    for (const QString& family : QFontDatabase::families()) {
        const QString name = family.trimmed();
        if (!name.isEmpty()) {
            names += name;
        }
    }
    return names.join(u',');
}

QString IntegerText(int value) {
    return QString::number(value);
}

}  // namespace mduLib
