#pragma once

#include <QString>

#include "drawing/TitleEdit.h"

namespace editor {

/// The title bar of a window of properties, which is where a new zone's name is typed.
///
///     Properties - London       an open file
///     Properties - Lon _        while the name is typed
class ZoneTitle {
public:
    explicit ZoneTitle(const QString& name) { SetName(name); }

    /// The plain name; the caption shows it, with the caret while it is edited.
    const QString& Name() const { return name_; }
    const QString& Caption() const { return caption_; }
    bool IsEdited() const { return edited_; }

    /// A name, with the caret behind it where it is edited.
    void SetName(const QString& name);
    void SetEdited(bool edited);
    /// A key of `drawing::EditTitleKey`; nothing happens while the name is not edited.
    /// @return true when it ended the edit of a name that is not empty
    bool Key(int keyCode);

private:
    QString name_;
    QString caption_;
    drawing::TitleCaret caret_;
    bool edited_ = false;
};

/// What stands behind "Properties - ", without a "_" at its end and the blanks before it.
///
///     StripCaret("Properties - Tokyo _")  // "Tokyo"
QString StripCaret(const QString& text);

/// The character that a key of the keyboard types into a name: letters are small unless one of
/// Shift and Caps Lock is on, and the key of code 189 gives "_", with Shift "-". Other codes, and
/// those of `drawing::TypedKey`, stay as they are.
/// @param shift bits of `mduUILib::KeyShift`
int NameKey(int keyCode, int shift, bool capsLock);

}  // namespace editor
