#include "Shores.h"

#include <QFile>
#include <QTextStream>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

namespace map {

namespace {

constexpr double FinestEdge = 0.22;  // degrees: less than a pixel of the picture
constexpr double Roughness = 0.11;   // a bay's depth as a share of its edge
constexpr double DeepestBay = 0.16;

std::uint32_t Scrambled(std::uint32_t value) {
    value = (value ^ (value >> 16)) * 0x7feb352dU;
    value = (value ^ (value >> 15)) * 0x846ca68bU;
    return value ^ (value >> 16);
}

/// A number from -1 to 1 that belongs to a place.
double ChanceAt(QPointF place) {
    const auto whole = [](double degrees) {
        return static_cast<std::uint32_t>(std::lround((degrees + 400) * 1000));
    };
    const std::uint32_t mixed = Scrambled(whole(place.x()) ^ Scrambled(whole(place.y())));
    return mixed / 2147483647.5 - 1;
}

bool IsPictureEdge(QPointF from, QPointF to) {
    return from.y() <= -85 || to.y() <= -85;
}

/// Divides an edge, moving its middle aside. An edge that two outlines share gets the same bays in
/// both, whichever way they run.
void AddEdge(QPolygonF& outline, QPointF from, QPointF to) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    if (length < FinestEdge || IsPictureEdge(from, to)) {
        outline += to;
        return;
    }
    const QPointF middle = (from + to) / 2;
    const bool forward = std::pair(from.x(), from.y()) < std::pair(to.x(), to.y());
    const double depth = std::min(Roughness * length, DeepestBay) * ChanceAt(middle);
    const QPointF aside = QPointF(-way.y(), way.x()) / length * (forward ? depth : -depth);
    AddEdge(outline, from, middle + aside);
    AddEdge(outline, middle + aside, to);
}

QPolygonF WithBays(const QPolygonF& corners) {
    QPolygonF outline;
    for (qsizetype i = 0; i < corners.size(); ++i) {
        AddEdge(outline, corners[i], corners[(i + 1) % corners.size()]);
    }
    return outline;
}

QPolygonF Round(double longitude, double latitude, double radius) {
    QPolygonF corners;
    for (int step = 0; step < 7; ++step) {
        const double angle = step * 2 * 3.14159265358979 / 7;
        const double reach = radius * (1 + 0.35 * ChanceAt({longitude + step, latitude}));
        corners += QPointF(longitude + reach * std::cos(angle), latitude + reach * std::sin(angle));
    }
    return corners;
}

class TableReader {
public:
    bool Read(QTextStream& table) {
        QString line;
        for (int number = 1; good_ && table.readLineInto(&line); ++number) {
            Take(line.section(u'#', 0, 0).simplified());
            if (!good_) {
                std::fprintf(stderr, "line %d: not a part of an outline\n", number);
            }
        }
        EndOutline();
        return good_;
    }

    Shores Result;

private:
    void Take(const QString& line) {
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        if (words.isEmpty()) {
            return;
        }
        const bool isWater = words[0] == u"water"_s;
        if (isWater || words[0] == u"land"_s || words[0] == u"isle"_s) {
            EndOutline();
            target_ = isWater                 ? &Result.Water
                      : words[0] == u"isle"_s ? &Result.Isles
                                              : &Result.Land;
        }
        if (words[0] == u"isle"_s && words.size() == 4) {
            corners_ = Round(words[1].toDouble(), words[2].toDouble(), words[3].toDouble());
        } else if (!words[0][0].isLetter()) {
            TakePlaces(words);
        }
    }

    void TakePlaces(const QStringList& words) {
        good_ = target_ != nullptr && words.size() % 2 == 0;
        for (qsizetype i = 0; good_ && i < words.size(); i += 2) {
            bool isLongitude = false;
            bool isLatitude = false;
            corners_ +=
                QPointF(words[i].toDouble(&isLongitude), words[i + 1].toDouble(&isLatitude));
            good_ = isLongitude && isLatitude;
        }
    }

    void EndOutline() {
        if (corners_.size() > 2) {
            target_->addPolygon(WithBays(corners_));
            target_->closeSubpath();
        }
        corners_.clear();
    }

    QPainterPath* target_ = nullptr;
    QPolygonF corners_;
    bool good_ = true;
};

}  // namespace

std::optional<Shores> ReadShores(const QString& file) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QTextStream table(&source);
    TableReader reader;
    return reader.Read(table) ? std::optional(reader.Result) : std::nullopt;
}

}  // namespace map
