#include "editor/ui/PropertyControls.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int Gap = 8;
constexpr int InfoLines = 3;

QPushButton* MakeButton(QWidget* row, const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, row);
    button->setObjectName(name);
    button->setAccessibleName(caption);
    button->setAutoDefault(false);
    row->layout()->addWidget(button);
    return button;
}

}  // namespace

PropertyControls::PropertyControls(QWidget* window) {
    MakeSearch(window);
    MakeNameLine(window);
}

void PropertyControls::LayOut(QWidget* window, QWidget* grid) {
    MakeInfo(window);
    QWidget* buttons = MakeButtons(window);
    auto* layout = new QVBoxLayout(window);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Gap);
    layout->addWidget(txtSearch_);
    layout->addWidget(lblNewName_);
    layout->addWidget(grid, 1);
    layout->addWidget(txtInfo_);
    layout->addWidget(buttons);
}

void PropertyControls::MakeSearch(QWidget* window) {
    txtSearch_ = new QLineEdit(window);
    txtSearch_->setObjectName(u"txtSearch"_s);
    txtSearch_->setAccessibleName(u"Search properties"_s);
    txtSearch_->setPlaceholderText(u"Search by name, value or meaning"_s);
    txtSearch_->setClearButtonEnabled(true);
}

void PropertyControls::MakeNameLine(QWidget* window) {
    lblNewName_ = new QLabel(window);
    lblNewName_->setObjectName(u"lblNewName"_s);
    lblNewName_->setTextFormat(Qt::RichText);
    lblNewName_->setWordWrap(true);
    lblNewName_->setFocusPolicy(Qt::StrongFocus);
    lblNewName_->hide();
}

void PropertyControls::MakeInfo(QWidget* window) {
    txtInfo_ = new QPlainTextEdit(window);
    txtInfo_->setObjectName(u"txtInfo"_s);
    txtInfo_->setAccessibleName(u"About the property"_s);
    txtInfo_->setReadOnly(true);
    txtInfo_->setTabChangesFocus(true);
    txtInfo_->setFrameShape(QFrame::NoFrame);
    txtInfo_->viewport()->setAutoFillBackground(false);
    txtInfo_->document()->setDocumentMargin(2);
    txtInfo_->setFixedHeight(InfoLines * txtInfo_->fontMetrics().lineSpacing() + 6);
}

QWidget* PropertyControls::MakeButtons(QWidget* window) {
    auto* row = new QWidget(window);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    layout->addStretch(1);
    cmdApply_ = MakeButton(row, u"cmdButton0"_s, u"Apply"_s);
    cmdClose_ = MakeButton(row, u"cmdButton1"_s, u"Close"_s);
    return row;
}

void PropertyControls::ShowInfo(const QString& text) {
    txtInfo_->setPlainText(text);
}

void PropertyControls::ShowName(const QString& typed, const QString& note) {
    const QString prompt = u"Type the name of the new zone, then press Enter:"_s;
    lblNewName_->setText(u"%1<br><big><b>%2</b></big><br>%3"_s.arg(
        prompt, typed.toHtmlEscaped(), note.isEmpty() ? u"&nbsp;"_s : note.toHtmlEscaped()));
    lblNewName_->setAccessibleName(prompt + u' ' + typed + u". "_s + note);
    lblNewName_->show();
}

void PropertyControls::HideName() {
    lblNewName_->hide();
}
