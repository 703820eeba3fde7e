#include "shell/ui/frmShortcuts.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTableView>

#include "clock/ClockKeys.h"
#include "clock/ui/KeyEvents.h"
#include "foundation/HelpContexts.h"
#include "foundation/Twips.h"
#include "platform/Dialogs.h"
#include "platform/HelpViewer.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LeastHeight = 1500;  ///< twips
constexpr int RightButton = 2;
constexpr int DeleteCode = 46;

}  // namespace

frmShortcuts::frmShortcuts(const Program& program, IShell* shell, QWidget* parent)
    : QWidget(parent),
      program_(program),
      shell_(shell),
      handle_(program.Windows.NewHandle()),
      grid_(*new ctlEditGrid(program.Services.Clock, *this, this)),
      sheet_(program, grid_.Data(),
             {[this](const QString& text, int flags, const QString& title) {
                  return Ask(text, flags, title);
              },
              [this](const QString& text) { Tell(text); }}) {
    setObjectName(Name());
    setMinimumHeight(static_cast<int>(LeastHeight / TwipsPerPixel));
    MakeControls();
    MakeMenu();
    connect(&sheet_.Steps(), &QUndoStack::indexChanged, this, [this] { ShowSheet(); });
    connect(&sheet_.Steps(), &QUndoStack::cleanChanged, this,
            [this](bool clean) { cmdSave_->setEnabled(!clean); });
    program_.Windows.Add(*this);
}

frmShortcuts::~frmShortcuts() {
    // The steps go before the buttons that follow them.
    disconnect(&sheet_.Steps(), nullptr, this, nullptr);
    program_.Windows.Remove(*this);
}

void frmShortcuts::ShowMe(const QString& title, const QString& file) {
    setWindowTitle(u"Shortcuts - "_s + title);
    sheet_.Open(file, title);
    grid_.Data().SetRow(1);
    grid_.Data().SetCol(1);
    lastRow_ = 1;
    ShowSheet();
    Show();
    setFocus();
}

void frmShortcuts::MakeControls() {
    grid_.setObjectName(u"grdShortcut"_s);
    grid_.SetName(u"Shortcuts"_s);
    grid_.Data() = editor::EditGridData({2, 2, 1, 0});
    grid_.Setup();
    grid_.View().installEventFilter(this);
    lblInfo_ = new QLabel(this);
    lblInfo_->setObjectName(u"lblInfo"_s);
    lblInfo_->setWordWrap(true);
    lblInfo_->setMinimumHeight(2 * lblInfo_->fontMetrics().lineSpacing());
    lblInfo_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->addWidget(&grid_, 1);
    column->addWidget(lblInfo_);
    MakeButtons();
    setFocusProxy(&grid_.View());
}

void frmShortcuts::MakeButtons() {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    const auto add = [&](const QString& name, const QString& caption, const QString& what) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(name);
        button->setAccessibleName(caption);
        button->setToolTip(what);
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    cmdSave_ = add(u"cmdButton0"_s, u"Save"_s, u"Keep these keys for all clocks"_s);
    cmdClose_ = add(u"cmdButton1"_s, u"Close"_s, u"Close this window"_s);
    cmdSave_->setEnabled(false);
    connect(cmdSave_, &QPushButton::clicked, this, [this] { sheet_.Save(Row()); });
    connect(cmdClose_, &QPushButton::clicked, this, [this] { Unload(); });
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void frmShortcuts::MakeMenu() {
    menu_.setObjectName(u"Menu"_s);
    const auto add = [this](const QString& name, const QString& caption,
                            const std::function<void()>& act) {
        QAction* action = menu_.addAction(caption);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, act);
        return action;
    };
    add(u"ReloadShortcuts"_s, u"Reload Shortcuts"_s, [this] { sheet_.ReloadShortcuts(); });
    add(u"RefreshByDefault"_s, u"Refresh By Default  (F5)"_s,
        [this] { sheet_.RefreshByDefault(); });
    menu_.addSeparator();
    QAction* undo = add(u"Undo"_s, u"Undo"_s, [this] { sheet_.Steps().undo(); });
    QAction* redo = add(u"Redo"_s, u"Redo"_s, [this] { sheet_.Steps().redo(); });
    connect(&menu_, &QMenu::aboutToShow, this, [this, undo, redo] {
        undo->setEnabled(sheet_.Steps().canUndo());
        redo->setEnabled(sheet_.Steps().canRedo());
    });
}

void frmShortcuts::ShowSheet() {
    lastRow_ = Row();
    grid_.Refresh();
    ShowRow();
}

void frmShortcuts::ShowRow() {
    lblInfo_->setText(sheet_.RowInfo(Row()));
}

void frmShortcuts::RowColChange() {
    if (Row() != lastRow_) {
        sheet_.CommitShortcutRow(lastRow_);
        lastRow_ = Row();
        ShowRow();
    }
}

void frmShortcuts::MouseUp(int button, int, double x, double y) {
    if (button == RightButton) {
        menu_.popup(grid_.mapToGlobal(QPointF(x, y).toPoint()));
    }
}

// By the mouse it opens when the button is let go.
void frmShortcuts::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        menu_.popup(grid_.mapToGlobal(grid_.rect().center()));
    }
}

bool frmShortcuts::PressWindowKey(const QKeyEvent& event) {
    if (event.modifiers() != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
        case Qt::Key_F1:
            ShowHelp();
            return true;
        case Qt::Key_F5:
            sheet_.RefreshByDefault();
            return true;
        case Qt::Key_Escape:
            Unload();
            return true;
        default:
            return false;
    }
}

// The key that deletes has a code of the list; it takes the command off its key.
bool frmShortcuts::RecordKey(const QKeyEvent& event) {
    const bool deletes = event.key() == Qt::Key_Delete && event.modifiers() == Qt::NoModifier;
    const int code = deletes ? DeleteCode : clockcore::KeyCodeOf(event.key());
    const bool isRecorded = sheet_.PressKey(Row(), code, clockcore::ShiftState(event));
    if (isRecorded) {
        ShowRow();
    }
    return isRecorded;
}

void frmShortcuts::keyPressEvent(QKeyEvent* event) {
    if (!PressWindowKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

// A key of the menu bar, such as Alt+E, is recorded as well.
bool frmShortcuts::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (clockcore::KeyCodeOf(key.key()) != 0) {
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) {
            focusNextPrevChild(key.key() == Qt::Key_Tab);
            return true;
        }
        if (!clockcore::IsMenuKey(key) && (PressWindowKey(key) || RecordKey(key))) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmShortcuts::ShowHelp() {
    const QString file = program_.Module.Paths.AppFolder + u"/Help/TempolarkCentral.chm"_s;
    const QString refusal = program_.Services.Help.Show(file, HelpContext::Shortcuts);
    if (!refusal.isEmpty()) {
        Tell(refusal);
    }
}

int frmShortcuts::Ask(const QString& text, int flags, const QString& title) {
    const QScopedValueRollback<bool> asking(asks_, true);
    return shell_ != nullptr ? shell_->ShowMsgbox(text, flags, title)
                             : program_.Services.Dialog.MessageBox(text, flags, title);
}

void frmShortcuts::Tell(const QString& text) {
    if (shell_ != nullptr) {
        shell_->ShowStatusMsg(text);
    }
}

bool frmShortcuts::CanEdit(EditAction action) const {
    switch (action) {
        case EditAction::Undo:
            return sheet_.Steps().canUndo();
        case EditAction::Redo:
            return sheet_.Steps().canRedo();
        case EditAction::Copy:
            return !sheet_.Command(Row()).isEmpty();
        default:
            return false;
    }
}

void frmShortcuts::Edit(EditAction action) {
    switch (action) {
        case EditAction::Undo:
            return sheet_.Steps().undo();
        case EditAction::Redo:
            return sheet_.Steps().redo();
        case EditAction::Copy:
            return QGuiApplication::clipboard()->setText(grid_.Data().RowClipText(Row()));
        default:
            return;
    }
}

void frmShortcuts::TakeWidths() {
    for (std::size_t col = 0; col < shares_.size(); ++col) {
        const int width = grid_.Look().ColumnAt(static_cast<int>(col)).Width;
        if (room_ > 0 && width != given_[col]) {
            shares_[col] = width / room_;
        }
    }
}

void frmShortcuts::resizeEvent(QResizeEvent*) {
    TakeWidths();
    room_ = grid_.width() * TwipsPerPixel;
    for (std::size_t col = 0; col < shares_.size(); ++col) {
        given_[col] = static_cast<int>(room_ * shares_[col]);
        grid_.Look().Column(static_cast<int>(col)).Width = given_[col];
    }
    grid_.Refresh();
}

void frmShortcuts::closeEvent(QCloseEvent* event) {
    event->setAccepted(!asks_ && sheet_.MayClose(Row()));
}
