#include "shell/ui/HeaderArt.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include "drawing/Surface.h"
#include "foundation/Twips.h"

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
    QFont font = invitation_->font();
    font.setPixelSize(17);
    invitation_->setFont(font);
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
    const QColor ink = Ink();
    invitation_->setStyleSheet(
        u"QPushButton { color: %1; background: rgba(128, 128, 128, 60); border: 1px solid %1;"
        " border-radius: 6px; padding: 9px 22px; }"
        "QPushButton:hover, QPushButton:focus { background: rgba(128, 128, 128, 130); }"_s.arg(
            ink.name()));
    PlaceInvitation();
    update();
}

void HeaderArt::SetVersionLocation(const QString& text) {
    versionLocation_ = text;
    update();
}

QColor HeaderArt::Ink() const {
    return QColor(drawing::ToRgb(backColour_)).lightness() > 128 ? QColor(40, 50, 65)
                                                                 : QColor(225, 230, 238);
}

// As large as the area lets the word be.
QFont HeaderArt::LetterFont() const {
    QFont letterFont = font();
    letterFont.setFamilies({u"DejaVu Serif"_s, u"serif"_s});
    letterFont.setBold(true);
    letterFont.setPixelSize(std::clamp(width() / 17, 14, 64));
    return letterFont;
}

double HeaderArt::Baseline() const {
    return height() * 0.36;
}

std::vector<QPointF> HeaderArt::Places() const {
    if (IsMoving()) {
        return show_.Places();
    }
    const QFontMetricsF metrics(LetterFont());
    const double word = metrics.horizontalAdvance(shell::HeaderText);
    double x = (width() - word) / 2;
    std::vector<QPointF> places;
    for (std::size_t i = 0; i < offsets_.size(); ++i) {
        places.emplace_back(x, Baseline() + offsets_[i] / TwipsPerPixel);
        x += metrics.horizontalAdvance(shell::HeaderText[static_cast<qsizetype>(i)]);
    }
    return places;
}

void HeaderArt::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFont letterFont = LetterFont();
    const std::vector<QPointF> places = Places();
    // A pale rim keeps a letter apart from the ground, whatever its colour.
    const QPen rim(Ink(), 1.2);
    for (std::size_t i = 0; i < letters_.size(); ++i) {
        QPainterPath outline;
        outline.addText(places[i], letterFont, letters_[i]);
        painter.strokePath(outline, rim);
        painter.fillPath(outline, QColor(drawing::ToRgb(colours_[i])));
    }
    painter.setPen(Ink());
    const QRect lines = rect().adjusted(16, 12, -16, -12);
    painter.drawText(lines, Qt::AlignBottom | Qt::AlignLeft, versionLocation_);
    painter.drawText(lines, Qt::AlignBottom | Qt::AlignRight, Maker);
}

void HeaderArt::resizeEvent(QResizeEvent*) {
    if (IsMoving()) {
        EndShow();
    }
    PlaceInvitation();
}

void HeaderArt::PlaceInvitation() {
    invitation_->adjustSize();
    const int x = (width() - invitation_->width()) / 2;
    invitation_->move(x, static_cast<int>(Baseline()) + 110);
}

void HeaderArt::contextMenuEvent(QContextMenuEvent* event) {
    hooks_.Menu(event->globalPos());
}

void HeaderArt::mouseDoubleClickEvent(QMouseEvent*) {
    hooks_.DoubleClick();
}
