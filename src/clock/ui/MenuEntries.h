#pragma once

#include <QMenu>
#include <functional>

/// Entries of a clock's pop-up menus.
namespace clockcore {

/// Adds an entry that shows a text as it stands: a "&" in it is no mnemonic. @p choose is called
/// when the entry is clicked.
inline QAction* AddEntry(QMenu& menu, QString caption, const std::function<void()>& choose) {
    return menu.addAction(caption.replace(u'&', QStringLiteral("&&")), &menu, choose);
}

/// Ticks an entry, or shows that it could be ticked.
inline void Mark(QAction& action, bool ticked) {
    action.setCheckable(true);
    action.setChecked(ticked);
}

}  // namespace clockcore
