#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "clock/MessageTyping.h"

namespace clockcore {

/// The line in which a timer's message is typed. Return and Tab finish it as a click beside it
/// does; line ends that are pasted become blanks. No key is passed on to the clock, whose shortcuts
/// would end the typing: one that means nothing to a line of text does nothing.
class MessageLine final : public QLineEdit {
public:
    /// @param typing is told of the keys; it outlives the line
    /// @param text what it begins with; it is not cut, however long it is
    MessageLine(QWidget& form, MessageTyping& typing, const QString& text);

protected:
    /// Tab and Backtab finish the typing.
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// Its own menu and another window in front end nothing.
    void focusOutEvent(QFocusEvent* event) override;

private:
    MessageTyping& typing_;
};

/// The box of a message over the surface of a clock, a real line of text on its form. It is made
/// when it opens and goes when it closes.
class MessageBoxes final : public MessageBoxView {
public:
    explicit MessageBoxes(QWidget& form) : form_(form) {}
    /// A box that is still open goes without telling of it.
    ~MessageBoxes() override { delete line_; }
    Q_DISABLE_COPY_MOVE(MessageBoxes)

    /// Whom the keys go to; set before the first box opens.
    void SetTyping(MessageTyping& typing) { typing_ = &typing; }

    void Open(const Look& look) override;
    void Move(const QRectF& place) override;
    /// The form takes the keys where the box had them.
    void Close() override;
    bool HasKeys() const override { return line_ != nullptr && line_->isActiveWindow(); }

private:
    /// From device pixels of the surface to logical ones of the form.
    QRect OnForm(const QRectF& place) const;

    QWidget& form_;
    MessageTyping* typing_ = nullptr;
    QPointer<MessageLine> line_;
};

}  // namespace clockcore
