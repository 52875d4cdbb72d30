#include "options.h"

#include "failure.h"
#include "file.h"

namespace quordsp::cli {

void addInput(Command& command, InputChoice& input)
{
    command.option("INPUT", input.path, "CSV file with one sample a line, or WAV file").required().placeholder("");
    command
        .option("--column", input.column,
                "Column by name or by number from 1; of a WAV file the channel.\n"
                "Without it: the first column that is not time")
        .placeholder("NAME|INDEX");
    command
        .option("--rate", input.rate,
                "Sampling rate. Not needed for a WAV file, nor for a CSV file with a\n"
                "column of equally spaced times (time, time_s, time_ms, t, ...)")
        .positive()
        .placeholder("HZ");
}

void addImaginary(Command& command, InputChoice& input, const std::string& effect)
{
    command
        .option("--imaginary", input.imaginary,
                "Column of the imaginary part; --column is the real part then, and the\n" + effect)
        .placeholder("NAME|INDEX");
}

void addSpan(Command& command, Span& span)
{
    command.option("--from", span.from, "Leave out what comes before").number().placeholder("S");
    command.option("--to", span.to, "Leave out this time and what comes after").number().placeholder("S");
}

void addOutput(Command& command, OutputChoice& output)
{
    command.option("-o,--output", output.table, "CSV file to write").required().placeholder("OUT.csv");
    command.option("--plot", output.plot, "Also draw the result").placeholder("FILE.svg");
}

void requireDifferentFiles(const InputChoice& input, const OutputChoice& output)
{
    if (sameFile(input.path, output.table) || sameFile(output.plot, input.path) || sameFile(output.plot, output.table))
        throw Failure(ExitCode::Usage, "the input, the CSV and the plot must be different files",
                      "give each a name of its own");
}

} // namespace quordsp::cli
