#pragma once

#include <QFrame>
#include <functional>

#include "platform/Files.h"
#include "shell/ToolCommands.h"
#include "shell/ToolRow.h"

class QToolButton;

/// The shell's toolbar: the buttons of the catalogue at one of four sizes, along any side of the
/// window. Buttons that do not fit are hidden; dragging on the free part of the bar, the wheel and
/// the arrow keys bring them in.
class ToolBar final : public QFrame {
    Q_OBJECT

public:
    struct Hooks {
        std::function<void(int index)> Click;
        /// The pointer rests on a button; 0: it has left the buttons, or something was pressed, or
        /// the buttons have moved.
        std::function<void(int index)> Hover;
        std::function<void(const QPoint& onScreen)> Menu;  ///< the right button was pressed
    };

    /// @param pictureFolder where "Toolbar" holds a picture for each Tag ("Launch.svg", ...) and
    ///   "Shell" the two pointers
    ToolBar(const platform::Files& files, const QString& pictureFolder, Hooks hooks,
            QWidget* parent);

    void ApplyToolbarSize(const QString& sizeName);
    const QString& SizeName() const { return sizeName_; }

    void SetAlign(int align);  ///< `shell::Align`
    int AlignCode() const { return align_; }
    void SetBorder(int border);

    QToolButton* Button(int index) const;

    /// Whether the user wants to see a button; what does not fit is hidden all the same.
    bool IsOffered(int index) const;
    void Offer(int index, bool offered);

    /// The buttons that are offered, by their Keys: what is saved of a customised bar.
    QString Layout() const;

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Slot {
        shell::ToolButton Data;
        QToolButton* Button = nullptr;  ///< null for a separator
        QFrame* Line = nullptr;         ///< null for a button
        bool Offered = true;
    };

    QWidget* WidgetOf(const Slot& slot) const;
    void MakeButton(int index, Slot& slot);
    void SetUp(int index, Slot& slot);
    int ExtentOf(const Slot& slot) const;
    void FitToolbarButtons();
    void PlaceButtons();
    bool Scroll(bool forward);
    void ScrollToolButtons();
    void MoveFocus(int from, bool forward);
    void BeginDrag(int along);
    int Along(const QPoint& place) const;
    int ButtonAt(const QPoint& place) const;
    int LastEdge() const;
    bool IsVertical() const;
    void UseCursor(bool dragging);

    const platform::Files& files_;
    QString pictureFolder_;
    Hooks hooks_;
    QString sizeName_;
    int align_ = 0;
    std::vector<Slot> slots_;
    shell::ToolRow row_;
    int dragLast_ = 0;  ///< where the pointer was along the bar; 0: no drag is under way
    int dragNow_ = 0;
    int dragStep_ = 1;
};
