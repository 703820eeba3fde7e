#pragma once

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include "editor/GridOf.h"
#include "editor/ui/EditorWidgets.h"
#include "editor/ui/GridPlaces.h"
#include "editor/ui/ctlEditGrid.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// A host that remembers what it is told, in order.
struct RecordingHost final : EditGridHost {
    QStringList Events;
    int SwallowedCode = -1;  ///< a key down that goes no further
    int SwallowedChar = -1;
    bool KeepsFocus = false;
    std::function<int(int, int)> Order;  ///< what `Compare` answers

    void Click() override { Events += u"Click"_s; }
    void DblClick() override { Events += u"DblClick"_s; }
    void KeyDown(int& code, int shift) override {
        Events += u"KeyDown %1 %2"_s.arg(code).arg(shift);
        code = code == SwallowedCode ? 0 : code;
    }
    void KeyPress(int& ascii) override {
        Events += u"KeyPress %1"_s.arg(ascii);
        ascii = ascii == SwallowedChar ? 0 : ascii;
    }
    void KeyUp(int code, int shift) override { Events += u"KeyUp %1 %2"_s.arg(code).arg(shift); }
    void MouseDown(int button, int shift, double, double) override {
        Events += u"MouseDown %1 %2"_s.arg(button).arg(shift);
    }
    void MouseUp(int button, int shift, double, double) override {
        Events += u"MouseUp %1 %2"_s.arg(button).arg(shift);
    }
    void Validate(bool& cancel) override {
        Events += u"Validate"_s;
        cancel = KeepsFocus;
    }
    void RowColChange() override { Events += u"RowColChange"_s; }
    void Scroll() override { ++Scrolls; }
    void MouseMove(int, int, double x, double y) override { Pointer = QPointF(x, y); }
    void SelChange() override { Events += u"SelChange"_s; }
    void EnterCell() override { Events += u"EnterCell"_s; }
    void LeaveCell() override { Events += u"LeaveCell"_s; }
    void KeyInCell(int key, int row, int col) override {
        KeysInCells += u"%1 %2 %3"_s.arg(key).arg(row).arg(col);
    }
    void GotFocus() override { ++Focuses; }
    void CellChanged(int row, int col) override {
        Events += u"CellChanged %1 %2"_s.arg(row).arg(col);
    }
    void ItemHighlighted(int row, int col, int item) override {
        Highlights += u"%1 %2 %3"_s.arg(row).arg(col).arg(item);
    }
    void ButtonClicked(int row, int col) override {
        Events += u"ButtonClicked %1 %2"_s.arg(row).arg(col);
    }
    void FindAsked() override { Events += u"FindAsked"_s; }
    void Compare(int row1, int row2, int& order) override { order = Order(row1, row2); }

    QStringList KeysInCells, Highlights;
    QPointF Pointer;
    int Scrolls = 0;
    int Focuses = 0;
};

/// A grid in a window, with a column for each kind of editor and a button beside it. Row 0 is the
/// heading.
///
/// | N | C | U | T | E |
/// |---|---|---|---|---|
/// | 1 | Red | 1.50 | abc | Blue |
/// | 2 | Green | 3 | d | x |
/// | 3 | | 25/03/2008 | e | |
struct GridDesk {
    FakeServices Machine;
    RecordingHost Host;
    QWidget Window;
    ctlEditGrid Grid{Machine.Clock, Host, &Window};
    QLineEdit Beside{&Window};

    enum Column { Number, Combo, UpDown, Text, ComboEdit };

    GridDesk() {
        Window.resize(640, 400);
        Grid.setGeometry(0, 0, 640, 340);
        Beside.setGeometry(0, 350, 200, 30);
        Grid.Data() = GridOf(
            {u"N|C|U|T|E"_s, u"1|Red|1.50|abc|Blue"_s, u"2|Green|3|d|x"_s, u"3||25/03/2008|e|"_s},
            5);
        Grid.Setup();
        for (int id = 0; id <= 4; ++id) {
            Grid.SetCellCtl(id, id);
        }
        for (const QString& colour : {u"Red"_s, u"Green"_s, u"Blue"_s}) {
            Grid.Columns().AddCellComboItem(Combo, colour);
            Grid.Columns().AddCellComboEditItem(ComboEdit, colour);
        }
        Grid.Refresh();
    }

    void Show() {
        Window.show();
        QApplication::setActiveWindow(&Window);
        QVERIFY(QTest::qWaitForWindowActive(&Window));
        View().setFocus();
        QVERIFY(View().hasFocus());
        Host.Events.clear();
    }

    QTableView& View() { return Grid.View(); }
    QString Cell(int row, int col) const { return Grid.Data().TextMatrix(row, col); }

    void GoTo(int row, int col) {
        Grid.Data().SetRow(row);
        Grid.Data().SetCol(col);
        Grid.Refresh();
        Host.Events.clear();
    }

    /// The widget of the open editor; null for none.
    QWidget* Editor() {
        for (const QString& name :
             {u"ctlCombo"_s, u"ctlComboEdit"_s, u"ctlUpDown"_s, u"ctlText"_s}) {
            for (auto* widget :
                 View().viewport()->findChildren<QWidget*>(name, Qt::FindDirectChildrenOnly)) {
                if (widget->isVisible()) {
                    return widget;
                }
            }
        }
        return nullptr;
    }
    QLineEdit* Line() { return Editor() == nullptr ? nullptr : LineOf(Editor()); }
    ListEditor* List() { return dynamic_cast<ListEditor*>(Editor()); }

    /// What has the keyboard: an open list, an editor, the grid.
    QWidget* Keyboard() {
        QWidget* popup = QApplication::activePopupWidget();
        if (popup != nullptr) {
            return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
        }
        return QApplication::focusWidget();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(Keyboard(), key, modifiers);
    }
    void Type(const QString& text) {
        for (const QChar character : text) {
            QTest::sendKeyEvent(QTest::Click, Keyboard(), Qt::Key(character.toUpper().unicode()),
                                QString(character), Qt::NoModifier);
        }
    }

    QPoint Middle(int row, int col) { return Grid.Places().CellRect(row, col).center(); }
    void ClickCell(int row, int col, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(View().viewport(), button, {}, Middle(row, col));
    }
    void ClickHeading(int col) {
        QTest::mouseClick(View().horizontalHeader()->viewport(), Qt::LeftButton, {},
                          Middle(0, col));
    }
};
