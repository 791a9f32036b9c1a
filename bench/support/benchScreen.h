#pragma once

namespace lyrebrook {

/// The main function of a program that measures screens: runs `measure` with an application in the program's own dress.
/// Returns the exit code.
int benchScreen(int argc, char* argv[], void (*measure)());

}  // namespace lyrebrook
