#include "gain_bands.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "failure.h"
#include "number.h"

namespace quordsp::cli {
namespace {

[[noreturn]] void noBand(const std::string& text)
{
    throw Failure(ExitCode::Usage, "--bands: '" + text + "' is not a band",
                  "a band is FROM:TO, FROM:TO:GAIN or FROM:TO:GAIN:WEIGHT, as in 0:100,150:500:0:10");
}

std::vector<double> numbersOf(const std::string& text)
{
    std::vector<double> numbers;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(':', start), text.size());
        const auto number = parseNumber(std::string_view(text).substr(start, end - start));
        if (!number)
            noBand(text);
        numbers.push_back(*number);
        start = end + 1;
    }
    return numbers;
}

GainBand parseBand(const std::string& text)
{
    const std::vector<double> numbers = numbersOf(text);
    if (numbers.size() < 2 || numbers.size() > 4)
        noBand(text);
    if (numbers.size() > 3 && numbers[3] <= 0)
        throw Failure(ExitCode::Usage, "--bands: the weight of '" + text + "' is not greater than 0",
                      "leave out a band whose error does not matter");
    return {.from = numbers[0],
            .to = numbers[1],
            .gain = numbers.size() > 2 ? numbers[2] : 1,
            .weight = numbers.size() > 3 ? numbers[3] : 1};
}

} // namespace

std::vector<GainBand> parseGainBands(const std::vector<std::string>& texts)
{
    std::vector<GainBand> bands;
    std::ranges::transform(texts, std::back_inserter(bands), parseBand);
    return bands;
}

std::string describe(const std::vector<GainBand>& bands)
{
    std::string text;
    for (const auto& [from, to, gain, weight] : bands) {
        text += (text.empty() ? "" : ", ") + rounded(from, kFrequencyDigits) + " to " + rounded(to, kFrequencyDigits) +
                " Hz";
        text += gain != 1 ? " by " + rounded(gain) : "";
        text += weight != 1 ? " with weight " + rounded(weight) : "";
    }
    return text;
}

} // namespace quordsp::cli
