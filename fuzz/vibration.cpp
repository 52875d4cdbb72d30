#include "reference/vibration.h"
#include "QuorDSP_DAQ.h"
#include "vibration_calls.h"

#include "targets.h"

namespace quordsp::fuzz {
namespace {

std::array<double, 10> paramsFrom(Bytes& bytes)
{
    std::array<double, 10> params{static_cast<double>(bytes.between(-1, 2))};
    for (std::size_t i = 1; i < params.size(); ++i)
        params[i] = bytes.number();
    if (bytes.byte() % 2) // settings of a real stream
        params = {params[0], 1000, 100, 0.5, 0, 0, 1e8, -1e8, 1e8, -1e8};
    return params;
}

} // namespace

// A stream of blocks gives the bits of the plain steps, whatever refused calls stand between them.
void vibration(Bytes bytes)
{
    reference::VibrationStream plain;
    // Two first blocks: the second has the first one's rate, whatever was before.
    bool isReady = false;
    for (int block = 0; block < 6; ++block) {
        auto params = paramsFrom(bytes);
        if (block < 2)
            params[0] = 1;
        const auto raw = bytes.numbers(bytes.between(1, 40));
        Records records{raw.size()};
        callWrongly(QuorDSP_Vibration_Acceleration, bytes.byte());
        const int status =
            callStream(QuorDSP_Vibration_Acceleration, {params.begin(), params.end()}, raw, records, sizeOf(raw));
        require(status == 0, "status 0");
        const auto expected = plain.next(params, raw);
        if (isReady)
            require(areSame(records, {expected.acceleration, expected.velocity, expected.displacement}),
                    "the bits of the plain steps");
        isReady = true;
    }
}

} // namespace quordsp::fuzz
