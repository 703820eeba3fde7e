#pragma once

#include <vector>

#include "clock/ClockData.h"
#include "clock/ClockLook.h"
#include "clock/StyleFiles.h"
#include "foundation/Program.h"

namespace clockcore {

/// Shows a style on a clock for as long as its name is highlighted in the menu. It changes the
/// properties in memory, and only those of the face: nothing is written, and zone, place and size,
/// timers, messages, voice and music stay as they are.
///
///     preview.Show(u"Oak"_s);
///     preview.Show(u"Elm"_s);  // in the place of the first
///     preview.End();           // the clock looks as it did before
class StylePreview {
public:
    StylePreview(ClockData& data, const Program& program, const StyleFiles& styles,
                 ClockScreen& screen, ClockLook& look)
        : data_(data), program_(program), styles_(styles), screen_(screen), look_(look) {
        look_.SetPreview(this);
    }
    ~StylePreview() { look_.SetPreview(nullptr); }
    Q_DISABLE_COPY_MOVE(StylePreview)

    /// Shows the style of that name in the folder of styles, in the place of one that is shown
    /// already. A file that is gone or is no style is told in the status bar; the clock then has
    /// its own look. A wrapper, a calculator that is typed into and a clock that is closing show
    /// none.
    void Show(const QString& style);
    /// Shows these values in the place of what is shown already; without any it is `End`. A key
    /// that is not of the face, or that the clock does not have, shows nothing.
    void ShowProperties(const ClockProperties& values);
    /// Ends the style that is shown, if one is: the values that were shown before come back.
    void EndStyle();
    /// Gives the clock its own look back; the typing of a time has ended. A value that somebody
    /// else has changed meanwhile stays.
    void End();
    /// The same without drawing, for those who lay the whole clock out anew.
    void Forget();
    /// The clock's properties without what is shown for now.
    ClockProperties OwnProperties() const;

private:
    bool IsPossible() const;
    /// A key that has another value for now; both are raw values, with their choices.
    struct Tried {
        QString Name;
        QString Own;
        QString Shown;
    };
    void ShowLook(const ClockProperties& look);
    void TakeAllBack();
    bool TriesAny(const ClockProperties& look) const;
    void TakeBack(ClockProperties& properties) const;
    void Try(const ClockProperties& style);
    bool IsKnown(const QString& name) const;
    bool MayTry(const QString& name) const;

    ClockData& data_;
    Program program_;
    const StyleFiles& styles_;
    ClockScreen& screen_;
    ClockLook& look_;
    std::vector<Tried> tried_;
    ClockProperties values_;  ///< of `ShowProperties`, while a style may stand in their place
    bool showsStyle_ = false;
};

}  // namespace clockcore
