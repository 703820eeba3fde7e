#include <QGuiApplication>
#include <QStyleHints>
#include <QTest>

#include "clock/ui/DragEvents.h"

class tst_DragEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WhatEndsDrags() {
        for (const QEvent::Type type :
             {QEvent::Resize, QEvent::Hide, QEvent::Close, QEvent::EnabledChange,
              QEvent::WindowStateChange, QEvent::WindowDeactivate}) {
            QVERIFY2(clockcore::EndsDrags(type), qPrintable(QString::number(type)));
        }
        for (const QEvent::Type type : {QEvent::Paint, QEvent::MouseMove, QEvent::Move,
                                        QEvent::Show, QEvent::FocusOut, QEvent::WindowActivate}) {
            QVERIFY2(!clockcore::EndsDrags(type), qPrintable(QString::number(type)));
        }
    }

    void TheDesktopsThreshold() {
        QGuiApplication::styleHints()->setStartDragDistance(7);
        QCOMPARE(clockcore::DragThreshold(), 7.0);
    }
};

QTEST_MAIN(tst_DragEvents)
#include "tst_DragEvents.moc"
