#include "editor/ui/ValueLooks.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>

#include "editor/ValueForm.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;
using editor::ValueSort;

namespace {

constexpr qint64 LargestFile = 16'000'000;     // bytes; larger ones would be felt
constexpr qint64 LargestPicture = 32'000'000;  // pixels

/// Whether the name is that of a picture; sounds and music are not read for one.
bool IsPicture(const QString& path) {
    static const QStringList ends = {u"bmp"_s, u"gif"_s, u"ico"_s, u"jpeg"_s, u"jpg"_s, u"png"_s};
    return ends.contains(path.section(u'.', -1).toLower());
}

/// What shows through: fields of two shades.
QBrush Chequer() {
    constexpr int Field = 4;
    QImage fields(2 * Field, 2 * Field, QImage::Format_RGB32);
    fields.fill(Qt::white);
    QPainter painter(&fields);
    painter.fillRect(Field, 0, Field, Field, Qt::lightGray);
    painter.fillRect(0, Field, Field, Field, Qt::lightGray);
    painter.end();
    return fields;
}

/// Any colour.
QBrush AllColours() {
    QLinearGradient colours(0, 0, 1, 1);
    colours.setCoordinateMode(QGradient::ObjectMode);
    colours.setStops({{0.0, QColor(214, 69, 65)},
                      {0.35, QColor(240, 190, 60)},
                      {0.65, QColor(80, 160, 90)},
                      {1.0, QColor(70, 120, 200)}});
    return colours;
}

/// A picture of a file's bytes within the side of a thumbnail; null where there is none.
QPixmap ReadThumbnail(QByteArray content) {
    QBuffer buffer(&content);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!size.isEmpty() && qint64(size.width()) * size.height() > LargestPicture) {
        return {};
    }
    const double ratio = qGuiApp->devicePixelRatio();
    const QSize most = QSize(ValueLooks::Side, ValueLooks::Side) * ratio;
    if (!size.isEmpty()) {
        reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    QImage image = reader.read();
    if (image.width() > most.width() || image.height() > most.height()) {
        image = image.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    image.setDevicePixelRatio(ratio);
    return QPixmap::fromImage(image);
}

}  // namespace

CellLook ValueLooks::ColourLook(const QString& text) const {
    CellLook look;
    const QString word = mduUILib::ColourWord(text);
    if (word == "transparent"_L1) {
        look.Swatch = Chequer();
    } else if (word == "random"_L1 || mduUILib::IsCustomColour(text)) {
        look.Swatch = AllColours();
    } else if (editor::IsColourText(text)) {
        const mduLib::ColourParts parts =
            mduLib::SplitColour(mduUILib::ColourValue(text, program_.Services.Random));
        look.Swatch = QBrush(QColor(parts.Red, parts.Green, parts.Blue));
    }
    return look;
}

CellLook ValueLooks::LookOf(const QString& name, const QString& value, const QString& text) const {
    const editor::ValueForm form = editor::FormOf(name, value);
    CellLook look;
    switch (form.Sort) {
        case ValueSort::Colour:
            look = ColourLook(text);
            break;
        case ValueSort::Font:
            look.FontFamily = QFontDatabase::hasFamily(text) ? text : QString();
            break;
        case ValueSort::File:
            look.Picture = Thumbnail(text);
            break;
        case ValueSort::YesNo:
            look.Check = mduUILib::YesNoToBool(text);
            break;
        default:
            break;
    }
    const bool isPicked = form.Sort == ValueSort::File || form.Sort == ValueSort::Colour;
    look.Arrow = form.HasList() && form.Sort != ValueSort::File;
    look.Button = form.Sort != ValueSort::YesNo && (isPicked || look.Arrow);
    return look;
}

QPixmap ValueLooks::Thumbnail(const QString& path) const {
    const platform::Files& files = program_.Services.FileSystem;
    const QString native = mduLib::ResolveAppPath(path.trimmed(), program_.Module.Paths.AppFolder);
    const std::optional<qint64> size = IsPicture(native) ? files.Size(native) : std::nullopt;
    if (!size || *size <= 0 || *size > LargestFile) {
        return {};
    }
    const QString key = native + u'|' + QString::number(files.ModifiedSeconds(native).value_or(0));
    if (const QPixmap* known = thumbnails_.object(key)) {
        return *known;
    }
    QPixmap made = ReadThumbnail(files.Read(native).value_or(QByteArray()));
    thumbnails_.insert(key, new QPixmap(made));
    return made;
}
