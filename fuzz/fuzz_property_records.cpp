#include <algorithm>

#include "editor/EditedFile.h"
#include "editor/PropertyDefaults.h"
#include "editor/PropertyRecords.h"
#include "editor/PropertyView.h"
#include "foundation/PropertyFile.h"
#include "fuzz/MemoryFiles.h"

using namespace Qt::StringLiterals;
using editor::EditedFile;
using editor::FileState;
using editor::PropertyRecords;

namespace {

/// The first line is what goes into the cells, the rest is the file.
struct Input {
    QString Cell;
    QByteArray File;
};

Input Split(const QByteArray& bytes) {
    const qsizetype end = bytes.indexOf('\n');
    return {QString::fromUtf8(bytes.left(end)), end < 0 ? QByteArray() : bytes.mid(end + 1)};
}

void CommitEach(PropertyRecords& records, const QString& cell) {
    const int bound = records.Now().UpperBound();
    for (int record = -1; record <= bound + 1; ++record) {
        const editor::RowCommit commit = records.Commit(record, cell);
        const bool isThere = editor::HasRecord(records.Now(), record);
        Require(isThere || !commit.Dirty);
        Require(!isThere || commit.Cell == editor::PropertyCell(records.Now()[record].Value));
    }
    Require(records.Now().UpperBound() == bound);
}

/// All that can be undone comes back, and again.
void UndoAndRedo(PropertyRecords& records, const ClockProperties& before) {
    const ClockProperties after = records.Now();
    const int commands = records.Undo().count();
    records.Undo().setIndex(0);
    Require(records.Now() == before && !records.IsDirty());
    records.Undo().setIndex(commands);
    Require(records.Now() == after);
}

void ShowEach(const ClockProperties& properties, const QString& words) {
    for (const QString& tag : {u"2,0"_s, u"1,1"_s, u"3,2"_s}) {
        editor::PropertyView view;
        view.SortByTag(tag);
        const std::size_t all = view.Records(properties, {}).size();
        view.SetFilter(words);
        const std::vector<int> shown = view.Records(properties, {});
        Require(shown.size() <= all);
        for (std::size_t entry = 0; entry < shown.size(); ++entry) {
            Require(!properties[shown[entry]].Name.isEmpty());
            view.HeadingOver(shown, static_cast<int>(entry), properties);
        }
    }
}

/// What is written is what the file reads as, and the next write changes no byte.
void WriteAndReadAgain(EditedFile& file, MemoryFiles& files, const ClockProperties& properties) {
    const QByteArray before = files.Contents.value(file.Path());
    if (!file.Write(properties).isEmpty()) {
        Require(files.Contents.value(file.Path()) == before);
        return;
    }
    Require(file.State() == FileState::Same);
    const QByteArray written = files.Contents.value(file.Path());
    Require(written == mduLib::PropertyFileContent(properties));
    if (const std::optional<ClockProperties> back = file.Read()) {
        PropertyRecords follower(*back);
        Require(follower.Follow(*back) && !follower.IsDirty());
    }
}

}  // namespace

/// A file of any bytes is opened, edited in every row, undone, sorted, merged and written.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const Input input =
        Split(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    MemoryFiles files;
    files.Contents[u"file"_s] = input.File;
    EditedFile file(files, u"file"_s);
    const ClockProperties opened = file.Read().value_or(ClockProperties());
    PropertyRecords records(opened);
    CommitEach(records, input.Cell);
    records.Replace(editor::PropertyDefaults(opened).MergedOver(records.Now()), u"Merge"_s);
    UndoAndRedo(records, opened);
    ShowEach(records.Now(), input.Cell);
    WriteAndReadAgain(file, files, records.Now());
    return 0;
}
