// The shell's own settings: what it applies at its start and keeps at its end.
#include <QLabel>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include "drawing/Surface.h"
#include "foundation/NamedValues.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyFile.h"
#include "foundation/PropertyLookup.h"
#include "foundation/Twips.h"
#include "shell/ClockCommands.h"
#include "shell/ui/frmMain.h"

using namespace Qt::StringLiterals;

void frmMain::ApplyCentralProperties(bool keepPlacement) {
    if (!keepPlacement) {
        ApplyPlacement();
    }
    const auto value = [this](const QString& key) {
        return mduLib::GetProperty(key, centralProperties_);
    };
    statusBar()->setVisible(mduUILib::YesNoToBool(value(u"Status Bar"_s)));
    SetBackgroundColour(value(u"Window Background Colour"_s));
}

void frmMain::ApplyPlacement() {
    const auto number = [this](const QString& key) {
        return mduAPILib::Val(mduLib::GetProperty(key, centralProperties_));
    };
    const QRect whole = screen()->availableGeometry();
    const auto extent = [](double twips, int present) {
        return twips > 0 ? mduAPILib::RoundToInteger(twips / TwipsPerPixel) : present / 4;
    };
    const QSize size(extent(number(u"Window Width"_s), whole.width()),
                     extent(number(u"Window Height"_s), whole.height()));
    resize(size.boundedTo(whole.size()).expandedTo({200, 150}));
    const auto place = [](double twips, int from, int room) {
        return twips == -1 ? from + room / 2 : mduAPILib::RoundToInteger(twips / TwipsPerPixel);
    };
    move(place(number(u"Window Left"_s), whole.left(), whole.width() - width()),
         place(number(u"Window Top"_s), whole.top(), whole.height() - height()));
    normalSize_ = QWidget::size();
    // The clocks that start by themselves are sized by the shell as it will be seen.
    if (StoredWindowState() == 2) {
        resize(whole.size());
    }
}

int frmMain::StoredWindowState() const {
    return mduUILib::WindowStateValue(mduLib::GetProperty(u"Window State"_s, centralProperties_));
}

// A hidden window gives its inner parts no size until it has to be drawn. The clocks that start by
// themselves are placed before it is shown, so that it is drawn here, by a pixel.
void frmMain::LayOutHidden() {
    grab(QRect(0, 0, 1, 1));
}

bool frmMain::IsScreenSaverRun() const {
    return program_.Module.CommandLine == u"/s"_s;
}

// Over everything, as large as the screen, with nothing around the clocks.
void frmMain::ApplyScreenSaverLook() {
    setWindowFlag(Qt::WindowStaysOnTopHint);
    findChild<QToolBar*>()->hide();
    statusBar()->hide();
    setGeometry(screen()->geometry());
}

void frmMain::ShowAtStart() {
    if (IsScreenSaverRun()) {
        SetWindowState(2);
        return;
    }
    resize(normalSize_);
    SetWindowState(StoredWindowState());
}

void frmMain::SetBackgroundColour(const QString& colourName) {
    if (colourName.trimmed().toLower() != u"transparent"_s) {
        backColour_ = mduUILib::ColourValue(QString(colourName), program_.Services.Random);
    }
    const QColor colour(drawing::ToRgb(backColour_));
    area_->setBackground(colour);
    QPalette palette = header_->palette();
    palette.setColor(QPalette::WindowText,
                     colour.lightness() > 128 ? QColor(40, 50, 65) : QColor(225, 230, 238));
    header_->setPalette(palette);
    shell::SyncClockBackColours(program_.Windows, backColour_);
}

void frmMain::SaveWindowPlacement() {
    platform::Files& files = program_.Services.FileSystem;
    const QString file = IniFile();
    // What the property window saved meanwhile stays.
    ClockProperties fresh;
    if (mduLib::ReadPropertyFile(files, file, fresh)) {
        centralProperties_ = fresh;
    }
    if (WindowState() == 0) {
        const auto store = [this](const QString& key, int pixels) {
            mduLib::PutProperty(key,
                                mduAPILib::SingleText(static_cast<float>(pixels * TwipsPerPixel)),
                                centralProperties_);
        };
        store(u"Window Top"_s, y());
        store(u"Window Left"_s, x());
        store(u"Window Width"_s, width());
        store(u"Window Height"_s, height());
    }
    mduLib::RewritePropertyFile(files, centralProperties_, file);
}
