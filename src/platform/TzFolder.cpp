#include "platform/TzFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

const QString MachineFolder = u"/usr/share/zoneinfo"_s;

/// The folder that the environment names; empty when it names none.
QString NamedFolder() {
    return QFile::decodeName(qgetenv("TZDIR"));
}

// QTimeZone looks for its files below the machine's folder alone, so another's way is told from
// there. The kernel follows links before it goes up, hence the canonical paths.
QTimeZone ZoneBelow(const QString& folder, const QByteArray& iana) {
    const QFileInfo file(folder + u'/' + QFile::decodeName(iana));
    if (!file.isFile()) {
        return {};
    }
    const QDir machine(QDir(MachineFolder).canonicalPath());
    return QTimeZone(QFile::encodeName(machine.relativeFilePath(file.canonicalFilePath())));
}

QByteArray FirstLine(const QString& name) {
    const QByteArray content = TzFile(name) + '\n';
    return content.first(content.indexOf('\n')).trimmed();
}

}  // namespace

QTimeZone TzZone(const QByteArray& iana) {
    const QString folder = NamedFolder();
    if (iana.isEmpty()) {
        const QTimeZone own =
            folder.isEmpty() ? QTimeZone() : ZoneBelow(folder, QTimeZone::systemTimeZoneId());
        return own.isValid() ? own : QTimeZone::systemTimeZone();
    }
    return folder.isEmpty() ? QTimeZone(iana) : ZoneBelow(folder, iana);
}

QByteArray TzFile(const QString& name) {
    const QString folder = NamedFolder();
    QFile file((folder.isEmpty() ? MachineFolder : folder) + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// "tzdata.zi" begins with "# version 2025b".
QString TzEdition() {
    const QByteArray mark = "# version ";
    const QByteArray line = FirstLine(u"tzdata.zi"_s);
    return QString::fromLatin1(line.startsWith(mark) ? line.mid(mark.size())
                                                     : FirstLine(u"+VERSION"_s));
}

}  // namespace platform
