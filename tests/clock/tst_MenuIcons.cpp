#include "clock/MenuIcons.h"

#include <QTest>

#include "clock/FormMenu.h"
#include "support/MachineWithZones.h"

using namespace Qt::StringLiterals;
using clockcore::MenuNode;

class tst_MenuIcons : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EachEntryHasAPicture() {
        MachineWithZones machine;
        machine.Module.Paths.ImagesFolder = QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/Images/");
        MenuNode menu = clockcore::MakeFormMenu({.WindowState = 2, .HiddenParts = {u"Flag"_s}}, {});
        SetMenuIcon(menu, machine.TheProgram);
        for (const MenuNode& node : menu.Children) {
            if (node.Caption == u"-"_s) {
                QVERIFY(node.Icon == nullptr);
                continue;
            }
            QVERIFY2(node.Icon != nullptr, qPrintable(node.Name));
            QCOMPARE(node.Icon->size(), QSize(48, 48));
            QVERIFY(node.Icon->hasAlphaChannel());
            QCOMPARE(qAlpha(node.Icon->pixel(0, 0)), 0);
        }
    }

    void TellsWhatAClickDoes() {
        MachineWithZones machine;
        machine.Module.Paths.ImagesFolder = QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/Images/");
        MenuNode menu{.Children = {{.Name = u"EnableActive"_s, .Caption = u"Enable Clock"_s},
                                   {.Name = u"EnableActive"_s, .Caption = u"Disable Clock"_s}}};
        SetMenuIcon(menu, machine.TheProgram);
        const QString folder = machine.Module.Paths.ImagesFolder + u"Toolbar/"_s;
        QCOMPARE(*menu.Children[0].Icon, QImage(folder + u"Enable.svg"_s));
        QCOMPARE(*menu.Children[1].Icon, QImage(folder + u"Disable.svg"_s));
    }

    void IsReadOnceForAll() {
        MachineWithZones machine;
        machine.Module.Paths.ImagesFolder = machine.Machine.AppFolder() + u"/Images/"_s;
        const auto icon = [&machine] {
            MenuNode menu{.Children = {{.Name = u"Help"_s}}};
            SetMenuIcon(menu, machine.TheProgram);
            return menu.Children[0].Icon;
        };
        QVERIFY(icon() == nullptr);
        QFile picture(QStringLiteral(TEMPOLARK_SOURCE_DIR "/data/Images/Toolbar/Help.svg"));
        QVERIFY(picture.open(QIODevice::ReadOnly));
        const QString path =
            machine.Machine.WriteFile(u"Images/Toolbar/Help.svg"_s, picture.readAll());
        const auto first = icon();
        QVERIFY(first != nullptr);
        QVERIFY(machine.Machine.Files.Delete(path));
        QCOMPARE(icon(), first);
    }

    void AFileThatIsMissingGivesNone() {
        MachineWithZones machine;
        machine.Module.Paths.ImagesFolder = u"/nowhere/"_s;
        MenuNode menu = clockcore::MakeFormMenu({}, {});
        SetMenuIcon(menu, machine.TheProgram);
        QVERIFY(menu.Children[0].Icon == nullptr);
    }
};

QTEST_MAIN(tst_MenuIcons)
#include "tst_MenuIcons.moc"
