#include "input.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "csv.h"
#include "failure.h"
#include "file.h"
#include "number.h"
#include "time_axis.h"
#include "wav.h"

namespace quordsp::cli {
namespace {

constexpr const char* kFullScale = "FS";
constexpr std::size_t kMostSamples = std::numeric_limits<int>::max(); // counts cross the library's boundary as int

[[noreturn]] void badInput(const InputChoice& choice, const std::string& what, const std::string& advice)
{
    throw Failure(ExitCode::Input, display(choice.path) + ": " + what, advice);
}

std::string quotedList(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "'" : ", '") + name + "'";
    return text;
}

// A name goes before a number: a column may be called "2".
std::optional<std::size_t> findColumn(const std::string& wanted, const std::vector<std::string>& names)
{
    if (const auto found = std::ranges::find(names, wanted); found != names.end())
        return static_cast<std::size_t>(found - names.begin());
    const auto number = parseCount(wanted);
    return number && *number <= names.size() ? std::optional(*number - 1) : std::nullopt;
}

void setTimes(Series& series, const InputChoice& choice, std::vector<double> times, double unit)
{
    if (times.size() < 2)
        badInput(choice, "one row tells no sampling rate", "give it with --rate");
    for (double& time : times)
        time *= unit;
    const auto rate = samplingRate(times);
    if (!rate)
        badInput(choice, "the times are not equally spaced",
                 "give the sampling rate with --rate, or resample the file");
    series.rate = *rate;
    series.start = times.front();
}

// One column, or that of the real part and that of the imaginary part.
std::vector<std::size_t> chooseParts(const InputChoice& choice, const std::vector<std::string>& names,
                                     std::size_t otherwise)
{
    std::vector<std::size_t> parts{chooseColumn(choice, names, otherwise)};
    if (choice.imaginary.empty())
        return parts;
    InputChoice imaginary = choice;
    imaginary.column = choice.imaginary;
    parts.push_back(chooseColumn(imaginary, names, otherwise));
    return parts;
}

Label jointLabel(const Label& real, const Label& imaginary)
{
    if (real.unit != imaginary.unit)
        throw Failure(ExitCode::Usage,
                      "the real part is '" + real.axis() + "', the imaginary part '" + imaginary.axis() + "'",
                      "choose two columns of the same unit");
    return {real.quantity + " + j " + imaginary.quantity, real.unit};
}

Series readCsv(const InputChoice& choice, std::string text)
{
    const CsvDocument document(std::move(text), display(choice.path));
    const auto time = findTimeColumn(document.names());
    std::vector<std::size_t> wanted = chooseParts(choice, document.names(), time && time->index == 0 ? 1 : 0);
    if (!time && !choice.rate)
        throw Failure(ExitCode::Usage, display(choice.path) + ": the file has no time column, and no --rate is given",
                      "give the sampling rate in Hz with --rate");
    if (!choice.rate)
        wanted.push_back(time->index);
    auto values = document.columns(wanted);
    Series series{.label = parseLabel(document.names()[wanted[0]]), .samples = std::move(values[0])};
    if (!choice.imaginary.empty()) {
        series.label = jointLabel(series.label, parseLabel(document.names()[wanted[1]]));
        series.imaginary = std::move(values[1]);
    }
    if (series.samples.empty())
        badInput(choice, "there is no row of numbers", "name a file with one sample a line");
    if (choice.rate)
        series.rate = *choice.rate;
    else
        setTimes(series, choice, std::move(values.back()), time->seconds);
    return series;
}

Series readWav(const InputChoice& choice, std::string bytes)
{
    const WavDocument document(std::move(bytes), display(choice.path));
    if (choice.rate)
        throw Failure(ExitCode::Usage, display(choice.path) + ": a WAV file carries its own rate", "leave out --rate");
    std::vector<std::string> names(document.channels());
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = "channel " + std::to_string(i + 1);
    const std::vector<std::size_t> channels = chooseParts(choice, names, 0);
    Series series{
        .label = {names[channels[0]], kFullScale}, .rate = document.rate(), .samples = document.channel(channels[0])};
    if (channels.size() > 1) {
        series.label = jointLabel(series.label, {names[channels[1]], kFullScale});
        series.imaginary = document.channel(channels[1]);
    }
    return series;
}

bool hasWavEnding(const std::filesystem::path& path)
{
    const auto ending = path.extension();
    return ending == ".wav" || ending == ".WAV";
}

// The first sample at or after a time. The small allowance takes in a sample whose time was rounded.
std::size_t sampleAt(const Series& series, double time)
{
    const double index = std::ceil((time - series.start) * series.rate - 1e-6);
    return static_cast<std::size_t>(std::clamp(index, 0.0, static_cast<double>(series.samples.size())));
}

} // namespace

std::size_t chooseColumn(const InputChoice& choice, const std::vector<std::string>& names, std::size_t otherwise)
{
    if (choice.column.empty() && otherwise >= names.size())
        badInput(choice, "there is no column besides time",
                 "name a file with samples, or '" + names[0] + "' as --column");
    if (choice.column.empty())
        return otherwise;
    if (const auto found = findColumn(choice.column, names))
        return *found;
    badInput(choice, "there is no column '" + choice.column + "'",
             "the columns are " + quotedList(names) + "; a number counts them from 1");
}

Series readSeries(const InputChoice& choice)
{
    std::string bytes = readFile(choice.path);
    Series series = looksLikeWav(bytes) || hasWavEnding(choice.path) ? readWav(choice, std::move(bytes))
                                                                     : readCsv(choice, std::move(bytes));
    if (series.samples.size() > kMostSamples)
        badInput(choice, "there are more than 2147483647 samples", "cut the file into parts");
    return series;
}

SampleRange samplesWithin(const Series& series, const Span& span, const std::string& option)
{
    const std::size_t count = series.samples.size();
    const SampleRange range{span.from ? sampleAt(series, *span.from) : 0, span.to ? sampleAt(series, *span.to) : count};
    if (range.first >= range.last)
        throw Failure(ExitCode::Usage, "no sample lies between " + option,
                      "the signal lasts from " + rounded(series.start) + " s to " + rounded(series.time(count - 1)) +
                          " s");
    return range;
}

Series cut(Series series, const Span& span)
{
    const auto [first, last] = samplesWithin(series, span, "--from and --to");
    series.start = series.time(first);
    for (std::vector<double>* const part : {&series.samples, &series.imaginary})
        if (!part->empty())
            *part = {part->begin() + static_cast<std::ptrdiff_t>(first),
                     part->begin() + static_cast<std::ptrdiff_t>(last)};
    return series;
}

} // namespace quordsp::cli
