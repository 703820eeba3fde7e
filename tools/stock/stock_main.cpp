// Draws the pictures that Tempolark ships with.
//
//   tempolark_stock FOLDER [NAME...]
//
// Writes FOLDER/Background/NAME.jpg for each picture and FOLDER/NAME.ico for each mark; with names,
// those alone. The same program draws the same pictures every time.
#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <functional>
#include <vector>

#include "Dials.h"
#include "Materials.h"
#include "Spots.h"
#include "WorldMaps.h"

using namespace Qt::StringLiterals;
using namespace stock;

namespace {

struct Picture {
    QString Name;
    std::function<QImage()> Draw;
};

std::function<QImage()> Even(Colour (*material)(double, double), std::uint32_t seed) {
    return [material, seed] { return Render(material, seed); };
}

std::function<QImage()> Rays(const SunburstTones& tones, std::uint32_t seed) {
    return [tones, seed] {
        return Render([&tones](double x, double y) { return Sunburst(x, y, tones); }, seed);
    };
}

std::vector<Picture> Pictures() {
    return {
        {u"Walnut"_s, Even(Walnut, 1)},
        {u"White Marble"_s, Even(WhiteMarble, 2)},
        {u"Brushed Aluminium"_s, Even(BrushedAluminium, 3)},
        {u"Parchment"_s, Even(Parchment, 4)},
        {u"Carbon Fibre"_s, Even(CarbonFibre, 5)},
        {u"Frosted Glass"_s, Even(FrostedGlass, 6)},
        {u"Copper Patina"_s, Even(CopperPatina, 7)},
        {u"Mother of Pearl"_s, Even(MotherOfPearl, 8)},
        {u"Dusk"_s, Even(Dusk, 9)},
        {u"Deep Sea"_s, Even(DeepSea, 10)},
        {u"Night Sky"_s, NightSky},
        {u"Blue Sunburst"_s, Rays({Hex(0x6f9fd8), Hex(0x1d4585), Hex(0x050f26)}, 11)},
        {u"Emerald Sunburst"_s, Rays({Hex(0x6cc79c), Hex(0x126048), Hex(0x03160f)}, 12)},
        {u"Champagne Sunburst"_s, Rays({Hex(0xfff4dc), Hex(0xdcc196), Hex(0xa8875a)}, 13)},
        {u"Brushed Steel"_s, BrushedSteelDial},
        {u"Black Enamel"_s, BlackEnamelDial},
        {u"Ivory Enamel"_s, IvoryEnamelDial},
        {u"Guilloche"_s, GuillocheDial},
        {u"Station Dial"_s, StationDial},
        {u"Walnut Case"_s, WalnutCase},
        {u"Slate"_s, SlateDial},
        {u"World Map"_s, WorldMap},
        {u"Polar World"_s, PolarWorld},
    };
}

bool Save(const QImage& image, const QString& path, int quality) {
    if (!image.save(path, nullptr, quality)) {
        std::fprintf(stderr, "Can't write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QStringList names = QGuiApplication::arguments().sliced(1);
    if (names.isEmpty()) {
        std::fprintf(stderr, "usage: tempolark_stock FOLDER [NAME...]\n");
        return 2;
    }
    const QString folder = names.takeFirst();
    QDir().mkpath(folder + u"/Background"_s);
    const auto wanted = [&names](const QString& name) {
        return names.isEmpty() || names.contains(name);
    };
    bool good = true;
    for (const Picture& picture : Pictures()) {
        if (wanted(picture.Name)) {
            good &= Save(picture.Draw(), folder + u"/Background/"_s + picture.Name + u".jpg"_s, 88);
        }
    }
    for (const QString& name : SpotNames()) {
        if (wanted(name)) {
            good &= Save(Spot(name), folder + u'/' + name + u".ico"_s, -1);
        }
    }
    return good ? 0 : 1;
}
