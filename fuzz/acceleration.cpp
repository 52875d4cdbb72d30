#include "QuorDSP_DAQ.h"
#include "vibration_calls.h"

#include "targets.h"

namespace quordsp::fuzz {
namespace {

struct Block {
    std::vector<double> params;
    std::vector<double> raw;
    int refused; // a refused call before this one
};

bool isAccepted(const Block& block)
{
    return block.params[1] > 0;
}

// A block of one sample leaves a stream at rest: its records are 0 times a finite number. After the second one the sign
// of these zeros, too, is that of the block alone.
void reset()
{
    for (int i = 0; i < 2; ++i) {
        Records records{1};
        const int status = callStream(QuorDSP_Acceleration, {0, 1000, 1000, 0, 0, 0, 0, 0, 0, 0}, {1}, records,
                                      sizeOf(records.velocity));
        require(status == 0, "status 0");
    }
}

Records run(const Block& block)
{
    Records records{block.raw.size()};
    const Records before = records;
    const int status = callStream(QuorDSP_Acceleration, block.params, block.raw, records, sizeOf(block.raw));
    require(status == (isAccepted(block) ? 0 : 20032), "the documented status");
    if (!isAccepted(block)) {
        require(areSame(records, before), "a refused call writes nothing");
        return records;
    }
    for (std::size_t i = 0; i < block.raw.size(); ++i)
        require(isSame(records.acceleration[i], (block.raw[i] * 1000 / block.params[2] + block.params[3]) * 9.78),
                "the acceleration");
    return records;
}

std::vector<Records> runStream(const std::vector<Block>& blocks, bool withRefusedCalls)
{
    reset();
    std::vector<Records> all;
    for (const Block& block : blocks) {
        if (withRefusedCalls)
            callWrongly(QuorDSP_Acceleration, block.refused);
        if (isAccepted(block))
            all.push_back(run(block));
        else if (withRefusedCalls)
            run(block);
    }
    return all;
}

} // namespace

// A stream gives the same again from rest, without the calls that were refused. All numbers stay finite, and no block
// is too short for the trend that is removed: a stream with a NaN never comes to rest.
void acceleration(Bytes bytes)
{
    std::vector<Block> blocks;
    for (int left = bytes.between(1, 5); left > 0; --left) {
        auto params = bytes.niceNumbers(10);
        params[2] += params[2] == 0 ? 1 : 0;
        if (bytes.byte() % 4 == 0)
            params[1] = std::numeric_limits<double>::quiet_NaN();
        const int refused = bytes.byte();
        blocks.push_back({params, bytes.niceNumbers(bytes.between(12, 50)), refused});
    }
    const auto once = runStream(blocks, true);
    const auto again = runStream(blocks, false);
    require(once.size() == again.size(), "as many accepted blocks");
    for (std::size_t i = 0; i < once.size(); ++i)
        require(areSame(once[i], again[i]), "the same again");
}

} // namespace quordsp::fuzz
