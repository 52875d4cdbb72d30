// The bytes of WAV files.
#include <cmath>
#include <filesystem>
#include <limits>

#include "QuorDSP_DAQ.h"
#include "reliability/same_results/results.h"
#include "support/file_bytes.h"
#include "support/integer_signal.h"

namespace quordsp::same_results {
namespace {

// Samples in, at and beyond full scale, and those that are no number of a usual size.
std::vector<float> samplesOf(std::size_t count)
{
    std::vector<float> samples = noise<float>(count);
    const float infinity = std::numeric_limits<float>::infinity();
    const float odd[] = {1.0F,     -1.0F,     0.0F,  -0.0F,    1.5F,    -2.0F, 0x1p-24F, std::nextafter(1.0F, 0.0F),
                         infinity, -infinity, 1e30F, -0x1p16F, 65538.0F};
    for (std::size_t i = 0; i < std::size(odd) && i + 1 < count; ++i)
        samples[i] = odd[i];
    return samples;
}

} // namespace

Results fileResults(const std::filesystem::path& folder)
{
    Results results;
    const std::filesystem::path path = folder / "samples.wav";
    for (const int count : {0, 1, 2, 13, 1000}) {
        const auto samples = samplesOf(static_cast<std::size_t>(count));
        const std::string counted = " count " + std::to_string(count);
        QuorDSP_WriteWAV(path.string().c_str(), samples.data(), count, 44100);
        results.push_back({"QuorDSP_WriteWAV" + counted, test::takeBytes(path)});
        for (const int bits : {8, 16, 24, 32, 12})
            for (const int channels : {1, 2, 5}) {
                QuorDSP_WriteWAVFile(path.string().c_str(), samples.data(), count, 44100, bits, channels);
                results.push_back({"QuorDSP_WriteWAVFile" + counted + " bits " + std::to_string(bits) + " channels " +
                                       std::to_string(channels),
                                   test::takeBytes(path)});
            }
    }
    return results;
}

} // namespace quordsp::same_results
