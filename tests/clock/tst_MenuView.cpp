#include "clock/ui/MenuView.h"

#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;
using clockcore::MenuNode;

class tst_MenuView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ShowsWhatTheNodesHold() {
        QWidget clock;
        int chosen = 0;
        QMenu* menu = clockcore::MakeMenu(
            &clock,
            {.Name = u"FormPopup"_s,
             .Children = {{.Name = u"Clocks"_s,
                           .Caption = u"Kinds & more"_s,
                           .Children = {{.Name = u"ClocksMenu"_s,
                                         .Caption = u"Digital"_s,
                                         .Ticked = MenuNode::Tick::On},
                                        {.Caption = u"Both"_s, .Ticked = MenuNode::Tick::Off}}},
                          {.Caption = u"-"_s},
                          {.Name = u"Close"_s, .Caption = u"Close"_s, .Choose = [&] { ++chosen; }},
                          {.Name = u"Help"_s, .Caption = u"Help"_s, .Enabled = false}}});
        QCOMPARE(menu->objectName(), u"FormPopup"_s);
        QCOMPARE(menu->actions().size(), 4);
        const QAction* kinds = menu->actions()[0];
        QCOMPARE(kinds->text(), u"Kinds && more"_s);
        QCOMPARE(kinds->menu()->objectName(), u"Clocks"_s);
        QVERIFY(kinds->menu()->actions()[0]->isChecked());
        QVERIFY(kinds->menu()->actions()[1]->isCheckable());
        QVERIFY(!kinds->menu()->actions()[1]->isChecked());
        QVERIFY(menu->actions()[1]->isSeparator());
        QVERIFY(!menu->actions()[2]->isCheckable());
        menu->actions()[2]->trigger();
        QCOMPARE(chosen, 1);
        QVERIFY(!menu->actions()[3]->isEnabled());
    }

    // An entry without a preview, and the end of the menu, take back what was shown.
    void PreviewsWhatIsHighlighted() {
        QWidget clock;
        QStringList log;
        const auto style = [&log](const QString& name) {
            return MenuNode{.Name = u"ClockStyles"_s,
                            .Caption = name,
                            .Choose = [&log, name] { log += u"choose "_s + name; },
                            .Preview = [&log, name] { log += name; },
                            .EndPreview = [&log] { log += u"back"_s; }};
        };
        QMenu* menu = clockcore::MakeMenu(
            &clock, {.Name = u"Styles"_s,
                     .Children = {style(u"Oak"_s), style(u"Elm"_s), {.Caption = u"More"_s}}});
        menu->actions()[0]->hover();
        menu->actions()[1]->hover();
        QCOMPARE(log, QStringList({u"Oak"_s, u"Elm"_s}));
        menu->actions()[2]->hover();
        QCOMPARE(log.last(), u"back"_s);
        log.clear();
        menu->popup({10, 10});
        menu->close();
        QCOMPARE(log, QStringList(u"back"_s));
    }
};

QTEST_MAIN(tst_MenuView)
#include "tst_MenuView.moc"
