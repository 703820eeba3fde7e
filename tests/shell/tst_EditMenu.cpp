#include "shell/EditMenu.h"

#include <QTest>

#include "shell/MenuState.h"

using namespace Qt::StringLiterals;

class tst_EditMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// By the captions of the menu itself.
    void EachItemDoesWhatItSays() {
        using enum EditAction;
        const std::vector<std::pair<QString, std::optional<EditAction>>> items = {
            {u"Undo"_s, Undo},     {u"Redo"_s, Redo},   {u"Cut"_s, Cut},
            {u"Copy"_s, Copy},     {u"Paste"_s, Paste}, {u"-"_s, {}},
            {u"Delete"_s, Delete}, {u"Clear"_s, Clear}, {u"Select All"_s, SelectAll},
            {u"-"_s, {}},          {u"Find"_s, Find},   {u"Check Spelling"_s, {}}};
        shell::MenuState state;
        const shell::MenuArray& menu = state[u"EditItem"_s];
        QCOMPARE(menu.Count(), 12);
        for (int i = 1; i <= 12; ++i) {
            const auto& [caption, action] = items[static_cast<std::size_t>(i - 1)];
            QCOMPARE(menu(i).Caption, caption);
            QVERIFY2(shell::EditActionOf(i) == action, qPrintable(caption));
        }
        QVERIFY(!shell::EditActionOf(0));
        QVERIFY(!shell::EditActionOf(13));
    }

    void KeysStandBehindTheCaptions() {
        shell::MenuState state;
        shell::MenuArray& menu = state[u"EditItem"_s];
        const auto keys = [&menu] {
            QStringList all;
            for (int i = 1; i <= menu.Count(); ++i) {
                all += menu(i).Keys;
            }
            return all.join(u',');
        };
        const auto all = [](EditAction) { return true; };
        shell::RefreshEditItems(menu, all, true);
        QCOMPARE(keys(), u"Ctrl+Z,Ctrl+Y,Ctrl+X,Ctrl+C,Ctrl+V,,Del,,Ctrl+A,,Ctrl+F,"_s);
        shell::RefreshEditItems(menu, all, false);
        QCOMPARE(keys(), u",,,,,,,,,,,"_s);
        QVERIFY(menu(11).Enabled);
        QVERIFY(!menu(12).Enabled);  // nobody checks spelling
    }
};

QTEST_APPLESS_MAIN(tst_EditMenu)
#include "tst_EditMenu.moc"
