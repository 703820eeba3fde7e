#include "clock/ClockLook.h"

#include "clock/StylePreview.h"
#include "drawing/ClockSpecial.h"
#include "drawing/TimerMarks.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SystemSettings.h"

using namespace Qt::StringLiterals;

namespace clockcore {

using drawing::DialParts;

void ClockLook::SetProperty() {
    program_.Module.CurrentProperties =
        preview_ != nullptr ? preview_->OwnProperties() : data_.Properties();
}

void ClockLook::SetPropertyWithPlace() {
    SetProperty();
    // Before its first tick a clock has not taken the place that its file holds.
    if (data_.State.HasBegun()) {
        StoreWindow(program_.Module.CurrentProperties);
    }
}

void ClockLook::ForgetPreview() {
    if (preview_ != nullptr) {
        preview_->Forget();
    }
}

void ClockLook::EndPreview() {
    if (preview_ != nullptr) {
        preview_->End();
    }
}

void ClockLook::SetClocks(ClockKind kind) {
    const QString name = ClockKindName(kind);
    if (name.isEmpty()) {
        return;
    }
    data_.Tag = {kind, false};
    controls_.lblLocation(1).Caption = data_.Zone.CurrentName;  // typing may have changed it
    mduLib::PutProperty(u"Clocks"_s, name, data_.EditProperties());
    parts_.Face.ApplyWindowBackground();
    parts_.Face.PrepareClockFace();
    parts_.Face.ReadDigitalFormat();
    parts_.Overlays.LayOutOverlays();
    RequestRedrawNow();
}

void ClockLook::SetBackward() {
    mduLib::PutProperty(u"Clock Special"_s,
                        drawing::ClockSpecialName(drawing::ClockSpecial::AnalogueBackward),
                        data_.EditProperties());
}

// The face is shown at once; the redraw at the next tick comes all the same.
void ClockLook::RequestRedrawNow() {
    if (data_.State.IsDrawn()) {
        parts_.Tick.RequestRedraw();
        parts_.Face.DrawClockFace();
    }
}

void ClockLook::SetWindowBackColour(const QString& value, const QString& caption) {
    parts_.Canvas.SetTransparent(false);
    const QString colour = mduUILib::IsCustomColour(caption) ? value : caption;
    mduLib::PutProperty(u"Window Background Colour"_s, colour, data_.EditProperties());
    parts_.Face.ApplyWindowBackground();
    parts_.Dial.DrawDialNumbers(data_.IsAnalogue() ? DialParts::Numbers : DialParts::None);
    parts_.Overlays.SetTransparentIconPosition();
    parts_.Face.StillChanged();
    parts_.Face.DrawClockFace();
}

// So that the face follows the mouse that drags the window's edge; the redraw at the next tick
// comes all the same.
void ClockLook::FitSurface() {
    mduUILib::Control& action = controls_.imgAction(1);
    action.Width = action.Height =
        static_cast<float>(drawing::TimerMarkSide(parts_.Canvas.Surface()));
    if (data_.State.IsDrawn()) {
        parts_.Background.ApplySurface();
        parts_.Dial.DrawDialNumbers(data_.IsAnalogue() ? DialParts::All : DialParts::None);
        parts_.Tick.RequestRedraw();
        parts_.Overlays.LayOutOverlays();
        parts_.Face.DrawClockFace();
    }
}

void ClockLook::ApplyEnable() {
    parts_.Window.EnableWindow(
        mduUILib::YesNoToBool(mduLib::GetProperty(u"Enable"_s, data_.Properties())));
}

void ClockLook::ApplyClockStyle(const QString& styleFile) {
    ForgetPreview();
    QString problem;
    const std::optional<ClockProperties> style =
        styles_.Read(styleFile, data_.PropertyFileName, data_.Properties(), problem);
    if (!problem.isEmpty()) {
        parts_.Screen.ShowStatus(problem);
    }
    // Without a style the steps below apply what the clock has.
    if (style) {
        data_.EditProperties() = *style;
        data_.Dial.LastStyle = styles_.NameInFolder(styleFile);
    }
    SetProperty();
    if (parts_.Placement.IsShown() && data_.State.HasBegun()) {
        parts_.Placement.SetWindowState(0);
    }
    RefreshForm({});
    parts_.Overlays.LayOutOverlays();
    if (data_.IsAnalogue()) {
        parts_.Dial.DrawDialNumbers(DialParts::Numbers);
    }
    RequestRedrawNow();
}

void ClockLook::ApplyNextStyle() {
    const QStringList names = styles_.Names();
    if (names.isEmpty()) {
        return;
    }
    int& index = data_.Dial.StyleIndex;
    index = index + 1 >= names.size() ? 0 : index + 1;
    ApplyClockStyle(program_.Module.Paths.StylesFolder + names[index]);
}

void ClockLook::ApplyStyleBehindLast() {
    const QStringList names = styles_.Names();
    const qsizetype next = names.indexOf(data_.Dial.LastStyle + u".ini"_s) + 1;
    if (!names.isEmpty()) {
        ApplyClockStyle(program_.Module.Paths.StylesFolder + names[next % names.size()]);
    }
}

void ClockLook::RecordProgramFolder() {
    mduLib::RecordProgramFolder(program_.Services.Settings, program_.Module.Paths.AppFolder);
}

void ClockLook::RefreshForm(const QString& fileName) {
    ForgetPreview();
    const bool loaded = data_.State != ClockState::FirstTickDue;
    data_.EditProperties() = program_.Module.CurrentProperties;
    if (!fileName.isEmpty()) {
        program_.Module.Paths.CurrentPropertyFile = fileName;
    }
    ReadWhatIsSpoken();
    files_.RefreshZone();
    controls_.lblLocation(1).Caption = data_.Zone.CurrentName;
    data_.State = ClockState::RedrawRequested;
    ApplyToWindow();
    ApplyToFace();
    if (loaded) {
        parts_.Face.DrawClockFace();
    } else {
        data_.State = ClockState::FirstTickDue;  // which still has to make the window
    }
}

void ClockLook::ReadWhatIsSpoken() {
    parts_.Voice.PrepareSpeaker();
    parts_.Spoken.ReadPatterns();
}

void ClockLook::ApplyToWindow() {
    ClockPlacement& placement = parts_.Placement;
    placement.SetClockCaption();
    placement.ApplyWindowRect();
    placement.ApplyWindowBorder();
    placement.ApplyTitleBar();
    placement.ApplyWindowState();
}

void ClockLook::ApplyToFace() {
    ApplyKindAndShapes();
    ApplyEnable();
    ApplyFlagAndOverlays();
}

void ClockLook::ApplyFace() {
    controls_.lblLocation(1).Caption = data_.Zone.CurrentName;
    parts_.Placement.ApplyWindowBorder();
    parts_.Placement.ApplyTitleBar();
    ApplyKindAndShapes();
    ApplyFlagAndOverlays();
    parts_.Dial.ApplyClockSpecial();
    RequestRedrawNow();
}

void ClockLook::ApplyKindAndShapes() {
    data_.Tag = {GetClockType(data_.Properties()), false};
    parts_.Face.PrepareClockFace();
    if (data_.IsDigital()) {
        parts_.Digital.SetDigitalLayout();
    }
    parts_.Face.ApplyWindowBackground();
    parts_.Background.LoadClockPicture();
    parts_.Background.LoadWindowPicture();
    parts_.Background.SetWindowShape();
    parts_.Background.SetClockShape();
}

void ClockLook::ApplyFlagAndOverlays() {
    parts_.Overlays.LoadFlag();
    parts_.Overlays.LayOutOverlays();
}

}  // namespace clockcore
