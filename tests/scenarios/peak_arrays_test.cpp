// The result arrays of the peak detector are announced as memory blocks.
#include <climits>

#include "scenarios/tracker_fixture.h"

namespace {

using testing::ElementsAre;
using testing::SizeIs;

class PeakArrays : public Tracking {
protected:
    PeakArrays()
    {
        loadBackend();
        loadRunTime("cvirte.dll");
        disposer_ = loadDisposer();
    }

    // What the backend finds, and the library's answer.
    int detect(std::int64_t peaks, int status)
    {
        fakes::stage().status = status;
        fakes::stage().onCall = [this, peaks](std::string_view, const fakes::Arguments& arguments) {
            *arguments.at<std::int64_t*>(7) = peaks;
            for (std::size_t i = 0; i < arrays_.size(); ++i)
                *arguments.at<double**>(8 + i) = &arrays_[i];
        };
        std::int64_t count = -1;
        std::array<double*, 3> found{};
        const int returned =
            EXPORT(QuorDSP_PeakDetector)(nullptr, 100, 0.5, 3, 1, 1, 1, &count, &found[0], &found[1], &found[2]);
        EXPECT_EQ(count, peaks);
        EXPECT_THAT(found, ElementsAre(&arrays_[0], &arrays_[1], &arrays_[2]));
        return returned;
    }

    // What is noted after the call of the backend.
    static std::vector<std::string> announcements()
    {
        auto notes = fakes::takeNotes();
        EXPECT_EQ(notes.at(0).substr(0, 11), "AALFunc194 ");
        notes.erase(notes.begin());
        return notes;
    }

    // 0 locations, 1 amplitudes, 2 second derivatives
    std::string arrayRegistered(std::size_t i) { return registered(&arrays_[i], disposer_, "AALFunc238"); }
    std::string arrayAcquired(std::size_t i, unsigned long long bytes)
    {
        return acquired("cvirte.dll", &arrays_[i], "Memory", "Block 0x%016p of %llu byte%s", &arrays_[i], bytes, "s");
    }
    auto allAnnounced(unsigned long long bytes)
    {
        return ElementsAre(arrayRegistered(0), arrayAcquired(0, bytes), arrayRegistered(1), arrayAcquired(1, bytes),
                           arrayRegistered(2), arrayAcquired(2, bytes));
    }

private:
    std::array<double, 3> arrays_{};
    support::Module disposer_ = support::library();
};

TEST_F(PeakArrays, AreAnnouncedInOrderWithEightBytesAPeak)
{
    EXPECT_EQ(detect(5, 0), 0);
    EXPECT_THAT(announcements(), allAnnounced(40));
}

TEST_F(PeakArrays, AreAnnouncedInThePluralForOnePeak)
{
    EXPECT_EQ(detect(1, 0), 0);
    EXPECT_THAT(announcements(), allAnnounced(8));
}

TEST_F(PeakArrays, AreAnnouncedWithNoBytesWhenThereIsNoPeak)
{
    EXPECT_EQ(detect(0, 0), 0);
    EXPECT_THAT(announcements(), allAnnounced(0));
}

TEST_F(PeakArrays, AreAnnouncedWithASizeBeyondThirtyTwoBits)
{
    EXPECT_EQ(detect(std::int64_t{1} << 32, 0), 0);
    EXPECT_THAT(announcements(), allAnnounced(1ULL << 35));
}

TEST_F(PeakArrays, AreAnnouncedAfterAWarning)
{
    EXPECT_EQ(detect(2, INT_MAX), INT_MAX);
    EXPECT_THAT(announcements(), allAnnounced(16));
}

TEST_F(PeakArrays, AreNotAnnouncedAfterAnError)
{
    for (const int error : {-1, -20001, INT_MIN}) {
        EXPECT_EQ(detect(2, error), error);
        EXPECT_THAT(announcements(), SizeIs(0));
    }
}

TEST_F(Tracking, AnnouncesNoPeakArraysWithoutTheBackendsEntry)
{
    loadBackend("backend_partial");
    loadRunTime("cvirte.dll");
    loadDisposer();
    std::int64_t count = -1;
    std::array<double*, 3> found{};
    EXPECT_EQ(EXPORT(QuorDSP_PeakDetector)(nullptr, 1, 0.5, 3, 1, 1, 1, &count, &found[0], &found[1], &found[2]),
              -5094);
    EXPECT_THAT(fakes::takeNotes(), SizeIs(0));
}

TEST_F(Tracking, AnnouncesPeakArraysToTheTrackerWithoutADisposer)
{
    loadBackend();
    loadRunTime("cvi_lvrt.dll");
    std::int64_t count = 0;
    double* array = nullptr;
    EXPECT_EQ(EXPORT(QuorDSP_PeakDetector)(nullptr, 1, 0.5, 3, 1, 1, 1, &count, &array, &array, &array), 0);
    const std::string block =
        acquired("cvi_lvrt.dll", nullptr, "Memory", "Block 0x%016p of %llu byte%s", nullptr, 0ULL, "s");
    EXPECT_THAT(fakes::takeNotes(), ElementsAre(testing::StartsWith("AALFunc194 "), block, block, block));
}

} // namespace
