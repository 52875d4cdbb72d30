#include "gain_bands.h"

#include <gmock/gmock.h>

#include "failure_of.h"

namespace quordsp::cli {
namespace {

TEST(GainBands, HaveGainAndWeightOneUnlessTheyAreGiven)
{
    const std::vector<GainBand> bands = parseGainBands({"0:100", "1.5e2:200:0.5", "300:+400:-1:10"});
    ASSERT_EQ(bands.size(), 3u);
    EXPECT_THAT((std::vector{bands[0].from, bands[0].to, bands[0].gain, bands[0].weight}),
                testing::ElementsAre(0, 100, 1, 1));
    EXPECT_THAT((std::vector{bands[1].from, bands[1].to, bands[1].gain, bands[1].weight}),
                testing::ElementsAre(150, 200, 0.5, 1));
    EXPECT_THAT((std::vector{bands[2].from, bands[2].to, bands[2].gain, bands[2].weight}),
                testing::ElementsAre(300, 400, -1, 10));
    EXPECT_EQ(describe(bands), "0 to 100 Hz, 150 to 200 Hz by 0.5, 300 to 400 Hz by -1 with weight 10");
}

TEST(GainBands, HaveWeightsAboveZero)
{
    for (const char* const text : {"0:100:1:0", "0:100:1:-2"})
        EXPECT_EQ(messageOf([&] { parseGainBands({text}); }),
                  "--bands: the weight of '" + std::string(text) + "' is not greater than 0");
}

TEST(GainBands, AreToldApartWhenTheyAreClose)
{
    EXPECT_EQ(describe(parseGainBands({"0:100", "100.0001:200"})), "0 to 100 Hz, 100.0001 to 200 Hz");
}

TEST(GainBands, QuoteWhatIsNone)
{
    for (const char* const text : {"", "1", "1:", ":1", "1:2:3:4:5", "1:x", "1;2", "1:2:inf", "1:2:"})
        EXPECT_EQ(messageOf([&] { parseGainBands({"0:100", text}); }),
                  "--bands: '" + std::string(text) + "' is not a band");
}

} // namespace
} // namespace quordsp::cli
