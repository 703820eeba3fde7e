#pragma once

#include <QTableView>

#include "editor/ui/GridModel.h"

/// What the view tells before, or after, it acts itself.
class GridViewEvents {
public:
    virtual ~GridViewEvents() = default;

    /// @return true when the key is done; else it moves the cursor, or goes on to the window
    virtual bool KeyPress(QKeyEvent& event) = 0;
    virtual void KeyRelease(QKeyEvent& event) = 0;
    virtual bool InputMethod(QInputMethodEvent& event) = 0;  ///< true when it is done
    virtual void MouseDown(const QMouseEvent& event) = 0;    ///< before the view moves its cursor
    virtual void MousePressed(const QPoint& place) = 0;      ///< behind it; in the viewport
    virtual void MouseMove(const QMouseEvent& event) = 0;
    virtual void MouseUp(const QMouseEvent& event) = 0;        ///< before the view is done with it
    virtual void MouseReleased(const QMouseEvent& event) = 0;  ///< behind it
    virtual void DoubleClick(const QMouseEvent& event) = 0;
    virtual void CursorMoved() = 0;  ///< the current cell or the selection has changed
    virtual void FocusCame() = 0;
    virtual void FocusWent(Qt::FocusReason reason) = 0;
    virtual void Scrolled() = 0;
};

/// The table of `ctlEditGrid`. It edits nothing by itself and searches nothing: keys and presses go
/// to its events first. The headings above rows are painted here.
class GridView final : public QTableView {
public:
    GridView(const GridParts& parts, GridModel& model, GridViewEvents& events, QWidget* parent);

    /// Takes over what the look tells, and the heights and widths of rows and columns.
    void Apply();

    /// The cell without the heading of its row, in pixels of the viewport.
    QRect CellRect(const QModelIndex& index) const;
    int HeadingHeight() const;
    int BaseRowHeight() const;  ///< pixels, by the font
    /// Whether the current cell and the selection are to be seen.
    bool ShowsSelection() const;
    /// How many rows a page has; 1 at least.
    int PageRows() const;

    using QTableView::initViewItemOption;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;

private:
    /// Lets the base act on an event, and tells once what has become of the cursor.
    template <typename Work>
    void Act(const Work& work);
    void NoteMove();
    void ApplyFrame();
    void ApplyColors();
    void ApplyHeader();
    void ApplyHeights();
    void ApplyWidths();
    void ApplySpans();

    const GridParts& parts_;
    GridModel& model_;
    GridViewEvents& events_;
    bool acts_ = true;  ///< nothing is told in between; the first time until it is made
    bool moved_ = false;
};
