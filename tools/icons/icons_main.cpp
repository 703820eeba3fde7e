// Renders pictures of the shell: SVG into PNG, and sheets to be looked at.
//
//   tempolark_icons png FILE.svg FILE.png WIDTHxHEIGHT
//   tempolark_icons sheet FOLDER FILE.png [GREY]
//
// A sheet shows all SVG files of a folder at 24, 48 and 96 pixels in a row, on a light and on a
// dark desktop; with a third word all in grey.
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int Usage() {
    std::fprintf(stderr,
                 "usage: tempolark_icons png FILE.svg FILE.png WIDTHxHEIGHT\n"
                 "       tempolark_icons sheet FOLDER FILE.png [GREY]\n");
    return 2;
}

QImage Canvas(QSize size, const QColor& colour) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

bool WritePng(const QStringList& words) {
    const QStringList sides = words[2].split(u'x');
    const QSize size(sides.first().toInt(), sides.last().toInt());
    QSvgRenderer picture(words[0]);
    if (!picture.isValid() || size.isEmpty()) {
        return false;
    }
    QImage image = Canvas(size, Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter, QRectF(QPointF(0, 0), size));
    painter.end();
    return image.save(words[1], "PNG");
}

constexpr int Heights[] = {24, 48, 96};
constexpr int RowHeight = 112;

void PaintRow(QPainter& painter, const QString& file, int left, int top) {
    QSvgRenderer picture(file);
    const double shape = double(picture.defaultSize().width()) / picture.defaultSize().height();
    for (const int height : Heights) {
        picture.render(&painter,
                       QRectF(left, top + (RowHeight - height) / 2, height * shape, height));
        left += static_cast<int>(height * shape) + 16;
    }
}

// Three files stand side by side on each desktop.
bool WriteSheet(const QStringList& words, bool grey) {
    const QDir folder(words[0]);
    const QStringList files = folder.entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    constexpr int Columns = 3;
    constexpr int Width = 260;
    const int rows = (static_cast<int>(files.size()) + Columns - 1) / Columns;
    QImage image = Canvas({2 * Columns * Width, rows * RowHeight}, QColor(0xf3, 0xf3, 0xf3));
    QPainter painter(&image);
    painter.fillRect(Columns * Width, 0, Columns * Width, image.height(), QColor(0x25, 0x27, 0x2b));
    for (int index = 0; index < files.size(); ++index) {
        const int left = index % Columns * Width + 16;
        const int top = index / Columns * RowHeight;
        PaintRow(painter, folder.filePath(files[index]), left, top);
        PaintRow(painter, folder.filePath(files[index]), left + Columns * Width, top);
    }
    painter.end();
    return (grey ? image.convertToFormat(QImage::Format_Grayscale8) : image).save(words[1], "PNG");
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments().mid(1);
    if (words.size() == 4 && words[0] == u"png"_s) {
        return WritePng(words.mid(1)) ? 0 : 1;
    }
    if ((words.size() == 3 || words.size() == 4) && words[0] == u"sheet"_s) {
        return WriteSheet(words.mid(1), words.size() == 4) ? 0 : 1;
    }
    return Usage();
}
