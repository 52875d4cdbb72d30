// A file that a test has had written, as numbers to compare.
#pragma once
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace quordsp::test {

// The bytes of the file, which is removed; none where there is no file.
inline std::vector<double> takeBytes(const std::filesystem::path& path)
{
    std::vector<double> bytes;
    {
        std::ifstream file{path, std::ios::binary};
        for (auto byte = std::istreambuf_iterator<char>{file}; byte != std::istreambuf_iterator<char>{}; ++byte)
            bytes.push_back(static_cast<unsigned char>(*byte));
    }
    std::filesystem::remove(path);
    return bytes;
}

} // namespace quordsp::test
