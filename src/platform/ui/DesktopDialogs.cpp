#include "platform/ui/DesktopDialogs.h"

#include <QColorDialog>
#include <QFileDialog>

namespace platform {

namespace {

constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int IconMask = 0x70;
constexpr int ButtonMask = 0x0F;

constexpr int OkPressed = 1;
constexpr int YesPressed = 6;
constexpr int NoPressed = 7;

QMessageBox::Icon IconOf(int flags) {
    switch (flags & IconMask) {
        case Critical:
            return QMessageBox::Critical;
        case Question:
            return QMessageBox::Question;
        case Exclamation:
            return QMessageBox::Warning;
        default:
            return QMessageBox::Information;
    }
}

/// "ini" of a filter such as "Ini File (*.ini)".
QString SuffixOf(const QString& filter) {
    return filter.section(QStringLiteral("*."), 1, 1).section(u')', 0, 0).section(u' ', 0, 0);
}

}  // namespace

int DesktopDialogs::MessageBox(const QString& text, int flags, const QString& title) {
    const bool asks = (flags & ButtonMask) == YesNo;
    QMessageBox box(
        IconOf(flags), title, text,
        asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok),
        owner_);
    box.setTextFormat(Qt::PlainText);
    const int pressed = box.exec();
    if (!asks) {
        return OkPressed;
    }
    return pressed == QMessageBox::Yes ? YesPressed : NoPressed;
}

void DesktopDialogs::PostMessageBox(const QString& text, int flags, const QString& title) {
    const Post post{text, flags, title};
    if (owner_ == nullptr || posts_.contains(post)) {
        return;
    }
    posts_ += post;
    QMetaObject::invokeMethod(
        owner_, [this] { ShowNextPost(); }, Qt::QueuedConnection);
}

// A window that closes has nobody left to tell.
void DesktopDialogs::ShowNextPost() {
    if (standing_ != nullptr || posts_.isEmpty() || !owner_->isVisible()) {
        return;
    }
    const Post& post = posts_.first();
    standing_ = new QMessageBox(IconOf(post.Flags), post.Title, post.Text, QMessageBox::Ok, owner_);
    standing_->setTextFormat(Qt::PlainText);
    standing_->setAttribute(Qt::WA_DeleteOnClose);
    standing_->setModal(false);
    QObject::connect(standing_, &QDialog::finished, owner_, [this] {
        standing_ = nullptr;
        posts_.removeFirst();
        ShowNextPost();
    });
    standing_->show();
}

QString DesktopDialogs::OpenFile(const QString& title, const QString& folder,
                                 const QString& filter) {
    QFileDialog dialog(owner_, title, folder, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(SuffixOf(filter));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString DesktopDialogs::SaveFile(const QString& title, const QString& folder,
                                 const QString& filter) {
    return QFileDialog::getSaveFileName(owner_, title, folder, filter);
}

int DesktopDialogs::PickColour(int present) {
    const QColor before(present & 0xFF, (present >> 8) & 0xFF, (present >> 16) & 0xFF);
    const QColor picked = QColorDialog::getColor(before, owner_);
    return picked.isValid() ? picked.red() | picked.green() << 8 | picked.blue() << 16 : -1;
}

}  // namespace platform
