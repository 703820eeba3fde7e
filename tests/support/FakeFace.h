#pragma once

#include <QStringList>
#include <vector>

#include "drawing/FaceContext.h"
#include "foundation/PropertyLookup.h"
#include "support/FakeRandom.h"
#include "support/FakeServices.h"

/// A clock's window without a window: a surface, and a record of what is asked of it.
class FakeCanvas final : public drawing::Canvas {
public:
    FakeCanvas(int width, int height, double ratio)
        : Drawn(width, height, ratio), Outer(width * 15 / ratio, height * 15 / ratio) {}

    drawing::Surface Drawn;
    QSizeF Outer;   ///< twips; a window without a frame to begin with
    QPoint Offset;  ///< of the surface in the outer window
    int StillChanges = 0;
    int Shows = 0;
    std::vector<QRegion> Presented;
    std::vector<QRegion> Outlines;  ///< every region given to `SetWindowRgn`
    std::vector<QImage> Icons;
    QStringList Status;
    bool Seen = true;
    bool Transparent = false;
    bool ColourKey = false;
    int Colour = 0xFFFFFF;
    int ParentColour = 0xFFFFFF;
    int State = 0;

    /// Gives the window another size: a new, black surface and an outer size without a frame.
    void Resize(int width, int height) {
        const double ratio = Drawn.DevicePixelRatio();
        Drawn = drawing::Surface(width, height, ratio);
        Outer = QSizeF(width * 15 / ratio, height * 15 / ratio);
    }

    drawing::Surface& Surface() override { return Drawn; }
    void Present(const QRegion& changed) override { Presented.push_back(changed); }
    bool CanBeSeen() const override { return Seen; }
    void StillChanged() override { ++StillChanges; }
    void ShowChanges() override { ++Shows; }
    int BackColor() const override { return Colour; }
    void SetBackColor(int colour) override { Colour = colour; }
    int ParentBackColor() const override { return ParentColour; }
    bool IsTransparent() const override { return Transparent; }
    void SetTransparent(bool transparent) override { Transparent = transparent; }
    void SetColourKey(bool on) override { ColourKey = on; }
    QSizeF OuterSize() const override { return Outer; }
    QPoint SurfaceOffset() const override { return Offset; }
    int WindowState() const override { return State; }
    void SetWindowRgn(const QRegion& outline) override { Outlines.push_back(outline); }
    void SetIcon(const QImage& picture) override { Icons.push_back(picture); }
    void ShowStatus(const QString& text) override { Status += text; }
};

/// All that the parts of a face are built on, each piece open to the test. Of the properties only
/// those exist that the test sets.
struct FakeFace {
    explicit FakeFace(int width = 200, int height = 200, double ratio = 1)
        : Window(width, height, ratio) {
        Paths.AppFolder = Machine.AppFolder();
    }
    Q_DISABLE_COPY_MOVE(FakeFace)

    FakeServices Machine;
    ClockProperties Properties;
    TimeZoneRecord Zone;
    mduUILib::ClockControls Controls;
    FakeCanvas Window;
    mduUILib::PictureStore Pictures;
    PathTable Paths;
    /// A test may put a database of its own here before it asks for the context.
    const platform::ZoneDatabase* Zones = &Machine.Zones;

    /// What a part's constructor takes; valid for as long as this object lives.
    drawing::FaceContext Context() {
        return {Properties,    Zone,           Controls, Window, Machine.Clock,
                Machine.Files, Machine.Random, Pictures, Paths,  *Zones};
    }

    void Set(const QString& key, const QString& value) {
        mduLib::PutProperty(key, value, Properties);
    }
};
