// A record by value travels here as the address of the caller's copy of it. A caller that makes no copy and passes the
// address of the record itself finds it unchanged all the same.
#include <cstring>

#include "exports/forwarding_fixture.h"

namespace {

using ByAddress = AnalysisLibErrType(const double* in, int n, const QuorDSP_FIRFilter* filter, double* out);

TEST_F(ForwardingExports, GiveTheBackendACopyOfTheNarrowBandRecord)
{
    loadBackend("backend");
    const QuorDSP_FIRFilter before = arguments().record();
    const QuorDSP_FIRFilter record = before;
    const auto filter = support::library().function<ByAddress>("QuorDSP_FIRNarrowBandFilter");
    ASSERT_EQ(filter(nullptr, 1, &record, nullptr), 0);
    EXPECT_EQ(fakes::takeNotes().back(), "AALFunc410 p=0 z=1 " + fakes::argumentText(before) + " p=0");
    EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0);
}

} // namespace
