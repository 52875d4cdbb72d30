// Writes files into the working folder, to be read by other programs: check_readers.py knows which ones. Both messages
// of the library go to the console.
#include <cstdio>
#include <initializer_list>

#include "QuorDSP_DAQ.h"

namespace {

constexpr int kCount = 4097;
constexpr int kRate = 11025;

// The corners of every code, then a ramp: multiples of 2^-11, which every depth but 8 bits holds exactly.
void fill(float* samples)
{
    for (int i = 0; i < kCount; ++i)
        samples[i] = static_cast<float>(i - 2048) / 2048.0f;
}

bool writeAll(const float* samples)
{
    char name[64];
    for (const int bitDepth : {8, 16, 24, 32})
        for (const int channels : {1, 2, 3, 7})
            for (const int count : {1, kCount}) {
                std::snprintf(name, sizeof name, "pcm%d_%d_%d.wav", bitDepth, channels, count);
                QuorDSP_WriteWAVFile(name, samples, count, kRate, bitDepth, channels);
            }
    return QuorDSP_WriteWAV("stereo_1.wav", samples, 1, kRate) == QUORDSP_SUCCESS &&
           QuorDSP_WriteWAV("stereo_4097.wav", samples, kCount, kRate) == QUORDSP_SUCCESS;
}

} // namespace

int main()
{
    static float samples[kCount];
    fill(samples);
    if (!writeAll(samples))
        return 1;
    QuorDSP_WriteWAVFile("toolong.wav", samples, 0x7FFFFFFF, kRate, 32, 4);
    return QuorDSP_WriteWAV("missing/stereo.wav", samples, kCount, kRate) == QUORDSP_FILE_NOT_CREATED ? 0 : 1;
}
