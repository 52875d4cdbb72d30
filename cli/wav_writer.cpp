#include "wav_writer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <system_error>

#include "failure.h"
#include "file.h"
#include "number.h"
#include "progress.h"
#include "status.h"

namespace quordsp::cli {
namespace fs = std::filesystem;
namespace {

constexpr std::uint64_t kMostBytes = std::numeric_limits<std::int32_t>::max();
constexpr std::uint64_t kMostFrameBytes = std::numeric_limits<std::uint16_t>::max();

// While it lives, the working folder is another one. The library takes a name in the system's narrow encoding, which
// need not hold the folder's name: in its own folder a file of ASCII letters needs none.
class WorkingFolder {
public:
    explicit WorkingFolder(const fs::path& folder) : before_(fs::current_path())
    {
        if (!folder.empty())
            fs::current_path(folder);
    }
    ~WorkingFolder()
    {
        std::error_code error;
        fs::current_path(before_, error);
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    fs::path before_;
};

void requireFit(const WavFormat& format, std::size_t samples, std::uint32_t rate)
{
    if (format.fileBytes(samples) > kMostBytes)
        throw Failure(ExitCode::Usage,
                      "a WAV file of " + std::to_string(format.fileBytes(samples)) + " bytes is too large",
                      "2147483647 bytes are the most; cut the signal, or take fewer --bits or --channels");
    const std::uint64_t frameBytes = format.fileBytes(1) - format.headerBytes;
    if (frameBytes > kMostFrameBytes)
        throw Failure(ExitCode::Usage, "a WAV file cannot hold " + format.text(),
                      "65535 bytes are the most for one sample of all channels; take fewer --bits or --channels");
    if (rate * frameBytes > std::numeric_limits<std::uint32_t>::max())
        throw Failure(ExitCode::Usage, "a WAV file cannot hold this rate with " + format.text(),
                      "take fewer --bits or --channels");
}

std::vector<float> scaled(std::span<const double> samples, double fullScale)
{
    std::vector<float> values(samples.size());
    std::ranges::transform(samples, values.begin(),
                           [fullScale](double s) { return static_cast<float>(s / fullScale); });
    return values;
}

void callLibrary(const std::string& name, const WavFormat& format, const std::vector<float>& samples,
                 std::uint32_t rate)
{
    const int count = static_cast<int>(samples.size());
    if (format.stereo16)
        requireSuccess(QuorDSP_WriteWAV(name.c_str(), samples.data(), count, rate), "WAV file");
    else
        requireSuccess(QuorDSP_WriteWAVFile(name.c_str(), samples.data(), count, static_cast<int>(rate), format.bits,
                                            format.channels),
                       "WAV file");
}

void requireComplete(const PendingFile& file, std::uint64_t bytes)
{
    std::error_code error;
    const auto size = fs::file_size(file.temporary(), error);
    if (error || size != bytes)
        cannotWrite(file.target(),
                    error ? error.message()
                          : std::to_string(size) + " of " + std::to_string(bytes) + " bytes were written",
                    "check the free space");
}

} // namespace

std::uint64_t WavFormat::fileBytes(std::size_t samples) const
{
    return headerBytes + static_cast<std::uint64_t>(bits / 8) * static_cast<std::uint64_t>(channels) * samples;
}

std::string WavFormat::text() const
{
    return std::to_string(bits) + " bits, " + counted(static_cast<std::size_t>(channels), "channel");
}

WavFormat stereo16()
{
    return {true, 16, 2, 56};
}

WavFormat pcm(int bits, int channels)
{
    return {false, bits, channels, 44};
}

Level levelOf(std::span<const double> samples, double fullScale)
{
    Level level{0, 0};
    for (const double sample : samples) {
        level.peak = std::max(level.peak, std::abs(sample));
        level.beyond += std::abs(sample) > fullScale ? 1 : 0;
    }
    return level;
}

void writeWav(const fs::path& path, const WavFormat& format, std::span<const double> samples, double fullScale,
              std::uint32_t rate)
{
    requireFit(format, samples.size(), rate);
    PendingFile file(path);
    file.create().close(); // the library does not tell whether a file could be created or became complete
    {
        const std::vector<float> values = scaled(samples, fullScale);
        const Progress progress("writing the WAV file");
        const WorkingFolder folder(file.temporary().parent_path());
        callLibrary(file.temporary().filename().string(), format, values, rate);
    }
    endIfInterrupted();
    requireComplete(file, format.fileBytes(samples.size()));
    file.commit();
}

} // namespace quordsp::cli
