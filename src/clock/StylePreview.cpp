#include "clock/StylePreview.h"

#include <algorithm>
#include <utility>

#include "foundation/PropertyLookup.h"
#include "foundation/TextHelpers.h"

using namespace Qt::StringLiterals;

namespace clockcore {

namespace {

/// How the names of the keys begin that are not of the face.
constexpr QLatin1StringView Others[] = {
    "Enable"_L1,          "Stay Time"_L1,    "Auto Background"_L1, "Clock Name"_L1,
    "Window Top"_L1,      "Window Left"_L1,  "Window Width"_L1,    "Window Height"_L1,
    "Window State"_L1,    "Window Open"_L1,  "Time Zone S"_L1,     "Time Zone Daylight"_L1,
    "Time Zone Rules"_L1, "Time Zone Id"_L1, "Hour Sound"_L1,      "Second Sound"_L1,
    "Timer"_L1,           "Late Timers"_L1,  "Music"_L1,           "Message"_L1,
    "Speak"_L1,           "Speech"_L1,
};

/// The keys of the frame: to change them a window of the desktop is made anew, from under the menu.
constexpr QLatin1StringView Frame[] = {"Window Border"_L1, "Window Title Bar"_L1,
                                       "Window Shape"_L1};

template <class Names>
bool BeginsAsOneOf(const QString& name, const Names& names) {
    return std::any_of(std::begin(names), std::end(names), [&name](QLatin1StringView each) {
        return name.startsWith(each, Qt::CaseInsensitive);
    });
}

}  // namespace

// To apply a look ends a typing, and makes a wrapper a clock.
bool StylePreview::IsPossible() const {
    const bool isTyped =
        data_.Is(ClockKind::CalculatorInput) || data_.Is(ClockKind::CalculatorMessage);
    return data_.State != ClockState::Closing && !data_.Tag.IsWrapper && !isTyped;
}

void StylePreview::Show(const QString& style) {
    if (!IsPossible()) {
        return;
    }
    QString problem;
    const std::optional<ClockProperties> look =
        styles_.Peek(program_.Module.Paths.StylesFolder + style + u".ini"_s, problem);
    if (!look) {
        screen_.ShowStatus(problem);
        EndStyle();
        return;
    }
    ShowLook(*look);
    showsStyle_ = true;
}

void StylePreview::EndStyle() {
    if (std::exchange(showsStyle_, false)) {
        ShowProperties(ClockProperties(values_));
    }
}

// Most changes of a property window are of keys that show nothing: the face then stays as it is.
void StylePreview::ShowProperties(const ClockProperties& values) {
    if (IsPossible() && TriesAny(values)) {
        ShowLook(values);
    } else {
        End();
    }
    values_ = values;
}

bool StylePreview::TriesAny(const ClockProperties& look) const {
    for (int row = 1; row <= look.UpperBound(); ++row) {
        const QString name = look[row].Name.trimmed();
        if (IsKnown(name) && MayTry(name)) {
            return true;
        }
    }
    return false;
}

bool StylePreview::IsKnown(const QString& name) const {
    return !name.isEmpty() && mduLib::FindPropertyRow(name, data_.Properties()) > 0;
}

void StylePreview::ShowLook(const ClockProperties& look) {
    TakeAllBack();
    Try(look);
    look_.ApplyFace();
}

void StylePreview::End() {
    values_ = {};
    if (!tried_.empty() && data_.State != ClockState::Closing) {
        Forget();
        look_.ApplyFace();
    }
}

void StylePreview::Try(const ClockProperties& style) {
    for (int row = 1; row <= style.UpperBound(); ++row) {
        const QString name = style[row].Name.trimmed();
        if (!IsKnown(name) || !MayTry(name)) {
            continue;
        }
        const QString own = mduLib::GetPropertyRaw(name, data_.Properties());
        mduLib::PutProperty(name, mduLib::RowFirstField(row, style), data_.EditProperties());
        tried_.push_back({name, own, mduLib::GetPropertyRaw(name, data_.Properties())});
    }
}

void StylePreview::Forget() {
    values_ = {};
    TakeAllBack();
}

void StylePreview::TakeAllBack() {
    TakeBack(data_.EditProperties());
    tried_.clear();
    showsStyle_ = false;
}

ClockProperties StylePreview::OwnProperties() const {
    ClockProperties own = data_.Properties();
    TakeBack(own);
    return own;
}

void StylePreview::TakeBack(ClockProperties& properties) const {
    for (auto each = tried_.rbegin(); each != tried_.rend(); ++each) {
        if (mduLib::GetPropertyRaw(each->Name, properties) == each->Shown) {
            mduLib::PutPropertyRaw(each->Name, each->Own, properties);
        }
    }
}

bool StylePreview::MayTry(const QString& name) const {
    return !BeginsAsOneOf(name, Others) && (screen_.IsMDIChild() || !BeginsAsOneOf(name, Frame));
}

}  // namespace clockcore
