// Makes the sounds and the music that Tempolark ships with.
//
//   tempolark_sounds FOLDER
//
// Writes FOLDER/SoundFiles/NAME.wav and FOLDER/Music/NAME.wav; make_sounds.sh encodes the music.
// The same program makes the same sounds every time.
#include <cstdio>
#include <filesystem>

#include "Music.h"
#include "Sounds.h"

namespace {

bool Report(bool written, const std::string& path) {
    if (!written) {
        std::fprintf(stderr, "Can't write %s\n", path.c_str());
    }
    return written;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: tempolark_sounds FOLDER\n");
        return 2;
    }
    const std::string folder = argv[1];
    std::error_code error;  // a folder that can't be made shows when the first file is written
    std::filesystem::create_directories(folder + "/SoundFiles", error);
    std::filesystem::create_directories(folder + "/Music", error);
    bool good = true;
    for (const sounds::Sound& sound : sounds::AllSounds()) {
        const std::string path = folder + "/SoundFiles/" + sound.Name + ".wav";
        good &= Report(sounds::WriteWav(path, sounds::SynthesisRate / 2, Finish(sound)), path);
    }
    for (const sounds::Piece& piece : sounds::AllPieces()) {
        const std::string path = folder + "/Music/" + piece.Name + ".wav";
        const sounds::Stereo played = piece.Play();
        good &=
            Report(sounds::WriteWav(path, sounds::SynthesisRate, played.Left, &played.Right), path);
    }
    return good ? 0 : 1;
}
