#include "support/library.h"

#include "support/folders.h"

namespace support {
namespace {

std::filesystem::path& libraryFile()
{
    static std::filesystem::path file = fake(std::filesystem::path{"library"} / kLibraryFile);
    return file;
}

} // namespace

void useLibrary(const std::filesystem::path& file)
{
    libraryFile() = file;
}

const Module& library()
{
    static const Module module = Module::load(libraryFile());
    return module;
}

} // namespace support
