#pragma once

#include <QIcon>
#include <QWidget>
#include <functional>
#include <vector>

/// The shell's status bar: the eye, the message line, the time. It lies along any side of the
/// window; at the left it is a narrow strip without the message line. However long the line, only
/// what can be seen of it is laid out and drawn.
class StatusBar final : public QWidget {
    Q_OBJECT

public:
    /// @param eyeFrames the pictures of the eye, the first of them at 0
    StatusBar(std::vector<QIcon> eyeFrames, QWidget* parent);

    std::function<void(const QPoint& onScreen)> OnMenu;  ///< the right button was pressed

    void SetAlign(int align);  ///< `shell::Align`
    int AlignCode() const { return align_; }

    /// Panel 1: the picture of that number, from 1; 0, and any number without a picture, clears it.
    void SetEye(int frame);
    int EyeFrame() const { return eye_; }

    const QString& Message() const { return message_; }
    /// Panel 2, which is also what the bar tells to those who can't see it.
    void SetMessage(const QString& text);

    const QString& TimeText() const { return time_; }
    /// Panel 7, at the right end, such as "14:05".
    void SetTimeText(const QString& text);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    bool ShowsMessage() const;

    std::vector<QIcon> eyeFrames_;
    int align_;
    int eye_ = 0;
    QString message_;
    QString time_;
};
