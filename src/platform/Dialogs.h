#pragma once

#include <QString>

namespace platform {

/// Boxes that ask the user. In tests a box that was not expected fails the test, it never waits.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// A box with the buttons and icon of @p flags (the system's message-box flags: 16 critical,
    /// 48 exclamation, 32 question, 4 for Yes and No in the place of OK, 256 for the second button
    /// as the default). Answers the button pressed: 1 OK, 6 Yes, 7 No. A question that is dismissed,
    /// by Escape or its close button, answers 2, which is neither: nothing is to be done then.
    ///
    ///     MessageBox(u"Remove London?"_s, 4 + 32 + 256, u"Remove"_s)  // Enter answers 7
    virtual int MessageBox(const QString& text, int flags, const QString& title) = 0;

    /// A box that tells something and waits for nobody: it is shown when the event loop runs next,
    /// behind those that were posted before. One that stands or waits already is not posted again.
    virtual void PostMessageBox(const QString& text, int flags, const QString& title) {
        MessageBox(text, flags, title);
    }

    /// A picker for opening a file; an empty text when it is cancelled.
    /// @param folder where it begins
    /// @param filter what it offers, such as "Ini File (*.ini)"
    virtual QString OpenFile(const QString& title, const QString& folder,
                             const QString& filter) = 0;

    /// A picker for a file to be written; an empty text when it is cancelled.
    virtual QString SaveFile(const QString& title, const QString& folder,
                             const QString& filter) = 0;

    /// A picker for a colour, red in the low byte; -1 when it is cancelled.
    virtual int PickColour(int present) = 0;
};

}  // namespace platform
