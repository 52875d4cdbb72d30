// Allocation n of every complex export fails, for every n: the backend is not called, and no output is touched. The
// linker puts a look-up of this program in the place of the library's own, which finds an entry that only counts.
#include "support/failing_new.h"

#include <climits>
#include <string_view>

#include <dlfcn.h>

#include "complex/complex_fixture.h"
#include "frame/entry.h"

namespace {

int callsOfBackend = 0;

int countCall()
{
    ++callsOfBackend;
    return 77;
}

// An entry of any signature.
[[gnu::naked, clang::no_sanitize("function")]] void anyEntry()
{
    asm("jmp %P0" : : "i"(&countCall));
}

} // namespace

extern "C" quordsp::Binding __wrap__ZN7quordsp9bindEntryEPKc(const char* /*name*/)
{
    return {&anyEntry, QUORDSP_SUCCESS};
}

namespace quordsp::complex_exports {
namespace {

using support::failEveryAllocation;

support::Module::Symbol symbolOf(const Export& row)
{
    return reinterpret_cast<support::Module::Symbol>(dlsym(RTLD_DEFAULT, row.name));
}

class ComplexOutOfMemory : public testing::Test {
protected:
    void SetUp() override { callsOfBackend = 0; }
};

// One allocation a block.
int blocksOf(const Export& row)
{
    return static_cast<int>(std::ranges::count_if(
        row.shape, [](char kind) { return std::string_view{"xASRy"}.find(kind) != std::string_view::npos; }));
}

TEST_F(ComplexOutOfMemory, IsReportedWithoutACallOfTheBackend)
{
    for (const Export& row : exports()) {
        Arrays arrays{40};
        const Arrays before = arrays;
        const auto call = readyCall(row, symbolOf(row), arrays.call());
        callsOfBackend = 0;
        std::string status;
        const int failures = failEveryAllocation([&] { status = call(); },
                                                 [&](int n) {
                                                     EXPECT_EQ(status, "s=-5093") << row.name << ", allocation " << n;
                                                     EXPECT_EQ(callsOfBackend, 0) << row.name << ", allocation " << n;
                                                     EXPECT_TRUE(arrays == before) << row.name << ", allocation " << n;
                                                 });
        EXPECT_EQ(failures, blocksOf(row)) << row.name;
        EXPECT_EQ(status, "s=77") << row.name;
        EXPECT_EQ(callsOfBackend, 1) << row.name;
    }
}

// A block that would hold nothing is not missed.
TEST_F(ComplexOutOfMemory, DoesNotMatterWithoutSamples)
{
    for (const Export& row : exports())
        for (const int n : {0, -1, INT_MIN}) {
            if (row.has('R') && n == 0)
                continue; // there is a record, however few states it has
            std::string status;
            const auto call = readyCall(row, symbolOf(row), {n, 0, 0, {}, {}, {}, {}});
            failEveryAllocation([&] { status = call(); }, [&](int) { EXPECT_EQ(status, "s=77") << row.name; });
            EXPECT_EQ(status, "s=77") << row.name;
        }
}

TEST_F(ComplexOutOfMemory, IsNotToldByParksMcClellan)
{
    double bands[4][3] = {};
    double out[2] = {8.5, -8.5};
    for (const int n : {1, 30}) {
        callsOfBackend = 0;
        int status = 0;
        const auto design = [&] {
            status =
                QuorDSP_Parks_McClellanCoef(n, 1.0, bands[0], bands[1], bands[2], bands[3], 3, 0, &out[0], &out[1]);
        };
        const int failures = failEveryAllocation(design, [&](int) {
            EXPECT_EQ(status, 20032);
            EXPECT_EQ(callsOfBackend, 0);
        });
        EXPECT_EQ(failures, 1);
        EXPECT_EQ(status, 20032);
        EXPECT_EQ(callsOfBackend, 1);
    }
    EXPECT_THAT(out, testing::ElementsAre(8.5, -8.5));
}

} // namespace
} // namespace quordsp::complex_exports
