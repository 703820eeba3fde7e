#pragma once

#include <QMenu>
#include <functional>
#include <map>

#include "shell/MenuState.h"

class QMenuBar;

/// The menus of the catalogue as widgets. Each is made anew from the state at the moment of
/// opening, so that it always shows what holds then.
class ShellMenus final : public QObject {
    Q_OBJECT

public:
    struct Hooks {
        std::function<void(const QString& menu)> Refresh;  ///< before a menu of that name opens
        std::function<void(const QString& name, int index)> Click;
    };

    /// @param owner the parent of this and of all menus
    /// @param state what the menus show; it outlives this
    ShellMenus(QWidget* owner, shell::MenuState& state, Hooks hooks);

    /// The menu or submenu of that name; null if there is none. Submenus carry their entry's name.
    QMenu* Menu(const QString& name) const;

    /// The size that the menu will have when it opens now.
    QSize SizeNow(const QString& name);

    /// Refreshes the menu and pops it up there, on the screen. It is not waited for. The name must
    /// be that of a menu of the catalogue.
    void Popup(const QString& name, const QPoint& place);

    /// Closes whatever menu is open.
    void EndMenu();

    /// Adds the menus that have a caption.
    void AddTo(QMenuBar& bar) const;

private:
    QMenu* Make(const QString& name, const QString& top);
    void MakeChildren(const shell::MenuEntry& entry, const QString& top);
    void Refill(const QString& top);
    void Fill(QMenu& menu, const std::vector<shell::MenuEntry>& entries);
    void AddItems(QMenu& menu, const QString& name);

    QWidget* owner_;
    shell::MenuState& state_;
    Hooks hooks_;
    std::map<QString, QMenu*> menus_;
    std::map<QString, QString> tops_;  ///< the first menu that a submenu stands in
};
