#pragma once

#include <functional>
#include <string>

namespace lyrebrook {

/// A line of the table: what we need, what something else needs for as much, and how many times the one the other may
/// be at most.
struct BenchLine {
    std::string name;       ///< lower case with dashes, for whoever reads the table by machine
    std::string reference;  ///< what the second figure belongs to, to be read
    std::string unit;
    double limit = 1;
};

/// Measures both in turns, so that a machine that is busy for a while is so for both; the figures of a line are medians
/// of seven. Prints the line.
void sideBySide(const BenchLine& line, const std::function<double()>& ours, const std::function<double()>& theirs);

/// The same beside a figure that is settled.
void besideFigure(const BenchLine& line, double figure, const std::function<double()>& ours);

}  // namespace lyrebrook
