#include "clock/MenuIcons.h"

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

/// Null for a file that is missing or no picture.
std::shared_ptr<const QImage> ReadIcon(const platform::Files& files, const QString& path) {
    QImage picture = QImage::fromData(files.Read(path).value_or(QByteArray()), "svg");
    return picture.isNull() ? nullptr : std::make_shared<const QImage>(std::move(picture));
}

}  // namespace

void SetMenuIcon(MenuNode& menu, const Program& program) {
    for (MenuNode& node : menu.Children) {
        for (const auto& icon : Icons) {
            if (node.Name == icon.Entry) {
                node.Icon =
                    ReadIcon(program.Services.FileSystem,
                             program.Module.Paths.ImagesFolder + icon.File.toString() + u".svg"_s);
            }
        }
    }
}

}  // namespace clockcore
