// A folder of a test's own, gone with it.
#pragma once
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace quordsp::cli {

class ScratchFolder {
public:
    ScratchFolder() { std::filesystem::create_directories(path_); }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

    std::filesystem::path put(const std::filesystem::path& name, const std::string& bytes) const
    {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return path_ / name;
    }

    static std::string get(const std::filesystem::path& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::ptrdiff_t fileCount() const { return std::distance(std::filesystem::directory_iterator(path_), {}); }

private:
    // Each test runs in a process of its own, several at once; its name is its own.
    static std::filesystem::path freshName()
    {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        static int count = 0;
        return std::filesystem::temp_directory_path() /
               (std::string("quordsp_") + test->test_suite_name() + "_" + test->name() + "_" + std::to_string(++count));
    }

    std::filesystem::path path_ = freshName();
};

} // namespace quordsp::cli
