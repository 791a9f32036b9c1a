#pragma once

#include "Tour.h"

namespace lyrebrook {

/// The stations of the walk, each beginning where the one before ended.
void openProgram(Tour& tour);
void createSong(Tour& tour);
void chooseBacktrack(Tour& tour);
void recordBacktrack(Tour& tour);
void singVoices(Tour& tour);
void writeLyrics(Tour& tour);
void adjustLevels(Tour& tour);
void makeDemo(Tour& tour);
void showSite(Tour& tour);

/// What is done beside the recorder, while a song is open.
void printLyrics(Tour& tour);
void findRhymes(Tour& tour);

}  // namespace lyrebrook
