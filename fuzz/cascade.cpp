#include <algorithm>
#include <memory>

#include "iir_entries.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using namespace backend;

constexpr int kBadRecord = -20066;

struct FreeFilter {
    void operator()(IirFilter* filter) const { FreeIIRFilterPtr(filter); }
};
using Record = std::unique_ptr<IirFilter, FreeFilter>;

// What a record holds, to compare.
struct Contents {
    int type, order, reset;
    Samples reverse, forward, state;

    explicit Contents(const IirFilter& of)
        : type{of.type},
          order{of.order},
          reset{of.reset},
          reverse(of.reverse, of.reverse + of.reverseCount),
          forward(of.forward, of.forward + of.forwardCount),
          state(of.state, of.state + of.stateCount)
    {}
};

using fuzz::areSame;

bool areSame(const Contents& a, const Contents& b)
{
    return a.type == b.type && a.order == b.order && a.reset == b.reset && areSame(a.reverse, b.reverse) &&
           areSame(a.forward, b.forward) && areSame(a.state, b.state);
}

Record newRecord(const Parameters& with)
{
    Record record{AllocIIRFilterPtr(with.type, with.order)};
    const bool isFilter = with.type >= 0 && with.type <= 3 && with.order > 0 && with.order <= 1 << 20;
    require((record != nullptr) == isFilter, "a record for every filter");
    if (!record)
        return record;
    require(record->reset != 0, "an armed flag");
    record->reset = 0;
    std::fill_n(record->state, record->stateCount, kBefore);
    return record;
}

bool areSame(const Signal& a, const Signal& b)
{
    return areSame(a.re, b.re) && areSame(a.im, b.im);
}

// Every entry of the family designs the same filter into the record.
int design(const IirFamily& family, const Parameters& with, const Record& record)
{
    int status = 1;
    for (const CascadeDesign& entry : family.cascades) {
        const bool isFirst = status == 1;
        record->reset = 0;
        const Contents before{*record};
        const int own = entry(with, {record.get()});
        require(isFirst || own == status, "one status");
        status = own;
        require(record->reset == (status == 0), "a design arms the flag");
        record->reset = 0;
        const Contents after{*record};
        require((isFirst && status == 0) || areSame(after, before), "nothing written on failure, and one design");
        require(areSame(after.state, before.state), "a design leaves the state");
    }
    record->reset = status == 0;
    return status;
}

int filterReal(IirFilter* filter, const double* x, std::int64_t n, double* y, bool isExported)
{
    return isExported ? QuorDSP_IIRCascadeFiltering(x, static_cast<int>(n), CascadeRecord{filter}, y)
                      : static_cast<int>(AALFunc91(x, n, filter, y));
}

Samples inBlocks(IirFilter* filter, const Samples& x, int block, bool isExported)
{
    Samples y(x.size());
    for (int done = 0; done < sizeOf(x); done += block)
        require(filterReal(filter, x.data() + done, std::min(block, sizeOf(x) - done), y.data() + done, isExported) ==
                    0,
                "status 0");
    require(filter->reset == 0, "the flag is taken down");
    return y;
}

// The state goes on from block to block.
Signal complexInBlocks(IirFilter* filter, const Signal& x, int block)
{
    Samples pairs = interleaved(x), past(2 * static_cast<std::size_t>(filter->stateCount));
    auto* const samples = elements(pairs);
    ComplexState state{filter->stateCount, elements(past)};
    for (int done = 0, n = sizeOf(x.re); done < n; done += block)
        require(AALFunc466(samples + done, std::min(block, n - done), filter, &state, samples + done) ==
                    Status::Success,
                "status 0");
    return separated(pairs);
}

// A state of another count means none.
Signal complexFromRest(IirFilter* filter, const Signal& x, bool isExported)
{
    const int n = sizeOf(x.re), otherCount = filter->reverseCount + 1;
    if (isExported) {
        Signal y = x;
        require(QuorDSP_CxIIRCascadeFiltering(x.re.data(), x.im.data(), n, CascadeRecord{filter}, otherCount,
                                              x.re.data(), x.im.data(), y.re.data(), y.im.data()) == 0,
                "status 0");
        return y;
    }
    const Samples pairs = interleaved(x);
    Samples result(pairs.size());
    ComplexState other{otherCount, elements(result)};
    require(AALFunc466(elements(pairs), n, filter, &other, elements(result)) == Status::Success, "status 0");
    return separated(result);
}

// The same bits in one block, in many, and as parts of a complex signal, which leaves the record alone.
void filterWith(const Record& record, const Signal& x, int block, bool isExported)
{
    Signal y{inBlocks(record.get(), x.re, sizeOf(x.re), isExported), {}};
    require(ResetIIRFilter(record.get()) == Status::Success, "the flag is armed");
    require(areSame(inBlocks(record.get(), x.re, block, isExported), y.re), "the same in blocks, after a reset");
    record->reset = 1;
    y.im = inBlocks(record.get(), x.im, block, isExported);
    const Contents before{*record};
    require(areSame(complexInBlocks(record.get(), x, block), y), "the same for complex samples");
    require(areSame(complexFromRest(record.get(), x, isExported), y), "the same without a state");
    require(areSame(before, Contents{*record}), "the record is left alone");
}

std::size_t directCount(const IirFilter& filter)
{
    return static_cast<std::size_t>(filter.order) * (filter.type < 2 ? 1 : 2) + 1;
}

struct Direct {
    int status;
    Samples a, b;
};

Direct directOf(const IirFilter* filter, std::size_t countA, std::size_t countB)
{
    Direct direct{0, Samples(countA, kBefore), Samples(countB, kBefore)};
    direct.status = static_cast<int>(
        CascadeToDirectCoef(filter, direct.a.data(), sizeOf(direct.a), direct.b.data(), sizeOf(direct.b)));
    if (direct.status != 0)
        require(direct.a == Samples(countA, kBefore) && direct.b == Samples(countB, kBefore), "nothing is written");
    return direct;
}

// The sections multiplied out: finite, or no design. Ordinary ones are the family's direct coefficients.
void convert(const IirFamily& family, const Parameters& with, const IirFilter& filter, bool isOrdinary)
{
    const std::size_t count = directCount(filter);
    const Direct direct = directOf(&filter, count, count);
    require(direct.status == 0 || (direct.status == -20031 && !isOrdinary), "a filter or none");
    require(directOf(&filter, count + 1, count).status == -20008, "another length");
    require(directOf(&filter, count, count - 1).status == -20008, "another length");
    if (direct.status != 0)
        return;
    require(areFinite(direct.a) && areFinite(direct.b) && direct.a[0] == 1, "finite, from 1 on");
    if (!isOrdinary)
        return;
    Samples a(count), b(count);
    require(family.directs[0](with, a.data(), sizeOf(a), b.data(), sizeOf(b)) == 0, "status 0");
    for (std::size_t k = 0; k < count; ++k)
        require(std::abs(a[k] - direct.a[k]) < 1e-9 && std::abs(b[k] - direct.b[k]) < 1e-9, "the direct coefficients");
}

// The filter in one call is the same, but for rounding.
void requireOneCall(const IirFamily& family, const Parameters& with, const Record& record)
{
    Samples impulse(40), y(impulse.size());
    impulse[0] = 1;
    require(family.filters[with.type](with).real(impulse.data(), sizeOf(impulse), y.data()) == 0, "status 0");
    record->reset = 1;
    const Samples own = inBlocks(record.get(), impulse, sizeOf(impulse), false);
    for (std::size_t i = 0; i < y.size(); ++i)
        require(std::abs(y[i] - own[i]) < 1e-9, "the filter in one call");
}

// Each makes a record that is none.
constexpr void (*kMistakes[])(IirFilter&) = {
    [](IirFilter& filter) { filter.type ^= 2; },
    [](IirFilter& filter) { filter.type = -1; },
    [](IirFilter& filter) { filter.order += 2; },
    [](IirFilter& filter) { filter.order = 0; },
    [](IirFilter& filter) { filter.order = std::numeric_limits<int>::max(); },
    [](IirFilter& filter) { --filter.reverseCount; },
    [](IirFilter& filter) { filter.forwardCount = -1; },
    [](IirFilter& filter) { ++filter.stateCount; },
    [](IirFilter& filter) { filter.reverse = nullptr; },
    [](IirFilter& filter) { filter.forward = nullptr; },
    [](IirFilter& filter) { filter.state = nullptr; },
};

// No entry takes a record that is spoiled or missing.
void requireRefusals(const IirFamily& family, const Parameters& with, IirFilter* record)
{
    double y[2] = {kBefore, kBefore};
    auto* const pair = reinterpret_cast<Complex*>(y);
    for (const CascadeDesign& entry : family.cascades)
        require(entry(with, {record}) == kBadRecord, "no record to design");
    for (const bool isExported : {false, true})
        require(filterReal(record, y, 1, y, isExported) == kBadRecord, "no record to filter with");
    require(static_cast<int>(AALFunc466(pair, 1, record, nullptr, pair)) == kBadRecord, "no record to filter with");
    require(directOf(record, 1, 1).status == kBadRecord, "no record to convert");
    require(static_cast<int>(ResetIIRFilter(record)) == kBadRecord, "no record to reset");
    require(y[0] == kBefore && y[1] == kBefore, "nothing is written");
}

} // namespace

// Cascade filters from their record on: designs, filtering, conversion, and records that are none.
void cascade(Bytes bytes)
{
    const IirFamily& family = iirFamilies()[bytes.byte() % iirFamilies().size()];
    const bool isOrdinary = bytes.byte() % 2 > 0;
    const Parameters with = isOrdinary ? readOrdinaryIirParameters(bytes) : readIirParameters(bytes);
    const Record record = newRecord(with);
    if (!record)
        return requireRefusals(family, with, nullptr);
    const int status = design(family, with, record), expected = expectedStatus(family, with);
    require(expected != 0 ? status == expected : status == 0 || status == -20031, "the documented status");
    require(status == 0 || !isOrdinary, "an ordinary design succeeds");
    IirFilter spoiled = *record;
    kMistakes[bytes.byte() % std::size(kMistakes)](spoiled);
    requireRefusals(family, with, &spoiled);
    if (status != 0)
        return;
    require(areFinite(Contents{*record}.reverse) && areFinite(Contents{*record}.forward), "finite coefficients");
    convert(family, with, *record, isOrdinary);
    const int n = bytes.between(1, 60), block = bytes.between(1, 40);
    const Signal x{bytes.numbers(n), bytes.numbers(n)};
    filterWith(record, x, block, bytes.byte() % 2 > 0);
    if (isOrdinary)
        requireOneCall(family, with, record);
}

} // namespace quordsp::fuzz
