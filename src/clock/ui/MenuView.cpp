#include "clock/ui/MenuView.h"

#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

QString Shown(QString caption) {
    return caption.replace(u'&', u"&&"_s);
}

void Dress(QAction& action, const MenuNode& node) {
    action.setObjectName(node.Name);
    action.setEnabled(node.Enabled);
    if (node.Ticked != MenuNode::Tick::None) {
        action.setCheckable(true);
        action.setChecked(node.Ticked == MenuNode::Tick::On);
    }
    if (node.Icon) {
        action.setIcon(QIcon(QPixmap::fromImage(*node.Icon)));
    }
    if (node.Preview) {
        QObject::connect(&action, &QAction::hovered, &action, node.Preview);
    }
}

/// The highlight has gone elsewhere: another entry has it, or the menu is closed. A click comes
/// behind that, so that what is chosen has the last word.
void EndPreviewsOf(QMenu& menu, const std::vector<MenuNode>& nodes) {
    const auto first = std::find_if(nodes.begin(), nodes.end(),
                                    [](const MenuNode& node) { return bool(node.EndPreview); });
    if (first == nodes.end()) {
        return;
    }
    QObject::connect(&menu, &QMenu::aboutToHide, &menu, first->EndPreview);
    QObject::connect(&menu, &QMenu::hovered, &menu, [end = first->EndPreview, nodes](QAction* on) {
        const auto node = std::find_if(nodes.begin(), nodes.end(), [on](const MenuNode& each) {
            return each.Name == on->objectName() && Shown(each.Caption) == on->text();
        });
        if (node == nodes.end() || !node->Preview) {
            end();
        }
    });
}

void Fill(QMenu& menu, const std::vector<MenuNode>& nodes) {
    for (const MenuNode& node : nodes) {
        if (node.Caption == u"-"_s) {
            menu.addSeparator();
        } else if (node.Children.empty()) {
            Dress(*menu.addAction(Shown(node.Caption), &menu, node.Choose), node);
        } else {
            QMenu* inner = menu.addMenu(Shown(node.Caption));
            inner->setObjectName(node.Name);
            Dress(*inner->menuAction(), node);
            Fill(*inner, node.Children);
        }
    }
    EndPreviewsOf(menu, nodes);
}

}  // namespace

QMenu* MakeMenu(QWidget* clock, const MenuNode& menu) {
    auto* widget = new QMenu(clock);
    widget->setObjectName(menu.Name);
    widget->setAttribute(Qt::WA_DeleteOnClose);
    Fill(*widget, menu.Children);
    return widget;
}

}  // namespace clockcore
