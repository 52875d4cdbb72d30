// The two orders in which the bins of a spectrum stand: from frequency 0 up, or shifted, with frequency 0 at the
// centre: for an even size the first bin is the one at half the sampling rate, for an odd size the most negative one.
#pragma once

#include <cstddef>

namespace quordsp::backend {

class BinOrder {
public:
    BinOrder(std::size_t n, bool shifted) : n_(n), centre_(shifted ? n / 2 : 0) {}

    // Where bin k stands.
    std::size_t placeOf(std::size_t k) const { return k < n_ - centre_ ? k + centre_ : k + centre_ - n_; }

private:
    std::size_t n_;
    std::size_t centre_;
};

} // namespace quordsp::backend
