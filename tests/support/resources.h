// What the process holds of the system, to be compared before and after.
#pragma once
#include <cstddef>
#include <string>
#include <vector>

namespace support {

struct Resources {
    std::size_t handles;
    std::vector<std::string> modules; // by path, sorted
    bool operator==(const Resources&) const = default;
};

Resources heldResources();

// Opens one handle and loses it.
void leakHandle();

} // namespace support
