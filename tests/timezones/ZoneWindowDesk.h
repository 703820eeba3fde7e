#pragma once

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>
#include <QToolButton>

#include "support/FakeForms.h"
#include "timezones/ZoneListDesk.h"
#include "timezones/ui/frmTimeZones.h"

/// A shell that remembers what it is asked for; a box that was not expected fails the test.
struct ZoneShell final : IShell {
    QStringList Messages, Boxes, Spoken, Launched;
    std::vector<int> Answers;
    QString Speak = u"No"_s;
    int Purges = 0;

    void ShowStatusMsg(const QString& text) override { Messages += text; }
    int ShowMsgbox(const QString& text, int flags, const QString& title) override {
        Boxes += u"%1|%2|%3"_s.arg(text).arg(flags).arg(title);
        if (Answers.empty()) {
            qFatal("a box that the test did not expect: %s", qPrintable(text));
        }
        const int answer = Answers.front();
        Answers.erase(Answers.begin());
        return answer;
    }
    int RefreshForm(const QString&) override { return 0; }
    void SpeakMessage(const QString& text) override { Spoken += text; }
    void PurgeSpeech() override { ++Purges; }
    void DoMenuItem(float, int) override {}
    int BackColor() const override { return 0; }
    int LaunchTempolark(const QString& name) override {
        Launched += name;
        return 1;
    }
    QString Setting(const QString& name) const override {
        return name == u"Speak Time Zone Details"_s ? Speak : QString();
    }
    QString RemoveZone(const QString& name) override {
        Removed += name;
        return Remove ? Remove(name) : QString();
    }
    void ShowClockHelp() override {}
    void OpenWindow(ShellWindow) override {}
    void SetAutoStart(const QString&, bool) override {}

    QStringList Removed;
    std::function<QString(const QString& name)> Remove;
};

/// The window of zones over three zones of a database and two profiles.
struct ZoneWindowDesk : ZoneListDesk {
    ModuleState Module;
    Forms Windows;
    Program TheProgram{Machine.Services, Module, Windows};
    QStringList Log;
    FakeForm Main{Windows, u"frmMain"_s, u"Tempolark Central"_s, Log};
    ZoneShell Shell;
    std::unique_ptr<frmTimeZones> Window;

    ZoneWindowDesk() {
        Machine.Zones.Places[u"Tokyo Standard Time"_s] = {35.7, 139.7};
        Machine.Zones.Places[u"Eastern Standard Time"_s] = {40.7, -74};
        Machine.Zones.CountryNames[u"Tokyo Standard Time"_s] = {u"Japan"_s};
        Profile(u"Oslo.ini"_s, "W. Europe Standard Time", -60);
        Profile(u"Lima.ini"_s, "SA Pacific Standard Time", 300);
        Module.Paths = Paths;
        Shell.Remove = [this](const QString& name) {
            return mduTimeZones::DeleteZoneFile(Machine.Services, Paths, name);
        };
    }

    void Open() {
        Window = std::make_unique<frmTimeZones>(TheProgram, nullptr);
        Window->resize(804, 640);  // the map is 780 pixels wide
        Window->ShowMe(Main, &Shell, 0, 0);
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
    QTreeView& View() { return Find<QTreeView>(u"lsvTimeZones"_s); }
    ZoneMap& Map() { return static_cast<ZoneMap&>(Find<QWidget>(u"imgMap"_s)); }
    QLineEdit& Search() { return Find<QLineEdit>(u"txtSearch"_s); }
    void Run(const QString& menuItem) { Find<QAction>(menuItem).trigger(); }
    void Click(const QString& button) {
        QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
    }

    QStringList Listed() const { return Names(Window->List()); }
    bool HasFile(const QString& zone) const { return !ReadZoneFile(zone).isEmpty(); }

    QModelIndex Row(const QString& zone) {
        const auto position = static_cast<int>(Listed().indexOf(zone));
        return View().model()->index(position, 0);
    }
    void GoTo(const QString& zone) { View().setCurrentIndex(Row(zone)); }
    bool IsChecked(const QString& zone) {
        return Row(zone).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    /// Where the check box of a row stands in the list.
    QPoint CheckBox(const QString& zone) {
        const QRect row = View().visualRect(Row(zone));
        return {row.left() + 10, row.center().y()};
    }
    void ClickCheckBox(const QString& zone) {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, CheckBox(zone));
    }

    /// Moves over the map with the left button held down.
    void Drag(int fromX, int toX) {
        QTest::mousePress(&Map(), Qt::LeftButton, {}, QPoint(fromX, 40));
        MoveHeld(toX);
    }
    void MoveHeld(int x) {
        const QPointF place(x, 40);
        QMouseEvent move(QEvent::MouseMove, place, Map().mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Map(), &move);
    }
    void LetGo(int x) { QTest::mouseRelease(&Map(), Qt::LeftButton, {}, QPoint(x, 40)); }
};
