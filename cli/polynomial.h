// The zeros of a polynomial.
#pragma once
#include <complex>
#include <span>
#include <vector>

namespace quordsp::cli {

// The z at which c[0] + c[1]/z + c[2]/z^2 + ... is 0, c[0] not being 0: as many as there are coefficients after the
// last one that is not 0, less one; those at z = 0 are left out. As exact as the coefficients tell: of a zero of
// multiplicity m, that is a share of 1/m of the digits.
std::vector<std::complex<double>> zerosOf(std::span<const double> coefficients);

} // namespace quordsp::cli
