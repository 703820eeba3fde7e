#pragma once

#include <QWidget>

/// The panel of the status bar that holds the message line. However long the line, only what can be
/// seen of it is laid out and drawn, and a new text never moves its neighbours.
class MessagePanel final : public QWidget {
    Q_OBJECT

public:
    explicit MessagePanel(QWidget* parent) : QWidget(parent) {}

    const QString& Text() const { return text_; }
    void SetText(const QString& text);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString text_;
};
