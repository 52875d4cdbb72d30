// Runs a target on every file of a folder, as a test: replay TARGET FOLDER.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "targets.h"

namespace {

using namespace quordsp;

constexpr struct {
    std::string_view name;
    fuzz::Target* target;
} kTargets[] = {{"linear_regression", fuzz::linear_regression},
                {"detrend", fuzz::detrend},
                {"vibration", fuzz::vibration},
                {"acceleration", fuzz::acceleration},
                {"vibration_euler", fuzz::vibration_euler},
                {"thermocouple", fuzz::thermocouple},
                {"snr", fuzz::snr},
                {"complex", fuzz::complex},
                {"iir_design", fuzz::iir_design},
                {"iir_filtering", fuzz::iir_filtering},
                {"iir_one_call", fuzz::iir_one_call},
                {"cascade", fuzz::cascade},
                {"median_filter", fuzz::median_filter},
                {"peak_detector", fuzz::peak_detector},
                {"sort", fuzz::sort},
                {"max_min", fuzz::max_min},
                {"integrate", fuzz::integrate},
                {"fir_window", fuzz::fir_window},
                {"fir_filtering", fuzz::fir_filtering},
                {"fir_one_call", fuzz::fir_one_call},
                {"savitzky_golay", fuzz::savitzky_golay},
                {"equiripple", fuzz::equiripple},
                {"equiripple_edges", fuzz::equiripple_edges},
                {"narrow_band", fuzz::narrow_band},
                {"transforms", fuzz::transforms},
                {"sized_transforms", fuzz::sized_transforms},
                {"matrix", fuzz::matrix},
                {"write_wav", fuzz::write_wav},
                {"write_wav_file", fuzz::write_wav_file}};

fuzz::Target* targetOf(std::string_view name)
{
    for (const auto& row : kTargets)
        if (row.name == name)
            return row.target;
    return nullptr;
}

void run(fuzz::Target* target, const std::filesystem::path& path)
{
    std::ifstream file{path, std::ios::binary};
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>{file}, {}};
    std::fprintf(stderr, "%s, %zu bytes\n", path.filename().string().c_str(), bytes.size());
    target(fuzz::Bytes{bytes});
}

} // namespace

int main(int argc, char** argv)
{
    const std::span arguments{argv, static_cast<std::size_t>(argc)};
    fuzz::Target* const target = argc == 3 ? targetOf(arguments[1]) : nullptr;
    if (!target) {
        std::fprintf(stderr, "usage: replay TARGET FOLDER\n");
        return 2;
    }
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator{arguments[2]}) {
        run(target, entry.path());
        ++files;
    }
    return files > 0 ? 0 : 1;
}
