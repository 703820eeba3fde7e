// What the grid of properties does with the events of its control, and with changed records.
#include <QContextMenuEvent>
#include <QPointer>
#include <QTableView>

#include "editor/EditorKeys.h"
#include "editor/GridLines.h"
#include "editor/ui/PropertyGrid.h"
#include "foundation/FilePickers.h"
#include "foundation/NamedValues.h"
#include "foundation/Shortcuts.h"
#include "foundation/TextHelpers.h"
#include "platform/Dialogs.h"

using namespace Qt::StringLiterals;
using editor::ValueSort;

namespace {

constexpr int ValueColumn = 1;
constexpr int F2 = 113;
constexpr int F4 = 115;
constexpr int RightButton = 2;
constexpr int Cancelled = -1;

bool WouldChange(const ClockProperty& record, const QString& text) {
    ClockProperties alone;
    alone[1] = record;
    return editor::CommitRow(alone, 1, text).Dirty;
}

/// Whether an empty text leaves the choice that the record has.
bool StaysFull(const ClockProperty& record, const QString& text) {
    return text.isEmpty() && !editor::PropertyCell(record.Value).isEmpty() &&
           !WouldChange(record, text);
}

}  // namespace

// The keys that open lists and cells elsewhere do so here.
void PropertyGrid::KeyDown(int& code, int shift) {
    if (grdProperty_->Editing().IsEditing()) {
        return;
    }
    const bool opens = ((code == F2 || code == F4) && shift == 0) ||
                       (code == editor::KeyCode::Down && shift == mduUILib::KeyShift::Alt);
    if (opens) {
        OpenEditor();
    }
    if (opens || events_.Key(code, shift)) {
        code = 0;
    }
}

void PropertyGrid::MouseUp(int button, int, double x, double y) {
    if (button == RightButton) {
        events_.MenuAsked(grdProperty_->mapToGlobal(QPointF(x, y)).toPoint());
    }
}

// The key that opens a menu.
bool PropertyGrid::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        const QTableView& view = grdProperty_->View();
        const QRect cell = view.visualRect(view.currentIndex());
        events_.MenuAsked(view.viewport()->mapToGlobal(cell.bottomLeft()));
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void PropertyGrid::GotFocus() {
    events_.GotFocus();
}

// A file is picked; any other value opens its editor, as Enter does.
void PropertyGrid::DblClick() {
    const bool onRow = grdProperty_->MouseRow() == grdProperty_->Data().Row() && !onButton_;
    if (!grdProperty_->Editing().Editable || CurrentRecord() == 0 || !onRow) {
        return;
    }
    if (mduUILib::IsFileKey(sheet_.Key(CurrentRecord()))) {
        PickValue();
    } else {
        OpenEditor();
    }
}

void PropertyGrid::MouseDown(int, int, double, double) {
    onButton_ = false;
}

void PropertyGrid::ButtonClicked(int, int) {
    onButton_ = true;
    PickValue();
}

// A box must not be opened from within the end of an edit.
void PropertyGrid::CellChanged(int row, int col) {
    const int record = grdProperty_->Data().RowData(row);
    if (col != ValueColumn || record == 0) {
        return;
    }
    if (!mduUILib::IsCustomColour(grdProperty_->Data().TextMatrix(row, col))) {
        CommitRow(row);
        preview_.Show();
        return;
    }
    grdProperty_->Data().SetTextMatrix(row, col, sheet_.Cell(record));
    grdProperty_->RefreshRow(row);
    preview_.Show();
    QMetaObject::invokeMethod(
        this, [this, record] { PickColour(record); }, Qt::QueuedConnection);
}

void PropertyGrid::ItemHighlighted(int row, int, int item) {
    const int record = grdProperty_->Data().RowData(row);
    const QString value = grdProperty_->Columns().Items(ValueColumn).value(item);
    if (item < 0 || mduUILib::IsCustomColour(value)) {
        preview_.Show();
    } else {
        preview_.Highlight(record, value);
    }
}

void PropertyGrid::PickValue() {
    const int record = CurrentRecord();
    if (record == 0 || !grdProperty_->Editing().Editable) {
        return;
    }
    const editor::ValueForm form =
        editor::FormOf(sheet_.Key(record), sheet_.Properties()[record].Value);
    if (form.Sort == ValueSort::File) {
        PickFile(record);
    } else if (form.Sort == ValueSort::YesNo) {
        TurnOver(record);
    } else if (form.HasList()) {
        OpenEditor();
    } else if (form.Sort == ValueSort::Colour) {
        PickColour(record);
    }
}

void PropertyGrid::OpenEditor() {
    grdProperty_->Data().SetCol(ValueColumn);
    grdProperty_->OnCellKeyPress(editor::KeyCode::Enter);
}

void PropertyGrid::PickColour(int record) {
    const int present = mduUILib::ColourValue(sheet_.Cell(record), program_.Services.Random);
    Pick(record, [present](platform::Dialogs& dialogs) -> std::optional<QString> {
        const int picked = dialogs.PickColour(present);
        return picked == Cancelled ? std::nullopt : std::optional(mduLib::IntegerText(picked));
    });
}

void PropertyGrid::PickFile(int record) {
    if (!sheet_.PickerOf(record)) {
        return;
    }
    const PathTable& paths = program_.Module.Paths;
    Pick(record, [&](platform::Dialogs& dialogs) {
        return std::optional(
            mduUILib::PickPropertyFile(dialogs, sheet_.Key(record), sheet_.Cell(record), paths));
    });
}

// The window may be gone once the picker is closed.
void PropertyGrid::Pick(int record,
                        const std::function<std::optional<QString>(platform::Dialogs&)>& picker) {
    const QPointer<PropertyGrid> standing(this);
    std::optional<QString> text;
    events_.RunBox([&] { text = picker(program_.Services.Dialog); });
    if (standing && text) {
        PutCell(record, *text);
    }
}

void PropertyGrid::TurnOver(int record) {
    const bool on = mduUILib::YesNoToBool(sheet_.Cell(record));
    for (const QString& choice : sheet_.Choices(record)) {
        if (mduUILib::YesNoToBool(choice) != on) {
            return PutCell(record, choice);
        }
    }
}

// The row may no longer be listed when a box has been answered.
void PropertyGrid::PutCell(int record, const QString& text) {
    sheet_.Records().BeginVisit();
    Take(record, text);
}

QStringList PropertyGrid::PutCells(const std::vector<editor::PastedValue>& cells,
                                   const QString& commandText) {
    std::vector<editor::PastedValue> changes;
    QStringList refused;
    for (const editor::PastedValue& cell : cells) {
        const ClockProperty& record = sheet_.Properties()[cell.Record];
        const QString cut = editor::PropertyCell(cell.Cell);
        const auto text = editor::FittingText(record.Name, record.Value, cut);
        if (!text || StaysFull(record, *text)) {
            refused += record.Name.trimmed();
        } else if (WouldChange(record, *text)) {
            changes.push_back({cell.Record, *text});
        }
    }
    if (!changes.empty()) {
        Commit(changes, commandText);
    }
    return refused;
}

void PropertyGrid::Commit(const std::vector<editor::PastedValue>& cells,
                          const QString& commandText) {
    QUndoStack& undo = sheet_.Records().Undo();
    InOneStep([&] {
        undo.beginMacro(commandText);
        for (const editor::PastedValue& cell : cells) {
            PutCell(cell.Record, cell.Cell);
        }
        undo.endMacro();
    });
}

void PropertyGrid::SelectAll() {
    editor::SelectGridAll(grdProperty_->Data());
    grdProperty_->Refresh();
}

void PropertyGrid::Undo() {
    Step(&QUndoStack::undo);
}

void PropertyGrid::Redo() {
    Step(&QUndoStack::redo);
}

void PropertyGrid::Step(void (QUndoStack::*step)()) {
    EndEdit();
    int first = 0;
    InOneStep([&] {
        (sheet_.Records().Undo().*step)();
        first = changed_.empty() ? 0 : *changed_.begin();
    });
    if (first > 0 && RowOf(first) == 0) {
        events_.IsHidden();
    }
    GoTo(first);
}

void PropertyGrid::InOneStep(const std::function<void()>& change) {
    ++steps_;
    change();
    --steps_;
    if (steps_ == 0 && !changed_.empty()) {
        const std::set<int> changed = std::exchange(changed_, {});
        ShowChanges(changed);
    }
}

void PropertyGrid::RecordChanged(int record) {
    InOneStep([this, record] { changed_.insert(record); });
}

// Record 0 stands for all of them.
void PropertyGrid::ShowChanges(const std::set<int>& records) {
    if (records.contains(0)) {
        Fill();
    }
    for (const int record : records) {
        const int row = RowOf(record);
        if (row > 0) {
            FillRow(row, record);
            grdProperty_->RefreshRow(row);
        }
    }
    if (records.contains(CurrentRecord()) && !grdProperty_->Editing().IsEditing()) {
        SetupRowEditor();  // its choices may be others
    }
    preview_.Show();
    events_.RecordsChanged();
}
