#include "timezones/ui/ZoneMap.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "foundation/Numbers.h"
#include "foundation/Twips.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int NightInterval = 60000;  // milliseconds between two looks at the sun
constexpr double Reach = 7;           // pixels around a dot that count as it
constexpr double ClickSlack = 3;      // pixels that a hand may tremble
constexpr int MostNames = 4;          // in one tip
constexpr double FirstHour = -12;
constexpr double LastHour = 14;

/// The column that is picked, over the map.
class BandShape final : public QWidget {
public:
    explicit BandShape(QWidget* parent) : QWidget(parent) {
        setObjectName(u"shpArea"_s);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QColor colour(255, 214, 102);
        painter.setPen(colour);
        colour.setAlpha(80);
        painter.setBrush(colour);
        painter.drawRect(rect().adjusted(0, -1, -1, 0));
    }
};

}  // namespace

ZoneMap::ZoneMap(const Program& program, Handlers handlers, QWidget* parent)
    : QWidget(parent),
      program_(program),
      handlers_(std::move(handlers)),
      shpArea_(new BandShape(this)),
      timNight_(program.Services.Clock.MakeTicker([this] {
          night_ = QPixmap();
          update();
      })) {
    setObjectName(u"imgMap"_s);
    setAccessibleName(u"Map of the world"_s);
    setAccessibleDescription(
        u"Left and Right pick the zones of an hour, Escape shows all of them again"_s);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

ZoneMap::~ZoneMap() = default;

void ZoneMap::SetDots(std::vector<MapDot> dots) {
    dots_ = std::move(dots);
    hovered_ = -1;
    current_ = -1;
    update();
}

void ZoneMap::SetCurrentDot(int dot) {
    current_ = dot;
    update();
}

QPointF ZoneMap::PointOfDot(int dot) const {
    return Layout().PointOf(dots_[static_cast<std::size_t>(dot)].Place);
}

void ZoneMap::ClearBand() {
    band_.Clear();
    shpArea_->hide();
    handlers_.BandChanged();
}

void ZoneMap::PlaceBandShape() {
    if (band_.G()) {
        shpArea_->setGeometry(Layout().Column(*band_.G()).toRect());
    }
}

void ZoneMap::TakeBand() {
    PlaceBandShape();
    shpArea_->show();
    handlers_.BandChanged();
}

void ZoneMap::StepBand(int hours) {
    const int from = band_.G() ? mduAPILib::RoundToInteger(*band_.G()) : -hours;
    band_.Set(std::clamp<double>(from + hours, FirstHour, LastHour));
    TakeBand();
}

void ZoneMap::EndDrag() {
    if (pressed_) {
        pressed_ = false;
        unsetCursor();
        shpArea_->hide();
    }
}

void ZoneMap::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        handlers_.MenuAsked(event->globalPosition().toPoint());
    } else if (event->button() == Qt::LeftButton) {
        pressed_ = true;
        moved_ = false;
        pressedAt_ = event->position();
    }
}

void ZoneMap::mouseMoveEvent(QMouseEvent* event) {
    if (!pressed_) {
        Hover(DotAt(event->position()));
        return;
    }
    const QPointF way = event->position() - pressedAt_;
    if (!moved_ && way.manhattanLength() <= ClickSlack) {
        return;
    }
    moved_ = true;
    setCursor(Qt::ClosedHandCursor);
    if (band_.MoveTo(event->position().x() * TwipsPerPixel, width() * TwipsPerPixel)) {
        TakeBand();
    }
}

void ZoneMap::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressed_) {
        return;
    }
    EndDrag();
    const int dot = DotAt(event->position());
    if (!moved_ && dot >= 0) {
        handlers_.DotClicked(dot);
    }
}

void ZoneMap::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            StepBand(-1);
            break;
        case Qt::Key_Right:
            StepBand(1);
            break;
        case Qt::Key_Escape:
            ClearBand();
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void ZoneMap::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ZoneMap::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (!pressed_) {
        shpArea_->hide();
    }
    update();
}

// The mouse has had its menu when the button went down.
void ZoneMap::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Mouse) {
        handlers_.MenuAsked(mapToGlobal(rect().center()));
    }
}

int ZoneMap::DotAt(const QPointF& position) const {
    int nearest = -1;
    double least = Reach * Reach;
    for (int dot = 0; dot < static_cast<int>(dots_.size()); ++dot) {
        const QPointF way = PointOfDot(dot) - position;
        const double square = QPointF::dotProduct(way, way);
        if (square <= least) {
            nearest = dot;
            least = square;
        }
    }
    return nearest;
}

QString ZoneMap::NamesAt(const QPointF& position) const {
    QStringList names;
    const int nearest = DotAt(position);
    if (nearest >= 0) {
        names += dots_[static_cast<std::size_t>(nearest)].Name;
    }
    for (int dot = 0; dot < static_cast<int>(dots_.size()); ++dot) {
        const QPointF way = PointOfDot(dot) - position;
        if (dot != nearest && QPointF::dotProduct(way, way) <= Reach * Reach) {
            names += dots_[static_cast<std::size_t>(dot)].Name;
        }
    }
    const qsizetype more = names.size() - MostNames;
    if (more > 0) {
        names = names.first(MostNames) + QStringList{u"and %1 more"_s.arg(more)};
    }
    return names.join(u'\n');
}

void ZoneMap::Hover(int dot) {
    if (hovered_ != dot) {
        hovered_ = dot;
        setCursor(dot >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
        update();
    }
}

bool ZoneMap::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString names = NamesAt(help->pos());
        if (names.isEmpty()) {
            QToolTip::hideText();
        } else {
            QToolTip::showText(help->globalPos(), names, this);
        }
        return true;
    }
    if (event->type() == QEvent::Leave) {
        Hover(-1);
    }
    return QWidget::event(event);
}

void ZoneMap::resizeEvent(QResizeEvent*) {
    world_ = QPixmap();
    night_ = QPixmap();
    PlaceBandShape();
}

void ZoneMap::showEvent(QShowEvent*) {
    night_ = QPixmap();
    timNight_->SetInterval(NightInterval);
}

void ZoneMap::hideEvent(QHideEvent*) {
    timNight_->SetInterval(0);
}

void ZoneMap::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        world_ = QPixmap();
        update();
    }
    QWidget::changeEvent(event);
}
