#pragma once

#include <QWidget>
#include <functional>

/// The grip between map and list, `imgSplitter`. While it is pressed a bar, `picSplitter`, follows
/// the mouse up and down; where it is let go, the parts are divided. Up and Down move it as well,
/// by 24 pixels, while it has the focus. It moves nothing but the bar: whoever is told of the new
/// place lays the window out.
class ZoneSplitter final : public QWidget {
public:
    /// Both must be given. Places are in pixels of the parent, from its top.
    struct Handlers {
        std::function<QPair<int, int>()> Limits;  ///< the least and the most y within the parent
        std::function<void(int)> Moved;           ///< it has been let go with its top at this y
    };

    /// @param parent the window that is divided; the bar moves over it
    ZoneSplitter(Handlers handlers, QWidget* parent);

    /// The height that the parent gives it.
    static constexpr int Thickness = 10;  ///< pixels

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// @p y, held to the limits.
    int Within(int y) const;
    /// Puts the bar under the mouse.
    /// @param position within this widget
    void PlaceBar(const QPointF& position);

    Handlers handlers_;
    /// A child of the parent, which is seen while the grip is pressed only.
    QWidget* picSplitter_;
    bool pressed_ = false;
};
