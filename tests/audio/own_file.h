// Files in the running test's own folder.
#pragma once
#include <fstream>
#include <iterator>
#include <string>

#include "support/folders.h"

namespace quordsp {

inline std::string ownPath(const std::string& name)
{
    return (support::ownFolder() / name).string();
}

inline std::string put(const std::string& name, const std::string& content)
{
    std::ofstream{ownPath(name), std::ios::binary} << content;
    return ownPath(name);
}

inline std::string contentOf(const std::string& path)
{
    std::ifstream file{path, std::ios::binary};
    return file ? std::string{std::istreambuf_iterator<char>{file}, {}} : "(no file)";
}

inline bool exists(const std::string& path)
{
    return std::filesystem::exists(path);
}

} // namespace quordsp
