// Turns the flags of the countries into pictures that a clock can show.
//
//   tempolark_flags SVG-FOLDER FOLDER
//
// Reads "xx.svg", xx being a country's two letters, and writes FOLDER/NAME.jpg, NAME being the
// country's English name, or its letters where it has none here. Flags of regions and of
// organisations ("_wales.svg") are passed over.
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

#include "CountryName.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize FlagSize(320, 240);

bool Convert(const QString& source, const QString& target) {
    QSvgRenderer flag(source);
    if (!flag.isValid()) {
        return false;
    }
    QImage image(FlagSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    flag.render(&painter, QRectF(QPointF(0, 0), FlagSize));
    painter.end();
    return image.save(target, "JPG", 90);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: tempolark_flags SVG-FOLDER FOLDER\n");
        return 2;
    }
    const QDir sources(arguments[1]);
    QDir().mkpath(arguments[2]);
    bool good = true;
    for (const QString& file : sources.entryList({u"[a-z][a-z].svg"_s}, QDir::Files, QDir::Name)) {
        const QString target = arguments[2] + u'/' + stock::CountryName(file.first(2)) + u".jpg"_s;
        if (!Convert(sources.filePath(file), target)) {
            std::fprintf(stderr, "Can't convert the flag %s\n", qPrintable(file));
            good = false;
        }
    }
    return good ? 0 : 1;
}
