#include <algorithm>
#include <memory>

#include "QuorDSP_DAQ.h"
#include "signals.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using namespace backend;

constexpr std::int64_t kHuge = std::numeric_limits<std::int64_t>::max();

struct FreeTable {
    void operator()(FftTable* table) const { AALFunc261(table); }
};
using Table = std::unique_ptr<FftTable, FreeTable>;

// What a transform is asked for.
struct Call {
    int points;
    int shift;
    const FftTable* table;
};

double magnitude(const Signal& of)
{
    double sum = 1;
    for (std::size_t i = 0; i < of.re.size(); ++i)
        sum += std::hypot(of.re[i], of.im[i]);
    return sum;
}

using fuzz::requireNear;

void requireNear(const Signal& a, const Signal& b, double scale, const char* what)
{
    requireNear(a.re, b.re, scale, what);
    requireNear(a.im, b.im, scale, what);
}

Signal ofLength(Signal x, std::size_t length)
{
    x.re.resize(length);
    x.im.resize(length);
    return x;
}

std::size_t lengthOf(const Call& call, const Signal& x)
{
    return call.points > 0 ? static_cast<std::size_t>(call.points) : x.re.size();
}

Signal forward(const Signal& x, const Call& call)
{
    const Samples in = interleaved(x);
    Samples bins(2 * lengthOf(call, x), kBefore);
    require(AALFunc263(elements(in), sizeOf(x.re), call.points, call.table, call.shift, elements(bins)) ==
                Status::Success,
            "status 0");
    return separated(bins);
}

Signal forwardReal(const Samples& x, const Call& call)
{
    Samples bins(2 * lengthOf(call, {x, x}), kBefore);
    require(AALFunc262(x.data(), sizeOf(x), call.points, call.table, call.shift, elements(bins)) == Status::Success,
            "status 0");
    return separated(bins);
}

Signal inverse(const Signal& bins, const Call& call)
{
    const Samples in = interleaved(bins);
    Samples x(in.size(), kBefore);
    require(AALFunc265(elements(in), sizeOf(bins.re), call.table, call.shift, elements(x)) == Status::Success,
            "status 0");
    return separated(x);
}

Samples inverseReal(const Signal& bins, const Call& call)
{
    const Samples in = interleaved(bins);
    Samples x(bins.re.size(), kBefore);
    require(AALFunc264(elements(in), sizeOf(x), call.table, call.shift, x.data()) == Status::Success, "status 0");
    return x;
}

// The inverse gives what was transformed, cut or with zeros appended; the real transforms are the complex ones.
void transform(const Signal& x, const Call& call)
{
    const double scale = magnitude(x);
    const Signal used = ofLength(x, lengthOf(call, x)), bins = forward(x, call);
    requireNear(inverse(bins, call), used, scale, "what was transformed");
    const Signal real{x.re, Samples(x.im.size())}, realBins = forwardReal(x.re, call);
    requireNear(realBins, forward(real, call), scale, "the complex transform of a real signal");
    requireNear(inverseReal(realBins, call), used.re, scale, "the real signal again");
    const Signal plain = forward(x, {call.points, 0, nullptr});
    const std::size_t n = used.re.size();
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t from = call.shift ? (i + (n + 1) / 2) % n : i;
        require(std::abs(bins.re[i] - plain.re[from]) <= 1e-13 * scale, "the order, whatever the table");
    }
}

// The exports hand out as many bins as there are samples.
void requireExports(const Signal& x, const Call& call)
{
    const int n = sizeOf(x.re);
    const std::size_t common = std::min(x.re.size(), lengthOf(call, x));
    const auto* const table = reinterpret_cast<const QuorDSP_FFTTable*>(call.table);
    Signal y = x, real = x, back = x;
    require(QuorDSP_CxFFTEx(x.re.data(), x.im.data(), n, call.points, table, call.shift, y.re.data(), y.im.data()) == 0,
            "status 0");
    require(QuorDSP_FFTEx(x.re.data(), n, call.points, table, call.shift, real.re.data(), real.im.data()) == 0,
            "status 0");
    requireNear(ofLength(y, common), ofLength(forward(x, call), common), 0, "the first bins");
    requireNear(ofLength(real, common), ofLength(forwardReal(x.re, call), common), 0, "the first bins");
    require(QuorDSP_CxInvFFTEx(x.re.data(), x.im.data(), n, table, call.shift, back.re.data(), back.im.data()) == 0,
            "status 0");
    requireNear(back, inverse(x, call), 0, "the inverse of the entry");
    require(QuorDSP_InvFFTEx(x.re.data(), x.im.data(), n, table, call.shift, back.re.data()) == 0, "status 0");
    requireNear(back.re, inverseReal(x, call), 0, "the inverse of the entry");
}

// Power is the square of the transform's bins over n.
void requirePower(const Signal& x)
{
    const Samples pairs = interleaved(x);
    const Signal bins = forward(x, {});
    const auto n = static_cast<double>(x.re.size());
    Samples power(x.re.size(), kBefore), exported = power;
    require(AALFunc467(elements(pairs), sizeOf(power), power.data()) == Status::Success, "status 0");
    require(QuorDSP_CxSpectrum(x.re.data(), x.im.data(), sizeOf(power), exported.data()) == 0, "status 0");
    require(areSame(power, exported), "the export's power is the entry's");
    const double scale = std::pow(magnitude(x), 2);
    for (std::size_t i = 0; i < power.size(); ++i)
        require(std::abs(power[i] * n * n - bins.re[i] * bins.re[i] - bins.im[i] * bins.im[i]) <= 1e-12 * scale,
                "the power of the transform");
}

// Whatever is wrong with the size is answered before anything is written.
void requireRefusals(std::int64_t none)
{
    double values[2] = {kBefore, kBefore};
    auto* const pair = reinterpret_cast<Complex*>(values);
    const auto isAnswered = [&](std::int64_t n, Status status, double* x) {
        auto* const in = reinterpret_cast<Complex*>(x);
        return AALFunc262(x, n, 0, nullptr, 0, pair) == status && AALFunc263(in, n, 0, nullptr, 0, pair) == status &&
               AALFunc264(in, n, nullptr, 0, values) == status && AALFunc265(in, n, nullptr, 0, pair) == status &&
               AALFunc467(in, n, values) == status && AALFunc161(x, n) == status && AALFunc77(x, x, n) == status &&
               AALFunc102(x, x, n) == status && AALFunc147(x, x, n) == status && AALFunc148(x, x, n) == status;
    };
    require(isAnswered(none, Status::CountNotPositive, values), "no samples");
    require(isAnswered(kHuge, Status::ArraySize, nullptr), "no input");
    require(isAnswered(kHuge, Status::OutOfMemory, values), "more than any memory");
    require(AALFunc262(values, 1, kHuge, nullptr, 0, pair) == Status::OutOfMemory, "more than any memory");
    require(AALFunc263(pair, 1, kHuge, nullptr, 0, pair) == Status::OutOfMemory, "more than any memory");
    require(!AALFunc260(none) && !AALFunc260(kHuge), "no table of such a size");
    require(values[0] == kBefore && values[1] == kBefore, "nothing is written");
}

} // namespace

// One-dimensional transforms to any size, with tables that fit and that do not.
void sized_transforms(Bytes bytes)
{
    const int n = bytes.between(1, 12) * bytes.between(1, 60);
    const int points = bytes.byte() % 2 > 0 ? n : bytes.between(-1, 40) * bytes.between(1, 40);
    const int shift = bytes.between(0, 1);
    const Table table{AALFunc260(bytes.byte() % 2 > 0 ? std::max(points, 1) : bytes.between(-1, 250))};
    const Samples few = bytes.niceNumbers(bytes.between(1, 19));
    const Signal x = separated(repeated(few, 2 * static_cast<std::size_t>(n)));
    const Call call{points, shift, table.get()};
    transform(x, call);
    requireExports(x, call);
    requirePower(x);
    requireRefusals(-bytes.bits<std::uint16_t>());
    AALFunc261(nullptr);
    QuorDSP_DestroyFFTTable(QuorDSP_CreateFFTTable(points));
}

} // namespace quordsp::fuzz
