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
void findRhymes(Tour& tour);
void makeDemo(Tour& tour);
void showSite(Tour& tour);

}  // namespace lyrebrook
