// Barycentric Lagrange interpolation in x = cos(2 pi f). Each x counts as exact once it is rounded, so that differences
// of neighbours lose nothing. The formula is accurate wherever the polynomials that are 1 at one node and 0 at the
// others stay small: within the bands, not between them.
#include "fir/interpolant.h"

#include <algorithm>
#include <array>

namespace quordsp::backend {
namespace {

// Products of hundreds of small differences leave the range of the type: they are kept as product * kScale^-power.
class Product {
public:
    void multiply(Real factor)
    {
        product_ *= factor;
        if (std::abs(product_) < 1 / kScale) {
            product_ *= kScale;
            ++power_;
        }
    }

    int power() const { return power_; }

    // Times kScale^-power; what is negligible beside other reciprocals becomes 0.
    Real reciprocal(int power) const
    {
        if (power - power_ > 1)
            return 0;
        return power == power_ ? 1 / product_ : 1 / product_ / kScale;
    }

private:
    static constexpr Real kScale = 0x1p4000L;
    Real product_ = 1;
    int power_ = 0;
};

// A product is brought back into range after so many factors, none of which is below 2^-64.
constexpr std::size_t kFactors = 16;

// Of the distances of Count nodes, side by side, from all others.
template <std::size_t Count>
std::array<Product, Count> productsOf(const std::vector<Node>& nodes, std::size_t first)
{
    std::array<Product, Count> products;
    for (std::size_t begin = 0; begin < nodes.size(); begin += kFactors) {
        std::array<Real, Count> factors;
        factors.fill(1);
        const std::size_t end = std::min(begin + kFactors, nodes.size());
        for (std::size_t k = begin; k < end; ++k)
            for (std::size_t i = 0; i < Count; ++i)
                factors[i] *= first + i == k ? 1 : nodes[first + i].x - nodes[k].x;
        for (std::size_t i = 0; i < Count; ++i)
            products[i].multiply(factors[i]);
    }
    return products;
}

std::vector<Real> barycentricWeights(const std::vector<Node>& nodes)
{
    constexpr std::size_t kSideBySide = 4;
    std::vector<Product> products;
    products.reserve(nodes.size());
    while (products.size() + kSideBySide <= nodes.size())
        for (const Product& product : productsOf<kSideBySide>(nodes, products.size()))
            products.push_back(product);
    while (products.size() < nodes.size())
        products.push_back(productsOf<1>(nodes, products.size())[0]);
    const int power = std::ranges::max_element(products, {}, &Product::power)->power();
    std::vector<Real> weights(nodes.size());
    std::ranges::transform(products, weights.begin(), [power](const Product& p) { return p.reciprocal(power); });
    return weights;
}

} // namespace

std::optional<Interpolant> Interpolant::through(const Approximation& approximation, const Reference& reference)
{
    Interpolant result{approximation};
    result.nodes_.reserve(reference.size());
    for (const Place& place : reference)
        result.nodes_.push_back({cosineOfTurns(place.f), 0});
    const std::vector<Real> weights = barycentricWeights(result.nodes_);
    result.setValues(reference, weights);
    result.setTerms(weights);
    if (!result.isFinite())
        return std::nullopt;
    return result;
}

void Interpolant::setValues(const Reference& reference, const std::vector<Real>& weights)
{
    const auto bandOf = [&](const Place& place) -> const ApproximationBand& {
        return approximation_->bands[place.band];
    };
    std::vector<Real> gains(reference.size());
    std::ranges::transform(reference, gains.begin(), [&](const Place& place) { return approximation_->gain(place); });
    Real above = 0, below = 0, sign = 1;
    for (std::size_t i = 0; i < nodes_.size(); ++i, sign = -sign) {
        const Real share = weights[i] / gains[i];
        above += share * bandOf(reference[i]).desired;
        below += share * sign / bandOf(reference[i]).weight;
    }
    delta_ = above / below;
    sign = 1;
    for (std::size_t i = 0; i < nodes_.size(); ++i, sign = -sign) {
        const ApproximationBand& band = bandOf(reference[i]);
        nodes_[i].value = (band.desired - sign * delta_ / band.weight) / gains[i];
    }
}

// An even number of them: a last one may be without weight.
void Interpolant::setTerms(const std::vector<Real>& weights)
{
    terms_.reserve(nodes_.size() + 1);
    for (std::size_t i = 0; i < nodes_.size(); ++i)
        terms_.push_back({nodes_[i].x, weights[i], weights[i] * nodes_[i].value});
    if (terms_.size() % 2 != 0)
        terms_.push_back({2, 0, 0});
}

bool Interpolant::isFinite() const
{
    return std::isfinite(delta_) && std::ranges::all_of(terms_, [](const Term& term) {
               return std::isfinite(term.weight) && std::isfinite(term.weightedValue);
           });
}

// Two terms share a division, which costs more than all the rest.
Real Interpolant::valueAt(Real x) const
{
    Real above = 0, below = 0;
    for (std::size_t i = 0; i < terms_.size(); i += 2) {
        const Term &a = terms_[i], &b = terms_[i + 1];
        const Real toA = x - a.x, toB = x - b.x;
        if (toA == 0 || toB == 0)
            return nodes_[toA == 0 ? i : i + 1].value;
        const Real scale = 1 / (toA * toB);
        above += (a.weightedValue * toB + b.weightedValue * toA) * scale;
        below += (a.weight * toB + b.weight * toA) * scale;
    }
    return above / below;
}

Real Interpolant::error(const Place& place) const
{
    return approximation_->error(place, approximation_->gain(place) * valueAt(cosineOfTurns(place.f)));
}

void Interpolant::evaluate(std::size_t band, std::span<const Real> f, Real* errors) const
{
    for (std::size_t i = 0; i < f.size(); ++i)
        errors[i] = error({f[i], band});
}

} // namespace quordsp::backend
