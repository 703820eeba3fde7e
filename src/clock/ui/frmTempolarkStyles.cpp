// The operations that change a clock's look as a whole. A tick comes here, so none of them asks.
#include "clock/ClockMode.h"
#include "clock/ui/frmTempolark.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/SavedMessage.h"

using namespace Qt::StringLiterals;
using clockcore::ClockState;

void frmTempolark::SetProperty() {
    program_.Module.CurrentProperties = data_.Properties();
}

void frmTempolark::SetClocks(int mode) {
    const clockcore::ClockKind kind = clockcore::NumberedClockKind(mode);
    if (kind == clockcore::ClockKind::None) {
        return;
    }
    data_.Tag = {kind, false};
    controls_.lblLocation(1).Caption = data_.Zone.CurrentName;  // typing may have changed it
    mduLib::PutProperty(u"Clocks"_s, clockcore::ClockKindName(kind), data_.EditProperties());
    face_.ApplyWindowBackground();
    face_.PrepareClockFace();
    face_.ReadDigitalFormat();
    overlays_.LayOutOverlays();
    RequestRedrawNow();
}

// The face is shown at once; the redraw at the next tick comes all the same.
void frmTempolark::RequestRedrawNow() {
    if (data_.State.IsDrawn()) {
        tick_.RequestRedraw();
        face_.DrawClockFace();
    }
}

void frmTempolark::SetWindowBackColour(const QString& value, const QString& caption) {
    canvas_.SetTransparent(false);
    const QString colour = mduUILib::IsCustomColour(caption) ? value : caption;
    mduLib::PutProperty(u"Window Background Colour"_s, colour, data_.EditProperties());
    face_.ApplyWindowBackground();
    dial_.DrawDialNumbers(data_.IsAnalogue() ? drawing::DialParts::Numbers
                                             : drawing::DialParts::None);
    overlays_.SetTransparentIconPosition();
    Refresh();
}

void frmTempolark::ApplyClockStyle(const QString& styleFile) {
    QString problem;
    const std::optional<ClockProperties> style =
        styles_.Read(styleFile, data_.PropertyFileName, data_.Properties(), problem);
    if (!problem.isEmpty()) {
        screen_.ShowStatus(problem);
    }
    // Without a style the steps below apply what the clock has.
    if (style) {
        data_.EditProperties() = *style;
    }
    SetProperty();
    if (placement_.Outer().isVisible()) {
        SetWindowState(0);
    }
    RefreshForm({});
    overlays_.LayOutOverlays();
    if (data_.IsAnalogue()) {
        dial_.DrawDialNumbers(drawing::DialParts::Numbers);
    }
    RequestRedrawNow();
}

void frmTempolark::ApplyNextStyle() {
    const QStringList names = styles_.Names();
    if (names.isEmpty()) {
        return;
    }
    int& index = data_.Dial.StyleIndex;
    index = index + 1 >= names.size() ? 0 : index + 1;
    ApplyClockStyle(program_.Module.Paths.StylesFolder + names[index]);
}

// "Clock Special" and all that was chosen by name is in the properties already; places and fonts
// may have been changed on the face itself. Behind painted numbers twelve o'clock's label is a mere
// target, and its font nobody's.
void frmTempolark::StoreFontState() {
    ClockProperties& properties = data_.EditProperties();
    const mduUILib::Control& location = controls_.lblLocation(1);
    const auto storePlace = [&](const QString& key, float place) {
        if (mduAPILib::Val(mduLib::GetProperty(key, properties)) != -1) {
            const double logical = static_cast<double>(place) / devicePixelRatioF();
            mduLib::PutProperty(key, mduAPILib::SingleText(static_cast<float>(logical)),
                                properties);
        }
    };
    if (location.Visible) {
        storePlace(u"Time Zone Name Left"_s, location.Left);
        storePlace(u"Time Zone Name Top"_s, location.Top);
    }
    const QString numberFont = controls_.lblHour(60).Font.family();
    const bool hasCaptions = data_.IsAnalogue() && !dial_.NumbersArePainted();
    if (hasCaptions && controls_.lblHour(60).Visible && !numberFont.isEmpty()) {
        mduLib::PutProperty(u"Hour Number Font"_s, numberFont, properties);
    }
}

void frmTempolark::SaveCurrentStyle() {
    program_.Module.Paths.CurrentPropertyFile = data_.PropertyFileName;
    if (!files_.MayWrite()) {
        screen_.ShowStatus(data_.PropertyFileName +
                           u" can't be read as a property file; it is left as it is"_s);
        return;
    }
    mduLib::PutProperty(u"Window State"_s, mduUILib::WindowStateName(WindowState()),
                        data_.EditProperties());
    const std::optional<QRectF> place = placement_.PlaceToStore();
    if (place) {
        files_.StorePosition(*place);
    }
    StoreFontState();
    if (!mduLib::WritePropertyFile(program_.Services.FileSystem, data_.Properties(),
                                   data_.PropertyFileName)) {
        screen_.ShowStatus(data_.PropertyFileName + u" can't be written"_s);
        return;
    }
    if (!place || files_.SavePosition(*place)) {
        TellSaved(u"the style of "_s + Caption());
    }
}

void frmTempolark::TellSaved(const QString& what) {
    screen_.ShowStatus(mduLib::SavedMessage(what, program_.Services.Clock.Now()));
}

void frmTempolark::RefreshForm(const QString& fileName) {
    const bool loaded = data_.State != ClockState::FirstTickDue;
    data_.EditProperties() = program_.Module.CurrentProperties;
    if (!fileName.isEmpty()) {
        program_.Module.Paths.CurrentPropertyFile = fileName;
    }
    voice_.PrepareSpeaker();
    spoken_.ReadPatterns();
    files_.RefreshZone();
    controls_.lblLocation(1).Caption = data_.Zone.CurrentName;
    data_.State = ClockState::RedrawRequested;
    placement_.SetClockCaption();
    placement_.ApplyWindowRect();
    placement_.ApplyWindowBorder();
    placement_.ApplyTitleBar();
    placement_.ApplyWindowState();
    data_.Tag = {clockcore::GetClockType(data_.Properties()), false};
    face_.PrepareClockFace();
    if (data_.IsDigital()) {
        digital_.SetDigitalLayout();
    }
    face_.ApplyWindowBackground();
    background_.LoadClockPicture();
    background_.LoadWindowPicture();
    background_.SetWindowShape();
    background_.SetClockShape();
    ApplyEnable();
    overlays_.LoadFlag();
    overlays_.LayOutOverlays();
    if (loaded) {
        face_.DrawClockFace();
    } else {
        data_.State = ClockState::FirstTickDue;  // which still has to make the window
    }
}
