// Whether what was printed stands where the measures of a design put it.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "support/svgpicture.h"

namespace vernacle::test {

// The page has a stroke for each of the lines, from either end, within that distance.
inline void ExpectStrokes(const SvgPicture& page, const std::vector<Shape>& lines,
                          double withinMm) {
    const auto near = [&](MmPoint a, MmPoint b) {
        return std::hypot(a.x - b.x, a.y - b.y) <= withinMm;
    };
    for (const Shape& line : lines) {
        const MmPoint from = line.points.front();
        const MmPoint to = line.points.back();
        const auto isIt = [&](const Shape& found) {
            return found.stroked && found.points.size() == 2 &&
                   ((near(found.points[0], from) && near(found.points[1], to)) ||
                    (near(found.points[0], to) && near(found.points[1], from)));
        };
        EXPECT_TRUE(std::any_of(page.shapes.begin(), page.shapes.end(), isIt))
            << "no line from " << from.x << ", " << from.y;
    }
}

} // namespace vernacle::test
