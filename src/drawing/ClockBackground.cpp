#include "drawing/ClockBackground.h"

#include <utility>

#include "drawing/SeenArea.h"
#include "foundation/FileHelpers.h"
#include "foundation/NamedValues.h"
#include "foundation/PropertyLookup.h"

using namespace Qt::StringLiterals;

namespace drawing {

namespace {

constexpr int WipeModes = 5;

/// The pictures that take their turn: also those that no picker of old offered.
bool TakesItsTurn(const QString& name) {
    return mduUILib::IsPictureFile(name) || name.endsWith(u".png"_s, Qt::CaseInsensitive) ||
           name.endsWith(u".jpeg"_s, Qt::CaseInsensitive);
}

}  // namespace

ClockBackground::ClockBackground(const FaceContext& face)
    : face_(face), wipe_(face.Clock, [this] { WipeStepped(); }) {}

QString ClockBackground::Property(const QString& name) const {
    return mduLib::GetProperty(name, face_.Properties).trimmed();
}

QString ClockBackground::PathOf(const QString& name) const {
    const QString value = Property(name);
    return mduUILib::IsNoneValue(value) ? QString()
                                        : mduLib::ResolveAppPath(value, face_.Paths.AppFolder);
}

// A wrapper clock loads its picture at every tick; the user is told once.
ClockBackground::Picture ClockBackground::LoadNamed(const QString& path) {
    Picture picture = face_.Pictures.Load(face_.FileSystem, path);
    if (picture) {
        told_.remove(path);
    } else if (mduLib::FileExists(face_.FileSystem, path) && !told_.contains(path)) {
        told_.insert(path);
        face_.Window.ShowStatus(path + u" can't be read as a picture"_s);
    }
    return picture;
}

void ClockBackground::LoadClockPicture() {
    wipe_.Stop();
    face_.Controls.imgClock(0).Picture = nullptr;
    next_ = nullptr;
    shown_ = PathOf(u"Clock Image File"_s);
    TakeClockPicture(LoadNamed(shown_));
}

void ClockBackground::TakeClockPicture(const Picture& picture) {
    face_.Controls.imgClock(1).Picture = picture;
    Place(face_.Window.Surface());
    face_.Window.StillChanged();
}

void ClockBackground::LoadWindowPicture() {
    face_.Controls.picFrame(1).Picture = LoadNamed(PathOf(u"Window Background File"_s));
    face_.Window.StillChanged();
}

bool ClockBackground::HasClockPicture() const {
    return face_.Controls.imgClock(1).Picture != nullptr;
}

void ClockBackground::ApplyTransparency() {
    const QString colour = Property(u"Window Background Colour"_s);
    const int value = mduUILib::ColourValue(colour, face_.Random);
    const bool transparent = mduUILib::ColourWord(colour) == "transparent"_L1;
    face_.Window.SetTransparent(transparent);
    face_.Window.SetBackColor(transparent ? face_.Window.ParentBackColor() : value);
    UpdateColourKey();
    face_.Window.StillChanged();
}

void ClockBackground::UpdateColourKey() {
    face_.Window.SetColourKey(face_.Window.IsTransparent() ||
                              IsFigure(ReadShape(Property(u"Clock Shape"_s))));
}

void ClockBackground::SetWindowShape() {
    constexpr int minimised = 1;
    if (face_.Window.WindowState() == minimised) {
        return;
    }
    shaped_ = MeasuresOf(face_.Window);
    face_.Window.SetWindowRgn(
        WindowFigure(ReadShape(Property(u"Window Shape"_s)), *shaped_).value_or(QRegion()));
}

void ClockBackground::SetClockShape() {
    UpdateColourKey();
    Place(face_.Window.Surface());
    face_.Window.StillChanged();
}

void ClockBackground::ApplySurface() {
    if (shaped_ != MeasuresOf(face_.Window)) {
        SetWindowShape();
    }
    LoadWindowPicture();
    SetClockShape();
}

ClockBackground::Candidates ClockBackground::FindCandidates() const {
    const QString file = PathOf(u"Clock Image File"_s);
    const QString folder = mduLib::FileExists(face_.FileSystem, file)
                               ? file.left(file.lastIndexOf(u'/') + 1)
                               : face_.Paths.ImagesFolder + u"Background/"_s;
    QStringList names = mduLib::ListFolderFiles(face_.FileSystem, folder, {}, u"@"_s)
                            .split(u'@', Qt::SkipEmptyParts);
    names.removeIf([](const QString& name) { return !TakesItsTurn(name); });
    names.sort(Qt::CaseInsensitive);
    return {folder, names};
}

/// The picture behind the present one, round and round; what can't be read is passed over.
ClockBackground::Picture ClockBackground::NextPicture() {
    const Candidates found = FindCandidates();
    const qsizetype count = found.Names.size();
    const qsizetype present =
        shown_.startsWith(found.Folder) ? found.Names.indexOf(shown_.mid(found.Folder.size())) : -1;
    for (qsizetype step = 1; step <= count; ++step) {
        const QString path = found.Folder + found.Names[(present + step) % count];
        if (path == shown_ && HasClockPicture()) {
            return nullptr;
        }
        if (Picture picture = face_.Pictures.Load(face_.FileSystem, path)) {
            shown_ = path;
            return picture;
        }
    }
    return nullptr;
}

void ClockBackground::ShowAutoBackground() {
    FinishWipe();
    const Picture next = NextPicture();
    if (!next) {
        return;
    }
    wipeMode_ = wipeMode_ < WipeModes ? wipeMode_ + 1 : 1;
    // While a transparent clock without a picture holds a next one, the window's own picture stands
    // in for it as a speck: no sight for a wipe to begin with.
    const bool speck = face_.Window.IsTransparent() && !HasClockPicture();
    if (face_.Window.CanBeSeen() && !speck) {
        face_.Controls.imgClock(0).Picture = next;
        wipe_.Start(wipeMode_);
    } else {
        TakeClockPicture(next);
        face_.Window.ShowChanges();
    }
}

void ClockBackground::FinishWipe() {
    if (wipe_.IsUnderWay()) {
        wipe_.Stop();
        WipeStepped();
    }
}

void ClockBackground::WipeStepped() {
    if (wipe_.IsUnderWay()) {
        face_.Window.StillChanged();
    } else {
        dial_ = std::exchange(next_, nullptr);
        TakeClockPicture(std::exchange(face_.Controls.imgClock(0).Picture, nullptr));
    }
    face_.Window.ShowChanges();
}

}  // namespace drawing
