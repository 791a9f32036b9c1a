// Writes the song that ships with the program as a standard MIDI file: makeDemoTrack FILE.
#include <fstream>
#include <iostream>

#include "DemoSong.h"
#include "composer/score.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: makeDemoTrack FILE\n";
        return 2;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    file << lyrebrook::scoreOf(lyrebrook::demoSong());
    file.close();
    if (!file) std::cerr << arguments[1] << ": can't be written\n";
    return file ? 0 : 1;
}
