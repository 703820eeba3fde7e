#include "foundation/FilePickers.h"

#include <algorithm>

#include "foundation/FileHelpers.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;

namespace mduUILib {

namespace {

struct Row {
    QStringView Key;
    QStringView Kind;
    QStringView Filter;
    QString PathTable::*Folder;
    QStringView Below;  ///< a folder in that folder
};

constexpr int Exclamation = 48;  ///< the icon of a message box
constexpr QStringView Pictures = u"*.bmp;*.gif;*.jpg";
constexpr QStringView PicturesAndIcons = u"*.bmp;*.ico;*.gif;*.jpg";

constexpr Row Table[] = {
    {u"Flag File", u"Image", PicturesAndIcons, &PathTable::ImagesFolder, u"Flags/"},
    {u"Timer Sound File", u"Sound", u"*.wav", &PathTable::SoundFilesFolder, {}},
    {u"Second Sound File", u"Sound", u"*.wav", &PathTable::SoundFilesFolder, {}},
    {u"Hour Sound File", u"Sound", u"*.wav", &PathTable::SoundFilesFolder, {}},
    {u"Clock Image File", u"Image", Pictures, &PathTable::ImagesFolder, u"Background/"},
    {u"Window Background File", u"Image", Pictures, &PathTable::ImagesFolder, u"Background/"},
    {u"Minute Spot Image File", u"Image", PicturesAndIcons, &PathTable::ImagesFolder, {}},
    {u"Clock Styles", u"Ini File", u"*.ini", &PathTable::StylesFolder, {}},
    {u"Time Zone", u"Ini File", u"*.ini", &PathTable::ZoneFileFolder, {}},
    {u"Music File", u"Ini File", u"*.mp3;*.wma;*.wav", &PathTable::MusicFolder, {}},
};

FilePicker PickerOf(const Row& row, const PathTable& paths) {
    const QString filter = row.Filter.toString();
    return {filter, u"%1 (%2)"_s.arg(row.Kind, filter), paths.*row.Folder + row.Below.toString()};
}

// A value ends at its comma and its line, and "\\" parts the folders of a stored path.
bool CanBeKept(const QString& path) {
    return std::none_of(path.begin(), path.end(), [](QChar letter) {
        return letter == u',' || letter == u'\\' || letter.category() == QChar::Other_Control;
    });
}

}  // namespace

QString FilePicker::DialogFilter() const {
    const QString own = QString(FilterName).replace(u';', u' ');
    return Filter == "*.ini"_L1 || Filter == "*"_L1 ? own : own + u";;All Files (*)"_s;
}

bool IsFileKey(const QString& key) {
    return key.trimmed().endsWith("file"_L1, Qt::CaseInsensitive);
}

std::optional<FilePicker> FilePickerOf(const QString& key, const PathTable& paths) {
    const QString name = key.trimmed();
    const auto* row = std::find_if(std::begin(Table), std::end(Table), [&](const Row& entry) {
        return entry.Key.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (row != std::end(Table)) {
        return PickerOf(*row, paths);
    }
    if (!IsFileKey(key)) {
        return std::nullopt;
    }
    return FilePicker{u"*"_s, u"All Files (*)"_s, paths.AppFolder + u'/'};
}

QString PickerStart(const FilePicker& picker, const QString& value, const PathTable& paths) {
    const QString path = mduLib::ResolveAppPath(value.trimmed(), paths.AppFolder);
    const bool isPath = path.startsWith(u'/') && !path.contains(u'*');
    return isPath ? path : picker.Folder;
}

QString StoredFile(const QString& path, const QString& appFolder) {
    const QString folder = appFolder + u'/';
    return mduLib::ToStoredPath(path.startsWith(folder) ? u"./"_s + path.mid(folder.size()) : path);
}

QString PickFile(platform::Dialogs& dialogs, const QString& title, const QString& key,
                 const PathTable& paths) {
    const std::optional<FilePicker> picker = FilePickerOf(key, paths);
    return picker ? dialogs.OpenFile(title, picker->Folder, picker->DialogFilter()) : QString();
}

QString PickPropertyFile(platform::Dialogs& dialogs, const QString& key, const QString& value,
                         const PathTable& paths) {
    const std::optional<FilePicker> picker = FilePickerOf(key, paths);
    if (!picker) {
        return value;
    }
    const QString file =
        dialogs.OpenFile(key.trimmed(), PickerStart(*picker, value, paths), picker->DialogFilter());
    if (!CanBeKept(file)) {
        dialogs.MessageBox(u"File is not set "_s + file, Exclamation, u"Set File Error"_s);
        return value;
    }
    return file.isEmpty() ? value : StoredFile(file, paths.AppFolder);
}

}  // namespace mduUILib
