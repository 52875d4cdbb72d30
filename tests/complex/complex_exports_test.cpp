// Every complex export packs its signals, calls its entry once and unpacks what the entry leaves, whatever the status.
#include <climits>

#include "complex/complex_fixture.h"

namespace quordsp::complex_exports {
namespace {

using testing::Each;

constexpr Sample kZero{0.0, 0.0};

class ComplexExport : public AnsweredComplexExports, public testing::WithParamInterface<Export> {};

TEST_P(ComplexExport, HandsItsArgumentsOnPackedAndUnpacksTheResult)
{
    const Export& row = GetParam();
    for (const int n : {-1, 0, 1, 3, 4, 5, 8, 4097}) {
        SCOPED_TRACE(n);
        Arrays arrays{n};
        Arrays before = arrays;
        const Received received = receivedFrom(row, arrays.call());
        EXPECT_EQ(received.note, noteOf(row, arrays.call()));
        if (row.has('x'))
            EXPECT_EQ(received.input, before.samples(before.in()));
        EXPECT_TRUE(arrays == answered(row, before));
    }
}

INSTANTIATE_TEST_SUITE_P(, ComplexExport, testing::ValuesIn(exports().begin(), exports().end()),
                         [](const auto& row) { return row.param.name; });

TEST_F(AnsweredComplexExports, GiveTheSameInPlace)
{
    for (const Export& row : exports()) {
        if (!row.has('x') || !row.hasOutput())
            continue;
        Arrays before{9};
        const Samples result = resultOf(row, before);
        Arrays arrays = before;
        Call inPlace = arrays.call();
        inPlace.out = arrays.in();
        call(row, inPlace);
        EXPECT_TRUE(arrays == before.with(result, &Arrays::in)) << row.name;

        Arrays crossed = before;
        Call inOther = crossed.call();
        inOther.out = {crossed.in().im, crossed.in().re};
        call(row, inOther);
        EXPECT_EQ(crossed.samples(inOther.out), result) << row.name;
    }
}

TEST_F(AnsweredComplexExports, UnpackWhateverTheStatus)
{
    for (const Export& row : exports())
        for (const int status : {1, 42, INT_MAX, -1, -5093, -5094, -20001, INT_MIN}) {
            fakes::stage().status = status;
            Arrays arrays{5};
            const Arrays before = arrays;
            receivedFrom(row, arrays.call());
            EXPECT_TRUE(arrays == answered(row, before)) << row.name << ", status " << status;
        }
}

TEST_F(AnsweredComplexExports, TouchNoArrayWithoutSamples)
{
    for (const Export& row : exports())
        for (const int n : {0, -1, INT_MIN}) {
            const Call nothing{n, 3, 3, {}, {}, {}, {}};
            EXPECT_EQ(receivedFrom(row, nothing).note, noteOf(row, nothing));
        }
}

TEST_F(ComplexExports, LeaveTheInputInTheOutputsOfAFailureInPlace)
{
    loadBackend("backend");
    fakes::stage().status = -20020;
    for (const Export& row : exports()) {
        if (!row.has('Y'))
            continue;
        Arrays arrays{6};
        const Arrays before = arrays;
        EXPECT_EQ(call(row, arrays.call()), statusText(-20020)) << row.name;
        EXPECT_TRUE(arrays == unanswered(row, before)) << row.name;
    }
}

// The backend reads as many states as the counts say, and finds zeros where the caller's arrays end.
TEST_F(AnsweredComplexExports, PackStateToTheLengthOfTheSignal)
{
    for (const Export& row : exports()) {
        if (!row.has('S') && !row.has('R'))
            continue;
        for (const int n : {-1, 0, 1, 4, 9})
            for (const int count : {INT_MIN, -2, 0, 1, 2, 4, 5, 100}) {
                SCOPED_TRACE(row.name + (" of " + std::to_string(n) + ", count " + std::to_string(count)));
                Arrays arrays{n};
                Arrays before = arrays;
                Call arguments = arrays.call();
                arguments.count = count;
                const Received received = receivedFrom(row, arguments);
                Samples state = before.samples(before.state());
                const int past = row.has('A') || row.has('R') ? count : std::max(count, 1) - 1;
                if (n >= 0)
                    state.resize(static_cast<std::size_t>(std::max(n, past)), kZero);
                EXPECT_EQ(received.state, state);
                EXPECT_EQ(received.note, noteOf(row, arguments));
                EXPECT_TRUE(arrays == answered(row, before));
            }
    }
}

TEST_F(AnsweredComplexExports, KeepPastOutputsOutOfTheFilter)
{
    for (const Export& row : exports()) {
        if (!row.has('A'))
            continue;
        for (const int count : {0, 1, 4, 100}) {
            Arrays arrays{9};
            Call arguments = arrays.call();
            arguments.count = count;
            const Received received = receivedFrom(row, arguments);
            EXPECT_EQ(received.pastOutputs.size(), std::max(9, count - 1));
            EXPECT_THAT(received.pastOutputs, Each(kZero));
        }
    }
}

// The backend writes all m bins, and the library hands out n of them.
TEST_F(AnsweredComplexExports, HaveRoomForAllBinsOfATransform)
{
    for (const Export& row : exports()) {
        if (!row.has('m'))
            continue;
        for (const int n : {-1, 0, 1, 5, 8})
            for (const int m : {INT_MIN, 0, 1, 8, 9, 5000}) {
                SCOPED_TRACE(row.name + (" of " + std::to_string(n) + ", m " + std::to_string(m)));
                Arrays arrays{n};
                const Arrays before = arrays;
                Call arguments = arrays.call();
                arguments.otherSize = m;
                EXPECT_EQ(receivedFrom(row, arguments).note, noteOf(row, arguments));
                EXPECT_TRUE(arrays == answered(row, before));
            }
    }
}

} // namespace
} // namespace quordsp::complex_exports
