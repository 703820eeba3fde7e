#include "shell/ui/AboutBox.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

void ShowAboutBox(QWidget* parent, const QString& edition) {
    QDialog box(parent);
    box.setObjectName(u"aboutBox"_s);
    box.setWindowTitle(u"About Tempolark Central"_s);
    auto* icon = new QLabel(&box);
    icon->setPixmap(QGuiApplication::windowIcon().pixmap(64, 64));
    auto* text = new QLabel(
        u"<h2>Tempolark</h2><p>Version %1</p><p>Clocks for every place on earth: dials, digits, a "
        "calculator between zones, timers, spoken time and music.</p><p>%2</p>"_s.arg(
            QCoreApplication::applicationVersion().toHtmlEscaped(), edition.toHtmlEscaped()),
        &box);
    text->setWordWrap(true);
    text->setMinimumWidth(320);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &box);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    auto* grid = new QGridLayout(&box);
    grid->setContentsMargins(20, 20, 20, 16);
    grid->setHorizontalSpacing(20);
    grid->addWidget(icon, 0, 0, Qt::AlignTop);
    grid->addWidget(text, 0, 1);
    grid->addWidget(buttons, 1, 0, 1, 2);
    box.exec();
}
