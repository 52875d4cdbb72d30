// Medians of the windows of a stretch of samples, for windows of any length. The samples are sorted once; a window is
// then a set of ranks, and its median moves to a neighbouring rank as the window moves by a sample.
#pragma once

#include "median/rank_set.h"

namespace quordsp::backend {

class SlidingMedian {
public:
    // For windows of this length and stretches of up to so many samples. Throws std::bad_alloc.
    SlidingMedian(std::size_t window, std::size_t longest);

    // out[i] = median of x[i] ... x[i+window-1]; x has window - 1 + count samples, no NaN among them.
    void run(const double* x, std::size_t count, double* out);

private:
    using Rank = RankSet::Rank;

    void sort(const double* x, std::size_t size);
    void sortByDigits(std::size_t size);
    void sortAlike(const double* x, std::size_t size);
    Rank enterFirst();
    double middle(Rank lower) const;

    std::size_t window_;
    Buffer<std::uint64_t> order_, scratch_; // a part of the number, then its index
    Buffer<Rank> ranks_;                    // of each sample, from 1 on
    Buffer<> values_;                       // of each rank
    RankSet members_;                       // of the window, and one rank beyond either end
};

} // namespace quordsp::backend
