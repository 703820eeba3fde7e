#pragma once

#include <QWidget>
#include <memory>

#include "editor/PropertySheet.h"
#include "editor/ui/PropertyMenu.h"
#include "foundation/Program.h"

struct PropertyWindowParts;

/// The window that edits one property file: of a clock, of a clock that is to be made, or of the
/// shell. It lists the keys with their values; what the file becomes is decided by
/// `editor::PropertySheet`, the window shows it and asks its questions.
///
/// It shows what the exchange slot holds, so whoever opens it puts his properties there first:
///
///     clock.SetProperty();
///     auto* window = new frmProperties(program, &shell, frame);
///     frame->setWidget(window);
///     window->ShowPropertyMDIChild("Tokyo Standard Time", clock.hwnd(), 0, 0, 9000, 7500);
///
/// A clock is looked up by the file at each use: one that has been closed in the meantime is simply
/// no more there, and its file is still saved; one that is opened again goes on taking it over.
class frmProperties final : public QWidget,
                            public IForm,
                            public IPropertyWindow,
                            public IEditTarget {
public:
    /// @param shell is asked for boxes and told of saves; null shows boxes without it
    frmProperties(const Program& program, IShell* shell, QWidget* parent);
    ~frmProperties() override;

    /// Opens it as a window of its own, which is deleted once it is closed.
    /// @param zoneName the name of the zone, `mduMain::CentralExeName` for the shell's settings;
    /// empty for a zone that is to be made
    /// @param ownerHandle of the clock that opened it; 0 for the shell
    void ShowProperty(const QString& zoneName, int ownerHandle);
    /// Opens it as a child of the shell, at a place in twips that is clipped to the client area of
    /// its parent. A width or height of 0 or less leaves the size as it is.
    void ShowPropertyMDIChild(const QString& zoneName, int ownerHandle, double left, double top,
                              double width, double height);

    // IForm
    QString Name() const override { return QStringLiteral("frmProperties"); }
    QString Caption() const override { return windowTitle(); }
    int hwnd() const override { return handle_; }
    /// 0 normal, 1 minimised, 2 maximised: of the frame in the shell, where there is one.
    int WindowState() const override;
    void SetWindowState(int state) override;
    bool IsEnabled() const override { return isEnabled(); }
    void EnableWindow(bool enabled) override { setEnabled(enabled); }
    void Show() override;
    void SetFocus() override;
    /// Closes the window, behind the question whether to save where something has been changed.
    void Unload() override;
    IPropertyWindow* AsPropertyWindow() override { return this; }
    IEditTarget* AsEditTarget() override { return this; }

    // IPropertyWindow
    QString PropertyFile() const override;
    void SetPropertyChanged(bool state) override;

    // IEditTarget
    bool CanEdit(EditAction action) const override;
    void Edit(EditAction action) override;

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& Outer();
    const QWidget& Outer() const;
    void Open(const QString& zoneName, int ownerHandle);
    void Place(const QRectF& twips);

    // What is shown (frmProperties.cpp)
    /// The line of information, which follows the current row.
    void ShowRowInfo();
    /// Title, button, name of a new zone, and whether the grid can be edited.
    void ShowState();
    void ShowButton();
    /// The name of a new zone while it is typed, and why it can't be one.
    void ShowNewName();
    /// Gives the focus to the grid, or to the name that is typed.
    void FocusStart();
    void Search(const QString& words);
    /// Tells why something was not done, in the line of information and by the owner.
    void Tell(const QString& problem);

    // What is done (frmPropertiesActions.cpp)
    void PressButton();
    /// Runs what shows a box or a picker, unless one is open; the window stays open meanwhile.
    void RunBox(const std::function<void()>& box);
    /// @return whether the answer is Yes; true where there is nothing to ask
    bool Ask(const std::optional<editor::SheetQuestion>& question);
    /// Runs what writes the file, with the current record, its cell, and the owner's properties.
    void Write(const std::function<void(int, const QString&, const ClockProperties&)>& writing);
    void Follow(const editor::SheetOutcome& outcome);
    /// The grid has got the focus.
    void CheckPropertyChanged();
    /// Asks about a change that somebody else has made to the file.
    /// @return whether the values are those that the user has seen, and may be written
    bool AskChange();
    bool SettleChange();  ///< the same without a guard of its own
    void RefreshTimeZone();
    /// @return whether the window may close now
    bool AskToSave();
    bool SaveAtClose();
    void RunItem(PropertyMenu::Item item);
    void Sort(const QString& tag);
    void Refill(const std::function<QString()>& action);
    PropertyMenu::State MenuState() const;
    void Copy();
    void Cut();
    void Paste();
    void Find();

    // The keys (frmPropertiesKeys.cpp)
    /// A key that the window takes before the grid. @return whether it has been used
    bool WindowKey(int code, int shift);
    bool EditKey(int code, int shift);
    /// A key while the name of a new zone is typed.
    bool NameKey(const QKeyEvent& event);
    bool SearchKey(const QKeyEvent& event);
    void FlipNewFile();

    Program program_;
    IShell* shell_;
    int handle_;
    bool asking_ = false;                                 ///< a box of this window is open
    editor::ButtonTag shown_ = editor::ButtonTag::Apply;  ///< what the button tells that it does
    std::unique_ptr<PropertyWindowParts> parts_;
};
