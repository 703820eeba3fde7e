#include "editor/ui/PropertyMenu.h"

using namespace Qt::StringLiterals;

/// One entry, from the top; its inner menu is made with the first entry that stands in it.
struct PropertyMenu::Row {
    Item Entry = Item::None;
    QString Name;
    QString Caption;
    QString Menu = {};  ///< the `objectName` of the inner menu
    QString MenuCaption = {};
    QString SortTag = {};
};

const std::vector<PropertyMenu::Row>& PropertyMenu::Rows() {
    static const QString byName = u"SortName"_s;
    static const QString byValue = u"SortValue"_s;
    static const QString byCategory = u"SortCategorized"_s;
    static const QString name = u"Sort Name"_s;
    static const QString value = u"Sort Value"_s;
    static const QString category = u"Sort Categorized"_s;
    static const std::vector<Row> rows = {
        {Item::NameAscending, u"NameAscending"_s, u"Ascending "_s, byName, name, u"2,1"_s},
        {Item::NameDescending, u"NameDescending"_s, u"Descending"_s, byName, name, u"2,2"_s},
        {Item::ValueAscending, u"ValueAscending"_s, u"Ascending"_s, byValue, value, u"3,1"_s},
        {Item::ValueDescending, u"ValueDescending"_s, u"Descending"_s, byValue, value, u"3,2"_s},
        {Item::CategorizedAscending, u"CategorizedAscending"_s, u"Ascending"_s, byCategory,
         category, u"1,1"_s},
        {Item::CategorizedDescending, u"CategorizedDescending"_s, u"Descending"_s, byCategory,
         category, u"1,2"_s},
        {Item::SortNone, u"SortNone"_s, u"Sort by Default"_s, {}, {}, u"2,0"_s},
        {},
        {Item::ReloadProperties, u"ReloadProperties"_s, u"Reload Properties"_s},
        {Item::RefreshByDefault, u"RefreshByDefault"_s, u"Refresh By Default  (F5)"_s},
        {Item::RefreshTimeZoneDefaults, u"RefreshTimeZoneDefaults"_s,
         u"Refresh Time Zone By Default "_s},
        {},
        {Item::Close, u"Close"_s, u"Close"_s},
        {},
        {Item::Undo, u"Undo"_s, u"Undo\tCtrl+Z"_s},
        {Item::Redo, u"Redo"_s, u"Redo\tCtrl+Y"_s},
        {Item::Cut, u"Cut"_s, u"Cut\tCtrl+X"_s},
        {Item::Copy, u"Copy"_s, u"Copy\tCtrl+C"_s},
        {Item::Paste, u"Paste"_s, u"Paste\tCtrl+V"_s},
        {Item::Find, u"Find"_s, u"Find\tCtrl+F"_s},
        {Item::BackToDefault, u"BackToDefault"_s, u"Back to default"_s},
        {Item::Launch, u"Launch"_s, u"Launch"_s}};
    return rows;
}

PropertyMenu::PropertyMenu(QWidget* owner, std::function<void(Item)> onItem)
    : owner_(owner), onItem_(std::move(onItem)), menu_(new QMenu(owner)) {
    menu_->setObjectName(u"PropertyMenu"_s);
    for (const Row& row : Rows()) {
        Add(row);
    }
}

QMenu& PropertyMenu::MenuOf(const Row& row) {
    if (row.Menu.isEmpty()) {
        return *menu_;
    }
    auto* inner = menu_->findChild<QMenu*>(row.Menu);
    if (inner == nullptr) {
        inner = menu_->addMenu(row.MenuCaption);
        inner->setObjectName(row.Menu);
    }
    return *inner;
}

void PropertyMenu::Add(const Row& row) {
    if (row.Entry == Item::None) {
        menu_->addSeparator();
        return;
    }
    QAction* action = MenuOf(row).addAction(row.Caption);
    action->setObjectName(row.Name);
    action->setCheckable(!row.SortTag.isEmpty());
    QObject::connect(action, &QAction::triggered, owner_, [this, &row] { onItem_(row.Entry); });
    actions_[row.Entry] = action;
}

QString PropertyMenu::SortTagOf(Item item) {
    for (const Row& row : Rows()) {
        if (row.Entry == item) {
            return row.SortTag;
        }
    }
    return {};
}

void PropertyMenu::Refresh(const State& state) {
    for (const Row& row : Rows()) {
        if (!row.SortTag.isEmpty()) {
            Action(row.Entry).setChecked(row.SortTag == state.Tag);
        }
    }
    const bool hasRow = state.HasRow && state.IsEditable;
    Action(Item::ReloadProperties).setEnabled(state.IsEditable);
    Action(Item::RefreshByDefault).setEnabled(state.IsEditable);
    Action(Item::RefreshTimeZoneDefaults).setEnabled(state.CanRefreshTimeZone);
    Action(Item::Undo).setEnabled(state.CanUndo);
    Action(Item::Redo).setEnabled(state.CanRedo);
    Action(Item::Cut).setEnabled(hasRow);
    Action(Item::Copy).setEnabled(state.HasRow);
    Action(Item::Paste).setEnabled(hasRow && state.CanPaste);
    Action(Item::Find).setEnabled(state.IsEditable);
    Action(Item::BackToDefault).setEnabled(hasRow && state.DiffersFromDefault);
    Action(Item::Launch).setVisible(state.CanLaunch);
}

void PropertyMenu::Popup(const State& state, const QPoint& at) {
    Refresh(state);
    menu_->popup(at);
}
