#pragma once

#include "clock/ClockData.h"
#include "clock/ClockFiles.h"
#include "clock/ClockScreen.h"
#include "clock/ClockTick.h"
#include "clock/ClockWindow.h"
#include "clock/StyleFiles.h"
#include "drawing/Canvas.h"
#include "drawing/FaceParts.h"
#include "foundation/Controls.h"
#include "foundation/Program.h"
#include "speech/ClockVoice.h"

namespace clockcore {

class StylePreview;

/// The operations that change a clock's look as a whole, and those that keep it in a file. A tick
/// comes here, so none of them asks; what went wrong is told in the status bar.
class ClockLook final : public ClockStyles {
public:
    /// What a look is applied to. All of it outlives the look.
    struct Parts {
        ClockScreen& Screen;
        drawing::Canvas& Canvas;
        ClockWindow& Window;
        ClockPlacement& Placement;
        ClockFace& Face;
        drawing::Dial& Dial;
        drawing::DigitalClock& Digital;
        drawing::Background& Background;
        drawing::Overlays& Overlays;
        speech::ClockVoice& Voice;
        speech::SpokenTime& Spoken;
        ClockTick& Tick;
    };

    ClockLook(ClockData& data, mduUILib::ClockControls& controls, const Program& program,
              ClockFiles& files, const StyleFiles& styles, const Parts& parts)
        : data_(data),
          controls_(controls),
          program_(program),
          files_(files),
          styles_(styles),
          parts_(parts) {}

    /// Gives the clock's properties to the property window: a copy of them in
    /// `ModuleState::CurrentProperties`, without what is only shown for now.
    void SetProperty();
    /// The same with the window's state and, in its normal state, its place, as
    /// `SaveCurrentStyle` would store them. The clock's own properties stay.
    void SetPropertyWithPlace();
    /// What is shown for now and belongs to no save; null for nothing.
    void SetPreview(StylePreview* preview) { preview_ = preview; }
    /// Makes the clock one of that kind, at once; nothing for `None` and the input state. The
    /// property "Clocks" changes in memory; no file is written. A wrapper becomes a clock.
    void SetClocks(ClockKind kind);
    /// Turns the clock backward: stores the property and draws nothing itself.
    void SetBackward();
    /// Gives the window a background colour, in memory, and shows it.
    /// @param value the colour as a number (red in the low byte), where the caption is "Custom";
    /// else it is not looked at
    /// @param caption the name of a colour, such as "Transparent", or "Custom"
    void SetWindowBackColour(const QString& value, const QString& caption);
    /// Lays out what depends on the size of a new surface, and draws it.
    void FitSurface();
    /// Shows what the properties tell of the face, of its shapes and of the window's border and
    /// title bar, at once. Place, size, state and switch of the window stay, and so does what is
    /// spoken.
    void ApplyFace();
    /// Enables the window or disables it, as the property "Enable" tells.
    void ApplyEnable();

    /// Puts a style on the clock. Without a file of that name the clock is laid out anew as it is.
    /// A window that is minimised or maximised comes back to its normal size first.
    /// @param styleFile the full path; what is wrong with it is told in the status bar
    void ApplyClockStyle(const QString& styleFile);
    /// Goes on to the next style of the folder, and from the last to the first. Nothing in a folder
    /// without styles.
    void ApplyNextStyle() override;
    /// The same behind the style that is on the clock, without the count of `ApplyNextStyle`; the
    /// first style where none of the folder is on it.
    void ApplyStyleBehindLast();
    void RecordProgramFolder() override;
    /// Takes `CurrentProperties` as the clock's own and applies them all. @p fileName becomes the
    /// current file, unless it is empty.
    /// What is spoken, the zone, the window and the face all follow. Before the first tick the face
    /// is not drawn: that tick has still to make the window.
    void RefreshForm(const QString& fileName);

    /// Writes the look and the window's place into the clock's own file, and tells so. A file that
    /// is no property file is left as it is. Where the window has no place to store,
    /// that of the properties is written.
    void SaveCurrentStyle();
    /// Writes the look as a style; @p chosen is what `StyleFiles::SavePath` makes a path of. The
    /// clock's own file stays as it is.
    void SaveStyle(const QString& chosen);
    /// Tells that something has been saved just now, with the time.
    /// @param what such as "the style of Tokyo"
    void TellSaved(const QString& what);

private:
    /// Gives the clock its own look back, drawn.
    void EndPreview();
    /// The same where all is drawn anyhow.
    void ForgetPreview();
    /// Puts state and place of the window there.
    void StoreWindow(ClockProperties& properties) const;
    void StoreFontState();
    void RequestRedrawNow();
    void ReadWhatIsSpoken();
    void ApplyToWindow();
    void ApplyToFace();
    void ApplyKindAndShapes();
    void ApplyFlagAndOverlays();

    ClockData& data_;
    mduUILib::ClockControls& controls_;
    Program program_;
    ClockFiles& files_;
    const StyleFiles& styles_;
    Parts parts_;
    StylePreview* preview_ = nullptr;
};

}  // namespace clockcore
