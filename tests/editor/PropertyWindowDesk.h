#pragma once

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <memory>

#include "editor/PropertyShell.h"
#include "editor/ui/ctlEditGrid.h"
#include "editor/ui/frmProperties.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SetupPaths.h"
#include "support/FakeDialogs.h"
#include "support/FakeForms.h"
#include "support/FakeRandom.h"
#include "support/FakeServices.h"

using namespace Qt::StringLiterals;

/// The window of properties of the clock "Oslo", whose file has eight keys in two categories.
struct PropertyWindowDesk {
    FakeServices Machine;
    ModuleState Module;
    Forms Windows;
    Program TheProgram{Machine.Services, Module, Windows};
    QStringList Log;  ///< what the clock is told
    PropertyShell Shell;
    std::unique_ptr<FakeClock> Clock = std::make_unique<FakeClock>(Windows, u"Oslo"_s, Log);
    ClockProperties OfClock;  ///< as the clock has them in memory
    std::unique_ptr<frmProperties> Window;

    static constexpr auto ClockFile = "TimeZones/Oslo.ini";
    static QByteArray Content() {
        return "Hands:Hand Style=3D,Line,Frame,3D\r\n"
               "Hands:Hand Colour=Red,Black,Red,Random,Custom\r\n"
               "Hands:Hand Length(%)=85,80,85,90\r\n"
               "Clock:Stay Time=0\r\n"
               "Clock:Title=Old\r\n"
               "Clock:Window Title Bar=Yes,Yes,No\r\n"
               "Clock:Flag File=\r\n"
               "Clock:Hour Font=Lato,Lato,Arial\r\n";
    }

    PropertyWindowDesk() {
        Module.Paths.AppFolder = Machine.AppFolder();
        mduMain::NameProgramFolders(Module.Paths);
        Module.Paths.ZoneFileFolder = Machine.AppFolder() + u"/TimeZones/"_s;
        Module.Paths.CentralFile = Machine.WriteFile(u"TempolarkCentral.ini"_s, Content());
        Machine.WriteFile(u"ini/Tempolark.ini"_s, Content());
        Machine.WriteFile(u"ini/TempolarkCentral.ini"_s, Content());
        Clock->File = Machine.WriteFile(QString::fromLatin1(ClockFile), Content());
        Clock->OnSetProperty = [this] { Module.CurrentProperties = OfClock; };
        Clock->OnRefreshForm = [this](const QString&) { OfClock = Module.CurrentProperties; };
        Publish(Clock->File);
        OfClock = Module.CurrentProperties;
    }

    /// Puts a file into the exchange slot, as whoever opens the window does.
    void Publish(const QString& file) {
        Module.Paths.CurrentPropertyFile = file;
        Module.CurrentProperties.Reset();
        mduLib::ReadPropertyFile(Machine.Files, file, Module.CurrentProperties);
    }

    /// Opens the window of the clock, of the shell, or of a new zone.
    void Open() { Show(u"Oslo"_s, Clock->hwnd()); }
    void OpenForShell() {
        Publish(Module.Paths.CentralFile);
        Show(mduMain::CentralExeName, 0);
    }
    void OpenForNew() {
        Publish(Module.Paths.ZoneDefaultFile());
        Show({}, 0);
    }
    void Show(const QString& zone, int owner) {
        Window = std::make_unique<frmProperties>(TheProgram, &Shell, nullptr);
        Window->ShowProperty(zone, owner);
        Window->setAttribute(Qt::WA_DeleteOnClose, false);
        QVERIFY(QTest::qWaitForWindowExposed(Window.get()));
    }

    template <typename Widget>
    Widget& Find(const QString& name) {
        Widget* found = Window->findChild<Widget*>(name);
        if (found == nullptr) {
            qFatal("no such control: %s", qPrintable(name));
        }
        return *found;
    }
    ctlEditGrid& Grid() { return *static_cast<ctlEditGrid*>(&Find<QWidget>(u"grdProperty"_s)); }
    QTableView& View() { return Grid().View(); }
    QLabel& NameLine() { return Find<QLabel>(u"lblNewName"_s); }
    QLineEdit& Search() { return Find<QLineEdit>(u"txtSearch"_s); }
    QPushButton& Button() { return Find<QPushButton>(u"cmdButton0"_s); }
    QString Info() { return Find<QPlainTextEdit>(u"txtInfo"_s).toPlainText(); }
    void Run(const QString& menuItem) { Find<QAction>(menuItem).trigger(); }
    /// Presses the button at the end of a key's value.
    void ClickCellButton(const QString& key) {
        const QRect cell = View().visualRect(Index(key));
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          QPoint(cell.right() - 8, cell.center().y()));
    }
    /// Opens the menu with the right button over the current row.
    void OpenMenu() {
        const QPoint place = View().visualRect(View().currentIndex()).center();
        QTest::mouseClick(View().viewport(), Qt::RightButton, {}, place);
    }
    void ClickButton() { QTest::mouseClick(&Button(), Qt::LeftButton); }
    /// Who gets the keys: an open list, what has the focus, else the window.
    QWidget* Focus() {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
        }
        QWidget* focus = QApplication::focusWidget();
        return focus != nullptr ? focus : Window->focusWidget();
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(Focus(), static_cast<Qt::Key>(key), modifiers);
    }
    /// The first character may open an editor that gets the others.
    void Type(const QString& text) {
        for (const QChar character : text) {
            QTest::sendKeyEvent(QTest::Click, Focus(),
                                static_cast<Qt::Key>(character.toUpper().unicode()),
                                QString(character), Qt::NoModifier);
        }
    }

    /// The row of a key in the grid; 0 where it isn't listed.
    int RowOf(const QString& key) {
        for (int row = 1; row < Grid().Data().Rows(); ++row) {
            if (Grid().Data().TextMatrix(row, 0) == key) {
                return row;
            }
        }
        return 0;
    }
    QString Cell(const QString& key) { return Grid().Data().TextMatrix(RowOf(key), 1); }
    QModelIndex Index(const QString& key) { return View().model()->index(RowOf(key) - 1, 1); }
    QString Current() { return Grid().Data().TextMatrix(Grid().Data().Row(), 0); }
    /// Goes to a key's value, as a click does.
    void GoTo(const QString& key) {
        View().setFocus();
        View().setCurrentIndex(Index(key));
    }
    /// Types a text over a key's value.
    void Enter(const QString& key, const QString& text) {
        GoTo(key);
        Key(Qt::Key_Backspace);
        Key(Qt::Key_A, Qt::ControlModifier);
        Type(text);
        Key(Qt::Key_Return);
    }
    /// The keys that are listed, in their order.
    QStringList Listed() {
        QStringList keys;
        for (int row = 1; row < Grid().Data().Rows(); ++row) {
            if (Grid().Data().RowHeight(row) > 0) {
                keys += Grid().Data().TextMatrix(row, 0);
            }
        }
        return keys;
    }
    /// What a file has for a key, with its choices.
    QString Stored(const QString& key, const QString& file = QString::fromLatin1(ClockFile)) {
        ClockProperties properties;
        mduLib::ReadPropertyFile(Machine.Files, Machine.AppFolder() + u'/' + file, properties);
        return mduLib::GetPropertyRaw(key, properties);
    }
    /// What the clock was told since the last call.
    QString Told() {
        const QString told = Log.join(u'|');
        Log.clear();
        return told;
    }
};
