// Scratch memory for a complex array, held as two real ones.
#pragma once

#include "transform/work.h"

namespace quordsp::backend {

class SplitBuffer {
public:
    explicit SplitBuffer(std::size_t n) : n_(n), values_(n <= kMostElements ? Work::sizeOf(n) : n) {}

    Split get() const { return Work(values_.get()).take(n_); }
    operator Split() const { return get(); }
    operator ConstSplit() const { return get(); }

private:
    std::size_t n_;
    AlignedBuffer values_;
};

} // namespace quordsp::backend
