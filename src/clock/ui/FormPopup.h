#pragma once

#include <QMenu>
#include <QPointer>
#include <QWidget>

#include "clock/FormCommands.h"
#include "clock/HiddenParts.h"
#include "clock/StylePreview.h"

namespace clockcore {

/// `FormPopup` on its clock: filled at the moment of opening, shown, and gone when the clock goes.
class FormPopup {
public:
    /// What the menu shows and acts on. All of it outlives the menu.
    struct Parts {
        ClockScreen& Screen;
        ClockWindow& Window;
        ClockPlacement& Placement;
        ClockFiles& Files;
        const StyleFiles& Styles;
        ClockLook& Look;
        FormCommands& Commands;
        const speech::SpeakerVoice& Voice;
    };

    /// @param form the parent of the menu
    FormPopup(QWidget& form, ClockData& data, const mduUILib::ClockControls& controls,
              const Program& program, const Parts& parts)
        : form_(form),
          data_(data),
          controls_(controls),
          program_(program),
          parts_(parts),
          preview_(data, program, parts.Styles, parts.Screen, parts.Look) {}
    ~FormPopup() { delete menu_; }
    Q_DISABLE_COPY_MOVE(FormPopup)

    /// Fills the menu and opens it at a point of the screen. The clock's file becomes the current
    /// one first. This does not wait for the menu.
    void FormRightClick(const QPoint& globalPosition);
    /// See `IClock::PreviewProperties`.
    void PreviewProperties(const ClockProperties& values) { preview_.ShowProperties(values); }
    /// Shows the text of `lblClock`, its tag, where a point of the surface, in device pixels, lies
    /// on it.
    void RightClick(const QPointF& point) const;

private:
    MenuNode Fill();
    ShowableParts Showable() const;

    QWidget& form_;
    ClockData& data_;
    const mduUILib::ClockControls& controls_;
    Program program_;
    Parts parts_;
    StylePreview preview_;
    QPointer<QMenu> menu_;  ///< while it is open
};

}  // namespace clockcore
