#pragma once

#include <QPainterPath>
#include <QSet>
#include <optional>

#include "drawing/BackgroundWipe.h"
#include "drawing/FaceContext.h"
#include "drawing/FaceParts.h"
#include "drawing/Shapes.h"

class QPainter;

namespace drawing {

/// What lies under and around the hands: colour, pictures, shapes, transparency, and the pictures
/// that change by themselves.
///
/// The dial picture is `imgClock(1)`; `imgClock(0)` holds the next one while a wipe brings it in.
/// The window's picture is `picFrame(1)`: a mat over the whole surface. A "Clock Shape" cuts the
/// dial picture to that figure around the clock's centre; without a picture the figure is a plate
/// in the window's colour (`ClockPlate.h`).
///
/// From below: the window's colour, its picture, the dial picture or the plate, and during a wipe
/// the same with the next picture, as far as it is revealed. An opaque dial picture that covers all
/// is painted alone. A property that has changed takes effect when one of the methods below is
/// called that goes by it.
class ClockBackground final : public Background {
public:
    /// Loads and shows nothing yet.
    explicit ClockBackground(const FaceContext& face);
    Q_DISABLE_COPY_MOVE(ClockBackground)

    /// Ends a wipe without showing its picture. A missing file is no picture, and no error; one
    /// that can't be read is told in the status bar.
    void LoadClockPicture() override;
    void LoadWindowPicture() override;
    bool HasClockPicture() const override;
    void DrawBackgroundPicture(Surface& surface) const override;
    void ApplyTransparency() override;
    /// Does nothing while the window is minimised.
    void SetWindowShape() override;
    void SetClockShape() override;
    void ApplySurface() override;
    /// The next one by name, letter case aside, round and round, of the folder where "Clock Image
    /// File" lies, or of the stock's "Background" where there is no such file. Nothing happens
    /// where there is no other picture that can be read. Nobody sees a wipe in a hidden window:
    /// there the picture just changes.
    void ShowAutoBackground() override;
    void FinishWipe() override;

private:
    using Picture = std::shared_ptr<const QImage>;

    /// How the dial picture lies on a surface of some size; read from the properties.
    struct Placing {
        QSize Surface;
        QRect Box;          ///< of the picture
        QPainterPath Hole;  ///< what is seen of it, or the plate in its place; empty means all
        int Brightness = 100;
    };

    /// The current value without the blanks around it; "0" when the key is missing.
    QString Property(const QString& name) const;
    /// The file that a property names, in native form; empty for "0", "None" and an empty value.
    QString PathOf(const QString& name) const;
    /// Null for a file that is missing or can't be read; the latter is told once for each file.
    Picture LoadNamed(const QString& path);
    /// Makes it the dial picture, or null none, and places it.
    void TakeClockPicture(const Picture& picture);
    /// Pure white is see-through while the window is transparent or the dial has a figure.
    void UpdateColourKey();

    /// Works `placing_` and the place of `imgClock(1)` out for a surface.
    void Place(const Surface& surface) const;
    /// The size that the dial picture has on a surface: its margin is what "Clock Image Size(%)"
    /// leaves of half the height. Without a picture it is all of the surface.
    QRect PictureBox(const Surface& surface) const;
    /// Whether nothing can be seen of what lies below the dial picture.
    bool CoversAll(const Picture& picture) const;
    void PaintWipe(QPainter& painter, double devicePixelRatio) const;
    void PaintLayers(QPainter& painter, const Picture& dial, Picture& stretched,
                     double devicePixelRatio) const;
    void PaintDial(QPainter& painter, const Picture& dial, Picture& stretched) const;

    /// The pictures that change by themselves: those beside the dial picture, else the stock's.
    struct Candidates {
        QString Folder;
        QStringList Names;
    };
    Candidates FindCandidates() const;
    /// Null where there is no other than the one that is shown; else takes note of it in `shown_`.
    Picture NextPicture();
    void WipeStepped();

    FaceContext face_;
    BackgroundWipe wipe_;
    QString shown_;       // the file of the dial picture
    int wipeMode_ = 0;    // of the last change
    QSet<QString> told_;  // the files that the user knows to be unreadable
    std::optional<WindowMeasures> shaped_;

    // What painting has worked out, kept so that a repaint is one copy.
    mutable Placing placing_;
    mutable Picture dial_, next_, mat_;
};

}  // namespace drawing
