#pragma once

#include "MenuClicks.h"

/// A clock of 300 by 200 logical pixels in a shell, whose mouse really moves. The frame around it
/// is that of the machine's style, so values that hang on it are worked out from its size.
struct MouseDesk : ClickedDesk {
    frmTempolark* Clock = nullptr;
    QPoint Origin;  ///< of the clock in the shell, as the last press found it

    /// @param line of the default file, which reads @p other in the clock's
    explicit MouseDesk(const QByteArray& line = "=", const QByteArray& other = "=") {
        const QByteArray file = Base.Machine.ReadFile(u"ini/Tempolark.ini"_s).replace(line, other);
        Base.Machine.WriteFile(u"tester/TimeZones/UTC.ini"_s, file);
        Clock = Running(u"UTC"_s);
        Frame()->setGeometry(QRect(QPoint(200, 150), QSize(300, 200) + FrameSize()));
        Base.Machine.Clock.Advance(2000);
        Base.Shell.Messages.clear();
        Origin = Clock->mapTo(&Base.Area, QPoint(0, 0));
    }
    QWidget* Frame() const { return Clock->parentWidget(); }
    QSize FrameSize() const { return Frame()->size() - Clock->size(); }

    void Mouse(QEvent::Type type, const QPoint& at, Qt::KeyboardModifiers keys = {}) {
        const QPoint place = Origin + at;
        QWindow* window = Base.Area.windowHandle();
        if (type == QEvent::MouseButtonPress) {
            QTest::mousePress(window, Qt::LeftButton, keys, place);
        } else if (type == QEvent::MouseButtonRelease) {
            QTest::mouseRelease(window, Qt::LeftButton, keys, place);
        } else {
            QTest::mouseMove(window, place);
            QCoreApplication::processEvents();
        }
    }
    void Press(const QPoint& at, Qt::KeyboardModifiers keys = {}) {
        Origin = Clock->mapTo(&Base.Area, QPoint(0, 0));
        Mouse(QEvent::MouseMove, at);
        Mouse(QEvent::MouseButtonPress, at, keys);
    }
    void MoveTo(const QPoint& at) { Mouse(QEvent::MouseMove, at); }
    void Release(const QPoint& at) { Mouse(QEvent::MouseButtonRelease, at); }
    void Drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys = {}) {
        Press(from, keys);
        MoveTo(from + QPoint(20, 0));
        MoveTo(to);
        Release(to);
    }
    QString InFile(const QString& key) const { return Base.Key(u"UTC"_s, key); }
    QString Value(const QString& key) const {
        return mduLib::GetProperty(key, Clock->Data().Properties());
    }
    /// Percent of the outer window, as it is stored.
    double Across(double pixels) const { return pixels / Frame()->width() * 100; }
    double Down(double pixels) const { return pixels / Frame()->height() * 100; }
    static QPoint MiddleOf(const mduUILib::Control& control) {
        return control.Rect().center().toPoint();
    }
};
