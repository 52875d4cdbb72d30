// Elliptic (Cauer): equal ripples in the pass band, which ends at 1 rad/s, and in the stop band, which begins at 1 / k.
// With e and d the square roots of the excess powers of ripple and attenuation, the power is 1 / (1 + e^2 R^2), R(cd(u
// K, k)) = cd(order u K1, k1), k1 = e / d. The degree equation order K'/K = K1'/K1 makes both sides have the same
// periods, and so sets k.
//
// Elliptic functions are worked out by Landen's transformation: it leads from a modulus to smaller and smaller ones,
// down to 0, where cd is the cosine. There the poles are those of a Chebyshev filter; the way back up takes each to its
// place. Each modulus comes with its complement sqrt(1 - k^2), which could not be had from it near 1.
#include "iir/elementary.h"
#include "iir/ellipse.h"
#include "status.h"

namespace quordsp::backend {
namespace {

struct Modulus {
    Real k, complement;
};

Real arithmeticGeometricMean(Real a, Real b)
{
    while (std::abs(a - b) > 1e-10L * a) {
        const Real mean = (a + b) / 2;
        b = std::sqrt(a * b);
        a = mean;
    }
    return (a + b) / 2;
}

// K'/K: the quarter periods are pi / 2 over the means of 1 and the modulus, 1 and its complement.
Real periodRatio(const Modulus& m)
{
    return arithmeticGeometricMean(1, m.complement) / arithmeticGeometricMean(1, m.k);
}

// The modulus of a period ratio of 1 or more, as a quotient of theta functions. Their series are those of a nome q of
// exp(-pi) or less.
Modulus smallModulus(Real ratio)
{
    const Real q = exponential(-std::numbers::pi_v<Real> * ratio);
    Real theta2 = 1, theta3 = 1, theta4 = 1; // the first over 2 q^(1/4)
    Real square = 1, oblong = 1;             // q^(m m), q^(m (m + 1))
    Real even = 1;                           // q^(2 m)
    for (const Real sign : {-1, 1, -1, 1}) {
        square *= even * q;
        even *= q * q;
        oblong *= even;
        theta2 += oblong;
        theta3 += 2 * square;
        theta4 += 2 * sign * square;
    }
    const Real upper = theta2 / theta3, lower = theta4 / theta3;
    return {4 * std::sqrt(q) * upper * upper, lower * lower};
}

Modulus modulusOf(Real ratio)
{
    if (ratio >= 1)
        return smallModulus(ratio);
    const auto [complement, k] = smallModulus(1 / ratio);
    return {k, complement};
}

// The moduli below m, down to one that counts as 0.
std::vector<Real> landenChain(Modulus m)
{
    require(m.complement > 0, Status::DesignFailed);
    std::vector<Real> chain{m.k};
    while (m.k > 1e-20L) {
        const Real ratio = m.k / (1 + m.complement);
        m = {ratio * ratio, 2 * std::sqrt(m.complement) / (1 + m.complement)};
        chain.push_back(m.k);
    }
    return chain;
}

// From t = sn(j x, k) / j down to the value at modulus 0, which is sinh of the same multiple of the quarter period.
Real descended(Real t, const std::vector<Real>& chain)
{
    for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
        const Real k = chain[i], next = chain[i + 1];
        t = 2 * t / ((1 + next) * (1 + std::sqrt(1 + k * k * t * t)));
    }
    return t;
}

// From s = j cd at modulus 0 up to the first of the chain.
std::complex<Real> ascended(std::complex<Real> s, const std::vector<Real>& chain)
{
    for (std::size_t i = chain.size(); i-- > 1;)
        s = quotient((1 + chain[i]) * s, Real{1} - chain[i] * (s * s));
    return s;
}

Modulus discrimination(Real rippleExcess, Real attenuationExcess, const Tolerances& tolerances)
{
    const Real between = powerExcess(Real{tolerances.attenuation} - tolerances.ripple);
    return {std::sqrt(rippleExcess / attenuationExcess), std::sqrt(between * ((1 + rippleExcess) / attenuationExcess))};
}

} // namespace

Prototype ellipticPrototype(std::int32_t order, const Tolerances& tolerances)
{
    const Real ripple = powerExcess(tolerances.ripple), attenuation = powerExcess(tolerances.attenuation);
    const Modulus k1 = discrimination(ripple, attenuation, tolerances);
    const std::vector<Real> chain = landenChain(modulusOf(periodRatio(k1) / order));
    const Real k = chain.front();
    // The poles solve cd(order u K1, k1) = +-j / e. Solutions beyond half of the period, where cd exceeds 1 / sqrt(k1)
    // and loses digits on the way, are taken from their mirror images: cd there is 1 / (k1 cd).
    const Real direct = 1 / std::sqrt(ripple), mirrored = std::sqrt(attenuation);
    const bool isMirrored = mirrored < direct;
    const PoleEllipse ellipse(order, descended(isMirrored ? mirrored : direct, landenChain(k1)));
    const Real whole = Real{2} * order;
    const auto section = [&](std::int32_t i) {
        const std::complex<Real> s = ascended(ellipse.pole(i), chain);
        const Real zero = 1 / (k * ascended({0, cosPi(i, whole)}, chain).imag());
        return PrototypeSection{isMirrored ? s / (k * std::norm(s)) : s, zero};
    };
    return {sectionsByQuality(order, section), gainAtZero(order, ripple)};
}

} // namespace quordsp::backend
