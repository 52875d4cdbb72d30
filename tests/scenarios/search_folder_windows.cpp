#include <windows.h>

#include "scenarios/search_folder.h"

void searchOwnFolder()
{
    SetEnvironmentVariableA("PATH", nullptr);
    SetDllDirectoryW(support::ownFolder().c_str());
}
