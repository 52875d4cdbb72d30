// Makes allocation n of an entry of the backend fail, for every n: each time the entry must say so.
#pragma once
#include "nianlys.h"
#include "support/failing_new.h"

namespace quordsp::backend {

// Calls until no allocation fails any more; returns how many did, each of which must have left everything as it was.
template <class Call, class Untouched>
int failEveryAllocation(Call call, Untouched untouched)
{
    Status status{};
    const int failures = support::failEveryAllocation([&] { status = call(); },
                                                      [&](int n) {
                                                          EXPECT_EQ(status, Status::OutOfMemory) << "allocation " << n;
                                                          EXPECT_TRUE(untouched()) << "allocation " << n;
                                                      });
    EXPECT_EQ(status, Status::Success);
    return failures;
}

} // namespace quordsp::backend
