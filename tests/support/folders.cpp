#include "support/folders.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "support/module.h"

namespace support {
namespace {

namespace fs = std::filesystem;

fs::path makeOwnFolder()
{
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string{test->test_suite_name()} + "." + test->name();
    std::ranges::replace(name, '/', '.');
    const fs::path folder = fake("own") / programPath().stem() / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

} // namespace

fs::path fake(const fs::path& relative)
{
    return (programPath().parent_path().parent_path() / relative).make_preferred();
}

fs::path ownFolder()
{
    static const fs::path folder = makeOwnFolder(); // a process runs one test
    return folder;
}

fs::path copyTo(const fs::path& target, const fs::path& source)
{
    fs::create_directories(target.parent_path());
    fs::remove(target); // not every library's copy_file overwrites
    fs::copy_file(source, target);
    return target;
}

} // namespace support
