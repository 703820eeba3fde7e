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
    /// What happens on the bar. All three must be there; `Hover` is called while the bar is being
    /// made, too.
    /// @param index the number of a button in the catalogue, from 1
    struct Hooks {
        /// A button was clicked, or pressed by a key.
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

    /// One of the four sizes: "Small Size", "Large Size", each also "with Caption". It sets the
    /// pictures, the captions and how wide the bar is.
    void ApplyToolbarSize(const QString& sizeName);
    const QString& SizeName() const { return sizeName_; }

    void SetAlign(int align);  ///< `shell::Align`
    int AlignCode() const { return align_; }
    /// 0: none; any other number: a line.
    void SetBorder(int border);

    /// The button of that number, from 1; null for a separator. The bar owns it.
    QToolButton* Button(int index) const;

    /// Whether the user wants to see a button; what does not fit is hidden all the same.
    bool IsOffered(int index) const;
    /// Shows a button to the user or takes it away, and fits the others in anew.
    void Offer(int index, bool offered);

    /// The buttons that are offered, by their Keys with a blank between them: what is saved of a
    /// customised bar.
    ///
    ///     "1,1" "1,2" "3,9"
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
    /// A place of the catalogue: a button or a separator.
    struct Slot {
        shell::ToolButton Data;
        QToolButton* Button = nullptr;  ///< null for a separator
        QFrame* Line = nullptr;         ///< null for a button
        bool Offered = true;
    };

    QWidget* WidgetOf(const Slot& slot) const;
    void MakeButton(int index, Slot& slot);
    void SetUp(int index, Slot& slot);
    /// Along the bar, in logical pixels.
    int ExtentOf(const Slot& slot) const;
    /// Begins anew with the first button.
    void FitToolbarButtons();
    void PlaceButtons();
    /// Brings one hidden button in. @return false when there is none on that side
    bool Scroll(bool forward);
    void ScrollToolButtons();
    /// To the next button that is offered, which comes into view; at the end the focus stays.
    void MoveFocus(int from, bool forward);
    void BeginDrag(int along);
    /// The coordinate that counts: x, or y of a vertical bar.
    int Along(const QPoint& place) const;
    /// The number of the button there; 0 for none.
    int ButtonAt(const QPoint& place) const;
    /// Where the free part of the bar begins.
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
    /// How far the pointer has to go for one button, in logical pixels.
    int dragStep_ = 1;
};
