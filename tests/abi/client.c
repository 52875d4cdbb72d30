/* A client in C. Any argument says that there is no backend. */
#include "client_checks.h"

int main(int argc, char** argv)
{
    (void)argv;
    return checkLibrary(argc == 1);
}
