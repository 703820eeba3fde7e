#include "editor/ui/CellPainter.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

#include "editor/ui/GridModel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 5;
constexpr int SwatchMargin = 4;
constexpr int MostMeasured = 300;  // characters

QStyle* StyleOf(const QStyleOptionViewItem& option) {
    return option.widget != nullptr ? option.widget->style() : QApplication::style();
}

/// Takes a piece of this width off the front of @p rest.
QRect TakeFront(QRect& rest, int width, int height) {
    const QRect piece(rest.left(), rest.top() + (rest.height() - height) / 2, width, height);
    rest.setLeft(std::min(rest.left() + width + Gap, rest.right() + 1));
    return piece;
}

int SwatchSize(const QRect& cell) {
    return std::max(cell.height() - 2 * SwatchMargin, 4);
}

QSize PictureSize(const QRect& cell, const QPixmap& picture) {
    const int height = std::max(cell.height() - 4, 4);
    const QSize own = picture.deviceIndependentSize().toSize();
    return own.height() > height ? own.scaled(3 * height, height, Qt::KeepAspectRatio) : own;
}

QSize CheckSize(const QStyleOptionViewItem& option) {
    const QStyle* style = StyleOf(option);
    return {style->pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
            style->pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget)};
}

void Mirror(CellParts& parts, const QRect& cell) {
    for (QRect* part : {&parts.Check, &parts.Swatch, &parts.Picture, &parts.Text, &parts.Button}) {
        if (!part->isEmpty()) {
            *part = QStyle::visualRect(Qt::RightToLeft, cell, *part);
        }
    }
}

// Styles draw the outline of a box in a shade of the window's colour, which is lost on a dark one.
void PaintCheck(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect,
                bool isChecked) {
    QStyleOptionButton box;
    box.rect = rect;
    box.palette = option.palette;
    box.state = QStyle::State_Enabled | (isChecked ? QStyle::State_On : QStyle::State_Off);
    if (option.palette.color(QPalette::Base).lightness() < 128) {
        box.palette.setColor(QPalette::Window, QColor(0xA0, 0xA0, 0xA0));
    }
    StyleOf(option)->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, option.widget);
}

void PaintSwatch(QPainter& painter, const QRect& rect, const QBrush& fill, const QColor& line) {
    painter.translate(rect.topLeft());  // where a pattern begins
    painter.fillRect(QRect({}, rect.size()), fill);
    painter.translate(-rect.topLeft());
    QColor edge = line;
    edge.setAlphaF(0.5F);
    painter.setPen(edge);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

void PaintButton(QPainter& painter, const QStyleOptionViewItem& option, const QRect& rect,
                 bool hasArrow) {
    QStyleOptionButton button;
    button.rect = rect;
    button.text = hasArrow ? QString() : u"..."_s;
    button.palette = option.palette;
    button.fontMetrics = option.fontMetrics;
    button.state = QStyle::State_Enabled | QStyle::State_Raised;
    StyleOf(option)->drawControl(QStyle::CE_PushButton, &button, &painter, option.widget);
    if (hasArrow) {
        const int side = rect.height() / 2;
        button.rect = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {side, side}, rect);
        StyleOf(option)->drawPrimitive(QStyle::PE_IndicatorArrowDown, &button, &painter,
                                       option.widget);
    }
}

QColor TextColor(const QStyleOptionViewItem& option, const CellLook& look) {
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    if (isSelected) {
        return option.palette.color(QPalette::HighlightedText);
    }
    if (look.ForeColor.isValid()) {
        return look.ForeColor;
    }
    return option.palette.color(look.Quiet ? QPalette::PlaceholderText : QPalette::Text);
}

}  // namespace

CellParts PartsOf(const QRect& cell, const CellLook& look, bool isCurrent,
                  const QStyleOptionViewItem& option) {
    CellParts parts;
    QRect rest = cell;
    if (look.Button && isCurrent) {
        const int width = std::min(cell.height() + Gap, cell.width());
        parts.Button = QRect(cell.right() + 1 - width, cell.top(), width, cell.height());
        rest.setRight(parts.Button.left() - 1);
    }
    rest.adjust(Gap, 0, -Gap, 0);
    if (look.Check) {
        const QSize size = CheckSize(option);
        parts.Check = TakeFront(rest, size.width(), size.height());
    }
    if (look.Swatch) {
        parts.Swatch = TakeFront(rest, SwatchSize(cell), SwatchSize(cell));
    }
    if (!look.Picture.isNull()) {
        const QSize size = PictureSize(cell, look.Picture);
        parts.Picture = TakeFront(rest, size.width(), size.height());
    }
    parts.Text = rest;
    if (option.direction == Qt::RightToLeft) {
        Mirror(parts, cell);
    }
    return parts;
}

QFont FontOf(const QFont& own, const CellLook& look, bool isStruckThrough) {
    QFont font = own;
    if (!look.FontFamily.isEmpty()) {
        font.setFamily(look.FontFamily);
    }
    font.setBold(look.Bold || own.bold());
    font.setStrikeOut(isStruckThrough || own.strikeOut());
    return font;
}

void PaintCell(QPainter& painter, const QStyleOptionViewItem& option, const CellParts& parts,
               const CellLook& look) {
    painter.save();
    if (look.Check) {
        PaintCheck(painter, option, parts.Check, *look.Check);
    }
    if (look.Swatch) {
        PaintSwatch(painter, parts.Swatch, *look.Swatch, TextColor(option, {}));
    }
    if (!look.Picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(parts.Picture, look.Picture);
    }
    // No letter is narrower than a pixel, so that what lies behind is never seen.
    const QString text = OneLine(option.text, std::max(parts.Text.width(), 0) + 1);
    painter.setFont(option.font);
    painter.setPen(TextColor(option, look));
    const QFontMetrics metrics(option.font);
    const Qt::Alignment align = QStyle::visualAlignment(option.direction, option.displayAlignment);
    painter.drawText(parts.Text, int(align) | Qt::TextSingleLine,
                     metrics.elidedText(text, Qt::ElideRight, parts.Text.width()));
    if (!parts.Button.isEmpty()) {
        PaintButton(painter, option, parts.Button, look.Arrow);
    }
    painter.restore();
}

int WidthOf(const QString& text, const CellLook& look, const QStyleOptionViewItem& option) {
    const CellParts parts = PartsOf(option.rect, look, true, option);
    const int decorations = option.rect.width() - parts.Text.width();
    return decorations + QFontMetrics(option.font).horizontalAdvance(OneLine(text, MostMeasured)) +
           1;
}
