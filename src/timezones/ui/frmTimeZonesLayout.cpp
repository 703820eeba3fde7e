// The places of the controls of the window of zones, and its menus.
#include <QKeyEvent>
#include <cmath>

#include "foundation/Numbers.h"
#include "timezones/ui/frmTimeZones.h"

using namespace Qt::StringLiterals;
using mduTimeZones::ShowFilter;
using mduTimeZones::SourceMode;
using mduTimeZones::ZoneSort;

namespace {

constexpr int Margin = 12;
constexpr int Gap = 8;
constexpr int LeastMapHeight = 80;
constexpr int LeastListHeight = 120;
constexpr double MapShare = 0.46;            // of the window's height, at most
constexpr double WorldHeight = 12.0 / 26.0;  // of the map's width

/// "GMT+01:20"
QString GmtText(double hours) {
    const int minutes = mduAPILib::RoundToInteger(std::abs(hours) * 60);
    return u"GMT%1%2:%3"_s.arg(QChar(hours < 0 ? u'-' : u'+'))
        .arg(minutes / 60, 2, 10, QChar(u'0'))
        .arg(minutes % 60, 2, 10, QChar(u'0'));
}

}  // namespace

int frmTimeZones::MapHeight() const {
    const auto [least, most] = SplitLimits();
    const int usual = std::min(static_cast<int>((width() - 2 * Margin) * WorldHeight),
                               static_cast<int>(height() * MapShare));
    const int wanted = mapHeight_ >= 0 ? mapHeight_ : usual;
    return std::max(least, std::min(wanted + Margin, most)) - Margin;
}

QPair<int, int> frmTimeZones::SplitLimits() const {
    const int below = ZoneSplitter::Thickness + searchRow_->sizeHint().height() + Gap +
                      LeastListHeight + Gap + buttonRow_->sizeHint().height() + Margin;
    const int most = std::max(Margin, height() - below);
    return {std::min(Margin + LeastMapHeight, most), most};
}

void frmTimeZones::SetSplit(int y) {
    mapHeight_ = y - Margin;
    LayOut();
}

void frmTimeZones::LayOut() {
    const int inner = width() - 2 * Margin;
    int top = Margin;
    imgMap_->setVisible(mapVisible_);
    imgSplitter_->setVisible(mapVisible_);
    if (mapVisible_) {
        const int mapHeight = MapHeight();
        imgMap_->setGeometry(Margin, top, inner, mapHeight);
        top += mapHeight;
        imgSplitter_->setGeometry(Margin, top, inner, ZoneSplitter::Thickness);
        top += ZoneSplitter::Thickness;
    }
    searchRow_->setGeometry(Margin, top, inner, searchRow_->sizeHint().height());
    top += searchRow_->height() + Gap;
    const int buttons = buttonRow_->sizeHint().height();
    const int bottom = height() - Margin - buttons;
    buttonRow_->setGeometry(Margin, bottom, inner, buttons);
    lsvTimeZones_->setGeometry(Margin, top, inner, std::max(0, bottom - Gap - top));
}

void frmTimeZones::resizeEvent(QResizeEvent*) {
    LayOut();
}

void frmTimeZones::SetMapVisible(bool visible) {
    mapVisible_ = visible;
    RefreshMenus();
    LayOut();
}

void frmTimeZones::ShowBandButton() {
    const std::optional<double> hours = imgMap_->Band().G();
    cmdBand_->setVisible(hours.has_value());
    if (hours) {
        const QString text = u"Around "_s + GmtText(*hours);
        cmdBand_->setText(text + u"  \u2715"_s);
        cmdBand_->setAccessibleName(text + u", show the zones of all hours again"_s);
    }
}

void frmTimeZones::RefreshMenus() {
    menus_.Refresh({list_.Source, list_.Show, list_.Sort(), CurrentPosition() >= 0, mapVisible_});
}

// From the field one goes on to the list or opens what is found, and Escape empties the field.
bool frmTimeZones::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtSearch_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (isEnter && CurrentPosition() >= 0) {
            OpenCurrent();
            return true;
        }
        if ((key == Qt::Key_Down || isEnter) && list_.Count() > 0) {
            MakeCurrent(std::max(CurrentPosition(), 0));
            lsvTimeZones_->setFocus();
            return true;
        }
        if (key == Qt::Key_Escape && !txtSearch_->text().isEmpty()) {
            txtSearch_->clear();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void frmTimeZones::RunItem(Item item) {
    switch (item) {
        case Item::NameAscending:
            return SetSort(ZoneSort::NameAscending);
        case Item::NameDescending:
            return SetSort(ZoneSort::NameDescending);
        case Item::GMTAscending:
            return SetSort(ZoneSort::GMTAscending);
        case Item::GMTDescending:
            return SetSort(ZoneSort::GMTDescending);
        case Item::SelectAll:
            return CheckAll(true);
        case Item::SelectNone:
            return CheckAll(false);
        case Item::ShowTimeZoneDetailsMenu:
            return ShowZoneDetails(CurrentPosition());
        case Item::SourceWindows:
            return SetSource(SourceMode::Windows);
        case Item::SourceTempolark:
            return SetSource(SourceMode::Tempolark);
        case Item::SourceSelected:
            return SetSource(SourceMode::Selected);
        case Item::SourceBoth:
            return SetSource(SourceMode::Both);
        case Item::ShowAll:
            return LoadZoneList(ShowFilter::All);
        case Item::ShowSelected:
            return LoadZoneList(ShowFilter::Selected);
        case Item::ShowUnselected:
            return LoadZoneList(ShowFilter::Unselected);
        case Item::DeleteSelected:
            return DeleteCheckedZones();
        case Item::MapVisible:
            return SetMapVisible(!mapVisible_);
        case Item::Close:
            return Unload();
        case Item::HideMap:
            return SetMapVisible(false);
    }
}
