#include "editor/ui/ctlEditGrid.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScopedValueRollback>

#include "editor/GridLines.h"
#include "editor/GridSort.h"
#include "editor/GridState.h"
#include "editor/ui/GridInput.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

/// The parts that a grid is put together from, in the order in which they need each other.
struct ctlEditGrid::Inside {
    explicit Inside(ctlEditGrid& grid)
        : Parts{grid.data_, grid.columns_, grid.editing_, grid.look_, grid.host_, grid.looks_},
          Model(Parts, &grid),
          Editors(Parts, Model,
                  {[&grid] { grid.ShowCursor(); },
                   [&grid](Qt::FocusReason reason) { grid.FocusWent(reason); }}),
          Cursor(Parts, Model, [this] { Editors.End(); }),
          Input(Parts, {Model, Editors, Cursor},
                {[&grid] { grid.Compact(); },
                 [&grid](Qt::FocusReason reason) { grid.FocusWent(reason); }}),
          View(*new GridView(Parts, Model, Input, &grid)),
          Delegate(*new CellDelegate(Parts, Model, Editors, View)),
          Chooser(*new ColChooserBox(Parts,
                                     {[&grid] { grid.Refresh(); }, [&grid] { grid.AutoColFit(); },
                                      [this] { View.setFocus(); }},
                                     &grid)),
          Places(Parts, Model, View),
          Info(*new QLabel(&grid)) {
        Editors.SetView(View);
        Input.SetView(View, Delegate, Chooser);
        View.setItemDelegate(&Delegate);
    }

    GridParts Parts;
    GridModel Model;
    CellEditors Editors;
    GridCursor Cursor;
    GridInput Input;
    GridView& View;
    CellDelegate& Delegate;
    ColChooserBox& Chooser;
    GridPlaces Places;
    QLabel& Info;  ///< `txtInfo`
};

ctlEditGrid::ctlEditGrid(platform::WallClock& clock, EditGridHost& host, QWidget* parent)
    : QWidget(parent), editing_(data_, columns_, clock), host_(host) {
    inside_ = std::make_unique<Inside>(*this);
    setFocusProxy(&inside_->View);
    MakeInfo();
    QHeaderView* header = inside_->View.horizontalHeader();
    header->viewport()->installEventFilter(this);
    connect(header, &QHeaderView::sectionClicked, this,
            [this](int col) { inside_->Input.HeadingClicked(col); });
    connect(header, &QHeaderView::sectionResized, this, [this](int col, int, int width) {
        if (!applies_) {
            look_.Column(col).Width = qRound(width * TwipsPerPixel);
        }
    });
    Setup();
    Refresh();
}

// The view, which tells of its end, goes before the parts that it tells.
ctlEditGrid::~ctlEditGrid() {
    inside_->Parts.Editing.CancelCellEdit();
    inside_->View.horizontalHeader()->viewport()->removeEventFilter(this);
    delete &inside_->Chooser;
    delete &inside_->View;
}

void ctlEditGrid::MakeInfo() {
    QLabel& info = inside_->Info;
    info.setObjectName(u"txtInfo"_s);
    info.setFrameShape(QFrame::StyledPanel);
    info.setAutoFillBackground(true);
    info.setBackgroundRole(QPalette::ToolTipBase);
    info.setForegroundRole(QPalette::ToolTipText);
    info.setTextFormat(Qt::PlainText);
    info.setWordWrap(true);
    info.setMargin(4);
    info.hide();
}

void ctlEditGrid::SetLooks(std::function<CellLook(int, int)> ofCell,
                           std::function<CellLook(int, int, const QString&)> ofItem) {
    looks_ = {std::move(ofCell), std::move(ofItem)};
}

void ctlEditGrid::Refresh() {
    inside_->Editors.EndOrDrop();
    const QScopedValueRollback<bool> applying(applies_, true);
    const int top = inside_->Places.TopRow();
    inside_->Model.Rebuild();
    inside_->View.Apply();
    if (top >= 0) {
        inside_->Places.SetTopRow(std::min(top, data_.Rows() - 1));
    }
    ShowCursor();
}

void ctlEditGrid::RefreshRow(int row) {
    inside_->Model.RowChanged(row);
}

void ctlEditGrid::ShowCursor() {
    inside_->Cursor.ShowIn(inside_->View);
}

void ctlEditGrid::Compact() {
    if (CompactOnPress) {
        editor::CompactColumn(data_);
        inside_->View.viewport()->update();
    }
}

// The focus stays in the grid while it goes to an editor or a list.
void ctlEditGrid::FocusWent(Qt::FocusReason reason) {
    const QWidget* next = QApplication::focusWidget();
    const bool leaves = look_.CausesValidation && reason != Qt::PopupFocusReason &&
                        reason != Qt::ActiveWindowFocusReason && next != nullptr &&
                        !isAncestorOf(next);
    if (!leaves) {
        return;
    }
    bool cancel = false;
    host_.Validate(cancel);
    if (cancel) {
        QMetaObject::invokeMethod(
            this, [this] { inside_->View.setFocus(); }, Qt::QueuedConnection);
    }
}

bool ctlEditGrid::SetCellCtl(int col, int id) {
    inside_->Editors.EndOrDrop();
    return columns_.SetCellCtlID(col, id);
}

bool ctlEditGrid::OnCellKeyPress(int keyAscii) {
    return inside_->Editors.OnCellKeyPress(keyAscii);
}

void ctlEditGrid::EndCellEdit() {
    inside_->Editors.End();
}

void ctlEditGrid::CancelCellEdit() {
    inside_->Editors.Cancel();
}

void ctlEditGrid::SetColComboOption(const QString& options) {
    inside_->Chooser.SetOptions(options);
}

QString ctlEditGrid::ColComboOption() const {
    return inside_->Chooser.Options();
}

void ctlEditGrid::ShowColChooser(int col) {
    inside_->Input.ShowColChooser(col);
}

void ctlEditGrid::AutoColFit() {
    for (int col = 0; col < data_.Cols(); ++col) {
        if (columns_.ColFormat(col).isEmpty()) {
            continue;
        }
        int width = inside_->View.horizontalHeader()->sectionSizeHint(col);
        for (int line = 0; line < inside_->Model.rowCount(); ++line) {
            width = std::max(width, inside_->Delegate.WidthAt(inside_->Model.index(line, col)));
        }
        inside_->View.horizontalHeader()->resizeSection(col, width);
    }
}

void ctlEditGrid::SetGridWidthByCaller(int most) {
    const QHeaderView* header = inside_->View.horizontalHeader();
    const int edges = 2 * inside_->View.frameWidth();
    resize(std::clamp(header->length() + edges, 0, std::max(most, 0)), height());
}

void ctlEditGrid::SetGridSize(const QSize& most) {
    SetGridWidthByCaller(most.width());
    const GridView& view = inside_->View;
    const int header = view.horizontalHeader()->isHidden() ? 0 : view.horizontalHeader()->height();
    const int rows = view.verticalHeader()->length();
    resize(width(), std::clamp(rows + header + 2 * view.frameWidth(), 0, most.height()));
}

void ctlEditGrid::ShowInfo(const QString& text) {
    inside_->Info.setText(text);
    inside_->Info.show();
    inside_->Info.raise();
    PlaceInfo();
}

void ctlEditGrid::SetToolTipText(const QString& text) {
    look_.ToolTipText = text;
    inside_->View.setToolTip(text);
}

void ctlEditGrid::HideInfo() {
    inside_->Info.hide();
}

void ctlEditGrid::PlaceInfo() {
    QLabel& info = inside_->Info;
    const int wanted = info.heightForWidth(width());
    info.setGeometry(0, height() - wanted, width(), wanted);
}

void ctlEditGrid::CopySelection() const {
    QGuiApplication::clipboard()->setText(data_.Clip());
}

QTableView& ctlEditGrid::View() {
    return inside_->View;
}

GridPlaces& ctlEditGrid::Places() {
    return inside_->Places;
}

int ctlEditGrid::MouseRow() const {
    return inside_->Input.MouseRow();
}

int ctlEditGrid::MouseCol() const {
    return inside_->Input.MouseCol();
}

QLineEdit* ctlEditGrid::GetCellTextBox() const {
    QWidget* editor = inside_->Editors.Widget();
    return editor != nullptr ? LineOf(editor) : nullptr;
}

QComboBox* ctlEditGrid::GetCellCombo() const {
    return qobject_cast<QComboBox*>(inside_->Editors.Widget());
}

QComboBox* ctlEditGrid::GetCellComboEdit() const {
    return editing_.EditColumnId() == editor::EditorKind::ComboEdit ? GetCellCombo() : nullptr;
}

QComboBox* ctlEditGrid::GetComboCtl(int col) const {
    const bool isOpen = editing_.EditColumnId() == editor::EditorKind::Combo;
    return isOpen && editing_.EditColumn() == col ? GetCellCombo() : nullptr;
}

QComboBox* ctlEditGrid::GetComboEditCtl(int col) const {
    const bool isOpen = editing_.EditColumnId() == editor::EditorKind::ComboEdit;
    return isOpen && editing_.EditColumn() == col ? GetCellCombo() : nullptr;
}

QString ctlEditGrid::GetComboEditText() const {
    return editing_.IsEditing() ? editing_.Editor()->Text() : QString();
}

void ctlEditGrid::SetComboEditText(const QString& text) {
    if (editing_.IsEditing()) {
        editing_.Editor()->SetText(text);
        inside_->Editors.Mirror();
    }
}

bool ctlEditGrid::Sort(int code) {
    constexpr int byHost = 9;
    inside_->Editors.End();
    bool isKnown = true;
    if (code == byHost) {
        editor::SortBy(data_, [this](int row1, int row2) {
            int order = 0;
            host_.Compare(row1, row2, order);
            return order;
        });
    } else {
        isKnown = editor::Sort(data_, code);
    }
    Refresh();
    return isKnown;
}

QVariantMap ctlEditGrid::SaveState() {
    return editor::GridState{data_, columns_, editing_, look_}.Save();
}

void ctlEditGrid::LoadState(const QVariantMap& bag) {
    inside_->Editors.End();
    editor::GridState{data_, columns_, editing_, look_}.Load(bag);
    Refresh();
}

QPixmap ctlEditGrid::Picture() {
    return inside_->View.grab();
}

void ctlEditGrid::SetName(const QString& name) {
    setAccessibleName(name);
    inside_->View.setAccessibleName(name);
}

bool ctlEditGrid::eventFilter(QObject* watched, QEvent* event) {
    inside_->Input.HeaderEvent(*event);
    return QWidget::eventFilter(watched, event);
}

void ctlEditGrid::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    inside_->View.setGeometry(rect());
    if (!inside_->Info.isHidden()) {
        PlaceInfo();
    }
}
