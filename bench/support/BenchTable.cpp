#include "support/BenchTable.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace lyrebrook {
namespace {

constexpr int rounds = 7;

double median(std::vector<double> figures) {
    const auto middle = figures.begin() + rounds / 2;
    std::ranges::nth_element(figures, middle);
    return *middle;
}

}  // namespace

void sideBySide(const BenchLine& line, const std::function<double()>& ours, const std::function<double()>& theirs) {
    std::vector<double> first;
    std::vector<double> second;
    for (int round = 0; round < rounds; ++round) {
        first.push_back(ours());
        second.push_back(theirs());
    }
    const double our = median(first);
    const double their = median(second);
    const double ratio = our / their;
    std::printf("%-22s %10.3f %-3s %10.3f %-3s %-36s %8.4f %8.4f  %s\n", line.name.c_str(), our, line.unit.c_str(),
                their, line.unit.c_str(), line.reference.c_str(), ratio, line.limit,
                ratio <= line.limit ? "ok" : "TOO MUCH");
    std::printf("RATIO %s %.4f %.4f\n", line.name.c_str(), ratio, line.limit);
    std::fflush(stdout);
}

void besideFigure(const BenchLine& line, double figure, const std::function<double()>& ours) {
    sideBySide(line, ours, [figure] { return figure; });
}

}  // namespace lyrebrook
