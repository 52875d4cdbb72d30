#include "QuorDSP_DAQ.h"
#include "nianlys.h"

#include "targets.h"

namespace quordsp::fuzz {
namespace {

struct Peaks {
    std::vector<double> locations;
    std::vector<double> amplitudes;
    std::vector<double> secondDerivatives;
};

struct Settings {
    double threshold;
    int width;
    int polarity;
};

void take(double* array, std::int64_t count, std::vector<double>& values)
{
    require(array != nullptr, "an array to free");
    values.insert(values.end(), array, array + count);
    // Two names of one entry.
    require((count % 2 == 0 ? backend::AALFunc238 : backend::FreeAnalysisMem)(array) == backend::Status::Success,
            "freed");
}

void detect(std::span<const double> block, const Settings& settings, bool first, bool last, Peaks& peaks)
{
    std::int64_t count = -1;
    double* arrays[3] = {};
    const int status = QuorDSP_PeakDetector(block.data(), sizeOf(block), settings.threshold, settings.width,
                                            settings.polarity, first, last, &count, &arrays[0], &arrays[1], &arrays[2]);
    require(status == 0, "status 0");
    take(arrays[0], count, peaks.locations);
    take(arrays[1], count, peaks.amplitudes);
    take(arrays[2], count, peaks.secondDerivatives);
}

// Writes nothing, and the signal does not notice.
void callWrongly(std::span<const double> block, const Settings& settings, int mistake)
{
    std::int64_t count = -1;
    double* arrays[3] = {};
    double** pointers[] = {&arrays[0], &arrays[1], &arrays[2]};
    if (mistake < 3)
        pointers[mistake] = nullptr;
    const int status =
        QuorDSP_PeakDetector(mistake == 3 ? nullptr : block.data(), mistake == 4 ? 0 : sizeOf(block),
                             settings.threshold, settings.width + (mistake >= 5 ? 3 : 0), settings.polarity,
                             mistake < 5, 1, &count, pointers[0], pointers[1], pointers[2]);
    require(status == (mistake == 4 ? -20003 : mistake >= 5 ? -20064 : -20008), "the documented status");
    require(count == -1 && !arrays[0] && !arrays[1] && !arrays[2], "a refused call writes nothing");
}

void check(const Peaks& peaks, const Settings& settings, std::size_t n)
{
    const double sign = settings.polarity == 0 ? 1 : -1;
    require(peaks.locations.size() <= n / 2 + 1, "no more peaks than every other sample");
    for (std::size_t i = 0; i < peaks.locations.size(); ++i) {
        require(sign * peaks.amplitudes[i] >= sign * settings.threshold, "the threshold");
        require(sign * peaks.secondDerivatives[i] <= 0, "the bend");
    }
}

} // namespace

// A signal gives the same bits in one block and however it is cut, whatever is refused in between.
void peak_detector(Bytes bytes)
{
    const Settings settings = {bytes.byte() % 2 == 0 ? -1e300 : bytes.number(),
                               bytes.byte() % 4 == 0 ? 1025 + bytes.byte() : bytes.between(0, 20), bytes.between(0, 1)};
    std::vector<double> in = bytes.numbers(bytes.between(1, 100));
    for (std::size_t left = bytes.bits<std::uint16_t>() % 2500u, i = 0; settings.width > 1000 && left > 0; --left, ++i)
        in.push_back(in[i] * 0.75 + in[i / 2] * 0.5);
    Peaks whole;
    detect(in, settings, true, true, whole);
    check(whole, settings, in.size());

    Peaks cut;
    for (std::size_t begin = 0, end = 0; begin < in.size(); begin = end) {
        const auto size = static_cast<std::size_t>(1 + bytes.byte() * (settings.width > 1000 ? 16 : 1));
        end = std::min(in.size(), begin + size);
        detect(std::span{in}.subspan(begin, end - begin), settings, begin == 0, end == in.size(), cut);
        if (end < in.size())
            callWrongly(in, {settings.threshold, std::max(settings.width, 3), settings.polarity}, bytes.byte() % 6);
    }
    require(areSame(cut.locations, whole.locations), "the same locations");
    require(areSame(cut.amplitudes, whole.amplitudes), "the same amplitudes");
    require(areSame(cut.secondDerivatives, whole.secondDerivatives), "the same second derivatives");
}

} // namespace quordsp::fuzz
