#pragma once

#include <string>
#include <vector>

#include "Wave.h"

/// Three calm pieces, composed for this program as tables of notes.
namespace sounds {

struct Piece {
    std::string Name;  ///< of the file, without its ending
    Stereo (*Play)();
};

std::vector<Piece> AllPieces();

Stereo MorningStrings();
Stereo LittleWaltz();
Stereo StillWater();

/// The two ears brought to one level below full scale, their ends silent.
void FinishPiece(Stereo& piece, double fadeOut);

}  // namespace sounds
