#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include "foundation/Program.h"
#include "foundation/ui/CBalloonToolTip.h"
#include "foundation/ui/ChildFrame.h"
#include "timezones/ZoneFilesOfRows.h"
#include "timezones/ZoneListModel.h"
#include "timezones/ui/ZoneListView.h"
#include "timezones/ui/ZoneMap.h"
#include "timezones/ui/ZoneMenu.h"
#include "timezones/ui/ZoneSplitter.h"

/// The window where one chooses which zones have a clock. It lists zones with check boxes and shows
/// them on a map; a row that is checked has a property file, which the shell can launch. What is
/// listed is decided by `mduTimeZones::ZoneList`, what is written by `ZoneFilesOfRows`; the window
/// shows it and asks its questions.
///
///     auto* window = new frmTimeZones(program, frame);
///     frame->setWidget(window);
///     window->ShowMe(shellForm, &shell, 0, 0);
class frmTimeZones final : public QWidget, public IForm, public IEditTarget {
public:
    frmTimeZones(const Program& program, QWidget* parent);
    ~frmTimeZones() override;

    /// Fills the list and shows the window. @p parentForm gives the title; @p shell, which may be
    /// null, is asked for boxes, speech and clocks. The flags are kept for callers that give them.
    void ShowMe(IForm& parentForm, IShell* shell, std::int16_t flag1, std::int16_t flag2);

    /// Clears the list and fills it by the source; unsaved checks are asked for first.
    void LoadZoneList(mduTimeZones::ShowFilter show);
    /// Lists another source; before the window is shown it only chooses it.
    void SetSource(mduTimeZones::SourceMode source);
    /// Makes a property file for each checked row that has none, and tells in the status bar how
    /// many were made or why one could not be.
    void SaveCheckedZones();
    /// Removes the files of the checked rows, and their clocks, after a question whose default is
    /// "No".
    void DeleteCheckedZones();
    /// Asks for checked rows that have no file, and for rows that are no longer checked and have
    /// one; on yes the files of the first are made and those of the others removed.
    void ConfirmSave();
    /// Shows the text of the row at a position of the list in a balloon, and speaks it where the
    /// shell's settings say so.
    void ShowZoneDetails(int position);
    /// Opens the clock of the current row, checked or not.
    void OpenCurrent();
    /// What the button does: opens the clock of the current row, or where none was chosen those of
    /// all checked rows.
    void Launch();

    // IForm
    QString Name() const override { return QStringLiteral("frmTimeZones"); }
    QString Caption() const override { return windowTitle(); }
    int hwnd() const override { return handle_; }
    /// 0 normal, 1 minimised, 2 maximised: of the frame in the shell, where there is one.
    int WindowState() const override { return ChildFrame::WindowState(*this); }
    void SetWindowState(int state) override { ChildFrame::SetWindowState(*this, state); }
    bool IsEnabled() const override { return isEnabled(); }
    void EnableWindow(bool enabled) override { setEnabled(enabled); }
    void Show() override { ChildFrame::Show(*this); }
    void SetFocus() override { ChildFrame::SetFocus(*this); }
    void Unload() override { ChildFrame::Outer(*this).close(); }

    IEditTarget* AsEditTarget() override { return this; }

    // IEditTarget: it can find, which gives the focus to the field of the search.
    bool CanEdit(EditAction action) const override { return action == EditAction::Find; }
    void Edit(EditAction action) override;

    /// What is listed, in the order of the rows; the first has position 0.
    const mduTimeZones::ZoneList& List() const { return list_; }
    /// The balloon of `ShowZoneDetails`.
    CBalloonToolTip& Balloon() { return balloon_; }

    QSize sizeHint() const override { return {760, 640}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Item = ZoneMenu::Item;

    /// Says something in the shell's status bar; nothing where there is no shell.
    void Tell(const QString& text);
    void TellOutcome(const mduTimeZones::RowsOutcome& outcome, const QString& done);
    /// @return the button pressed, such as `MsgBox::Yes`; 0 where there is no shell to ask
    int Ask(const QString& text, int flags, const QString& title);
    mduTimeZones::RowsOutcome Remove(const QStringList& names);
    /// Makes the row's file if it has none, and opens its clock.
    void LaunchRow(int position);

    // What the list does (frmTimeZonesList.cpp)
    /// Runs what lists other rows. The current zone stays current where it is still listed.
    void Refill(const std::function<void()>& action);
    /// Brings map, counts and buttons in line with the rows.
    void ShowRows();
    /// Lists what is found by the text, and makes the best match current.
    void Search(const QString& typed);
    /// Makes the row's file unless it has one, and tells what stands in the way.
    /// @return whether there is a file now
    bool MakeFileOf(int position);
    void CheckRow(int position);
    /// Checks or unchecks all listed rows; no file is made or removed by it.
    void CheckAll(bool checked);
    void NarrowToBand();
    /// Sorts upward by a column, or downward where it is sorted upward already.
    void SortByColumn(int column);
    void SetSort(mduTimeZones::ZoneSort sort);
    /// The position of the row that is lit; -1 for none.
    int CurrentPosition() const;
    void MakeCurrent(int position);
    void ShowCurrent();
    QString ToolTipOfRow(int position) const;
    /// What stands in the list when it is empty: the reason, as the search, the band or the source
    /// gives it.
    QString EmptyText() const;

    // Its controls (frmTimeZonesControls.cpp)
    void MakeControls();
    void MakeMap();
    void MakeSearchRow();
    void MakeList();
    void MakeButtons();

    // Their places and the menus (frmTimeZonesLayout.cpp)
    void LayOut();
    int MapHeight() const;
    /// The highest and the lowest place of the splitter, in pixels from the top.
    QPair<int, int> SplitLimits() const;
    /// @param y where the splitter was let go, in pixels from the top
    void SetSplit(int y);
    void SetMapVisible(bool visible);
    void RefreshMenus();
    void RunItem(Item item);
    void ShowBandButton();

    Program program_;
    int handle_;
    IShell* shell_ = nullptr;
    mduTimeZones::ZoneList list_;
    mduTimeZones::ZoneListModel model_;
    CBalloonToolTip balloon_;
    ZoneMenu menus_;

    ZoneMap* imgMap_ = nullptr;
    ZoneSplitter* imgSplitter_ = nullptr;
    QWidget* searchRow_ = nullptr;
    QLineEdit* txtSearch_ = nullptr;
    QToolButton* cmdBand_ = nullptr;
    QToolButton* cmdView_ = nullptr;
    ZoneListView* lsvTimeZones_ = nullptr;
    QWidget* buttonRow_ = nullptr;
    QLabel* lblCount_ = nullptr;
    QPushButton* cmdLaunch_ = nullptr;
    QPushButton* cmdSave_ = nullptr;
    QPushButton* cmdClose_ = nullptr;

    std::vector<int> rowOfDot_;  ///< positions in the list
    bool mapVisible_ = true;
    int mapHeight_ = -1;  ///< pixels, as the splitter was left; -1 before it was moved
};
