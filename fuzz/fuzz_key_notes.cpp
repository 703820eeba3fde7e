#include "editor/KeyNotes.h"
#include "foundation/PropertyFile.h"
#include "fuzz/MemoryFiles.h"

using namespace Qt::StringLiterals;

namespace {

bool IsOneLine(const QString& text) {
    return !text.contains(u'\n') && !text.contains(u'\r');
}

}  // namespace

/// Any bytes as the help's notes: every key that they name can be asked for, and is told of on one
/// line.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    MemoryFiles files;
    files.Contents[u"keys"_s] =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    ClockProperties lines;
    mduLib::ReadPropertyFile(files, u"keys"_s, lines);
    const editor::KeyNotes notes(files, u"keys"_s, u"Tempolark"_s);
    for (int row = 1; row <= lines.UpperBound(); ++row) {
        const editor::RowInfo info = RowInfoOf(lines[row], notes);
        Require(IsOneLine(info.Sentence));
        Require(info.Unit.isEmpty() || !lines[row].Value.isEmpty());
    }
    return 0;
}
