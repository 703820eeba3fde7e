#include "platform/ui/DesktopDialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>

namespace platform {

namespace {

constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int SecondButton = 0x100;  // it is the default
constexpr int IconMask = 0x70;
constexpr int ButtonMask = 0x0F;

constexpr int OkPressed = 1;
constexpr int Dismissed = 2;
constexpr int YesPressed = 6;
constexpr int NoPressed = 7;

/// A box that tells "No" from being dismissed, for which Qt presses that button.
class QuestionBox final : public QMessageBox {
public:
    using QMessageBox::QMessageBox;
    bool IsDismissed() const { return dismissed_; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        dismissed_ = event->matches(QKeySequence::Cancel);
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        dismissed_ = true;
        QMessageBox::closeEvent(event);
    }

private:
    bool dismissed_ = false;
};

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

/// A box is as wide as its text, which may be shorter than its heading: the window manager would
/// cut that.
void MakeRoomForHeading(QMessageBox& box, const QString& title) {
    constexpr int around = 160;  // pixels: buttons and icon of a title bar
    QFont bold = box.font();
    bold.setBold(true);
    const int width = QFontMetrics(bold).horizontalAdvance(title) + around;
    // A row of its own: a width of the text's label would keep that from its lines.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

/// "ini" of a filter such as "Ini File (*.ini)".
QString SuffixOf(const QString& filter) {
    return filter.section(QStringLiteral("*."), 1, 1).section(u')', 0, 0).section(u' ', 0, 0);
}

}  // namespace

int DesktopDialogs::MessageBox(const QString& text, int flags, const QString& title) {
    const bool asks = (flags & ButtonMask) == YesNo;
    QuestionBox box(
        IconOf(flags), title, text,
        asks ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok),
        owner_);
    box.setTextFormat(Qt::PlainText);
    if (asks && (flags & SecondButton) != 0) {
        box.setDefaultButton(QMessageBox::No);
    }
    MakeRoomForHeading(box, title);
    const int pressed = box.exec();
    if (!asks) {
        return OkPressed;
    }
    if (box.IsDismissed()) {
        return Dismissed;
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
    MakeRoomForHeading(*standing_, post.Title);
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
