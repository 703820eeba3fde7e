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

    void SetEye(int frame);  ///< panel 1: from 1; 0 clears it
    int EyeFrame() const { return eye_; }

    const QString& Message() const { return message_; }
    void SetMessage(const QString& text);  ///< panel 2

    const QString& TimeText() const { return time_; }
    void SetTimeText(const QString& text);  ///< panel 7

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
