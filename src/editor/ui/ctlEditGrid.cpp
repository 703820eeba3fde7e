#include "editor/ui/ctlEditGrid.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>

using namespace Qt::StringLiterals;

ctlEditGrid::ctlEditGrid(platform::WallClock& clock, EditGridHost& host, QWidget* parent)
    : QWidget(parent), editing_(data_, columns_, clock), host_(host) {
    ctlGrid_ = new QTableView(this);
    ctlGrid_->setObjectName(u"ctlGrid"_s);
}

ctlEditGrid::~ctlEditGrid() = default;

void ctlEditGrid::SetLooks(std::function<CellLook(int, int)> ofCell,
                           std::function<CellLook(int, int, const QString&)> ofItem) {
    looks_ = {std::move(ofCell), std::move(ofItem)};
}

void ctlEditGrid::Refresh() {}

void ctlEditGrid::RefreshRow(int) {}

bool ctlEditGrid::SetCellCtl(int col, int id) {
    return columns_.SetCellCtlID(col, id);
}

bool ctlEditGrid::OnCellKeyPress(int keyAscii) {
    return editing_.OnCellKeyPress(keyAscii);
}

void ctlEditGrid::EndCellEdit() {
    editing_.EndCellEdit();
}

void ctlEditGrid::CancelCellEdit() {
    editing_.CancelCellEdit();
}

void ctlEditGrid::SetColComboOption(const QString&) {}

void ctlEditGrid::AutoColFit() {}

void ctlEditGrid::SetGridSize() {}

void ctlEditGrid::SetGridWidthByCaller(int) {}

void ctlEditGrid::ShowInfo(const QString&) {}

void ctlEditGrid::HideInfo() {}

void ctlEditGrid::CopySelection() const {
    QGuiApplication::clipboard()->setText(data_.Clip());
}

QTableView& ctlEditGrid::View() {
    return *ctlGrid_;
}
