#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "fuzz/MemoryFiles.h"

using namespace Qt::StringLiterals;

namespace {

// Whether a line can hold the row: a forced value loses its mark, an empty name its line, and a
// name that stands alone may not look like a category.
bool SurvivesWriting(const ClockProperty& row) {
    return !row.Name.isEmpty() && !row.Value.startsWith(u'^') &&
           (!row.Category.isEmpty() || !row.Name.contains(u':'));
}

ClockProperties RowsThatSurvive(const ClockProperties& array) {
    ClockProperties kept;
    for (int row = 1; row <= array.UpperBound(); ++row) {
        if (SurvivesWriting(array[row])) {
            mduLib::AppendProperty(array[row].Category, array[row].Name, array[row].Value, kept);
        }
    }
    return kept;
}

void WriteAndReadBack(MemoryFiles& files, const ClockProperties& array) {
    Require(mduLib::WritePropertyFile(files, array, u"out"_s));
    ClockProperties back;
    Require(mduLib::ReadPropertyFile(files, u"out"_s, back) || array == ClockProperties());
    Require(back == array);
}

void Sort(const ClockProperties& array) {
    std::size_t names = 0;
    for (int row = 1; row <= array.UpperBound(); ++row) {
        names += array[row].Name.isEmpty() ? 0 : 1;
    }
    for (const int column : {1, 2, 3}) {
        for (const int direction : {0, 1, 2}) {
            Require(mduLib::SortPropertyRows(array, column, direction).size() == names);
        }
    }
}

void PutEachKey(ClockProperties& array) {
    const int rows = array.UpperBound();
    for (int row = 1; row <= rows; ++row) {
        const QString name = array[row].Name.trimmed();
        mduLib::PutProperty(name, u" new "_s, array);
        Require(mduLib::GetProperty(name, array) == u"new"_s);
    }
    Require(array.UpperBound() == rows);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    MemoryFiles files;
    files.Contents[u"in"_s] =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    ClockProperties array;
    mduLib::ReadPropertyFile(files, u"in"_s, array);
    WriteAndReadBack(files, RowsThatSurvive(array));
    Sort(array);
    PutEachKey(array);
    return 0;
}
