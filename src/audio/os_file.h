// The fence to the operating system for the files that the library writes. os_file_windows.cpp and os_file_posix.cpp
// are its two bodies.
#pragma once
#include <cstddef>
#include <span>

namespace quordsp::os {

// Makes the bytes the whole content of a file, which is created or replaced; the path is in the system's narrow
// encoding. The bytes go to the system in one call; in a few where it takes no more than 2 GB at once. False when the
// file cannot be created, which leaves everything as it was, and when not all bytes could be written: what was written
// is then removed again, so that no incomplete file is left.
bool writeFile(const char* path, std::span<const std::byte> bytes) noexcept;

// Says that all of this memory is about to be written, so that the system may provide it in large pieces.
void expectToFill(std::span<std::byte> memory) noexcept;

} // namespace quordsp::os
