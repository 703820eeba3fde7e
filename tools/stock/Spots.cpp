#include "Spots.h"

#include <QPainter>
#include <QRadialGradient>
#include <cmath>
#include <map>

#include "Shade.h"

using namespace Qt::StringLiterals;

namespace stock {

namespace {

constexpr int SpotSize = 96;
constexpr double Middle = SpotSize / 2.0;

// A ball lit from the upper left: its ground, a broad light, a small bright reflection.
void DrawBall(QPainter& painter, unsigned dark, unsigned body, unsigned light, double radius) {
    QRadialGradient shade(QPointF(Middle - radius * 0.35, Middle - radius * 0.4), radius * 1.5);
    shade.setColorAt(0, ToQColor(Hex(light)));
    shade.setColorAt(0.45, ToQColor(Hex(body)));
    shade.setColorAt(1, ToQColor(Hex(dark)));
    painter.setBrush(shade);
    painter.drawEllipse(QPointF(Middle, Middle), radius, radius);
    QRadialGradient glint(QPointF(Middle - radius * 0.36, Middle - radius * 0.42), radius * 0.4);
    glint.setColorAt(0, QColor(255, 255, 255, 230));
    glint.setColorAt(1, QColor(255, 255, 255, 0));
    painter.setBrush(glint);
    painter.drawEllipse(QPointF(Middle - radius * 0.36, Middle - radius * 0.42), radius * 0.4,
                        radius * 0.4);
}

void DrawRim(QPainter& painter, unsigned dark, unsigned light, double radius, double width) {
    QLinearGradient shade(Middle - radius, Middle - radius, Middle + radius, Middle + radius);
    shade.setColorAt(0.15, ToQColor(Hex(light)));
    shade.setColorAt(0.85, ToQColor(Hex(dark)));
    painter.setPen(QPen(shade, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(Middle, Middle), radius, radius);
    painter.setPen(Qt::NoPen);
}

// A figure of facets: each corner is joined with the middle and lit by the way its side looks.
void DrawFacets(QPainter& painter, const QPolygonF& corners, unsigned dark, unsigned light) {
    for (qsizetype i = 0; i < corners.size(); ++i) {
        const QPointF a = corners[i];
        const QPointF b = corners[(i + 1) % corners.size()];
        const QPointF way = (a + b) / 2 - QPointF(Middle, Middle);
        const double length = std::max(std::hypot(way.x(), way.y()), 1.0);
        const double facing = (-way.x() - way.y()) / (1.41421356 * length);
        painter.setBrush(ToQColor(Mix(Hex(dark), Hex(light), 0.5 + 0.5 * facing)));
        painter.setPen(QPen(painter.brush(), 0.6));
        painter.drawPolygon(QPolygonF{a, b, QPointF(Middle, Middle)});
    }
    painter.setPen(Qt::NoPen);
}

QPolygonF Rays(int count, double outer, double inner) {
    QPolygonF corners;
    for (int i = 0; i < 2 * count; ++i) {
        const double angle = i * 3.14159265358979 / count;
        const double radius = i % 2 == 0 ? outer : inner;
        corners += QPointF(Middle + radius * std::sin(angle), Middle - radius * std::cos(angle));
    }
    return corners;
}

void Ruby(QPainter& painter) {
    DrawBall(painter, 0x3d0610, 0xa0142c, 0xe8506a, 38);
    DrawRim(painter, 0x6b4a17, 0xf0d28a, 41, 7);
}

void Sapphire(QPainter& painter) {
    DrawBall(painter, 0x0a1240, 0x1f3f9c, 0x6f9df0, 38);
    DrawRim(painter, 0x5b6068, 0xeef1f5, 41, 7);
}

void Pearl(QPainter& painter) {
    DrawBall(painter, 0x9a9088, 0xe9e2da, 0xffffff, 43);
}

void BrassStud(QPainter& painter) {
    DrawBall(painter, 0x54390f, 0xc29445, 0xf7e0a0, 42);
}

void SilverPin(QPainter& painter) {
    DrawBall(painter, 0x3b4047, 0xaab1b9, 0xf6f8fa, 42);
}

void Star(QPainter& painter) {
    DrawFacets(painter, Rays(5, 45, 18), 0x7a5618, 0xfbe7a6);
}

void Diamond(QPainter& painter) {
    DrawFacets(painter, Rays(2, 45, 27), 0x66707c, 0xfbfdff);
}

void OnyxDot(QPainter& painter) {
    DrawBall(painter, 0x000000, 0x17191c, 0x555b63, 40);
}

using Mark = void (*)(QPainter&);
const std::map<QString, Mark> Marks{{u"Ruby"_s, Ruby},
                                    {u"Sapphire"_s, Sapphire},
                                    {u"Pearl"_s, Pearl},
                                    {u"Brass Stud"_s, BrassStud},
                                    {u"Silver Pin"_s, SilverPin},
                                    {u"Star"_s, Star},
                                    {u"Diamond"_s, Diamond},
                                    {u"Onyx Dot"_s, OnyxDot}};

}  // namespace

QStringList SpotNames() {
    QStringList names;
    for (const auto& [name, mark] : Marks) {
        names += name;
    }
    return names;
}

QImage Spot(const QString& name) {
    const auto found = Marks.find(name);
    if (found == Marks.end()) {
        return {};
    }
    QImage image(SpotSize, SpotSize, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    found->second(painter);
    return image;
}

}  // namespace stock
