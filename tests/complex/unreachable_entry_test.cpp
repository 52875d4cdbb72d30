// The complex exports without a backend, and with one that lacks entries.
#include <set>

#include "complex/complex_fixture.h"

namespace quordsp::complex_exports {
namespace {

// The outputs of those that work through a second block are unspecified.
void expectUnanswered(const Export& row, int status)
{
    for (const int n : {-1, 0, 1, 7}) {
        Arrays arrays{n};
        Arrays before = arrays;
        EXPECT_EQ(call(row, arrays.call()), statusText(status)) << row.name;
        if (row.has('y'))
            arrays = arrays.with(before.samples(before.out()), &Arrays::out);
        EXPECT_TRUE(arrays == unanswered(row, before)) << row.name;
    }
}

TEST_F(ComplexExports, ReportAMissingBackendOnEveryCall)
{
    for (int round = 0; round < 2; ++round)
        for (const Export& row : exports())
            expectUnanswered(row, -5093);
}

// The entries that the partial backend lacks: in place, through a second block, with states, without a signal.
bool isMissing(const Export& row)
{
    static const std::set<std::string_view> missing{"AALFunc262", "AALFunc354", "AALFunc450", "AALFunc457"};
    return missing.contains(row.entry);
}

TEST_F(ComplexExports, ReportAMissingEntryOnEveryCall)
{
    loadBackend("backend_partial");
    for (int round = 0; round < 2; ++round)
        for (const Export& row : exports())
            if (isMissing(row))
                expectUnanswered(row, -5094);
    EXPECT_THAT(fakes::takeNotes(), testing::IsEmpty());
}

TEST_F(ComplexExports, WorkWhereTheEntryOfAnotherOneIsMissing)
{
    loadBackend("backend_partial");
    answerCalls();
    for (const Export& row : exports()) {
        if (isMissing(row))
            continue;
        Arrays arrays{7};
        const Arrays before = arrays;
        EXPECT_EQ(call(row, arrays.call()), statusText(0)) << row.name;
        EXPECT_TRUE(arrays == answered(row, before)) << row.name;
    }
}

} // namespace
} // namespace quordsp::complex_exports
