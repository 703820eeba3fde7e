// What the buttons, the menu and the close box of the window of properties do.
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QScopedValueRollback>

#include "editor/ui/PropertyWindowParts.h"
#include "editor/ui/frmProperties.h"

using namespace Qt::StringLiterals;
using editor::SheetAnswer;
using editor::SheetOutcome;
using Item = PropertyMenu::Item;

namespace {

/// The entries of the menu that are those of the menu "Edit", too.
std::optional<EditAction> EditActionOf(Item item) {
    constexpr std::pair<Item, EditAction> Actions[] = {
        {Item::Undo, EditAction::Undo},   {Item::Redo, EditAction::Redo},
        {Item::Cut, EditAction::Cut},     {Item::Copy, EditAction::Copy},
        {Item::Paste, EditAction::Paste}, {Item::Find, EditAction::Find}};
    for (const auto& [entry, action] : Actions) {
        if (entry == item) {
            return action;
        }
    }
    return std::nullopt;
}

QString ClipboardText() {
    return QGuiApplication::clipboard()->text();
}

}  // namespace

void frmProperties::PressButton() {
    const editor::ButtonTag seen = shown_;
    parts_->Grid.EndEdit();
    if (!AskChange() || !Ask(parts_->Sheet.WriteQuestion())) {
        return;
    }
    SheetOutcome outcome;
    Write([&](int record, const QString& cell, const ClockProperties& present) {
        outcome = parts_->Sheet.Press(record, cell, present, seen);
    });
    Follow(outcome);
}

// A window that is closed from within its own box would be gone when that is answered.
void frmProperties::RunBox(const std::function<void()>& box) {
    if (asking_) {
        return;
    }
    const QPointer<QWidget> standing(this);
    asking_ = true;
    box();
    if (standing) {
        asking_ = false;
    }
}

bool frmProperties::Ask(const std::optional<editor::SheetQuestion>& question) {
    bool isYes = false;
    RunBox([&] { isYes = parts_->Owner.Ask(question); });
    return isYes;
}

// The owner lays out its own look when it is asked for its properties.
void frmProperties::Write(
    const std::function<void(int, const QString&, const ClockProperties&)>& writing) {
    PropertyGrid& grid = parts_->Grid;
    const ClockProperties present = parts_->Owner.Now();
    if (parts_->Sheet.IsForNewFile()) {
        grid.Preview().End();  // another file is open behind it
    }
    grid.Preview().Forget();
    grid.InOneStep([&] { writing(grid.CurrentRecord(), grid.CurrentCell(), present); });
}

void frmProperties::Follow(const SheetOutcome& outcome) {
    if (outcome.RefreshOwner) {
        parts_->Owner.RefreshForm(*outcome.RefreshOwner);
        parts_->Grid.InOneStep([this] { parts_->Sheet.OwnerHasTaken(); });
    }
    if (outcome.Problem.isEmpty()) {
        parts_->Sheet.SetPropertyChanged(false);
    }
    parts_->Grid.Preview().Show();
    ShowState();
    Tell(outcome.Problem);
    if (!outcome.Launch.isEmpty() && parts_->Owner.Launch(outcome.Launch)) {
        Unload();
    }
}

// The box comes behind the change of the focus.
void frmProperties::CheckPropertyChanged() {
    if (asking_ || !parts_->Sheet.FocusQuestion()) {
        return;
    }
    QMetaObject::invokeMethod(
        this, [this] { AskChange(); }, Qt::QueuedConnection);
}

bool frmProperties::AskChange() {
    bool isSettled = false;
    RunBox([&] { isSettled = SettleChange(); });
    return isSettled;
}

bool frmProperties::SettleChange() {
    const auto question = parts_->Sheet.ChangeQuestion();
    if (!question) {
        return true;
    }
    const SheetAnswer answer = parts_->Owner.AnswerTo(*question);
    Refill([&] { return parts_->Sheet.AnswerChange(answer); });
    return answer == SheetAnswer::No;
}

void frmProperties::Refill(const std::function<QString()>& action) {
    parts_->Grid.EndEdit();
    QString problem;
    parts_->Grid.InOneStep([&] { problem = action(); });
    parts_->Grid.Fill();
    parts_->Grid.Preview().Show();
    ShowState();
    Tell(problem);
}

void frmProperties::closeEvent(QCloseEvent* event) {
    if (asking_ || (parts_ && !AskToSave())) {
        event->ignore();
        return;
    }
    program_.Windows.Remove(*this);
    event->accept();
}

bool frmProperties::AskToSave() {
    const QScopedValueRollback guard(asking_, true);
    parts_->Grid.EndEdit();
    const auto question = parts_->Sheet.CloseQuestion();
    const SheetAnswer answer = question ? parts_->Owner.AnswerTo(*question) : SheetAnswer::No;
    if (answer == SheetAnswer::Yes) {
        return SettleChange() && SaveAtClose();
    }
    if (answer == SheetAnswer::No) {
        parts_->Grid.Preview().End();
    }
    return answer == SheetAnswer::No;
}

bool frmProperties::SaveAtClose() {
    if (!parts_->Owner.Ask(parts_->Sheet.WriteQuestion())) {
        return false;
    }
    SheetOutcome outcome;
    Write([&](int record, const QString& cell, const ClockProperties& present) {
        outcome = parts_->Sheet.SaveAtClose(record, cell, present);
    });
    if (!outcome.Problem.isEmpty()) {
        parts_->Grid.Preview().Show();
        Tell(outcome.Problem);
        return false;
    }
    if (outcome.RefreshOwner) {
        parts_->Owner.RefreshForm(*outcome.RefreshOwner);
    }
    return true;
}

void frmProperties::Sort(const QString& tag) {
    parts_->Grid.EndEdit();
    parts_->Sheet.View().SortByTag(tag);
    parts_->Grid.Fill();
}

void frmProperties::RunItem(Item item) {
    const QString tag = PropertyMenu::SortTagOf(item);
    if (!tag.isEmpty()) {
        return Sort(tag);
    }
    if (const std::optional<EditAction> action = EditActionOf(item)) {
        return Edit(*action);
    }
    editor::PropertySheet& sheet = parts_->Sheet;
    switch (item) {
        case Item::ReloadProperties:
            return Refill([&] { return sheet.Reload(); });
        case Item::RefreshByDefault:
            return Refill([&] { return sheet.RefreshFromDefault(); });
        case Item::RefreshTimeZoneDefaults:
            return RefreshTimeZone();
        case Item::Close:
            return Unload();
        case Item::BackToDefault:
            parts_->Grid.EndEdit();
            return sheet.BackToDefault(parts_->Grid.CurrentRecord());
        case Item::Launch:
            parts_->Owner.Launch(sheet.ZoneName());
            return;
        default:
            return;
    }
}

void frmProperties::RefreshTimeZone() {
    if (!AskChange() ||
        (parts_->Owner.Clock() != nullptr && !parts_->Owner.Ask(parts_->Sheet.WriteQuestion()))) {
        return;
    }
    parts_->Grid.Preview().End();  // what is only shown must not be written
    Refill([this] { return parts_->Sheet.RefreshTimeZoneDefaults(parts_->Owner.Clock()); });
}

PropertyMenu::State frmProperties::MenuState() const {
    editor::PropertySheet& sheet = parts_->Sheet;
    const int record = parts_->Grid.CurrentRecord();
    return {.Tag = sheet.View().Tag(),
            .IsEditable = !sheet.IsForNewFile(),
            .HasRow = record > 0,
            .DiffersFromDefault = sheet.DiffersFromDefault(record),
            .CanUndo = CanEdit(EditAction::Undo),
            .CanRedo = CanEdit(EditAction::Redo),
            .CanPaste = CanEdit(EditAction::Paste),
            .CanRefreshTimeZone = !sheet.IsForNewFile() && sheet.CanRefreshTimeZone(),
            .CanLaunch = !sheet.IsForNewFile() && !parts_->Owner.IsShell() &&
                         parts_->Owner.ClockOf(sheet.Path()) == nullptr};
}

bool frmProperties::CanEdit(EditAction action) const {
    if (!parts_ || parts_->Sheet.IsForNewFile()) {
        return false;
    }
    const QUndoStack& undo = parts_->Sheet.Records().Undo();
    const bool hasRow = parts_->Grid.CurrentRecord() > 0;
    switch (action) {
        case EditAction::Undo:
            return undo.canUndo();
        case EditAction::Redo:
            return undo.canRedo();
        case EditAction::Cut:
        case EditAction::Copy:
        case EditAction::SelectAll:
            return hasRow;
        case EditAction::Paste:
            return hasRow && !ClipboardText().isEmpty();
        case EditAction::Find:
            return true;
        default:
            return false;
    }
}

void frmProperties::Edit(EditAction action) {
    if (!CanEdit(action)) {
        return;
    }
    switch (action) {
        case EditAction::Undo:
            return parts_->Grid.Undo();
        case EditAction::Redo:
            return parts_->Grid.Redo();
        case EditAction::Cut:
            return Cut();
        case EditAction::Copy:
            return Copy();
        case EditAction::Paste:
            return Paste();
        case EditAction::SelectAll:
            return parts_->Grid.SelectAll();
        case EditAction::Find:
            return Find();
        default:
            return;
    }
}

void frmProperties::Copy() {
    parts_->Grid.EndEdit();
    QGuiApplication::clipboard()->setText(
        editor::ClipText(parts_->Sheet.Properties(), parts_->Grid.SelectedRecords()));
}

void frmProperties::Cut() {
    Copy();
    std::vector<editor::PastedValue> empty;
    for (const int record : parts_->Grid.SelectedRecords()) {
        empty.push_back({record, {}});
    }
    const QStringList kept = parts_->Grid.PutCells(empty, u"Cut"_s);
    if (!kept.isEmpty()) {
        Tell(u"Not cut, since it can't be empty: "_s + kept.join(u", "_s));
    }
}

void frmProperties::Paste() {
    parts_->Grid.EndEdit();
    const QString text = ClipboardText();
    const auto cells =
        editor::PastedValues(text, parts_->Sheet.Properties(), parts_->Grid.CurrentRecord());
    const int lost = editor::LinesWithoutRecord(text, parts_->Sheet.Properties());
    const QStringList refused = parts_->Grid.PutCells(cells, u"Paste"_s);
    QStringList problems;
    if (!refused.isEmpty()) {
        problems += u"Not a value of "_s + refused.join(u", "_s);
    }
    if (lost > 0) {
        problems +=
            lost == 1 ? u"1 line has no row here"_s : u"%1 lines have no row here"_s.arg(lost);
    }
    if (std::any_of(cells.begin(), cells.end(),
                    [](const auto& c) { return c.Cell.contains(u','); })) {
        problems += editor::CommaProblem;
    }
    Tell(problems.join(u"; "_s));
}

void frmProperties::Find() {
    parts_->Controls.Search().setFocus();
    parts_->Controls.Search().selectAll();
}
