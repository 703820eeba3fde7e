#include "support/FakeServices.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

void AppendInt(QByteArray& bytes, int value) {
    char raw[4];
    qToLittleEndian<qint32>(value, raw);
    bytes.append(raw, 4);
}

void AppendTransition(QByteArray& bytes, const platform::SYSTEMTIME& time) {
    for (const std::int16_t field : {time.wYear, time.wMonth, time.wDayOfWeek, time.wDay,
                                     time.wHour, time.wMinute, time.wSecond, time.wMilliseconds}) {
        char raw[2];
        qToLittleEndian<qint16>(field, raw);
        bytes.append(raw, 2);
    }
}

}  // namespace

void FakeZoneDatabase::Add(const QString& name, int bias, int standardBias, int daylightBias,
                           const platform::SYSTEMTIME& standardDate,
                           const platform::SYSTEMTIME& daylightDate) {
    QString daylightName = name;
    daylightName.replace(u"Standard"_s, u"Daylight"_s);
    Subkeys.push_back(
        {name,
         {{u"Display"_s, u"(GMT) "_s + name}, {u"Std"_s, name}, {u"Dlt"_s, daylightName}},
         TziBytes(bias, standardBias, daylightBias, standardDate, daylightDate)});
}

QByteArray FakeZoneDatabase::TziBytes(int bias, int standardBias, int daylightBias,
                                      const platform::SYSTEMTIME& standardDate,
                                      const platform::SYSTEMTIME& daylightDate) {
    QByteArray bytes;
    AppendInt(bytes, bias);
    AppendInt(bytes, standardBias);
    AppendInt(bytes, daylightBias);
    AppendTransition(bytes, standardDate);
    AppendTransition(bytes, daylightDate);
    return bytes;
}

const FakeZoneDatabase::Zone* FakeZoneDatabase::Find(const QString& subkey) const {
    for (const Zone& zone : Subkeys) {
        if (zone.Subkey == subkey) {
            return &zone;
        }
    }
    return nullptr;
}

std::optional<QString> FakeZoneDatabase::SubkeyName(int index) const {
    if (index < 0 || index >= static_cast<int>(Subkeys.size())) {
        return std::nullopt;
    }
    return Subkeys[static_cast<std::size_t>(index)].Subkey;
}

std::optional<QString> FakeZoneDatabase::TextValue(const QString& subkey,
                                                   const QString& name) const {
    const Zone* zone = Find(subkey);
    if (zone == nullptr || !zone->Texts.contains(name)) {
        return std::nullopt;
    }
    return zone->Texts.at(name);
}

std::optional<QByteArray> FakeZoneDatabase::TziValue(const QString& subkey) const {
    const Zone* zone = Find(subkey);
    return zone == nullptr ? std::nullopt : zone->Tzi;
}

std::optional<platform::ZonePlace> FakeZoneDatabase::Place(const QString& subkey) const {
    const auto found = Places.find(subkey);
    return found == Places.end() ? std::nullopt : std::optional(found->second);
}

QStringList FakeZoneDatabase::Countries(const QString& subkey) const {
    const auto found = CountryNames.find(subkey);
    return found == CountryNames.end() ? QStringList() : found->second;
}

int FakeDialogs::MessageBox(const QString& text, int flags, const QString& title) {
    Boxes.push_back({text, flags, title});
    if (BoxAnswers.empty()) {
        qFatal("a message box that the test did not expect: %s", qPrintable(text));
    }
    const int answer = BoxAnswers.front();
    BoxAnswers.erase(BoxAnswers.begin());
    return answer;
}

QString FakeDialogs::OpenFile(const QString& title, const QString& folder, const QString&) {
    PickerTitles += title;
    PickerFolders += folder;
    if (FileAnswers.isEmpty()) {
        qFatal("a file picker that the test did not expect: %s", qPrintable(title));
    }
    return FileAnswers.takeFirst();
}

QString FakeDialogs::SaveFile(const QString& title, const QString& folder, const QString& filter) {
    return OpenFile(title, folder, filter);
}

int FakeDialogs::PickColour(int) {
    if (ColourAnswers.empty()) {
        qFatal("a colour picker that the test did not expect");
    }
    const int answer = ColourAnswers.front();
    ColourAnswers.erase(ColourAnswers.begin());
    return answer;
}

bool FakeFiles::MakeFolder(const QString& path) {
    return !Unwritable.contains(path) && local_.MakeFolder(path);
}

std::optional<QByteArray> FakeFiles::Read(const QString& path) const {
    return Unreadable.contains(path) ? std::nullopt : local_.Read(path);
}

bool FakeFiles::Write(const QString& path, const QByteArray& content) {
    Writes += path;
    return !Unwritable.contains(path) && local_.Write(path, content);
}

bool FakeFiles::Copy(const QString& source, const QString& destination) {
    const std::optional<QByteArray> content = Read(source);
    return content && Write(destination, *content);
}

FakeServices::FakeServices()
    : Clock(QDateTime(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC), QTimeZone("UTC")),
      Settings(Folder.filePath(u"Settings.ini"_s)),
      Services{Clock,   Zones, Files,   User, Settings, Actions, Voices,
               Players, Sound, Dialogs, Tray, Help,     Random} {}

QString FakeServices::WriteFile(const QString& relativePath, const QByteArray& content) {
    const QString path = Folder.filePath(relativePath);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("the test can't write %s", qPrintable(path));
    }
    return path;
}

QByteArray FakeServices::ReadFile(const QString& relativePath) const {
    QFile file(Folder.filePath(relativePath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FakeServices::SetAge(const QString& relativePath, int seconds) {
    QFile file(Folder.filePath(relativePath));
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-seconds),
                          QFileDevice::FileModificationTime)) {
        qFatal("the test can't set the time of %s", qPrintable(relativePath));
    }
}
