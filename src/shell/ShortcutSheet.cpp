#include "shell/ShortcutSheet.h"

#include <QUndoCommand>

#include "editor/PropertyRows.h"
#include "foundation/PropertyFile.h"
#include "foundation/RemovalQuestion.h"
#include "foundation/SavedMessage.h"
#include "foundation/Shortcuts.h"
#include "foundation/TextHelpers.h"
#include "platform/WallClock.h"
#include "shell/ShortcutHints.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

const QString BoxTitle = u"Save Shortcut"_s;
constexpr int NoAnswer = 7;  // the button "No"

}  // namespace

/// Another key in a row. It stands in the cell at first; done again or undone, in the list as well.
class ShortcutSheet::BindKey final : public QUndoCommand {
public:
    BindKey(ShortcutSheet& sheet, int row, QString after)
        : QUndoCommand(u"Change "_s + sheet.Command(row)),
          sheet_(sheet),
          row_(row),
          before_(sheet.RawValue(row)),
          shownBefore_(sheet.grid_.TextMatrix(row, 1)),
          after_(std::move(after)),
          followsPress_(sheet.openRow_ == row) {}

    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* next) override {
        const auto& press = static_cast<const BindKey&>(*next);
        if (!press.followsPress_) {
            return false;
        }
        after_ = press.after_;
        setObsolete(after_ == shownBefore_);
        return true;
    }
    void redo() override {
        if (isDone_) {
            Show(after_);
            sheet_.CommitShortcutRow(row_);
        } else {
            sheet_.grid_.SetTextMatrix(row_, 1, after_);
        }
        isDone_ = true;
    }
    // The value comes back as it was, also one that says nothing.
    void undo() override {
        sheet_.PutRawValue(row_, before_);
        Show(sheet_.ShownValue(row_));
    }

private:
    void Show(const QString& text) {
        sheet_.grid_.SetRow(row_);
        sheet_.grid_.SetTextMatrix(row_, 1, text);
        sheet_.openRow_ = 0;
        sheet_.refusedKey_.clear();
    }

    ShortcutSheet& sheet_;
    int row_;
    QString before_;       ///< the value of the record, with its choices
    QString shownBefore_;  ///< what stood in the cell
    QString after_;
    bool followsPress_;
    bool isDone_ = false;
};

/// Another list in the place of the whole.
class ShortcutSheet::ReplaceList final : public QUndoCommand {
public:
    ReplaceList(ShortcutSheet& sheet, const QString& text, ClockProperties after)
        : QUndoCommand(text), sheet_(sheet), before_(sheet.List()), after_(std::move(after)) {}

    void redo() override { sheet_.ShowList(after_); }
    void undo() override { sheet_.ShowList(before_); }

private:
    ShortcutSheet& sheet_;
    ClockProperties before_;
    ClockProperties after_;
};

ShortcutSheet::ShortcutSheet(const Program& program, editor::EditGridData& grid, Hooks hooks)
    : program_(program), grid_(grid), hooks_(std::move(hooks)) {}

void ShortcutSheet::Open(const QString& file, const QString& title) {
    file_ = file;
    title_ = title;
    stored_ = List();
    FillShortcutGrid(List(), grid_);
}

QString ShortcutSheet::Command(int row) const {
    return row > 0 ? grid_.TextMatrix(row, 0) : QString();
}

QString ShortcutSheet::ShownValue(int row) const {
    const int record = grid_.RowData(row);
    return editor::HasRecord(List(), record) ? mduLib::RowFirstField(record, List()) : QString();
}

QString ShortcutSheet::RawValue(int row) const {
    const int record = grid_.RowData(row);
    return editor::HasRecord(List(), record) ? List()[record].Value : QString();
}

void ShortcutSheet::PutRawValue(int row, const QString& value) {
    const int record = grid_.RowData(row);
    if (editor::HasRecord(List(), record)) {
        List()[record].Value = value;
    }
}

bool ShortcutSheet::PressKey(int row, int code, int shift) {
    const QString text = HasCommand(row) ? RecordedKey(grid_, row, code, shift) : QString();
    if (text.isEmpty()) {
        return false;
    }
    if (openRow_ != row) {
        CommitShortcutRow(openRow_);
    }
    refusedKey_ = text == UsedKey ? mduUILib::KeyText(code, shift) : QString();
    if (text != grid_.TextMatrix(row, 1)) {
        steps_.push(new BindKey(*this, row, text));
        openRow_ = text == ShownValue(row) ? 0 : row;
    }
    return true;
}

void ShortcutSheet::CommitShortcutRow(int row) {
    openRow_ = 0;
    refusedKey_.clear();
    if (!HasCommand(row)) {
        return;
    }
    const QString cell = grid_.TextMatrix(row, 1);
    if (cell.isEmpty()) {
        grid_.SetTextMatrix(row, 1, ShownValue(row));
    } else {
        editor::CommitRow(List(), grid_.RowData(row), cell);
    }
}

bool ShortcutSheet::IsChangedOutside() const {
    ClockProperties now;
    return mduLib::ReadPropertyFile(program_.Services.FileSystem, file_, now) && now != stored_;
}

bool ShortcutSheet::Write() {
    platform::Files& files = program_.Services.FileSystem;
    if (!mduLib::RewritePropertyFile(files, List(), file_)) {
        hooks_.Tell(u"%1 can't be written"_s.arg(file_));
        return false;
    }
    stored_.Reset();
    mduLib::ReadPropertyFile(files, file_, stored_);
    steps_.setClean();
    hooks_.Tell(mduLib::SavedMessage(u"the shortcuts"_s, program_.Services.Clock.Now()));
    return true;
}

bool ShortcutSheet::Save(int row) {
    CommitShortcutRow(row);
    const QString question =
        file_ + u"\r\nhas been changed by another program, do you want to over write it?"_s;
    if (IsChangedOutside() &&
        hooks_.Ask(question, MsgBox::RemovalQuestion, BoxTitle) != MsgBox::Yes) {
        hooks_.Tell(
            u"The shortcuts are not saved; \"Reload Shortcuts\" shows what the file holds"_s);
        return false;
    }
    return Write();
}

std::optional<ClockProperties> ShortcutSheet::Read(const QString& file) const {
    ClockProperties list;
    if (!mduLib::ReadPropertyFile(program_.Services.FileSystem, file, list)) {
        hooks_.Tell(u"%1 can't be read"_s.arg(file));
        return {};
    }
    return list;
}

void ShortcutSheet::ShowList(const ClockProperties& list) {
    List() = list;
    openRow_ = 0;
    FillShortcutGrid(List(), grid_);
}

bool ShortcutSheet::Replace(const QString& what, const QString& file) {
    CommitShortcutRow(openRow_);
    const std::optional<ClockProperties> list = Read(file);
    if (list && *list != List()) {
        steps_.push(new ReplaceList(*this, what, *list));
    }
    return list.has_value();
}

void ShortcutSheet::ReloadShortcuts() {
    if (Replace(u"Reload Shortcuts"_s, file_)) {
        stored_ = List();
        steps_.setClean();
    }
}

void ShortcutSheet::RefreshByDefault() {
    Replace(u"Refresh By Default"_s, program_.Module.Paths.DefaultShortcutsFile());
}

// What was typed and not saved is no more: the clocks go by the file again.
bool ShortcutSheet::MayClose(int row) {
    if (!Dirty()) {
        return true;
    }
    const int answer =
        hooks_.Ask(u"Do you want to save the %1?"_s.arg(title_), MsgBox::YesNoQuestion, BoxTitle);
    if (answer != NoAnswer) {
        return answer == MsgBox::Yes && Save(row);
    }
    ClockProperties now;
    const bool isThere = mduLib::ReadPropertyFile(program_.Services.FileSystem, file_, now);
    ShowList(isThere ? now : stored_);
    steps_.clear();
    return true;
}

QString ShortcutSheet::RowInfo(int row) const {
    if (!HasCommand(row)) {
        return {};
    }
    const QString text = grid_.TextMatrix(row, 1);
    if (text == UsedKey && !refusedKey_.isEmpty()) {
        return RefusedKeyHint(refusedKey_, Command(FindKeyRow(grid_, refusedKey_)));
    }
    return CommandHint(Command(row)) + u' ' + KeyHint(text);
}

}  // namespace shell
