#include "cpu/instruction_set.h"

namespace quordsp {

InstructionSet bestInstructionSet() noexcept
{
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512vl"))
        return InstructionSet::Avx512;
    return __builtin_cpu_supports("avx2") ? InstructionSet::Avx2 : InstructionSet::Baseline;
}

} // namespace quordsp
