// The bound entries, one object a row of the table: entry::Bw_LPF(in, widen(n), ...) calls the backend.
#pragma once
#include "frame/entry.h"

namespace quordsp::entry {

using namespace signature;

#define ENTRY(stem, name, ...) inline constexpr Entry<__VA_ARGS__, #name> stem{};
#include "frame/entries.def"
#undef ENTRY

} // namespace quordsp::entry
