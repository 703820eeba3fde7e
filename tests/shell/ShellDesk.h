#pragma once

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QToolButton>

#include "shell/ui/HeaderArt.h"
#include "shell/ui/StatusBar.h"
#include "shell/ui/frmMain.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;

/// The real shell on a machine of the test.
struct Desk : MachineWithZones {
    std::unique_ptr<frmMain> Shell;

    bool Start() {
        Shell = std::make_unique<frmMain>(TheProgram);
        return Shell->Load();
    }
    void Stop() {
        Shell->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Shell.reset();
    }
    void Zone(const QString& name) {
        Machine.WriteFile(u"tester/TimeZones/"_s + name + u".ini"_s,
                          Machine.ReadFile(u"ini/Tempolark.ini"_s));
    }
    bool HasZone(const QString& name) const {
        return Machine.Files.Exists(Machine.AppFolder() + u"/tester/TimeZones/"_s + name +
                                    u".ini"_s);
    }
    QMenu* Menu(const QString& name) const { return Shell->findChild<QMenu*>(name); }

    QToolButton* Button(const QString& tag) const {
        return Shell->findChild<QToolButton*>(u"tool_"_s + tag);
    }

    /// Presses a button of the toolbar and gives the menu back that it has opened.
    QMenu* Open(const QString& button) const {
        QTest::mouseClick(Button(button), Qt::LeftButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) {
            qFatal("no menu");
        }
        return menu;
    }
    static QAction* Item(const QMenu* menu, const QString& text) {
        for (QAction* action : menu->actions()) {
            if (action->text() == text) {
                return action;
            }
        }
        return nullptr;
    }
    static QStringList Texts(const QMenu* menu) {
        QStringList texts;
        for (const QAction* action : menu->actions()) {
            texts += action->isSeparator() && action->text().isEmpty() ? u"-"_s : action->text();
        }
        return texts;
    }
    /// A real click on an item of a menu that is on the screen.
    static void Click(QMenu* menu, const QString& text) {
        if (!menu->isVisible()) {
            menu->popup({10, 10});
        }
        QAction* action = Item(menu, text);
        QVERIFY(action != nullptr);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }
    /// The item of that number of a menu's entry, refreshed as if the menu were opened.
    QAction* Entry(const QString& name, int index) const {
        for (const shell::MenuTable& table : shell::MenuCatalogue()) {
            Q_EMIT Menu(table.Name)->aboutToShow();
        }
        return Shell->findChild<QAction*>(u"%1(%2)"_s.arg(name).arg(index));
    }
    /// Opens the menu that holds the entry and clicks it.
    void ClickItem(const QString& name, int index) const {
        QAction* action = Entry(name, index);
        QVERIFY2(action != nullptr, qPrintable(name));
        auto* menu = qobject_cast<QMenu*>(action->parent());
        menu->popup({10, 10});
        action = Entry(name, index);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }
    QString Caption(const QString& name) const { return Entry(name, 1)->text(); }
    QString Status() const { return Shell->findChild<StatusBar*>()->Message(); }
    QStringList Clocks() const {
        QStringList captions;
        for (int i = 0; i < Windows.Count(); ++i) {
            if (Windows[i].Name() == ClockWindowName) {
                captions += Windows[i].Caption();
            }
        }
        return captions;
    }
    bool HeaderShows() const { return Shell->findChild<HeaderArt*>()->isVisible(); }
    void Settle() { Machine.Clock.Advance(50); }
    QByteArray User(const QString& file) const { return Machine.ReadFile(u"tester/"_s + file); }
};
