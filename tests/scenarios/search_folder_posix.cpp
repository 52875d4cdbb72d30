#include "scenarios/search_folder.h"

// The library looks beside itself.
void searchOwnFolder()
{
    using namespace support;
    useLibrary(copyTo(ownFolder() / kLibraryFile, fake(std::filesystem::path{"library"} / kLibraryFile)));
}
