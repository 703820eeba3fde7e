#pragma once

#include <QList>
#include <QMessageBox>
#include <QPointer>

#include "platform/Dialogs.h"

namespace platform {

/// Boxes and pickers of the desktop. All but those that are posted run an event loop of their own
/// until they are answered, in which the clocks go on. Closing a question's window counts as No.
/// Texts are plain: what looks like mark-up is shown as it stands.
class DesktopDialogs final : public Dialogs {
public:
    /// The window that owns the boxes from now on; they stand in front of it. Null, or a window
    /// that has gone, means none: boxes then stand alone, and nothing is posted.
    void SetOwner(QWidget* owner) { owner_ = owner; }

    int MessageBox(const QString& text, int flags, const QString& title) override;
    /// The windows stay usable beside the box; it goes with its owner. It has the button OK and no
    /// other, whatever @p flags ask for. What is posted while the owner is hidden waits until
    /// another post that finds it visible.
    void PostMessageBox(const QString& text, int flags, const QString& title) override;
    /// Among the posted boxes; the time that is left stands on its button No.
    void PostQuestion(const QString& text, const QString& title, int seconds,
                      const std::function<void(bool)>& answer) override;
    /// Only a file that exists can be picked; @p filter gives its ending to a name that is typed
    /// without one.
    QString OpenFile(const QString& title, const QString& folder, const QString& filter) override;
    QString SaveFile(const QString& title, const QString& folder, const QString& filter) override;
    int PickColour(int present) override;

private:
    /// What a posted box tells; two of the same content are one. Questions are never one.
    struct Post {
        QString Text;
        int Flags = 0;
        QString Title;
        int Seconds = 0;
        std::function<void(bool)> Answer = {};
        bool operator==(const Post& other) const {
            return !Answer && !other.Answer && Text == other.Text && Flags == other.Flags &&
                   Title == other.Title;
        }
    };
    void Queue(const Post& post);
    /// Shows the first of the posts, unless a box stands already or the owner can't be seen.
    void ShowNextPost();
    void EndPost(bool yes);

    QPointer<QWidget> owner_;
    QList<Post> posts_;  ///< the first one stands while `standing_` does
    QPointer<QMessageBox> standing_;
};

}  // namespace platform
