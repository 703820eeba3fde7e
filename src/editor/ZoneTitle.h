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

/// What a key types into a name instead of its own text: the key of "-" gives "_", and with Shift,
/// where its text is "_", gives "-". Any other text stays.
QString NameKey(const QString& text, bool isShift);

}  // namespace editor
