// The instruction sets that kernels are compiled for, and the choice among them at run time.
//
// A kernel is a function of plain loops that the compiler vectorises; it and all that it calls is always_inline. Each
// version is the same code compiled for another set, so that all of them give the same bits as long as the code itself
// fixes every order of operations: nothing is contracted or reassociated in any of them.
#pragma once
#include <cstdint>

namespace quordsp {

enum class InstructionSet : std::uint8_t {
    Baseline, // what every 64-bit x86 processor has
    Avx2,
    Avx512, // F, BW, DQ and VL
};

// The best one that this machine and its system support.
InstructionSet bestInstructionSet() noexcept;

template <auto kernel>
struct Versions;

template <class R, class... Args, R (*kernel)(Args...) noexcept>
struct Versions<kernel> {
    using Function = R (*)(Args...) noexcept;

    static R baseline(Args... args) noexcept { return kernel(args...); }
    [[gnu::target("avx2")]] static R avx2(Args... args) noexcept { return kernel(args...); }
    [[gnu::target("avx512f,avx512bw,avx512dq,avx512vl")]] static R avx512(Args... args) noexcept
    {
        return kernel(args...);
    }

    static Function of(InstructionSet set) noexcept
    {
        constexpr Function kFunctions[] = {baseline, avx2, avx512};
        return kFunctions[static_cast<int>(set)];
    }
};

// Calls the version for this machine.
template <auto kernel, class... Args>
auto onThisMachine(Args... args) noexcept
{
    return Versions<kernel>::of(bestInstructionSet())(args...);
}

} // namespace quordsp
