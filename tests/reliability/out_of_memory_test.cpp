// Allocation n fails, for every n: no routine crashes or leaks, and each leaves what it documents. Works where the
// library takes operator new from this program.
#include "support/failing_new.h"

#include <filesystem>

#include "QuorDSP_DAQ.h"
#include "numeric/numeric_array.h"
#include "support/folders.h"
#include "support/integer_signal.h"

namespace quordsp {
namespace {

using support::failEveryAllocation;

constexpr int kCount = 40;

TEST(OutOfMemory, LeavesTheSignalOfDetrendUntouched)
{
    const std::vector<double> before = noise(kCount);
    for (const int order : {1, 5}) {
        std::vector<double> signal = before;
        double breakpoints[] = {10, 20};
        AnalysisLibErrType status{};
        const auto call = [&] { status = QuorDSP_detrend(signal.data(), kCount, order, breakpoints, 2); };
        const int failures = failEveryAllocation(call, [&](int n) {
            EXPECT_EQ(status, 0) << "allocation " << n;
            EXPECT_EQ(signal, before) << "allocation " << n;
        });
        EXPECT_GT(failures, 0) << "order " << order;
        EXPECT_NE(signal, before) << "order " << order;
    }
}

// Whatever the vibration exports could not remove a trend from is still scaled and integrated.
TEST(OutOfMemory, StopsNoVibrationExport)
{
    std::vector<double> params{1, 1000, 100, 0, 0, 0, 1e8, -1e8, 1e8, -1e8};
    std::vector<double> raw = noise(kCount), acceleration(kCount), velocity(kCount), displacement(kCount);
    std::vector<double> expected(kCount);
    for (std::size_t i = 0; i < kCount; ++i)
        expected[i] = raw[i] * 1000 / 100 * 9.78;
    AnalysisLibErrType status{};
    const auto run = [&](auto routine) {
        const auto call = [&] {
            status =
                routine(params.data(), raw.data(), acceleration.data(), velocity.data(), displacement.data(), kCount);
        };
        EXPECT_GT(failEveryAllocation(call,
                                      [&](int n) {
                                          EXPECT_EQ(status, 0) << "allocation " << n;
                                          EXPECT_EQ(acceleration, expected) << "allocation " << n;
                                      }),
                  0);
    };
    run(QuorDSP_Vibration_Acceleration);
    params[0] = 0;
    run(QuorDSP_Vibration_Acceleration);
    run(QuorDSP_Acceleration);
}

TEST(OutOfMemory, DoesNotStopEuler)
{
    std::vector<double> raw = noise(kCount), acceleration(kCount), velocity(kCount), displacement(kCount);
    AnalysisLibErrType status{};
    const auto call = [&] {
        status =
            QuorDSP_Vibration_Acceleration_Euler(raw.data(), kCount, 1000, 2, 0, 0, 0, 1e8, -1e8, 1e8, -1e8,
                                                 acceleration.data(), velocity.data(), displacement.data(), nullptr, 0);
    };
    const int failures = failEveryAllocation(call, [&](int n) {
        EXPECT_EQ(status, 0) << "allocation " << n;
        EXPECT_EQ(acceleration, scaled(raw, 2)) << "allocation " << n;
    });
    EXPECT_GT(failures, 0);
}

TEST(OutOfMemory, IsNotMetByTheRoutinesThatNeedNone)
{
    std::vector<double> data = noise(kCount), other = noise(kCount, 2);
    const auto call = [&] {
        linear_regression(data.data(), kCount);
        QuorDSP_getSNR(data.data(), kCount, other.data(), other.data());
        QuorDSP_Thermocouple(data.data(), kCount, 0, 0, 25.0, data.data());
    };
    EXPECT_EQ(failEveryAllocation(call, [](int) {}), 0);
}

TEST(OutOfMemory, MakesNoHalfNumericArray)
{
    double storage[3] = {1, 2, 3};
    bool isMade = false;
    const auto check = [&](int n) { EXPECT_FALSE(isMade) << "allocation " << n; };
    EXPECT_GT(failEveryAllocation([&] { isMade = wrapColumn(storage, 3) != nullptr; }, check), 1);
    EXPECT_GT(failEveryAllocation([&] { isMade = createOwnedColumn<double>(3) != nullptr; }, check), 2);
    EXPECT_GT(failEveryAllocation([&] { isMade = createOwnedColumn<std::int32_t>(3) != nullptr; }, check), 2);
    EXPECT_EQ(storage[2], 3);
}

TEST(OutOfMemory, LeavesANumericArrayThatCannotGrowAsItWas)
{
    double storage[3] = {1, 2, 3};
    bool hasGrown = false;
    bool isAsItWas = false;
    const auto call = [&] {
        const auto array = wrapColumn(storage, 3);
        hasGrown = false;
        isAsItWas = true;
        if (!array)
            return;
        array->size[0] = 40;
        hasGrown = ensureCapacity(*array, 3);
        isAsItWas = array->data == storage && array->allocatedSize == 3 && !array->canFreeData;
    };
    EXPECT_GT(failEveryAllocation(call, [&](int n) { EXPECT_TRUE(!hasGrown && isAsItWas) << "allocation " << n; }), 2);
    EXPECT_TRUE(hasGrown && !isAsItWas);
}

class FileOutOfMemory : public testing::Test {
protected:
    const std::string path_ = (support::ownFolder() / "samples.wav").string();
    const std::vector<float> samples_ = noise<float>(100'000);

    template <class Write>
    void expectNoFile(AnalysisLibErrType statusWithoutFile, Write write)
    {
        AnalysisLibErrType status{};
        const int failures = failEveryAllocation([&] { status = write(); },
                                                 [&](int n) {
                                                     EXPECT_EQ(status, statusWithoutFile) << "allocation " << n;
                                                     EXPECT_FALSE(std::filesystem::exists(path_)) << "allocation " << n;
                                                 });
        EXPECT_GT(failures, 0);
        EXPECT_EQ(status, 0);
        EXPECT_TRUE(std::filesystem::remove(path_));
    }
};

TEST_F(FileOutOfMemory, IsNoFileOfWriteWAVAndReported)
{
    const int count = static_cast<int>(samples_.size());
    expectNoFile(QUORDSP_FILE_NOT_CREATED,
                 [&] { return QuorDSP_WriteWAV(path_.c_str(), samples_.data(), count, 8000); });
}

TEST_F(FileOutOfMemory, IsNoFileOfWriteWAVFile)
{
    const int count = static_cast<int>(samples_.size());
    for (const int bits : {8, 16, 24, 32})
        expectNoFile(QUORDSP_SUCCESS,
                     [&] { return QuorDSP_WriteWAVFile(path_.c_str(), samples_.data(), count, 8000, bits, 2); });
}

} // namespace
} // namespace quordsp
