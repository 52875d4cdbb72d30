// Where tests find the modules that they load, and where they may put files of their own.
#pragma once
#include <filesystem>

namespace support {

// A module below <build>/fakes.
std::filesystem::path fake(const std::filesystem::path& relative);

// A folder of the running test's own, empty at first. What a test leaves in it, the next run of the test removes.
std::filesystem::path ownFolder();

// A copy in that folder, for instance of a fake to be found there; missing folders on the way are made.
std::filesystem::path copyTo(const std::filesystem::path& target, const std::filesystem::path& source);

} // namespace support
