// Between the bands the barycentric formula magnifies rounding errors as much as polynomials can grow there that are
// small within the bands: by the reciprocal of the least error, about. Newton's form sums interpolants of rising
// degree. None of them is large when each node is, by the product of the distances, the one farthest from those before
// it (the order of Leja), and each coefficient makes up for the rounding errors of those before it.
#include "fir/newton_form.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

// With it, products of distances neither grow nor shrink over the whole range -1..1.
constexpr Real kScale = 2;

void orderByDistance(std::vector<Node>& nodes)
{
    std::vector<Real> products(nodes.size(), 1);
    for (std::size_t done = 0; done < nodes.size(); ++done) {
        const auto rest = products.begin() + static_cast<std::ptrdiff_t>(done);
        const auto farthest = static_cast<std::size_t>(std::max_element(rest, products.end()) - products.begin());
        std::swap(nodes[done], nodes[farthest]);
        std::swap(products[done], products[farthest]);
        for (std::size_t i = done + 1; i < nodes.size(); ++i)
            products[i] *= std::abs(kScale * (nodes[i].x - nodes[done].x));
    }
}

} // namespace

NewtonForm::NewtonForm(std::vector<Node> nodes) : nodes_{std::move(nodes)}
{
    orderByDistance(nodes_);
    nodes_.pop_back();
    for (const Node& node : nodes_) {
        Real product = 1, sum = 0;
        for (std::size_t k = 0; k < coefficients_.size(); ++k) {
            sum += coefficients_[k] * product;
            product *= kScale * (node.x - nodes_[k].x);
        }
        coefficients_.push_back((node.value - sum) / product);
    }
}

Real NewtonForm::valueAt(Real x) const
{
    Real sum = 0;
    for (std::size_t k = coefficients_.size(); k-- > 0;)
        sum = sum * (kScale * (x - nodes_[k].x)) + coefficients_[k];
    return sum;
}

} // namespace quordsp::backend
