#include "editor/ui/GridModel.h"

#include <QBrush>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int MostSpoken = 1'000;
constexpr int MostInHeader = 200;

Qt::Alignment AlignmentOf(editor::ColAlign align) {
    switch (align) {
        case editor::ColAlign::Centre:
            return Qt::AlignCenter;
        case editor::ColAlign::Right:
            return Qt::AlignRight | Qt::AlignVCenter;
        case editor::ColAlign::Left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QVariant BrushOf(const QColor& color) {
    return color.isValid() ? QVariant(QBrush(color)) : QVariant();
}

}  // namespace

QString OneLine(const QString& text, int most) {
    QString line = text.left(most);
    for (QChar& character : line) {
        character = character.unicode() < u' ' ? QChar(u' ') : character;
    }
    return line;
}

GridModel::GridModel(const GridParts& parts, QObject* parent)
    : QAbstractTableModel(parent), parts_(parts) {}

void GridModel::Rebuild() {
    beginResetModel();
    rows_.clear();
    headings_.clear();
    cols_ = parts_.Data.Cols();
    for (int row = HeaderRows(); row < parts_.Data.Rows(); ++row) {
        if (parts_.Data.RowHeight(row) == 0) {
            continue;
        }
        const QString heading = parts_.LookOf(row, 0).Heading;
        if (!heading.isEmpty()) {
            headings_.insert(static_cast<int>(rows_.size()), heading);
        }
        rows_.push_back(row);
    }
    endResetModel();
}

void GridModel::RowChanged(int row) {
    const int line = LineOf(row);
    if (line >= 0 && cols_ > 0) {
        Q_EMIT dataChanged(index(line, 0), index(line, cols_ - 1));
    }
}

int GridModel::RowOf(int line) const {
    const bool isThere = line >= 0 && line < static_cast<int>(rows_.size());
    return isThere ? rows_[static_cast<std::size_t>(line)] : -1;
}

int GridModel::LineOf(int row) const {
    const auto found = std::lower_bound(rows_.begin(), rows_.end(), row);
    return found != rows_.end() && *found == row ? static_cast<int>(found - rows_.begin()) : -1;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cols_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = RowOf(index.row());
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return parts_.Data.TextMatrix(row, index.column());
        case Qt::AccessibleTextRole:
            return AccessibleText(row, index.column());
        case Qt::ToolTipRole:
            return parts_.LookOf(row, index.column()).ToolTip;
        case Qt::TextAlignmentRole:
            return int(AlignmentOf(parts_.Look.ColumnAt(index.column()).Alignment));
        default:
            return {};
    }
}

// A cell is read with the name of its row; the name itself with all that stands beside it.
QString GridModel::AccessibleText(int row, int col) const {
    QStringList texts = {parts_.Data.TextMatrix(row, 0)};
    const int last = col == 0 ? parts_.Data.Cols() - 1 : col;
    for (int other = std::max(col, 1); other <= last; ++other) {
        texts += parts_.Data.TextMatrix(row, other);
    }
    texts.removeAll(QString());
    return OneLine(texts.join(u", "_s), MostSpoken);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical || HeaderRows() == 0) {
        return {};
    }
    switch (role) {
        case Qt::DisplayRole:
            return OneLine(parts_.Data.TextMatrix(0, section), MostInHeader);
        case Qt::TextAlignmentRole:
            return int(AlignmentOf(parts_.Look.ColumnAt(section).FixedAlignment));
        case Qt::ForegroundRole:
            return BrushOf(parts_.Look.ForeColorFixed);
        case Qt::BackgroundRole:
            return BrushOf(parts_.Look.BackColorFixed);
        default:
            return {};
    }
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const int row = RowOf(index.row());
    if (row < 0 || parts_.IsFixed(row, index.column())) {
        return Qt::NoItemFlags;
    }
    const bool isEditable = parts_.Editing.Editable && parts_.Data.IsRowEditable(row) &&
                            parts_.Columns.IsEditable(index.column());
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}
