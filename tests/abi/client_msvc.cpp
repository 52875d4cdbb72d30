// A client with the ABI of Microsoft's compiler, without any run-time library. Its exit code is that of the checks with
// the backend.
#include "client_checks.h"

extern "C" {
int _fltused = 0; // the compiler refers to it where floating point is used
__declspec(dllimport) void ExitProcess(unsigned code);

void start()
{
    ExitProcess(static_cast<unsigned>(checkLibrary(1)));
}
}
