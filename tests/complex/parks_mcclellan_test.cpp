// The front end of the equiripple design: four arrays become records, and the status is always the same.
#include <climits>

#include "complex/complex_fixture.h"

namespace quordsp::complex_exports {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Band {
    double a, b, c, d;
    bool operator==(const Band&) const = default;
};

struct Design {
    int n;
    double d;
    std::vector<Band> bands; // n records, or bandCount of them
    std::int64_t bandCount;
    int k;
    const double* outA;
    const double* outB;
};

class ParksMcClellan : public ComplexExports {
protected:
    static constexpr int kMost = 4097;

    void listen()
    {
        loadBackend("backend");
        fakes::stage().onCall = [this](std::string_view entry, const fakes::Arguments& arguments) {
            ASSERT_EQ(entry, "AALFunc408");
            const Band* const bands = arguments.at<const Band*>(2);
            const auto count = arguments.at<std::int64_t>(3);
            hasBlock_ = bands != nullptr;
            design_ = {arguments.at<int>(0),
                       arguments.at<double>(1),
                       bands && count > 0 ? std::vector<Band>(bands, bands + count) : std::vector<Band>{},
                       count,
                       arguments.at<int>(4),
                       arguments.at<const double*>(5),
                       arguments.at<const double*>(6)};
        };
    }

    int design(int n, int bandCount)
    {
        const auto exported = support::library().function<decltype(QuorDSP_Parks_McClellanCoef)>(kParksMcClellan);
        return exported(n, 1.5, a_.data(), b_.data(), c_.data(), d_.data(), bandCount, -7, &outputs_[0], &outputs_[1]);
    }

    std::vector<Band> bands(int count) const
    {
        std::vector<Band> all;
        for (std::size_t i = 0; static_cast<int>(i) < count; ++i)
            all.push_back({a_[i], b_[i], c_[i], d_[i]});
        return all;
    }

    std::vector<double> a_ = noise(kMost, 1), b_ = noise(kMost, 2), c_ = noise(kMost, 3), d_ = noise(kMost, 4);
    double outputs_[2] = {8.5, -8.5};
    Design design_{};
    bool hasBlock_ = false;
};

TEST_F(ParksMcClellan, HandsBandsOnAsRecords)
{
    listen();
    for (const int n : {-1, 0, 1, 3, 4, 5, 8, 4097})
        for (const int count : {-1, 0, 1, 3, 8, 4097}) {
            SCOPED_TRACE(std::to_string(n) + " taps, " + std::to_string(count) + " bands");
            EXPECT_EQ(design(n, count), 20032);
            EXPECT_EQ(design_.n, n);
            EXPECT_EQ(design_.d, 1.5);
            EXPECT_EQ(design_.bands, bands(count));
            EXPECT_EQ(design_.bandCount, count);
            EXPECT_EQ(design_.k, -7);
            EXPECT_EQ(design_.outA, &outputs_[0]);
            EXPECT_EQ(design_.outB, &outputs_[1]);
            EXPECT_EQ(hasBlock_, std::max(n, count) >= 0);
        }
    EXPECT_EQ(fakes::takeNotes().size(), 48);
}

TEST_F(ParksMcClellan, SwallowsEveryStatus)
{
    listen();
    for (const int status : {0, 1, 20032, -1, -20007, -5093, INT_MAX, INT_MIN}) {
        fakes::stage().status = status;
        EXPECT_EQ(design(5, 2), 20032);
    }
}

TEST_F(ParksMcClellan, SwallowsThatThereIsNoBackend)
{
    EXPECT_EQ(design(5, 2), 20032);
    EXPECT_EQ(design(-1, 0), 20032);
    EXPECT_THAT(outputs_, ElementsAre(8.5, -8.5));
}

TEST_F(ParksMcClellan, SwallowsThatTheEntryIsMissing)
{
    loadBackend("backend_partial");
    EXPECT_EQ(design(5, 2), 20032);
    EXPECT_THAT(fakes::takeNotes(), IsEmpty());
    EXPECT_THAT(outputs_, ElementsAre(8.5, -8.5));
}

} // namespace
} // namespace quordsp::complex_exports
