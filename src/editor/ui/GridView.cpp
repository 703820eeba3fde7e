#include "editor/ui/GridView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int RowPadding = 8;      // pixels
constexpr int HeadingPadding = 8;  // pixels
constexpr int HeadingMargin = 6;   // pixels, as before the text of a cell

int Pixels(double twips) {
    return qRound(twips / TwipsPerPixel);
}

/// The keys that move the cursor, and nothing else does.
bool Moves(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Home:
        case Qt::Key_End:
            return !event.modifiers().testFlag(Qt::AltModifier);
        default:
            return false;
    }
}

bool IsTab(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    const bool isPlain = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    return isPlain && key.key() == Qt::Key_Tab;
}

QAbstractItemView::SelectionBehavior BehaviorOf(editor::SelectionMode mode) {
    switch (mode) {
        case editor::SelectionMode::ByRow:
            return QAbstractItemView::SelectRows;
        case editor::SelectionMode::ByColumn:
            return QAbstractItemView::SelectColumns;
        case editor::SelectionMode::Free:
            break;
    }
    return QAbstractItemView::SelectItems;
}

Qt::CursorShape CursorOf(int pointer) {
    switch (pointer) {
        case 2:
            return Qt::CrossCursor;
        case 3:
            return Qt::IBeamCursor;
        case 11:
            return Qt::WaitCursor;
        default:
            return Qt::ArrowCursor;
    }
}

Qt::ScrollBarPolicy PolicyOf(bool isWanted) {
    return isWanted ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
}

}  // namespace

GridView::GridView(const GridParts& parts, GridModel& model, GridViewEvents& events,
                   QWidget* parent)
    : QTableView(parent), parts_(parts), model_(model), events_(events) {
    setObjectName(u"ctlGrid"_s);
    setModel(&model);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    QHeaderView* header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setMinimumSectionSize(8);
    // A click on a heading selects nothing: it belongs to the chooser.
    disconnect(header, &QHeaderView::sectionPressed, this, nullptr);
    disconnect(header, &QHeaderView::sectionEntered, this, nullptr);
    acts_ = false;
}

void GridView::Apply() {
    if (parts_.Look.HasFont) {
        setFont(parts_.Look.Font);
    }
    setSelectionBehavior(BehaviorOf(parts_.Data.Mode));
    setToolTip(parts_.Look.ToolTipText);
    setEnabled(parts_.Look.Enabled);
    setUpdatesEnabled(parts_.Look.Redraw);
    viewport()->setCursor(CursorOf(parts_.Look.MousePointer));
    setLayoutDirection(parts_.Look.RightToLeft ? Qt::RightToLeft
                                               : parentWidget()->layoutDirection());
    ApplyFrame();
    ApplyColors();
    ApplyHeader();
    ApplyHeights();
    ApplyWidths();
    ApplySpans();
    updateGeometries();
}

void GridView::ApplyFrame() {
    using Bars = editor::GridLook::Bars;
    const editor::GridLook& look = parts_.Look;
    const bool hasFrame = look.BorderStyle == editor::GridLook::Frame::Single;
    setFrameShape(hasFrame ? QFrame::StyledPanel : QFrame::NoFrame);
    setFrameShadow(look.Appearance == 0 ? QFrame::Plain : QFrame::Sunken);
    setHorizontalScrollBarPolicy(
        PolicyOf(look.ScrollBars == Bars::Horizontal || look.ScrollBars == Bars::Both));
    setVerticalScrollBarPolicy(
        PolicyOf(look.ScrollBars == Bars::Vertical || look.ScrollBars == Bars::Both));
    verticalScrollBar()->setTracking(look.ScrollTrack);
    horizontalScrollBar()->setTracking(look.ScrollTrack);
}

void GridView::ApplyColors() {
    const editor::GridLook& look = parts_.Look;
    const std::pair<QPalette::ColorRole, QColor> colors[] = {
        {QPalette::Text, look.ForeColor},
        {QPalette::Base, look.BackColor},
        {QPalette::HighlightedText, look.ForeColorSel},
        {QPalette::Highlight, look.BackColorSel}};
    QPalette palette;
    for (const auto& [role, color] : colors) {
        if (color.isValid()) {
            palette.setColor(role, color);
        }
    }
    setPalette(palette);
}

void GridView::ApplyHeader() {
    using Resizing = editor::GridLook::Resizing;
    const Resizing allowed = parts_.Look.AllowUserResizing;
    const bool isAllowed = allowed == Resizing::Columns || allowed == Resizing::Both;
    horizontalHeader()->setVisible(model_.HeaderRows() > 0);
    horizontalHeader()->setSectionResizeMode(isAllowed ? QHeaderView::Interactive
                                                       : QHeaderView::Fixed);
}

int GridView::BaseRowHeight() const {
    return std::max(fontMetrics().height() + RowPadding, Pixels(parts_.Look.RowHeightMin));
}

int GridView::HeadingHeight() const {
    return fontMetrics().height() + HeadingPadding;
}

void GridView::ApplyHeights() {
    QHeaderView* heights = verticalHeader();
    const int base = BaseRowHeight();
    heights->setDefaultSectionSize(base);
    for (int line = 0; line < model_.rowCount(); ++line) {
        const int own = Pixels(parts_.Data.RowHeight(model_.RowOf(line)));
        if (own > base) {
            heights->resizeSection(line, own);
        }
    }
    for (auto heading = model_.Headings().begin(); heading != model_.Headings().end(); ++heading) {
        heights->resizeSection(heading.key(),
                               heights->sectionSize(heading.key()) + HeadingHeight());
    }
}

void GridView::ApplyWidths() {
    for (int col = 0; col < model_.columnCount(); ++col) {
        const int width = parts_.Look.ColumnAt(col).Width;
        if (width > 0) {
            horizontalHeader()->resizeSection(col, Pixels(width));
        }
    }
}

// Equal cells below each other show as one.
void GridView::ApplySpans() {
    clearSpans();
    for (int col = 0; parts_.Look.MergeCells && col < model_.columnCount(); ++col) {
        if (!parts_.Look.ColumnAt(col).Merge) {
            continue;
        }
        int first = 0;
        for (int line = 1; line <= model_.rowCount(); ++line) {
            const QString text = model_.index(first, col).data().toString();
            if (line < model_.rowCount() && model_.index(line, col).data().toString() == text) {
                continue;
            }
            if (line - first > 1 && !text.isEmpty()) {
                setSpan(first, col, line - first, 1);
            }
            first = line;
        }
    }
}

QRect GridView::CellRect(const QModelIndex& index) const {
    QRect rect = visualRect(index);
    if (!model_.HeadingOf(index.row()).isEmpty()) {
        rect.setTop(rect.top() + HeadingHeight());
    }
    return rect;
}

bool GridView::ShowsSelection() const {
    using When = editor::GridLook::When;
    const When when = parts_.Look.HighLight;
    return when == When::Always || (when == When::WithFocus && hasFocus());
}

int GridView::PageRows() const {
    return std::max(viewport()->height() / std::max(BaseRowHeight(), 1) - 1, 1);
}

template <typename Work>
void GridView::Act(const Work& work) {
    acts_ = true;
    work();
    acts_ = false;
    if (std::exchange(moved_, false)) {
        events_.CursorMoved();
    }
}

void GridView::NoteMove() {
    if (acts_) {
        moved_ = true;
    } else {
        events_.CursorMoved();
    }
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    NoteMove();
}

void GridView::selectionChanged(const QItemSelection& now, const QItemSelection& before) {
    QTableView::selectionChanged(now, before);
    NoteMove();
}

// Tab comes here before it moves the focus.
bool GridView::event(QEvent* event) {
    if (IsTab(*event) && events_.KeyPress(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return IsTab(*event) ? focusNextPrevChild(true) : QTableView::event(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (events_.KeyPress(*event)) {
        event->accept();
    } else if (Moves(*event) && !parts_.Editing.IsEditing()) {
        Act([&] { QTableView::keyPressEvent(event); });
        event->accept();
    } else {
        event->ignore();
    }
}

void GridView::keyReleaseEvent(QKeyEvent* event) {
    events_.KeyRelease(*event);
    QTableView::keyReleaseEvent(event);
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
    event->setAccepted(events_.InputMethod(*event));
}

void GridView::mousePressEvent(QMouseEvent* event) {
    events_.MouseDown(*event);
    Act([&] { QTableView::mousePressEvent(event); });
    events_.MousePressed(event->position().toPoint());
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    events_.MouseMove(*event);
    Act([&] { QTableView::mouseMoveEvent(event); });
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    events_.MouseUp(*event);
    Act([&] { QTableView::mouseReleaseEvent(event); });
    events_.MouseReleased(*event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    events_.DoubleClick(*event);
}

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        events_.FocusCame();
    }
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    events_.FocusWent(event->reason());
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    const bool isOtherFont =
        event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (isOtherFont && !acts_) {
        ApplyHeights();
    }
}

void GridView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    events_.Scrolled();
}

void GridView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    QFont font = this->font();
    font.setBold(true);
    painter.setFont(font);
    const int last = rowAt(viewport()->height() - 1);
    for (int line = rowAt(0); line >= 0 && line < model_.rowCount(); ++line) {
        const QString heading = model_.HeadingOf(line);
        if (!heading.isEmpty()) {
            const QRect place(HeadingMargin, rowViewportPosition(line),
                              viewport()->width() - 2 * HeadingMargin, HeadingHeight() - 2);
            painter.drawText(place, int(Qt::AlignLeading | Qt::AlignBottom) | Qt::TextSingleLine,
                             OneLine(heading, 200));
        }
        if (line == last) {
            break;
        }
    }
}
