// How much memory transforms keep for the next ones: of a module that is loaded here, so that it keeps none at first,
// and is unloaded again.
#include "backend/transform/signals.h"
#include "support/failing_new.h"
#include "support/module.h"

#include <algorithm>

namespace quordsp::backend {
namespace {

constexpr std::size_t kMegabyte = 1 << 20;
constexpr std::size_t kMost = 48 * kMegabyte;
// Of what is not counted: the objects themselves, the rest of the last page of a block.
constexpr std::size_t kOverhead = kMegabyte;

// A transform with one kind of plan. What it keeps is counted when its own arrays are gone.
struct Kind {
    std::size_t largest; // of the sizes in the tests; takes some megabytes
    void (*transform)(const support::Module& module, std::size_t n);
};

template <class Entry>
Entry* entry(const support::Module& module, const char* name)
{
    return module.function<Entry>(name);
}

const Kind kKinds[] = {
    {100'000,
     [](const support::Module& module, std::size_t n) {
         Signal x = {Array(n, 1), Array(n)};
         const auto fft = entry<decltype(AALFunc77)>(module, "AALFunc77");
         EXPECT_EQ(fft(x.re.data(), x.im.data(), count(x.re)), Status::Success);
     }},
    {200'000,
     [](const support::Module& module, std::size_t n) {
         Signal x = {Array(n, 1), Array(n)};
         const auto realFft = entry<decltype(AALFunc147)>(module, "AALFunc147");
         EXPECT_EQ(realFft(x.re.data(), x.im.data(), count(x.re)), Status::Success);
     }},
    {16'000,
     [](const support::Module& module, std::size_t n) {
         constexpr std::size_t kColumns = 8; // as many as one plan transforms side by side
         const Complexes x(kColumns * n, Complex{1, 0});
         Complexes y(x.size());
         const auto matrixFft = entry<decltype(AALFunc267)>(module, "AALFunc267");
         EXPECT_EQ(matrixFft(x.data(), static_cast<std::int64_t>(n), kColumns, 0, 0, 0, y.data()), Status::Success);
     }},
};

class PlanCacheMemory : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(module); }
    void TearDown() override
    {
        module.release();
        EXPECT_FALSE(support::Module::loaded(support::kBackendFile));
        if (!HasFailure()) // whose text takes memory
            EXPECT_EQ(support::bytesAlive, before);
    }

    std::size_t kept() const { return support::bytesAlive - before; }

    const std::size_t before = support::bytesAlive;
    const support::Module module = support::Module::load(NIANLYS_FILE);
};

// Neighbouring sizes have methods of every kind.
TEST_F(PlanCacheMemory, IsBoundedHoweverManySizesThereAre)
{
    std::size_t most = 0;
    for (std::size_t i = 0; i < 12; ++i)
        for (const Kind& kind : kKinds) {
            kind.transform(module, kind.largest - i * (kind.largest / 50 + 1));
            most = std::max(most, kept());
        }
    EXPECT_LE(most, kMost + kOverhead);
    EXPECT_GT(most, kMost / 2); // or this would count in vain
}

TEST_F(PlanCacheMemory, DoesNotGrowWhenASizeComesBack)
{
    for (const Kind& kind : kKinds) {
        const std::size_t without = kept();
        kind.transform(module, kind.largest);
        const std::size_t once = kept();
        EXPECT_GT(once, without);
        for (int i = 0; i < 3; ++i)
            kind.transform(module, kind.largest);
        EXPECT_EQ(kept(), once);
    }
}

TEST_F(PlanCacheMemory, IsNotTakenByASizeWhoseTablesAreTooLarge)
{
    kKinds[0].transform(module, 500'009);
    EXPECT_EQ(kept(), 0u);
}

TEST_F(PlanCacheMemory, IsFreedWithTheModule)
{
    for (const Kind& kind : kKinds)
        kind.transform(module, kind.largest);
    EXPECT_GT(kept(), kMegabyte); // but nothing after TearDown
}

} // namespace
} // namespace quordsp::backend
