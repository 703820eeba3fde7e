#include "shell/ui/CustomizeToolbar.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/ui/ToolBar.h"

using namespace Qt::StringLiterals;

namespace {

void FillButtons(QListWidget& list, const ToolBar& bar) {
    for (int i = 1; i <= shell::Tool::Count; ++i) {
        if (bar.Button(i) == nullptr || i == shell::Tool::Datebrook) {
            continue;
        }
        const shell::ToolButton data = shell::SetupToolButton(i, {});
        auto* item = new QListWidgetItem(bar.Button(i)->icon(), data.Tag, &list);
        item->setData(Qt::UserRole, i);
        item->setToolTip(data.ToolTipText);
        item->setCheckState(bar.IsOffered(i) ? Qt::Checked : Qt::Unchecked);
    }
}

}  // namespace

void Customize(ToolBar& bar, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setObjectName(u"customizeToolbar"_s);
    dialog.setWindowTitle(u"Customize Toolbar"_s);
    auto* list = new QListWidget(&dialog);
    list->setObjectName(u"toolbarButtons"_s);
    list->setAccessibleName(u"Toolbar buttons"_s);
    list->setIconSize({24, 24});
    FillButtons(*list, bar);
    QObject::connect(list, &QListWidget::itemChanged, &dialog, [&bar](const QListWidgetItem* item) {
        bar.Offer(item->data(Qt::UserRole).toInt(), item->checkState() == Qt::Checked);
    });

    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::RestoreDefaults | QDialogButtonBox::Close, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked,
                     list, [list] {
                         for (int i = 0; i < list->count(); ++i) {
                             list->item(i)->setCheckState(Qt::Checked);
                         }
                     });
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(list);
    column->addWidget(buttons);
    dialog.resize(320, 520);
    dialog.exec();
}
