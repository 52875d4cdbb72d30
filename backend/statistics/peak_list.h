// Peaks on their way to the caller, who gets three arrays of std::malloc.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace quordsp::backend {

struct Peak {
    double location;
    double amplitude;
    double secondDerivative;
};

class PeakList {
public:
    // Throws std::bad_alloc. What is never used of the room takes no memory of the machine but its address.
    explicit PeakList(std::size_t most);

    void add(const Peak& peak) noexcept;

    // Gives the arrays away, cut to their length; never null.
    void handOver(std::int64_t* count, double** locations, double** amplitudes, double** secondDerivatives) noexcept;

private:
    struct Free {
        void operator()(double* memory) const noexcept { std::free(memory); }
    };
    using Array = std::unique_ptr<double[], Free>;

    static Array allocate(std::size_t count);
    double* cut(Array& array) const noexcept;

    Array locations_;
    Array amplitudes_;
    Array secondDerivatives_;
    std::size_t count_ = 0;
};

} // namespace quordsp::backend
