// quordsp wav: one column as a WAV file.
#include <cmath>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <string>

#include "commands/commands.h"
#include "failure.h"
#include "file.h"
#include "input.h"
#include "number.h"
#include "options.h"
#include "wav_writer.h"

namespace quordsp::cli::command {
namespace {

constexpr int kMostChannels = 65535;

struct Options {
    InputChoice input;
    std::filesystem::path output;
    Span span;
    std::string format = "pcm";
    std::optional<int> bits;
    std::optional<int> channels;
    std::optional<double> fullScale;
    bool normalize = false;
};

WavFormat formatOf(const Options& options)
{
    const bool plain = options.format == "pcm";
    if (!plain && (options.bits || options.channels))
        throw Failure(ExitCode::Usage, "stereo16 has 16 bits and 2 channels",
                      "leave out --bits and --channels, or take --format pcm");
    return plain ? pcm(options.bits.value_or(16), options.channels.value_or(1)) : stereo16();
}

// A WAV file counts whole samples a second.
std::uint32_t rateOf(const Series& series)
{
    const double rate = std::round(series.rate);
    if (rate < 1 || rate > std::numeric_limits<std::int32_t>::max())
        throw Failure(ExitCode::Usage, "a WAV file cannot have a rate of " + rounded(series.rate) + " Hz",
                      std::string("it holds whole numbers from 1 to 2147483647; another --rate plays the signal ") +
                          (rate < 1 ? "faster" : "slower"));
    return static_cast<std::uint32_t>(rate);
}

double fullScaleOf(const Series& series, const Options& options)
{
    if (!options.normalize)
        return options.fullScale.value_or(1);
    const double peak = levelOf(series.samples, 1).peak;
    return peak > 0 ? peak : 1;
}

std::string beyondText(const Level& level, const Series& series, double fullScale)
{
    return std::to_string(level.beyond) + " of " + counted(series.samples.size(), "sample") +
           (level.beyond == 1 ? " lies" : " lie") + " beyond full scale (" +
           withUnit(rounded(fullScale), printable(series.label.unit)) + "), the farthest at " +
           withUnit(rounded(level.peak), printable(series.label.unit));
}

// One writer clips what is beyond; the other one would turn it into noise.
void requireWithin(const Level& level, const Series& series, double fullScale, const WavFormat& format)
{
    if (format.stereo16 && level.beyond > 0)
        throw Failure(ExitCode::Usage, beyondText(level, series, fullScale) + "; stereo16 would wrap them",
                      "give --normalize or a larger --full-scale, or take --format pcm, which clips");
}

void warn(const Level& level, const Series& series, double fullScale, std::uint32_t rate)
{
    if (rate != series.rate)
        std::cerr << "quordsp: warning: the rate of " << shortest(series.rate) << " Hz is written as " << rate
                  << " Hz\n";
    if (level.beyond > 0)
        std::cerr << "quordsp: warning: " << beyondText(level, series, fullScale) << "; they are clipped\n"
                  << "  give --normalize or a larger --full-scale\n";
}

void print(const Series& series, const WavFormat& format, const Level& level, double fullScale, std::uint32_t rate)
{
    const std::string unit = printable(series.label.unit);
    std::cout << counted(series.samples.size(), "sample") << " of " << printable(series.label.axis()) << " at " << rate
              << " Hz: " << format.text() << ", " << format.fileBytes(series.samples.size()) << " bytes\n"
              << "full scale: " << withUnit(rounded(fullScale), unit) << '\n'
              << "peak:       " << withUnit(rounded(level.peak), unit);
    if (level.peak > 0)
        std::cout << ", " << rounded(20 * std::log10(level.peak / fullScale), 4) << " dB of full scale";
    std::cout << "\nclipped:    " << counted(level.beyond, "sample") << '\n';
}

void run(const Options& options)
{
    requireDifferentFiles(options.input, {.table = options.output, .plot = {}});
    const WavFormat format = formatOf(options);
    const Series series = cut(readSeries(options.input), options.span);
    const std::uint32_t rate = rateOf(series);
    const double fullScale = fullScaleOf(series, options);
    const Level level = levelOf(series.samples, fullScale);
    requireWithin(level, series, fullScale, format);
    writeWav(options.output, format, series.samples, fullScale, rate);
    warn(level, series, fullScale, rate);
    print(series, format, level, fullScale, rate);
    std::cout << "written: " << display(options.output) << '\n';
}

} // namespace

void wav(Command& command)
{
    const auto options = std::make_shared<Options>();
    addInput(command, options->input);
    command.option("-o,--output", options->output, "WAV file to write").required().placeholder("OUT.wav");
    addSpan(command, options->span);
    command.option("--format", options->format, "PCM as the other options say, or 16 bits in two equal channels")
        .oneOf({"pcm", "stereo16"})
        .showDefault();
    command.option("--bits", options->bits, "Of a sample, with pcm (default: 16)").oneOf({8, 16, 24, 32});
    command.option("--channels", options->channels, "All the same, with pcm (default: 1)")
        .within(1, kMostChannels)
        .placeholder("N");
    command
        .option("--full-scale", options->fullScale,
                "The value that becomes full scale, in the unit of the column (default: 1).\n"
                "What lies beyond is clipped with pcm and refused with stereo16")
        .positive()
        .placeholder("VALUE");
    command.option("--normalize", options->normalize, "Take the peak of the signal for full scale")
        .excludes("--full-scale");
    command.run([options] { run(*options); });
}

} // namespace quordsp::cli::command
