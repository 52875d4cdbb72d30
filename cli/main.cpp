#include "app.h"
#include "os.h"

int main(int argc, char** argv)
{
    const quordsp::cli::os::Utf8Console console;
    return quordsp::cli::run(argc, argv);
}
