#pragma once

#include <QWidget>
#include <functional>

#include "foundation/Program.h"
#include "platform/WallClock.h"
#include "shell/HeaderLayout.h"
#include "shell/HeaderLetters.h"

class QPushButton;

/// What stands on the shell while no clock is open: seventeen letters in one of a few variations,
/// where and what this program is, and an invitation to begin.
class HeaderArt final : public QWidget {
    Q_OBJECT

public:
    /// What the user does here; all three must be there.
    struct Hooks {
        std::function<void()> Invited;  ///< the invitation was clicked
        std::function<void(const QPoint& onScreen)> Menu;
        std::function<void()> DoubleClick;
    };

    HeaderArt(const Program& program, Hooks hooks, QWidget* parent);

    /// The opening show, of about two seconds: the letters fly in, and are then placed and coloured
    /// by @p headingVariation. While it runs another call only changes that; a change of size ends
    /// it.
    void ShowHeaderAnimation(const QString& headingVariation);
    bool IsMoving() const { return ticker_->Interval() != 0; }

    /// Places and colours the letters by a value of "Heading Variation". "Rotation" leaves the
    /// places as they are.
    void ApplyHeaderStyle(const QString& headingVariation);

    /// The same for a code; 5 takes one of the others by chance.
    void ApplyHeaderCode(int code);

    /// What the letters stand on: red in the low byte.
    void SetBackColour(int colour);

    /// Whether a picture covers that colour; texts then bring it along as their ground.
    void SetOverPicture(bool over);
    bool IsOverPicture() const { return overPicture_; }
    /// The line at the foot, at the left. It is not shown where the area is too low for it.
    void SetVersionLocation(const QString& text);

    /// The letters as they are drawn at this moment, and their colours (red in the low byte).
    /// During the show the first of them is a word.
    const std::vector<QString>& Letters() const { return letters_; }
    const std::vector<int>& Colours() const { return colours_; }
    /// Where each letter begins on its base line, in logical pixels.
    std::vector<QPointF> Places() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void EndShow();
    void PlaceInvitation();
    shell::HeaderLayout Layout() const;
    /// Of the letters at full scale, in logical pixels: a 17th of the width, between 14 and 64.
    int LetterSize() const;
    QFont LetterFont(double scale) const;
    void PaintLetters(QPainter& painter, const QFont& letterFont) const;
    void PaintFoot(QPainter& painter) const;
    void PaintLine(QPainter& painter, int left, const QString& text) const;
    /// Gives the button the colours that can be read on the ground.
    void DressInvitation();
    /// What can be read on the back colour.
    QColor Ink() const;

    Program program_;
    Hooks hooks_;
    std::unique_ptr<platform::Ticker> ticker_;
    QString variation_;
    int backColour_ = 0;
    bool overPicture_ = false;
    QString versionLocation_;
    std::vector<QString> letters_;
    std::vector<double> offsets_;  ///< twips below the line
    std::vector<int> colours_;
    shell::HeaderShow show_;
    QPushButton* invitation_;
};
