#pragma once

#include <QStringList>

/// How a text is handed to an engine, and how long it may take to speak.
namespace platform {

/// The bounds of a message, in milliseconds.
struct SpeechBounds {
    int Turn = 10'000;    ///< waiting for one's turn, beyond what the messages ahead may take
    int Start = 10'000;   ///< from a text's hand-over until the engine, fresh maybe, speaks it
    int Base = 3'000;     ///< what every piece of text may take,
    int Letter = 150;     ///< and more for each of its characters,
    int Digit = 600;      ///< and for each digit: "7" takes as long as "seven"
    int Whole = 120'000;  ///< all pieces of one message
};

/// Whether anything of @p text can be heard. Engines are known to wait for ever for the sound of
/// "...".
bool IsAudible(const QString& text);

/// The text in pieces of at most @p longest characters, cut behind a sentence where there is one,
/// else at a blank. An engine prepares all of a text before its first sound and can't be stopped
/// meanwhile, so it gets no more than a piece at a time. Pieces that can't be heard are left out.
QStringList SpeechPieces(const QString& text, int longest = 250);

/// The time a piece may take at a rate of -10 (half as fast) to 10.
int PieceBound(const QString& piece, int rate, const SpeechBounds& bounds);

/// The time a message may take from its turn on: its pieces and their hand-over, but no more than
/// the whole of a message.
int MessageBound(const QStringList& pieces, int rate, const SpeechBounds& bounds);

}  // namespace platform
