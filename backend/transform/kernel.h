// The choice among the versions of a kernel, whose vectors are as wide as the registers of an instruction set.
#pragma once

#include "cpu/instruction_set.h"

namespace quordsp::backend {

// One kernel for the registers of each instruction set.
template <auto kOfTwo, auto kOfFour, auto kOfEight>
auto forThisMachine()
{
    constexpr decltype(kOfTwo) functions[] = {Versions<kOfTwo>::baseline, Versions<kOfFour>::avx2,
                                              Versions<kOfEight>::avx512};
    return functions[static_cast<int>(bestInstructionSet())];
}

} // namespace quordsp::backend
