#pragma once

#include <QRectF>
#include <optional>

#include "foundation/ClockProperty.h"
#include "foundation/Program.h"

namespace clockcore {

/// Style files: whole appearances that can be put on any clock without changing its zone. A style
/// is a clock's property file whose zone keys are empty.
class StyleFiles {
public:
    explicit StyleFiles(const Program& program) : program_(program) {}

    /// A style for a clock: everything from @p styleFile, the zone keys from @p clockFile (from
    /// @p present where that has none). A style older than the default file is first merged with
    /// it, on the disk, so that it gains new keys. Nothing when the file is missing or is no style;
    /// @p problem then tells why, and stays empty for a missing file.
    std::optional<ClockProperties> Read(const QString& styleFile, const QString& clockFile,
                                        const ClockProperties& present, QString& problem) const;

    /// A style as its file stands, for those who only look: without the clock's zone keys, and
    /// without a merge. Nothing when the file is missing or is no style; @p problem tells why.
    std::optional<ClockProperties> Peek(const QString& styleFile, QString& problem) const;

    /// Where a style is written that the user named @p chosen: a name without a stem becomes
    /// "unknown.ini", one without ".ini" gains it.
    static QString SavePath(const QString& chosen);

    /// Writes a look as a style, with empty zone keys and the window's rectangle in twips, where
    /// the window has its normal size. @return false when the file can't be written
    bool Write(const QString& path, ClockProperties look, const std::optional<QRectF>& twips) const;

    /// The name of a style by its full path, without ".ini"; empty for one that is not in the
    /// folder of styles, or that has another extension.
    QString NameInFolder(const QString& styleFile) const;
    /// The names of the style files with ".ini", in directory order.
    QStringList Names() const;

private:
    Program program_;
};

}  // namespace clockcore
