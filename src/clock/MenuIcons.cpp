#include "clock/MenuIcons.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

/// The picture of an entry, below the folder of pictures.
constexpr struct {
    QStringView Entry;
    QStringView File;
} Icons[] = {
    {u"Clocks", u"Menu/Clocks"},
    {u"ClockStyle", u"Menu/Style"},
    {u"WindowState", u"Menu/Window"},
    {u"windowPositionMenu", u"Menu/Position"},
    {u"ClockColour", u"Menu/Colour"},
    {u"Restore", u"Toolbar/Restore"},
    {u"SelectCountry", u"Menu/Country"},
    {u"ChooseTimeZones", u"Toolbar/Timezone"},
    {u"ShowTimeZoneDetails", u"Menu/Details"},
    {u"AutoStart", u"Toolbar/Auto Start"},
    {u"ScreenSaverMenu", u"Menu/Screen Saver"},
    {u"EnableActive", u"Toolbar/Disable"},
    {u"Help", u"Toolbar/Help"},
    {u"About", u"Menu/About"},
    {u"Close", u"Toolbar/Close"},
    {u"SaveStyle", u"Menu/Save"},
    {u"SaveStyleAs", u"Menu/Save As"},
    {u"PropertyMenu", u"Toolbar/Property"},
    {u"HiddenParts", u"Menu/Hidden"},
};

using Icon = std::shared_ptr<const QImage>;

/// Null for a file that is missing or no picture.
Icon ReadIcon(const platform::Files& files, const QString& path) {
    QImage picture = QImage::fromData(files.Read(path).value_or(QByteArray()), "svg");
    return picture.isNull() ? nullptr : std::make_shared<const QImage>(std::move(picture));
}

/// They don't change while the program runs: each is read once, for all clocks. One that could not
/// be read is tried again.
Icon KeptIcon(const platform::Files& files, const QString& path) {
    static std::map<QString, Icon> kept;
    Icon& icon = kept[path];
    if (icon == nullptr) {
        icon = ReadIcon(files, path);
    }
    return icon;
}

/// The picture of an entry tells what a click does.
QString FileOf(const MenuNode& node) {
    if (node.Caption == u"Enable Clock"_s) {
        return u"Toolbar/Enable"_s;
    }
    const auto* found = std::find_if(std::begin(Icons), std::end(Icons),
                                     [&](const auto& icon) { return icon.Entry == node.Name; });
    return found == std::end(Icons) ? QString() : found->File.toString();
}

}  // namespace

void SetMenuIcon(MenuNode& menu, const Program& program) {
    for (MenuNode& node : menu.Children) {
        if (const QString file = FileOf(node); !file.isEmpty()) {
            node.Icon = KeptIcon(program.Services.FileSystem,
                                 program.Module.Paths.ImagesFolder + file + u".svg"_s);
        }
    }
}

}  // namespace clockcore
