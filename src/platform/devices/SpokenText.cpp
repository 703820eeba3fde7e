#include "platform/devices/SpokenText.h"

#include <algorithm>

namespace platform {

namespace {

bool IsSpeakable(QChar c) {
    return c.isLetterOrNumber() || c.isSymbol() || c.isSurrogate();
}

bool EndsSentence(QChar c) {
    return c == u'.' || c == u'!' || c == u'?' || c == u';' || c == u'\n';
}

/// Where a piece that begins at @p from ends: behind the last place that suits, if there is one.
qsizetype PieceEnd(const QString& text, qsizetype from, qsizetype longest) {
    const qsizetype limit = from + longest;
    if (limit >= text.size()) {
        return text.size();
    }
    qsizetype blank = limit;
    bool hasBlank = false;
    for (qsizetype i = limit - 1; i > from; --i) {
        if (!text[i].isSpace()) {
            continue;
        }
        if (EndsSentence(text[i - 1]) || text[i] == u'\n') {
            return i;
        }
        blank = hasBlank ? blank : i;
        hasBlank = true;
    }
    const bool splitsPair = !hasBlank && text[limit].isLowSurrogate();
    return splitsPair ? limit - 1 : blank;
}

}  // namespace

bool IsAudible(const QString& text) {
    return std::any_of(text.begin(), text.end(), IsSpeakable);
}

QStringList SpeechPieces(const QString& text, int longest) {
    QStringList pieces;
    for (qsizetype from = 0; from < text.size();) {
        const qsizetype end = PieceEnd(text, from, longest);
        const QString piece = text.mid(from, end - from).trimmed();
        if (IsAudible(piece)) {
            pieces += piece;
        }
        from = end;
        while (from < text.size() && text[from].isSpace()) {
            ++from;
        }
    }
    return pieces;
}

int PieceBound(const QString& piece, int rate, const SpeechBounds& bounds) {
    int time = bounds.Base;
    for (const QChar c : piece) {
        time += c.isLetter() || c.isSpace() ? bounds.Letter : bounds.Digit;
    }
    const int slower = std::clamp(-rate, 0, 10);
    return std::min(time + time * slower / 10, bounds.Whole);
}

int MessageBound(const QStringList& pieces, int rate, const SpeechBounds& bounds) {
    int time = 0;
    for (const QString& piece : pieces) {
        time = std::min(time + bounds.Start + PieceBound(piece, rate, bounds), bounds.Whole);
    }
    return time;
}

}  // namespace platform
