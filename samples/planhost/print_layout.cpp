#include "print_layout.h"

#include <algorithm>
#include <cmath>

PrintLayout LayOutPrint(const Plan& plan, const Paper& paper, double reduction) {
    const double across = paper.dots.cx / paper.dotsAcross; // millimetres of paper
    const double down = paper.dots.cy / paper.dotsDown;
    if (reduction <= 0)
        return {std::max(plan.width / across, plan.height / down), 1, 1};
    // A sheet of a hair's breadth is none.
    const auto sheets = [&](long length, double room) {
        return std::max(1, static_cast<int>(std::ceil(length / reduction / room - 1e-6)));
    };
    return {reduction, sheets(plan.width, across), sheets(plan.height, down)};
}
