#include "shell/ui/TextEditing.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include "editor/GridDesk.h"

using namespace Qt::StringLiterals;

namespace {

/// The actions that a widget can do, each by its first letters.
QString Can(const QWidget& widget) {
    using enum EditAction;
    const std::vector<std::pair<EditAction, QString>> all = {
        {Undo, u"un"_s},     {Redo, u"re"_s},       {Cut, u"cut"_s},
        {Copy, u"copy"_s},   {Paste, u"paste"_s},   {Delete, u"del"_s},
        {Clear, u"clear"_s}, {SelectAll, u"all"_s}, {Find, u"find"_s}};
    QStringList can;
    for (const auto& [action, name] : all) {
        if (TextEditing::CanEdit(&widget, action).value_or(false)) {
            can += name;
        }
    }
    return can.join(u' ');
}

void SetText(QLineEdit& line, const QString& text) {
    line.setText(text);
}
template <class Box>
void SetText(Box& box, const QString& text) {
    box.setPlainText(text);
}
void SetText(ListEditor& list, const QString& text) {
    list.setEditText(text);
}
void SetText(SpinEditor& spin, const QString& text) {
    spin.Line()->setText(text);
}
QString TextOf(const ListEditor& list) {
    return list.currentText();
}
QString TextOf(const SpinEditor& spin) {
    return spin.text();
}
QString TextOf(const QLineEdit& line) {
    return line.text();
}
template <class Box>
QString TextOf(const Box& box) {
    return box.toPlainText();
}

template <class Text>
void WalksThrough(Text&& text) {
    QApplication::clipboard()->clear();
    QCOMPARE(Can(text), QString());
    SetText(text, u"Oak"_s);
    QCOMPARE(Can(text), u"clear all"_s);
    TextEditing::Edit(&text, EditAction::SelectAll);
    QCOMPARE(Can(text), u"cut copy del clear all"_s);
    TextEditing::Edit(&text, EditAction::Copy);
    QCOMPARE(QApplication::clipboard()->text(), u"Oak"_s);
    TextEditing::Edit(&text, EditAction::Delete);
    QCOMPARE(TextOf(text), QString());
    QCOMPARE(Can(text), u"un paste"_s);
    TextEditing::Edit(&text, EditAction::Undo);
    QCOMPARE(TextOf(text), u"Oak"_s);
    TextEditing::Edit(&text, EditAction::Redo);
    QCOMPARE(TextOf(text), QString());
    TextEditing::Edit(&text, EditAction::Redo);  // there is nothing left
    TextEditing::Edit(&text, EditAction::Paste);
    TextEditing::Edit(&text, EditAction::Paste);
    QCOMPARE(TextOf(text), u"OakOak"_s);
    TextEditing::Edit(&text, EditAction::Clear);
    QCOMPARE(TextOf(text), QString());
    TextEditing::Edit(&text, EditAction::Undo);
    QCOMPARE(TextOf(text), u"OakOak"_s);
    TextEditing::Edit(&text, EditAction::SelectAll);
    TextEditing::Edit(&text, EditAction::Cut);
    QCOMPARE(TextOf(text), QString());
    QCOMPARE(QApplication::clipboard()->text(), u"OakOak"_s);
}

}  // namespace

class tst_TextEditing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void Lines() { WalksThrough(QLineEdit()); }
    void Boxes() { WalksThrough(QTextEdit()); }
    void PlainBoxes() { WalksThrough(QPlainTextEdit()); }
    void LinesWithSpinButtons() {
        WalksThrough(SpinEditor([](int) {}, nullptr));
    }
    void LinesWithAList() {
        const auto nothing = [] {};
        const auto plain = [](const QString&) { return CellLook(); };
        WalksThrough(ListEditor({}, true, {nothing, nothing, plain}, nullptr));
    }

    void OpenEditorsOfTheGrid_data() {
        QTest::addColumn<int>("col");
        QTest::addColumn<QString>("cell");
        QTest::newRow("with spin buttons") << int(GridDesk::UpDown) << u"1.50"_s;
        QTest::newRow("a line") << int(GridDesk::Text) << u"abc"_s;
        QTest::newRow("with a list") << int(GridDesk::ComboEdit) << u"Blue"_s;
    }
    /// By what has the focus, which need not be the line.
    void OpenEditorsOfTheGrid() {
        QFETCH(int, col);
        QFETCH(QString, cell);
        GridDesk desk;
        desk.Show();
        desk.GoTo(1, col);
        desk.Press(Qt::Key_Return);
        QWidget* focus = QApplication::focusWidget();
        TextEditing::Edit(focus, EditAction::SelectAll);
        TextEditing::Edit(focus, EditAction::Cut);
        QCOMPARE(QApplication::clipboard()->text(), cell);
        QCOMPARE(desk.Line()->text(), QString());
        QCOMPARE(desk.Cell(1, col), cell);
        TextEditing::Edit(focus, EditAction::Paste);
        TextEditing::Edit(focus, EditAction::Paste);
        desk.Press(Qt::Key_Escape);
        QCOMPARE(desk.Cell(1, col), cell);
    }

    void WhatCanOnlyBeRead() {
        QApplication::clipboard()->setText(u"Elm"_s);
        QLineEdit line(u"Oak"_s);
        line.setReadOnly(true);
        line.selectAll();
        QCOMPARE(Can(line), u"copy all"_s);
        TextEditing::Edit(&line, EditAction::Paste);
        TextEditing::Edit(&line, EditAction::Clear);
        QCOMPARE(line.text(), u"Oak"_s);
        QPlainTextEdit box(u"Oak"_s);
        box.setReadOnly(true);
        QCOMPARE(Can(box), u"all"_s);
    }

    void AHiddenTextIsNotCopied() {
        QApplication::clipboard()->setText(u"Elm"_s);
        QLineEdit line(u"secret"_s);
        line.setEchoMode(QLineEdit::Password);
        line.selectAll();
        QCOMPARE(Can(line), u"paste del clear all"_s);
        TextEditing::Edit(&line, EditAction::Copy);
        QCOMPARE(QApplication::clipboard()->text(), u"Elm"_s);
    }

    void NoText() {
        QPushButton button(u"OK"_s);
        QVERIFY(!TextEditing::CanEdit(&button, EditAction::Copy).has_value());
        QVERIFY(!TextEditing::CanEdit(nullptr, EditAction::Copy).has_value());
        TextEditing::Edit(nullptr, EditAction::Copy);
        QComboBox list;  // to pick from
        QVERIFY(!TextEditing::CanEdit(&list, EditAction::Copy).has_value());
    }
};

QTEST_MAIN(tst_TextEditing)
#include "tst_TextEditing.moc"
