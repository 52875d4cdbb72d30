// The modules of the run-time that the host process may have loaded, in the order in which they are asked for. The
// library loads none of them itself.
#pragma once
#include <array>

namespace quordsp {

inline constexpr std::array kRunTimeModules{"cvirte.dll", "instrsup.dll", "cvi_lvrt.dll"};

} // namespace quordsp
