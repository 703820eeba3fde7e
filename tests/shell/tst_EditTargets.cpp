#include "shell/ui/EditTargets.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <set>

#include "shell/ui/ClockArea.h"
#include "support/FakeForms.h"

using namespace Qt::StringLiterals;

/// A child of the shell with a line, a button and something to edit of its own.
class tst_EditTargets : public QObject {
    Q_OBJECT

private:
    class Child final : public QWidget, public FakeForm, public IEditTarget {
    public:
        Child(Forms& windows, QStringList& log)
            : FakeForm(windows, QStringLiteral("frmProperties"), QStringLiteral("one"), log) {
            auto* column = new QVBoxLayout(this);
            column->addWidget(Line = new QLineEdit(QStringLiteral("Oak")));
            column->addWidget(Button = new QPushButton(QStringLiteral("OK")));
        }
        IEditTarget* AsEditTarget() override { return this; }
        bool CanEdit(EditAction action) const override { return Editable.contains(action); }
        void Edit(EditAction action) override {
            Note(QStringLiteral("edit %1").arg(static_cast<int>(action)));
        }
        QLineEdit* Line;
        QPushButton* Button;
        std::set<EditAction> Editable;
    };

    struct Desk {
        Forms Windows;
        QStringList Log;
        QMainWindow Shell;
        ClockArea* Area = new ClockArea(&Shell);
        EditTargets Targets{Shell, *Area};
        Child* Front = new Child(Windows, Log);

        Desk() {
            Shell.setCentralWidget(Area);
            Shell.menuBar()->addMenu(u"&Edit"_s)->addAction(u"Undo"_s);
            Area->addSubWindow(Front)->show();
            Shell.show();
            Shell.activateWindow();
            QApplication::setActiveWindow(&Shell);
            Area->setActiveSubWindow(Area->subWindowList().first());
        }
        ~Desk() { delete Area; }
        Q_DISABLE_COPY_MOVE(Desk)
    };

private Q_SLOTS:
    void TheLineThatHasTheFocus() {
        Desk desk;
        desk.Front->Editable = {EditAction::Copy, EditAction::SelectAll};
        desk.Front->Line->setFocus();
        QTRY_VERIFY(desk.Front->Line->hasFocus());
        QVERIFY(!desk.Targets.CanEdit(EditAction::Copy));  // nothing is selected in it
        desk.Targets.Edit(EditAction::SelectAll);
        QCOMPARE(desk.Front->Line->selectedText(), u"Oak"_s);
        QVERIFY(desk.Targets.CanEdit(EditAction::Copy));
        desk.Targets.Edit(EditAction::Copy);
        QCOMPARE(QApplication::clipboard()->text(), u"Oak"_s);
        QCOMPARE(desk.Log, QStringList());
    }

    /// The window's own cut, which takes a whole row away, is not meant.
    void TheLineInsideOfWhatHasTheFocus() {
        Desk desk;
        desk.Front->Editable = {EditAction::Cut, EditAction::Delete, EditAction::Copy};
        auto* list = new QComboBox;
        list->setEditable(true);
        list->setEditText(u"Elm"_s);
        auto* spin = new QSpinBox;
        for (QWidget* widget : std::initializer_list<QWidget*>{list, spin}) {
            desk.Front->layout()->addWidget(widget);
            widget->show();
            widget->setFocus();
            QTRY_VERIFY(widget->hasFocus());
            desk.Targets.Edit(EditAction::SelectAll);
            desk.Targets.Edit(EditAction::Copy);
            desk.Targets.Edit(EditAction::Cut);
            QVERIFY(!desk.Targets.CanEdit(EditAction::Cut));
            desk.Targets.Edit(EditAction::Delete);
        }
        QCOMPARE(list->currentText(), QString());
        QCOMPARE(QApplication::clipboard()->text(), u"0"_s);
        QCOMPARE(desk.Log, QStringList());
    }

    void ItsWindowWhereItHasNothingToUndo() {
        Desk desk;
        desk.Front->Editable = {EditAction::Undo, EditAction::Find};
        desk.Front->Line->setFocus();
        QTRY_VERIFY(desk.Front->Line->hasFocus());
        QVERIFY(desk.Targets.CanEdit(EditAction::Undo));
        QVERIFY(desk.Targets.CanEdit(EditAction::Find));
        QVERIFY(!desk.Targets.CanEdit(EditAction::Redo));
        desk.Targets.Edit(EditAction::Undo);
        desk.Targets.Edit(EditAction::Find);
        desk.Targets.Edit(EditAction::Redo);
        QCOMPARE(desk.Log, (QStringList{u"one: edit 0"_s, u"one: edit 8"_s}));
        QTest::keyClicks(desk.Front->Line, u"x"_s);
        desk.Targets.Edit(EditAction::Undo);
        QCOMPARE(desk.Front->Line->text(), u"Oak"_s);
        QCOMPARE(desk.Log.size(), 2);
    }

    void TheWindowWhereNoTextHasTheFocus() {
        Desk desk;
        desk.Front->Editable = {EditAction::Copy};
        desk.Front->Button->setFocus();
        QTRY_VERIFY(desk.Front->Button->hasFocus());
        QVERIFY(desk.Targets.CanEdit(EditAction::Copy));
        QVERIFY(!desk.Targets.CanEdit(EditAction::Paste));
        desk.Targets.Edit(EditAction::Copy);
        desk.Targets.Edit(EditAction::Paste);
        QCOMPARE(desk.Log, QStringList{u"one: edit 3"_s});
    }

    /// From the keyboard the menus are reached by way of the bar, which takes the focus.
    void TheMenuBarLeavesTheLineInPlace() {
        Desk desk;
        desk.Front->Line->setFocus();
        QTRY_VERIFY(desk.Front->Line->hasFocus());
        desk.Shell.menuBar()->setFocus();
        QTRY_VERIFY(desk.Shell.menuBar()->hasFocus());
        QVERIFY(desk.Targets.CanEdit(EditAction::SelectAll));
        desk.Targets.Edit(EditAction::Clear);
        QCOMPARE(desk.Front->Line->text(), QString());
    }

    void WhatIsGoneOrElsewhereIsNotEdited() {
        Desk desk;
        desk.Front->Line->setFocus();
        QTRY_VERIFY(desk.Front->Line->hasFocus());
        desk.Front->Line->hide();
        QVERIFY(!desk.Targets.CanEdit(EditAction::SelectAll));
        delete desk.Front->Line;
        QVERIFY(!desk.Targets.CanEdit(EditAction::SelectAll));
        QLineEdit elsewhere(u"Elm"_s);
        elsewhere.show();
        QApplication::setActiveWindow(&elsewhere);
        elsewhere.setFocus();
        QTRY_VERIFY(elsewhere.hasFocus());
        QVERIFY(!desk.Targets.CanEdit(EditAction::SelectAll));
    }

    void NothingWithoutAWindow() {
        Desk desk;
        delete desk.Area->subWindowList().first();
        for (int action = 0; action <= 8; ++action) {
            QVERIFY(!desk.Targets.CanEdit(static_cast<EditAction>(action)));
        }
    }
};

QTEST_MAIN(tst_EditTargets)
#include "tst_EditTargets.moc"
