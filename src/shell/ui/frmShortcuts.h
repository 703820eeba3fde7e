#pragma once

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <array>

#include "editor/ui/ctlEditGrid.h"
#include "foundation/ui/ChildFrame.h"
#include "shell/ShortcutSheet.h"

/// The window where one puts the commands of a clock on keys: a grid of commands and keys, in which
/// the key that is pressed becomes that of the current row. What a key does to the list and its
/// file is decided by `shell::ShortcutSheet`; the window shows it.
///
///     auto* window = new frmShortcuts(program, &shell, frame);
///     frame->setWidget(window);
///     window->ShowMe("Clock Shortcuts", paths.ShortcutsFile);
///
/// Keys of the window, wherever the focus is: F1 opens its help, F5 takes the default keys, Escape
/// closes it; with Shift, Ctrl or Alt they are recorded like any other. The arrows, Tab and Enter
/// keep their meaning.
class frmShortcuts final : public QWidget, public IForm, public IEditTarget, private EditGridHost {
public:
    /// @param shell is asked for boxes and help, and told what failed; null does without
    frmShortcuts(const Program& program, IShell* shell, QWidget* parent);
    ~frmShortcuts() override;

    /// Fills the grid and shows the window; its caption is "Shortcuts - " and the title.
    /// @param file the full path of the list that it saves
    void ShowMe(const QString& title, const QString& file);

    // IForm
    QString Name() const override { return QStringLiteral("frmShortcuts"); }
    QString Caption() const override { return windowTitle(); }
    int hwnd() const override { return handle_; }
    int WindowState() const override { return ChildFrame::WindowState(*this); }
    void SetWindowState(int state) override { ChildFrame::SetWindowState(*this, state); }
    bool IsEnabled() const override { return isEnabled(); }
    void EnableWindow(bool enabled) override { setEnabled(enabled); }
    void Show() override { ChildFrame::Show(*this); }
    void SetFocus() override { ChildFrame::SetFocus(*this); }
    /// Asks where something is not saved. The window stays where that was to be saved and could
    /// not be, where the question is dismissed, and while a question of its own stands.
    void Unload() override { ChildFrame::Outer(*this).close(); }
    IEditTarget* AsEditTarget() override { return this; }

    // IEditTarget: steps back and forth, and a copy of the current row.
    bool CanEdit(EditAction action) const override;
    void Edit(EditAction action) override;

    const shell::ShortcutSheet& Sheet() const { return sheet_; }

    QSize sizeHint() const override { return {520, 620}; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // EditGridHost
    void RowColChange() override;
    void MouseUp(int button, int shift, double x, double y) override;

    void MakeControls();
    void MakeButtons();
    void MakeMenu();
    int Row() const { return grid_.Data().Row(); }
    /// The keys that the window keeps for itself. @return whether it was one
    bool PressWindowKey(const QKeyEvent& event);
    /// Puts a key on the current row. @return false for a key that is none of the list
    bool RecordKey(const QKeyEvent& event);
    void ShowHelp();
    /// A column that the user has made wider or narrower keeps its share of the window.
    void TakeWidths();
    /// Brings what is shown in line with the sheet.
    void ShowSheet();
    void ShowRow();
    int Ask(const QString& text, int flags, const QString& title);
    void Tell(const QString& text);

    Program program_;
    IShell* shell_;
    int handle_;
    ctlEditGrid& grid_;
    shell::ShortcutSheet sheet_;
    bool asks_ = false;  ///< a box stands, which the window must outlive
    /// The shares of the width that the columns have, and the width they were last given, in twips.
    std::array<double, 2> shares_ = {0.58, 0.325};
    std::array<int, 2> given_{};
    double room_ = 0;  ///< that of the grid then
    int lastRow_ = 0;  ///< the row that was current before; 0 for none
    QLabel* lblInfo_ = nullptr;
    QPushButton* cmdSave_ = nullptr;
    QPushButton* cmdClose_ = nullptr;
    QMenu menu_{this};
};
