// The controls of the window of zones.
#include <QHBoxLayout>

#include "timezones/ui/frmTimeZones.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 8;

QHBoxLayout* MakeRow(QWidget* parent) {
    auto* row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Gap);
    return row;
}

QToolButton* MakeToolButton(QWidget* parent, const QString& name, const QString& text) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(text);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    return button;
}

}  // namespace

// In the order in which Tab walks through them.
void frmTimeZones::MakeControls() {
    MakeMap();
    MakeSearchRow();
    MakeList();
    MakeButtons();
    RefreshMenus();
    setFocusProxy(txtSearch_);
}

void frmTimeZones::MakeMap() {
    imgMap_ =
        new ZoneMap(program_,
                    {[this] { NarrowToBand(); },
                     [this](int dot) { MakeCurrent(rowOfDot_[static_cast<std::size_t>(dot)]); },
                     [this](const QPoint& at) { menus_.MapMenu().popup(at); }},
                    this);
    imgSplitter_ =
        new ZoneSplitter({[this] { return SplitLimits(); }, [this](int y) { SetSplit(y); }}, this);
}

void frmTimeZones::MakeSearchRow() {
    searchRow_ = new QWidget(this);
    txtSearch_ = new QLineEdit(searchRow_);
    txtSearch_->setObjectName(u"txtSearch"_s);
    txtSearch_->setAccessibleName(u"Search zones"_s);
    txtSearch_->setPlaceholderText(u"Search by name, city, country or offset"_s);
    txtSearch_->setClearButtonEnabled(true);
    txtSearch_->installEventFilter(this);
    connect(txtSearch_, &QLineEdit::textChanged, this,
            [this](const QString& typed) { Search(typed); });
    cmdBand_ = MakeToolButton(searchRow_, u"cmdBand"_s, {});
    cmdBand_->setToolTip(u"Show the zones of all hours again"_s);
    connect(cmdBand_, &QToolButton::clicked, this, [this] { imgMap_->ClearBand(); });
    cmdBand_->hide();
    cmdView_ = MakeToolButton(searchRow_, u"cmdView"_s, u"View"_s);
    cmdView_->setAccessibleName(u"View and selection"_s);
    cmdView_->setPopupMode(QToolButton::InstantPopup);
    cmdView_->setMenu(&menus_.TimeZoneMenu());
    QHBoxLayout* row = MakeRow(searchRow_);
    row->addWidget(txtSearch_, 1);
    row->addWidget(cmdBand_);
    row->addWidget(cmdView_);
}

void frmTimeZones::MakeList() {
    lsvTimeZones_ = new ZoneListView(
        {[this] { OpenCurrent(); }, [this](const QPoint& at) { menus_.TimeZoneMenu().popup(at); },
         [this](int position) { return ToolTipOfRow(position); },
         [this](int column) { SortByColumn(column); }},
        this);
    lsvTimeZones_->setModel(&model_);
    connect(lsvTimeZones_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { ShowCurrent(); });
}

void frmTimeZones::MakeButtons() {
    buttonRow_ = new QWidget(this);
    lblCount_ = new QLabel(buttonRow_);
    lblCount_->setObjectName(u"lblCount"_s);
    QHBoxLayout* row = MakeRow(buttonRow_);
    row->addWidget(lblCount_, 1);
    const auto add = [&](const QString& name, const QString& caption, const QString& what) {
        auto* button = new QPushButton(caption, buttonRow_);
        button->setObjectName(name);
        button->setAccessibleName(caption);
        button->setToolTip(what);
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    cmdLaunch_ = add(u"cmdLaunch"_s, u"Launch"_s,
                     u"Open the clock of the current zone, or those of all checked zones"_s);
    cmdSave_ = add(u"cmdButton1"_s, u"Save"_s, u"Give every checked zone its file"_s);
    cmdClose_ = add(u"cmdButton0"_s, u"Close"_s, u"Close this window"_s);
    cmdLaunch_->setEnabled(false);
    connect(cmdLaunch_, &QPushButton::clicked, this, [this] { Launch(); });
    connect(cmdSave_, &QPushButton::clicked, this, [this] { SaveCheckedZones(); });
    connect(cmdClose_, &QPushButton::clicked, this, [this] { Unload(); });
}
