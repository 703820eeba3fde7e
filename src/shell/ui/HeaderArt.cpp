#include "shell/ui/HeaderArt.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include "drawing/Surface.h"
#include "foundation/Contrast.h"
#include "foundation/Twips.h"
#include "platform/RandomNumbers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ShowInterval = 8;  // milliseconds: the show takes about two seconds
const QString Maker = u"Clocks for every place on earth"_s;

std::vector<QString> StoredLetters() {
    std::vector<QString> letters;
    for (const QChar letter : shell::HeaderText) {
        letters.emplace_back(letter);
    }
    return letters;
}

}  // namespace

HeaderArt::HeaderArt(const Program& program, Hooks hooks, QWidget* parent)
    : QWidget(parent),
      program_(program),
      hooks_(std::move(hooks)),
      ticker_(program.Services.Clock.MakeTicker([this] {
          if (!show_.Step()) {
              EndShow();
          }
          update();
      })),
      letters_(StoredLetters()),
      offsets_(letters_.size(), 0.0),
      colours_(letters_.size(), 0),
      invitation_(new QPushButton(u"Choose time zones to begin"_s, this)) {
    setObjectName(u"picMain"_s);
    invitation_->setObjectName(u"invitation"_s);
    invitation_->setCursor(Qt::PointingHandCursor);
    connect(invitation_, &QPushButton::clicked, this, [this] { hooks_.Invited(); });
}

void HeaderArt::ShowHeaderAnimation(const QString& headingVariation) {
    variation_ = headingVariation;
    if (IsMoving()) {
        return;
    }
    ApplyHeaderStyle(headingVariation);
    show_ = shell::HeaderShow(Places(), QSizeF(size()));
    letters_.front() = u"Chick"_s;  // hops in and turns into the first letter
    ticker_->SetInterval(ShowInterval);
    update();
}

void HeaderArt::EndShow() {
    ticker_->SetInterval(0);
    letters_ = StoredLetters();
    ApplyHeaderStyle(variation_);
}

void HeaderArt::ApplyHeaderStyle(const QString& headingVariation) {
    ApplyHeaderCode(shell::HeadingVariationCode(headingVariation));
}

void HeaderArt::ApplyHeaderCode(int code) {
    constexpr int byChance = 5;
    platform::RandomNumbers& random = program_.Services.Random;
    const int count = static_cast<int>(letters_.size());
    const int style = code == byChance ? static_cast<int>(random.Next() * 5 + 1) : code;
    if (const auto offsets = shell::PlaceHeader(style, count, random)) {
        offsets_ = *offsets;
    }
    colours_ = shell::RandomHeaderColours(count, backColour_, random);
    update();
}

void HeaderArt::SetBackColour(int colour) {
    backColour_ = colour;
    DressInvitation();
    PlaceInvitation();
    update();
}

void HeaderArt::SetOverPicture(bool over) {
    overPicture_ = over;
    DressInvitation();
    update();
}

// Over a picture it stands on a plate of the ground's colour.
void HeaderArt::DressInvitation() {
    const QColor ink = Ink();
    const QColor ground(drawing::ToRgb(backColour_));
    const QString solid =
        u"rgba(%1, %2, %3, %4)"_s.arg(ground.red()).arg(ground.green()).arg(ground.blue());
    const QString plate = overPicture_ ? solid.arg(230) : u"rgba(128, 128, 128, 60)"_s;
    const QString lit = overPicture_ ? solid.arg(255) : u"rgba(128, 128, 128, 130)"_s;
    invitation_->setStyleSheet(
        u"QPushButton { color: %1; background: %2; border: 1px solid %1;"
        " border-radius: 6px; padding: 0.53em 1.3em; }"
        "QPushButton:hover, QPushButton:focus { background: %3; }"_s.arg(ink.name(), plate, lit));
}

void HeaderArt::SetVersionLocation(const QString& text) {
    versionLocation_ = text;
    update();
}

QColor HeaderArt::Ink() const {
    return mduUILib::ReadableOn(QColor(drawing::ToRgb(backColour_)));
}

// As large as the width lets the word be.
int HeaderArt::LetterSize() const {
    return std::clamp(width() / 17, 14, 64);
}

QFont HeaderArt::LetterFont(double scale) const {
    QFont letterFont = font();
    letterFont.setFamilies({u"DejaVu Serif"_s, u"serif"_s});
    letterFont.setBold(true);
    letterFont.setPixelSize(std::max(static_cast<int>(LetterSize() * scale), 1));
    return letterFont;
}

shell::HeaderLayout HeaderArt::Layout() const {
    const QFontMetricsF letters(LetterFont(1));
    return shell::LayOutHeader({height(), invitation_->height(), fontMetrics().height(),
                                letters.ascent(), letters.descent(),
                                shell::HeaderAmplitude / 2 / TwipsPerPixel, LetterSize()});
}

std::vector<QPointF> HeaderArt::Places() const {
    if (IsMoving()) {
        return show_.Places();
    }
    const shell::HeaderLayout layout = Layout();
    const QFontMetricsF metrics(LetterFont(layout.LetterScale));
    const double word = metrics.horizontalAdvance(shell::HeaderText);
    double x = (width() - word) / 2;
    std::vector<QPointF> places;
    for (std::size_t i = 0; i < offsets_.size(); ++i) {
        places.emplace_back(x, layout.Baseline + offsets_[i] * layout.LetterScale / TwipsPerPixel);
        x += metrics.horizontalAdvance(shell::HeaderText[static_cast<qsizetype>(i)]);
    }
    return places;
}

void HeaderArt::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const shell::HeaderLayout layout = Layout();
    if (layout.LetterScale > 0) {
        PaintLetters(painter, LetterFont(layout.LetterScale));
    }
    if (layout.ShowsFoot) {
        PaintFoot(painter);
    }
}

void HeaderArt::PaintLetters(QPainter& painter, const QFont& letterFont) const {
    const std::vector<QPointF> places = Places();
    // A pale rim keeps a letter apart from the ground, whatever its colour.
    const QPen rim(Ink(), 1.2);
    for (std::size_t i = 0; i < letters_.size(); ++i) {
        QPainterPath outline;
        outline.addText(places[i], letterFont, letters_[i]);
        painter.strokePath(outline, rim);
        painter.fillPath(outline, QColor(drawing::ToRgb(colours_[i])));
    }
}

// In a narrow area the version is worth more.
void HeaderArt::PaintFoot(QPainter& painter) const {
    constexpr int apart = 16;
    const QRect lines = rect().adjusted(16, 12, -16, -12);
    PaintLine(painter, lines.left(), versionLocation_);
    const int maker = fontMetrics().horizontalAdvance(Maker);
    if (fontMetrics().horizontalAdvance(versionLocation_) + apart + maker <= lines.width()) {
        PaintLine(painter, lines.right() + 1 - maker, Maker);
    }
}

// A picture has no one colour: a rim of the ground's colour keeps the text apart from it.
void HeaderArt::PaintLine(QPainter& painter, int left, const QString& text) const {
    const QPoint place(left, height() - 12 - fontMetrics().descent());
    if (overPicture_) {
        QPainterPath outline;
        outline.addText(place, font(), text);
        painter.strokePath(outline, QPen(QColor(drawing::ToRgb(backColour_)), 4, Qt::SolidLine,
                                         Qt::RoundCap, Qt::RoundJoin));
    }
    painter.setPen(Ink());
    painter.drawText(place, text);
}

void HeaderArt::resizeEvent(QResizeEvent*) {
    if (IsMoving()) {
        EndShow();
    }
    PlaceInvitation();
}

void HeaderArt::PlaceInvitation() {
    // As large as the width lets it be.
    constexpr int largest = 17;
    constexpr int smallest = 9;
    for (int size = largest; size >= smallest; --size) {
        QFont font = invitation_->font();
        font.setPixelSize(size);
        invitation_->setFont(font);
        invitation_->adjustSize();
        if (invitation_->width() + 8 <= width()) {
            break;
        }
    }
    const int x = (width() - invitation_->width()) / 2;
    invitation_->move(x, Layout().InvitationTop);
}

void HeaderArt::contextMenuEvent(QContextMenuEvent* event) {
    hooks_.Menu(event->globalPos());
}

void HeaderArt::mouseDoubleClickEvent(QMouseEvent*) {
    hooks_.DoubleClick();
}
