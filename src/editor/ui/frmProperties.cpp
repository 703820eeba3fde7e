#include "editor/ui/frmProperties.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTableView>

#include "editor/ui/PropertyWindowParts.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize UsualSize(580, 660);
constexpr QSize LeastSize(320, 280);
constexpr QLatin1StringView TitlePrefix("Properties - ");

}  // namespace

frmProperties::frmProperties(const Program& program, IShell* shell, QWidget* parent)
    : QWidget(parent), program_(program), shell_(shell), handle_(program.Windows.NewHandle()) {
    setObjectName(Name());
    setMinimumSize(LeastSize);
    program_.Windows.Add(*this);
}

frmProperties::~frmProperties() {
    program_.Windows.Remove(*this);
}

QSize frmProperties::sizeHint() const {
    return UsualSize;
}

// A window shows one file; a second call only brings it to the front.
void frmProperties::ShowProperty(const QString& zoneName, int ownerHandle) {
    Open(zoneName, ownerHandle);
    if (isWindow()) {
        setAttribute(Qt::WA_DeleteOnClose);
        resize(UsualSize);
    }
    Show();
    SetFocus();
}

void frmProperties::ShowPropertyMDIChild(const QString& zoneName, int ownerHandle, double left,
                                         double top, double width, double height) {
    Open(zoneName, ownerHandle);
    Place({left, top, width, height});
    Show();
    SetFocus();
}

void frmProperties::Place(const QRectF& twips) {
    QWidget& outer = Outer();
    const QSize wanted(static_cast<int>(twips.width() / TwipsPerPixel),
                       static_cast<int>(twips.height() / TwipsPerPixel));
    QRect place(QPoint(static_cast<int>(twips.left() / TwipsPerPixel),
                       static_cast<int>(twips.top() / TwipsPerPixel)),
                QSize(wanted.width() > 0 ? wanted.width() : outer.sizeHint().width(),
                      wanted.height() > 0 ? wanted.height() : outer.sizeHint().height()));
    if (const QWidget* area = outer.parentWidget()) {
        const QRect room = area->rect();
        place.setSize(place.size().boundedTo(room.size()).expandedTo(outer.minimumSizeHint()));
        place.moveRight(std::min(place.right(), room.right()));
        place.moveBottom(std::min(place.bottom(), room.bottom()));
        place.moveLeft(std::max(place.left(), room.left()));
        place.moveTop(std::max(place.top(), room.top()));
    }
    outer.setGeometry(place);
}

void frmProperties::Open(const QString& zoneName, int ownerHandle) {
    if (parts_) {
        return;
    }
    const PropertyGrid::Events events = {
        [this] { ShowRowInfo(); },
        [this] {
            ShowRowInfo();
            ShowState();
        },
        [this](int code, int shift) { return WindowKey(code, shift); },
        [this] { parts_->Controls.Search().clear(); },
        [this] { CheckPropertyChanged(); },
        [this](const QPoint& at) { parts_->Menu.Popup(MenuState(), at); },
        [this](const std::function<void()>& box) { RunBox(box); },
        [this] {  // once the current row has moved on, which tells of itself
            QMetaObject::invokeMethod(
                this, [this] { Tell(editor::CommaProblem); }, Qt::QueuedConnection);
        },
        [this](int col) { Sort(parts_->Sheet.View().TagOfClick(col)); }};
    parts_ = std::make_unique<PropertyWindowParts>(
        program_, shell_, ownerHandle, zoneName, events,
        [this](PropertyMenu::Item item) { RunItem(item); }, this);
    PropertyControls& controls = parts_->Controls;
    controls.Search().installEventFilter(this);
    connect(&controls.Search(), &QLineEdit::textChanged, this, &frmProperties::Search);
    connect(&controls.Apply(), &QPushButton::clicked, this, [this] { PressButton(); });
    connect(&controls.Close(), &QPushButton::clicked, this, [this] { Unload(); });
    parts_->Grid.FitColumns(width());
    parts_->Grid.Fill();
    ShowState();
}

void frmProperties::ShowRowInfo() {
    if (!parts_) {
        return;  // the first row becomes current while the parts are made
    }
    if (parts_->Sheet.IsForNewFile()) {
        parts_->Controls.ShowInfo({});  // no row is current
        return;
    }
    const QString words = parts_->Controls.Search().text().trimmed();
    parts_->Controls.ShowInfo(parts_->Grid.Count() == 0 && !words.isEmpty()
                                  ? u"No property matches \u201c%1\u201d"_s.arg(words)
                                  : parts_->Sheet.Info(parts_->Grid.CurrentRecord()).Text());
}

void frmProperties::ShowState() {
    if (!parts_) {
        return;
    }
    const editor::PropertySheet& sheet = parts_->Sheet;
    setWindowTitle(sheet.Caption());
    ShowButton();
    if (parts_->Grid.Control().isEnabled() == sheet.IsForNewFile()) {
        parts_->Grid.SetEditable(!sheet.IsForNewFile());
        parts_->Controls.Search().setEnabled(!sheet.IsForNewFile());
    }
    ShowNewName();
}

// "Launch" writes what was edited, too: it stays where an edit ends since the button is pressed.
void frmProperties::ShowButton() {
    QPushButton& button = parts_->Controls.Apply();
    const editor::PropertySheet& sheet = parts_->Sheet;
    const bool isPressed = button.hasFocus() && shown_ == editor::ButtonTag::Launch &&
                           !sheet.IsForNewFile() && sheet.IsDirty();
    shown_ = isPressed ? shown_ : sheet.Button();
    button.setText(editor::ButtonCaption(shown_));
    button.setAccessibleName(button.text());
}

void frmProperties::ShowNewName() {
    const editor::PropertySheet& sheet = parts_->Sheet;
    PropertyControls& controls = parts_->Controls;
    if (!sheet.IsForNewFile()) {
        if (controls.NameLine().hasFocus()) {
            controls.Apply().setFocus();  // where another Enter launches the clock
        }
        controls.HideName();
        return;
    }
    const QString typed = sheet.Caption().mid(TitlePrefix.size()).trimmed();
    const QString problem = typed == u'_' ? QString() : sheet.NameProblem();
    const QString exists = u"There is a file of that name already"_s;
    controls.ShowName(typed, sheet.NamesAFile() ? exists : problem);
}

void frmProperties::Search(const QString& words) {
    parts_->Sheet.View().SetFilter(words);
    parts_->Grid.Fill();
}

void frmProperties::Tell(const QString& problem) {
    if (!problem.isEmpty()) {
        parts_->Controls.ShowInfo(problem);
        parts_->Owner.Tell(problem);
    }
}

QWidget& frmProperties::Outer() {
    auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    return frame != nullptr ? static_cast<QWidget&>(*frame) : *this;
}

const QWidget& frmProperties::Outer() const {
    return const_cast<frmProperties*>(this)->Outer();
}

int frmProperties::WindowState() const {
    return Outer().isMinimized() ? 1 : Outer().isMaximized() ? 2 : 0;
}

void frmProperties::SetWindowState(int state) {
    if (state == 1) {
        Outer().showMinimized();
    } else if (state == 2) {
        Outer().showMaximized();
    } else {
        Outer().showNormal();
    }
}

void frmProperties::Show() {
    show();
    Outer().show();
}

void frmProperties::SetFocus() {
    if (auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
        frame != nullptr && frame->mdiArea() != nullptr) {
        frame->mdiArea()->setActiveSubWindow(frame);
    } else {
        activateWindow();
    }
    if (parts_) {
        FocusStart();
    }
}

// A proxy of the window would be a stop more for Tab.
void frmProperties::FocusStart() {
    if (parts_->Sheet.IsForNewFile()) {
        parts_->Controls.NameLine().setFocus();
    } else {
        parts_->Grid.Control().View().setFocus();
    }
}

void frmProperties::Unload() {
    Outer().close();
}

QString frmProperties::PropertyFile() const {
    return parts_ ? parts_->Sheet.Path() : QString();
}

void frmProperties::SetPropertyChanged(bool state) {
    if (parts_) {
        parts_->Sheet.SetPropertyChanged(state);
    }
}

void frmProperties::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (parts_) {
        parts_->Grid.FitColumns(width());
    }
}
