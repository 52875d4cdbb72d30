#include "app.h"
#include "interrupt.h"
#include "os.h"

namespace {

int runWithConsole(int argc, const char* const* argv)
{
    const quordsp::cli::os::Utf8Console console;
    return quordsp::cli::run(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    const int code = runWithConsole(argc, argv);
    if (code > quordsp::cli::kInterruptedCode)
        quordsp::cli::os::endBySignal(code - quordsp::cli::kInterruptedCode);
    return code;
}
