#pragma once

#include <QTreeView>
#include <functional>

/// The list of zones in report view, `lsvTimeZones`. Space checks the current row, Enter and a
/// double click ask to launch it. A double click on its check box only checks. The model has the
/// form of `ZoneListModel`; the list changes it by checks alone, and sorts nothing itself.
class ZoneListView final : public QTreeView {
public:
    struct Handlers {
        std::function<void()> LaunchAsked;
        std::function<void(const QPoint&)> MenuAsked;  ///< at a point of the screen
        std::function<QString(int)> ToolTip;           ///< of the row at a position
        std::function<void(int)> HeaderClicked;        ///< column 0 or 1
    };

    /// All handlers must be given.
    ZoneListView(Handlers handlers, QWidget* parent);

    /// Divides the width among the columns: 42 % for the first, but 220 pixels at least; the rest,
    /// but 160 at least, for the second. To be called when the rows or the size have changed.
    void FitColumns();

    /// What stands in an empty list.
    void SetEmptyText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void ToggleCurrent();
    /// Whether a point of the viewport lies on the check box of a row, or left of it.
    bool IsOnCheckBox(const QPoint& position) const;

    Handlers handlers_;
    QString emptyText_;
};
