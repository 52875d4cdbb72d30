// The transforms of split arrays, in place, any size. Forward without a factor, inverse with 1/n.
#pragma once

#include <cstdint>

namespace quordsp::backend {

void fft(double* re, double* im, std::int64_t n);
void inverseFft(double* re, double* im, std::int64_t n);

// re: the signal, becomes the real part of all n bins; im receives the imaginary part and is not read.
void realFft(double* re, double* im, std::int64_t n);

// re: the real part of the spectrum, becomes the signal; im is only read. Bins above n/2 are not looked at.
void inverseRealFft(double* re, const double* im, std::int64_t n);

} // namespace quordsp::backend
