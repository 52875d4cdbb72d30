// A polynomial through nodes, in a form that is accurate between the bands too.
#pragma once

#include "fir/interpolant.h"

namespace quordsp::backend {

class NewtonForm {
public:
    // One of the nodes is left out: as many coefficients as the reference of the nodes is for do without it.
    explicit NewtonForm(std::vector<Node> nodes);

    Real valueAt(Real x) const;

private:
    std::vector<Node> nodes_;
    std::vector<Real> coefficients_;
};

} // namespace quordsp::backend
