// The entry for the fuzzing engine: QUORDSP_TARGET is the name of the target.
#include "targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quordsp::fuzz::QUORDSP_TARGET(quordsp::fuzz::Bytes{{data, size}});
    return 0;
}
