// The least-squares parabola through a group of consecutive samples, and the sums that determine it.
#pragma once

namespace quordsp::backend {

// Over a group of w samples y at the integers v = -(w - 1), -(w - 3) ... w - 1, twice their distance from its centre.
struct GroupSums {
    double slope;     // sum of v y
    double curvature; // sum of (3 v^2 - (w^2 - 1)) y
    double level;     // sum of y - reference
    double reference;

    bool areFinite() const noexcept;

    // Where the vertex lies from the centre, in a unit of the width alone, positive to the left. The sums are exact for
    // samples of few digits: equal distances then compare equal.
    double vertex() const noexcept { return slope / curvature; }
};

// level + slope u + curvature u^2 at distance u from the centre of the group.
struct Parabola {
    double level;
    double slope;
    double curvature;
    double vertex;

    double heightOfVertex() const noexcept { return level + slope * vertex / 2; }
};

Parabola parabolaOf(const GroupSums& sums, double width) noexcept;

} // namespace quordsp::backend
