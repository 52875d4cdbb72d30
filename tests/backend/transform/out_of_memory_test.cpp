// Allocation n fails, for every n: each entry answers "not enough memory", writes nothing and leaks nothing.
#include "backend/support/failing_new.h"
#include "backend/transform/signals.h"

#include <functional>
#include <string>

namespace quordsp::backend {
namespace {

bool isSmooth(std::size_t n)
{
    for (std::size_t prime = 2; prime <= 61; ++prime)
        while (n % prime == 0)
            n /= prime;
    return n == 1;
}

bool isPrime(std::size_t n)
{
    for (std::size_t i = 2; i * i <= n; ++i)
        if (n % i == 0)
            return false;
    return true;
}

// Sizes of one method that no transform has seen: a size that is known needs fewer allocations.
struct Method {
    std::size_t last;
    bool (*has)(std::size_t n);

    std::size_t newSize()
    {
        while (!has(++last)) {
        }
        return last;
    }
};
Method methods[] = {
    {90, [](std::size_t n) { return n % 2 == 0 && isSmooth(n); }},
    {90, [](std::size_t n) { return n % 2 != 0 && isSmooth(n); }},
    {1000, isPrime},
};
Method large = {65535, isSmooth};

// Arguments of any entry; each entry takes what it has.
struct Arguments {
    explicit Arguments(std::size_t count)
        : n(static_cast<std::int64_t>(count)), a(16 * count, 1), b(16 * count, -1), c(16 * count, -1)
    {}
    bool operator==(const Arguments&) const = default;

    Complex* complexA() { return reinterpret_cast<Complex*>(a.data()); }
    Complex* complexB() { return reinterpret_cast<Complex*>(b.data()); }

    std::int64_t n;
    Array a, b, c;
    double df = -1;
};

struct Entry {
    std::string name;
    Status (*call)(Arguments& x);
};

void PrintTo(const Entry& entry, std::ostream* out)
{
    *out << entry.name;
}

class EntryOutOfMemory : public testing::TestWithParam<Entry> {};

void expectSurvivesNewSizes(const Entry& entry, Method& method)
{
    for (int n = 0, failed = 1; failed; ++n)
        for (const bool lasting : {false, true}) {
            Arguments arguments(method.newSize());
            const Arguments before = arguments;
            support::failure = {n, lasting};
            const Status status = entry.call(arguments);
            failed = support::failure.hasCome;
            support::failure = {};
            EXPECT_EQ(status, failed ? Status::OutOfMemory : Status::Success) << "allocation " << n;
            EXPECT_EQ(arguments == before, failed) << "allocation " << n;
        }
}

void expectSurvivesAKnownSize(const Entry& entry, Method& method)
{
    Arguments arguments(method.newSize());
    ASSERT_EQ(entry.call(arguments), Status::Success);
    const Arguments before = arguments;
    failEveryAllocation([&] { return entry.call(arguments); }, [&] { return arguments == before; });
}

TEST_P(EntryOutOfMemory, IsSurvivedWithASizeThatIsNew)
{
    for (Method& method : methods)
        expectSurvivesNewSizes(GetParam(), method);
}

TEST_P(EntryOutOfMemory, IsSurvivedWithASizeThatIsKnown)
{
    for (Method& method : methods)
        expectSurvivesAKnownSize(GetParam(), method);
}

const Entry kEntries[] = {
    {"FFT", [](Arguments& x) { return AALFunc77(x.a.data(), x.b.data(), x.n); }},
    {"InvFFT", [](Arguments& x) { return AALFunc102(x.a.data(), x.b.data(), x.n); }},
    {"ReFFT", [](Arguments& x) { return AALFunc147(x.a.data(), x.b.data(), x.n); }},
    {"ReInvFFT", [](Arguments& x) { return AALFunc148(x.a.data(), x.b.data(), x.n); }},
    {"FFTEx", [](Arguments& x) { return AALFunc262(x.a.data(), x.n - 1, x.n, nullptr, 1, x.complexB()); }},
    {"CxFFTEx", [](Arguments& x) { return AALFunc263(x.complexA(), x.n - 1, x.n, nullptr, 1, x.complexB()); }},
    {"InvFFTEx", [](Arguments& x) { return AALFunc264(x.complexA(), x.n, nullptr, 1, x.b.data()); }},
    {"CxInvFFTEx", [](Arguments& x) { return AALFunc265(x.complexA(), x.n, nullptr, 1, x.complexB()); }},
    {"FFT2D", [](Arguments& x) { return AALFunc266(x.a.data(), 3, x.n, 0, 0, 1, x.complexB()); }},
    {"CxFFT2D", [](Arguments& x) { return AALFunc267(x.complexA(), x.n, 8, 0, 0, 1, x.complexB()); }},
    {"InvFFT2D", [](Arguments& x) { return AALFunc268(x.complexA(), 3, x.n, 1, x.b.data()); }},
    {"CxInvFFT2D", [](Arguments& x) { return AALFunc269(x.complexA(), x.n, 8, 1, x.complexB()); }},
    {"Spectrum", [](Arguments& x) { return AALFunc161(x.a.data(), x.n); }},
    {"CxSpectrum", [](Arguments& x) { return AALFunc467(x.complexA(), x.n, x.b.data()); }},
    {"AutoPowerSpectrum", [](Arguments& x) { return AALFunc10(x.a.data(), x.n, 1, x.b.data(), &x.df); }},
    {"AmpPhaseSpectrum", [](Arguments& x) { return AALFunc5(x.a.data(), x.n, 1, 1, x.b.data(), x.c.data(), &x.df); }},
};
INSTANTIATE_TEST_SUITE_P(Entries, EntryOutOfMemory, testing::ValuesIn(kEntries),
                         [](const auto& row) { return row.param.name; });

TEST(TransformOutOfMemory, IsSurvivedByALargeSize)
{
    expectSurvivesNewSizes(kEntries[0], large);
    expectSurvivesAKnownSize(kEntries[0], large);
}

struct TableEntry {
    const char* name;
    Status (*call)(Arguments& x, const FftTable* table);
};

const TableEntry kTableEntries[] = {
    {"FFTEx",
     [](Arguments& x, const FftTable* table) { return AALFunc262(x.a.data(), x.n - 1, x.n, table, 1, x.complexB()); }},
    {"CxFFTEx", [](Arguments& x,
                   const FftTable* table) { return AALFunc263(x.complexA(), x.n - 1, x.n, table, 1, x.complexB()); }},
    {"InvFFTEx",
     [](Arguments& x, const FftTable* table) { return AALFunc264(x.complexA(), x.n, table, 1, x.b.data()); }},
    {"CxInvFFTEx",
     [](Arguments& x, const FftTable* table) { return AALFunc265(x.complexA(), x.n, table, 1, x.complexB()); }},
};

// Whether an allocation of the call failed. The table may keep what the call has got.
bool failsWithATable(const TableEntry& entry, std::size_t size, bool used, support::Failure failure)
{
    Arguments arguments(size);
    const Arguments before = arguments;
    FftTable* const table = AALFunc260(arguments.n);
    if (used) {
        EXPECT_EQ(entry.call(arguments, table), Status::Success);
        arguments = before;
    }
    support::failure = failure;
    const Status status = entry.call(arguments, table);
    const bool failed = support::failure.hasCome;
    support::failure = {};
    EXPECT_EQ(status, failed ? Status::OutOfMemory : Status::Success);
    EXPECT_EQ(arguments == before, failed);
    EXPECT_EQ(entry.call(arguments, table), Status::Success) << "the next time";
    AALFunc261(table);
    return failed;
}

// Allocation n fails, until none does any more. Returns how many did.
int expectSurvivesWithATable(const TableEntry& entry, std::size_t size, bool used)
{
    int n = 0;
    for (bool failed = true; failed; n += failed ? 1 : 0)
        for (const bool lasting : {false, true}) {
            const int before = support::blocksAlive;
            failed = failsWithATable(entry, size, used, {n, lasting});
            EXPECT_EQ(support::blocksAlive, before) << entry.name << ", allocation " << n;
        }
    return n;
}

TEST(TransformWithATable, SurvivesThatThereIsNoMemory)
{
    for (const TableEntry& entry : kTableEntries) {
        int failures = 0; // a table that has been used may have all that is needed, as may small sizes
        for (Method& method : methods) {
            failures += expectSurvivesWithATable(entry, method.newSize(), false);
            expectSurvivesWithATable(entry, method.newSize(), true);
        }
        EXPECT_GT(failures, 0) << entry.name;
    }
}

TEST(FftTable, IsNullWithoutMemory)
{
    for (Method& method : methods) {
        const auto n = static_cast<std::int64_t>(method.newSize());
        const auto make = [&] {
            FftTable* const table = AALFunc260(n);
            EXPECT_EQ(table == nullptr, support::failure.hasCome);
            AALFunc261(table);
        };
        EXPECT_GT(support::failEveryAllocation(make, [](int) {}), 0);
    }
}

} // namespace
} // namespace quordsp::backend
