#include "status.h"

#include <gmock/gmock.h>

#include "failure_of.h"

namespace quordsp::cli {
namespace {

using testing::HasSubstr;

AnalysisLibErrType status(int value)
{
    return static_cast<AnalysisLibErrType>(value);
}

TEST(Status, IsToldInWordsWithItsNumber)
{
    EXPECT_EQ(statusText(-20021), "the order must be greater than zero (status -20021)");
    EXPECT_THAT(statusText(-20061), HasSubstr("a selection or parameter is out of its range"));
    EXPECT_EQ(statusText(-5093), "the analysis backend could not be found or loaded (status -5093)");
}

TEST(Status, HasWordsForANumberThatIsNotInTheTable)
{
    EXPECT_THAT(statusText(-12345), HasSubstr("(status -12345)"));
    EXPECT_THAT(statusText(12345), HasSubstr("warning"));
}

TEST(Status, OfSuccessPasses)
{
    EXPECT_NO_THROW(check(QUORDSP_SUCCESS, "call"));
}

TEST(Status, OfAWarningPassesAndIsPrinted)
{
    testing::internal::CaptureStderr();
    EXPECT_NO_THROW(check(status(20006), "call"));
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("warning: call: "));
}

TEST(Status, OfAMissingBackendOrEntryHasItsOwnExitCode)
{
    for (const AnalysisLibErrType missing : {QUORDSP_BACKEND_NOT_FOUND, QUORDSP_ENTRY_NOT_FOUND}) {
        const Failure failure = failureOf([&] { check(missing, "call"); });
        EXPECT_EQ(failure.code(), ExitCode::BackendMissing);
        EXPECT_THAT(failure.advice(), HasSubstr("quordsp info"));
    }
}

TEST(Status, OfABackendErrorNamesTheCall)
{
    const Failure failure = failureOf([] { check(QUORDSP_ERR_CUTOFF, "lowpass 3000 Hz"); });
    EXPECT_EQ(failure.code(), ExitCode::BackendError);
    EXPECT_THAT(failure.what(), HasSubstr("lowpass 3000 Hz: the cut-off must lie above 0"));
}

TEST(RequireSuccess, FailsForPositiveStatusesToo)
{
    requireSuccess(static_cast<AnalysisLibErrType>(0), "call");
    const Failure failure = failureOf([] { requireSuccess(static_cast<AnalysisLibErrType>(20033), "call"); });
    EXPECT_EQ(failure.code(), ExitCode::Internal);
    EXPECT_STREQ(failure.what(), "call: the file cannot be created (status 20033)");
}

} // namespace
} // namespace quordsp::cli
