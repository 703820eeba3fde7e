#include "foundation/PropertyFile.h"
#include "foundation/PropertyMerge.h"
#include "fuzz/MemoryFiles.h"

using namespace Qt::StringLiterals;

// The input is the old file and the new one, with a NUL between.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const qsizetype split = input.indexOf('\0');
    MemoryFiles files;
    files.Contents[u"old"_s] = input.left(split);
    files.Contents[u"new"_s] = split < 0 ? QByteArray() : input.mid(split + 1);
    const qsizetype lines = mduLib::FileLines(files.Contents[u"new"_s]).size();
    if (mduLib::MergePropertyFile(files, u"old"_s, u"new"_s, u"out"_s)) {
        Require(mduLib::FileLines(files.Contents[u"out"_s]).size() == lines);
    } else {
        Require(!files.Contents.contains(u"out"_s));
    }
    return 0;
}
