#include "editor/EditorKeys.h"

#include <QTest>

using namespace Qt::StringLiterals;
using editor::EditorAction;
using editor::EditorKind;
namespace KeyCode = editor::KeyCode;

class tst_EditorKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void KnowsItsKeys_data();
    void KnowsItsKeys();
};

void tst_EditorKeys::KnowsItsKeys_data() {
    QTest::addColumn<editor::EditKey>("key");
    QTest::addColumn<EditorAction>("inLines");
    QTest::addColumn<EditorAction>("inLists");
    const auto row = [](const char* name, const editor::EditKey& key, EditorAction action) {
        QTest::newRow(name) << key << action << action;
    };
    row("enter", {13, {}}, EditorAction::Ends);
    row("escape", {27, {}}, EditorAction::Cancels);
    row("tab", {9, {}}, EditorAction::None);
    row("left", {37, {}}, EditorAction::Stays);
    row("up", {38, {}}, EditorAction::Stays);
    row("right", {39, {}}, EditorAction::Stays);
    row("down", {40, {}}, EditorAction::Stays);
    row("page up", {33, {}}, EditorAction::EndsAndPages);
    row("page down", {34, {}}, EditorAction::EndsAndPages);
    row("backspace", {8, {}}, EditorAction::Stays);
    row("home", {36, {}}, EditorAction::Stays);
    row("end", {35, {}}, EditorAction::Stays);
    row("a letter", {0, u"x"_s}, EditorAction::Stays);
    row("a sign with the code of a key", {46, u"."_s}, EditorAction::Stays);
    QTest::newRow("delete") << editor::EditKey{46, {}} << EditorAction::Stays
                            << EditorAction::ClearsChoice;
}

void tst_EditorKeys::KnowsItsKeys() {
    QFETCH(editor::EditKey, key);
    QTEST(editor::ActionOf(EditorKind::Text, key), "inLines");
    QTEST(editor::ActionOf(EditorKind::UpDown, key), "inLines");
    QTEST(editor::ActionOf(EditorKind::Combo, key), "inLists");
    QTEST(editor::ActionOf(EditorKind::ComboEdit, key), "inLists");
}

QTEST_GUILESS_MAIN(tst_EditorKeys)
#include "tst_EditorKeys.moc"
