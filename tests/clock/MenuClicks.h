#pragma once

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWindow>

#include "ClockDesk.h"
#include "support/FakeDevices.h"

/// A desk whose clocks have devices that write down what they are asked for, and a mouse that
/// presses where a part of a clock's face stands.
struct ClickedDesk {
    Desk Base;
    FakeDevices Devices;
    platform::Services Services = Devices.On(Base.Services);
    Program TheProgram{Services, Base.Module, Base.Windows};

    frmTempolark* Running(const QString& zone) {
        auto* clock = new frmTempolark(TheProgram, &Base.Shell, &Base.Area);
        clock->ShowMeMDIChild(zone);
        Base.Machine.Clock.Advance(30);
        return clock;
    }

    /// Presses and releases a button in the middle of a control, through the window system.
    void Click(const frmTempolark& clock, const mduUILib::Control& part, Qt::MouseButton button,
               Qt::KeyboardModifiers keys = {}) {
        const QPoint at = clock.mapTo(&Base.Area, part.Rect().center().toPoint());
        QTest::mouseClick(Base.Area.windowHandle(), button, keys, at);
    }

    /// The menu that has popped up last; null when none is open.
    static QMenu* OpenMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    /// Clicks through the open menu, and on through its sub-menus.
    static void Choose(const QStringList& captions) {
        for (const QString& caption : captions) {
            QMenu* menu = OpenMenu();
            QAction* action = menu == nullptr ? nullptr : Entry(*menu, caption);
            QVERIFY2(action != nullptr, qPrintable(caption));
            const QMenu* next = action->menu();
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            QTRY_VERIFY(next == nullptr || OpenMenu() == next);  // it opens a little later
        }
        QTRY_VERIFY(OpenMenu() == nullptr);
    }

    static QAction* Entry(const QMenu& menu, const QString& caption) {
        for (QAction* action : menu.actions()) {
            if (action->text() == caption) {
                return action;
            }
        }
        return nullptr;
    }

    static QStringList Captions(const QMenu& menu) {
        QStringList captions;
        for (const QAction* action : menu.actions()) {
            captions += action->text();
        }
        return captions;
    }

    /// The captions of the ticked entries.
    static QStringList Ticked(const QMenu& menu) {
        QStringList captions;
        for (const QAction* action : menu.actions()) {
            if (action->isChecked()) {
                captions += action->text();
            }
        }
        return captions;
    }
};
