// Calls of the peak detector.
#pragma once
#include "nianlys.h"
#include "reference/peaks.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace quordsp::backend {

using Array = std::vector<double>;
using Peak = reference::Peak;
using Peaks = std::vector<Peak>;

struct PeakSettings {
    double threshold;
    std::int64_t width;
    std::int32_t polarity = 0;
};

// What the entry writes.
struct PeakArrays {
    std::int64_t count = -7;
    double* locations = nullptr;
    double* amplitudes = nullptr;
    double* secondDerivatives = nullptr;

    bool areUntouched() const { return count == -7 && !locations && !amplitudes && !secondDerivatives; }

    Peaks take()
    {
        Peaks peaks;
        for (std::int64_t i = 0; i < count; ++i)
            peaks.push_back({locations[i], amplitudes[i], secondDerivatives[i]});
        for (double* array : {locations, amplitudes, secondDerivatives}) {
            EXPECT_NE(array, nullptr);
            EXPECT_EQ(AALFunc238(array), Status::Success);
        }
        return peaks;
    }
};

inline Status detect(const Array& x, const PeakSettings& settings, bool initialize, bool endOfData, PeakArrays& found)
{
    return AALFunc194(x.data(), static_cast<std::int64_t>(x.size()), settings.threshold, settings.width,
                      settings.polarity, initialize, endOfData, &found.count, &found.locations, &found.amplitudes,
                      &found.secondDerivatives);
}

inline Peaks peaksOfBlock(const Array& x, const PeakSettings& settings, bool initialize, bool endOfData)
{
    PeakArrays found;
    EXPECT_EQ(detect(x, settings, initialize, endOfData, found), Status::Success);
    return found.take();
}

inline Peaks peaksOf(const Array& x, const PeakSettings& settings)
{
    return peaksOfBlock(x, settings, true, true);
}

inline Array noise(std::size_t n, unsigned seed)
{
    std::mt19937 generator(seed);
    Array x(n);
    for (double& value : x)
        value = static_cast<double>(generator()) / 1e9 - 2;
    return x;
}

} // namespace quordsp::backend
