// The library under test, loaded at run time: EXPORT(QuorDSP_FFT) is the function of that name in its export table.
#pragma once
#include "QuorDSP_DAQ.h"
#include "support/module.h"

namespace support {

// Loaded on first use, from a folder where it stands alone; stays loaded.
const Module& library();

// Has it loaded from another place; to be said before its first use.
void useLibrary(const std::filesystem::path& file);

} // namespace support

#define EXPORT(name) (support::library().function<decltype(name)>(#name))
