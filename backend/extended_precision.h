// long double has 64 bits of mantissa on x86 only as long as the thread's control word says so. Windows starts threads
// with 53; while an ExtendedPrecision lives, this one has 64.
#pragma once

#include <cstdint>

namespace quordsp::backend {

class ExtendedPrecision {
public:
    ExtendedPrecision(const ExtendedPrecision&) = delete;
    ExtendedPrecision& operator=(const ExtendedPrecision&) = delete;
#if defined(__x86_64__)
    ExtendedPrecision()
    {
        asm volatile("fnstcw %0" : "=m"(callersWord_));
        const auto extended = static_cast<std::uint16_t>(callersWord_ | 0x0300);
        asm volatile("fldcw %0" : : "m"(extended) : "memory");
    }
    ~ExtendedPrecision() { asm volatile("fldcw %0" : : "m"(callersWord_) : "memory"); }

private:
    std::uint16_t callersWord_;
#else
    ExtendedPrecision() = default;
#endif
};

template <class Body>
[[gnu::noinline]] auto callApart(const Body& body)
{
    return body();
}

// What body computes stands in a function of its own, so that the compiler cannot move it out of the guarded stretch.
template <class Body>
auto inExtendedPrecision(const Body& body)
{
    const ExtendedPrecision precision;
    return callApart(body);
}

} // namespace quordsp::backend
