// The Remez exchange: from a reference to the one whose polynomial has the least possible largest error.
#pragma once

#include "fir/interpolant.h"
#include "status.h"

namespace quordsp::backend {

struct Solution {
    std::vector<Node> nodes; // of the polynomial
    Reference extrema;       // where its error is largest, the signs in turn
    Real largestError;
};

// What an entry spends on its designs: an exchange costs the square of its places, or 16 times as much in extended
// precision. Beyond the most, which takes up to half a minute, it throws DesignFailed.
class Effort {
public:
    static constexpr Real kMost = 4e9L;

    int exchanges() const { return exchanges_; }
    Real spent() const { return spent_; }
    void spend(Real cost)
    {
        spent_ += cost;
        ++exchanges_;
        require(spent_ <= kMost, Status::DesignFailed);
    }

private:
    Real spent_ = 0;
    int exchanges_ = 0;
};

// How close to the least one the largest error has to come, in proportion to it; and from where on it will do anyhow.
struct Aim {
    Real tolerance;
    Real sufficient;
};

// Null when the exchange does not settle, which only too few digits or too little room between the places can cause.
std::optional<Solution> exchange(const Approximation& approximation, const Reference& reference, const Aim& aim,
                                 Effort& effort);

} // namespace quordsp::backend
