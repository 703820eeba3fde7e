#pragma once

#include <QRectF>
#include <QStringList>
#include <array>
#include <functional>

#include "clock/ClockData.h"
#include "foundation/Program.h"

namespace clockcore {

/// The keys of a window's place, each with its value for a rectangle in twips.
std::array<std::pair<QString, QString>, 4> PlaceValues(const QRectF& twips);

/// What a clock reads from its files and leaves in them.
class ClockFiles {
public:
    /// Tells the user of a file that can't be used.
    using Report = std::function<void(const QString&)>;

    ClockFiles(ClockData& data, const Program& program, Report report)
        : data_(data), program_(program), report_(std::move(report)) {}

    /// Brings the zone's file into being or up to date, reads it, refreshes its zone keys unless it
    /// has just been merged and they are of this year, and publishes the properties. @return false
    /// when the name can't be that of a file.
    bool LoadForShell(const QString& zoneName);

    /// Makes the zone's file the current one, without touching it. @return false when the name
    /// can't be that of a file.
    bool NameCurrentFile(const QString& zoneName);

    /// Brings the current file into being or up to date. @return true when it was merged
    bool RefreshFile();

    /// Reads `CurrentPropertyFile` as it stands.
    void LoadCurrent();

    /// Fills the clock's zone: the record of that name, the file's keys over it, the present
    /// offset. Keys with days of another year are made anew first.
    void FillZone(const QString& zoneName);

    /// Lays the properties' zone keys over the zone once more and works its present offset out.
    /// Keys with days of another year are made anew first.
    void RefreshZone();

    /// Rewrites the zone keys of the file, as it now stands on disk, from the zone's present rules
    /// and publishes the properties. What else has been changed waits for its own save.
    void RefreshDefaultTimeZoneDetails(const QString& zoneName);

    /// Stores the window's rectangle, in twips, into the file as it now stands on disk. @return
    /// false when it can't be written
    bool SavePosition(const QRectF& twips);

    /// Brings the present values of some keys, with their choices, into the file as it now stands
    /// on disk, which is written once. What else has been changed waits for its own save. @return
    /// false when that failed, which is told.
    bool SaveKeys(const QStringList& names);
    bool SaveKey(const QString& name) { return SaveKeys({name}); }

    /// Tells the windows that edit the clock's file that it has been saved. Those who save keys or
    /// the place have told it.
    void TellPropertyWindows() const;

    /// Names this clock's file and properties as the current ones.
    void MakeCurrent();

    /// False for a file that could not be read whole: it is never written, so that nothing in it
    /// is lost.
    bool MayWrite() const { return mayWrite_; }

private:
    bool HasOldZone() const;
    /// Makes the zone's keys anew, those of the zone that the file has, in memory; `SaveZone`
    /// writes them.
    void RenewZone(const QString& zoneName);
    void SaveZone();
    void ReadProperties();
    void ReportUnless(bool written) const;
    /// Tells the user of a failure, else the windows that edit the file. @return @p written
    bool Told(bool written) const;

    ClockData& data_;
    Program program_;
    Report report_;
    bool mayWrite_ = true;
};

}  // namespace clockcore
