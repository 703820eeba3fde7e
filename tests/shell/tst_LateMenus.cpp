#include "shell/LateMenus.h"

#include <QTest>

#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

class tst_LateMenus : public QObject {
    Q_OBJECT

private:
    static QString Items(shell::MenuState& state, const QString& name) {
        QStringList items;
        for (int i = 1; i <= state[name].Count(); ++i) {
            const shell::MenuItem& item = state[name](i);
            items += item.Visible ? item.Caption + u'=' + item.Tag : u"hidden"_s;
        }
        return items.join(u',');
    }

private Q_SLOTS:
    void ColoursByName() {
        FakeServices machine;
        shell::MenuState state;
        QCOMPARE(Items(state, u"BGColour"_s), u"hidden"_s);
        shell::FillLateMenus(state, machine.Files, machine.AppFolder() + u"/none/"_s);
        const QString named =
            u"Black=Black,Blue=Blue,Cyan=Cyan,Green=Green,Magenta=Magenta,Red=Red,White=White,"
            "Yellow=Yellow,"_s;
        QCOMPARE(Items(state, u"BGColour"_s), named + u"Custom=Custom"_s);
        QCOMPARE(Items(state, u"ClockColours"_s),
                 named + u"Transparent=Transparent,Custom=Custom"_s);
        QCOMPARE(Items(state, u"ClockStyles"_s), u"More="_s);
    }

    void StylesOfTheFolder() {
        FakeServices machine;
        for (const QString& file :
             {u"styles/b.INI"_s, u"styles/A.ini"_s, u"styles/c.ini.txt"_s, u"styles/ini"_s}) {
            machine.WriteFile(file, "x=1\r\n");
        }
        shell::MenuState state;
        const QString folder = machine.AppFolder() + u"/styles/"_s;
        shell::FillLateMenus(state, machine.Files, folder);
        QCOMPARE(Items(state, u"ClockStyles"_s), u"A=%1A.ini,b=%1b.INI,More="_s.arg(folder));
    }
};

QTEST_GUILESS_MAIN(tst_LateMenus)
#include "tst_LateMenus.moc"
