// What transforms and spectra answer to bad arguments, and that they leave all outputs alone when they do.
#include "backend/transform/signals.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <utility>

namespace quordsp::backend {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr std::int64_t kHuge = std::numeric_limits<std::int64_t>::max();

// Arguments of any entry; each entry takes what it has.
struct Arguments {
    Array storage[3] = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}};
    double df = 13;
    double* a = storage[0].data();
    double* b = storage[1].data();
    double* c = storage[2].data();
    double* interval = &df;
    std::int64_t n = 4;
    double dt = 1;

    bool untouched() const
    {
        return storage[0] == Array{1, 2, 3, 4} && storage[1] == Array{5, 6, 7, 8} &&
               storage[2] == Array{9, 10, 11, 12} && df == 13;
    }
};

struct Case {
    std::string name;
    std::function<Status(const Arguments&)> call;
    int arrays;
    bool hasInterval;
};

void PrintTo(const Case& c, std::ostream* out)
{
    *out << c.name;
}

// Never looked into.
Complex* complex(double* array)
{
    return reinterpret_cast<Complex*>(array);
}

const Case kCases[] = {
    {"FFT", [](const Arguments& x) { return AALFunc77(x.a, x.b, x.n); }, 2, false},
    {"InvFFT", [](const Arguments& x) { return AALFunc102(x.a, x.b, x.n); }, 2, false},
    {"ReFFT", [](const Arguments& x) { return AALFunc147(x.a, x.b, x.n); }, 2, false},
    {"ReInvFFT", [](const Arguments& x) { return AALFunc148(x.a, x.b, x.n); }, 2, false},
    {"Spectrum", [](const Arguments& x) { return AALFunc161(x.a, x.n); }, 1, false},
    {"CxSpectrum", [](const Arguments& x) { return AALFunc467(complex(x.a), x.n, x.b); }, 2, false},
    {"FFTEx", [](const Arguments& x) { return AALFunc262(x.a, x.n, 0, nullptr, 1, complex(x.b)); }, 2, false},
    {"FFTExOfASize", [](const Arguments& x) { return AALFunc262(x.a, x.n, kHuge, nullptr, 1, complex(x.b)); }, 2,
     false},
    {"CxFFTEx", [](const Arguments& x) { return AALFunc263(complex(x.a), x.n, 0, nullptr, 1, complex(x.b)); }, 2,
     false},
    {"InvFFTEx", [](const Arguments& x) { return AALFunc264(complex(x.a), x.n, nullptr, 1, x.b); }, 2, false},
    {"CxInvFFTEx", [](const Arguments& x) { return AALFunc265(complex(x.a), x.n, nullptr, 1, complex(x.b)); }, 2,
     false},
    {"FFT2DOfRows", [](const Arguments& x) { return AALFunc266(x.a, x.n, 2, 0, 0, 1, complex(x.b)); }, 2, false},
    {"FFT2DOfColumns", [](const Arguments& x) { return AALFunc266(x.a, 2, x.n, 0, 0, 1, complex(x.b)); }, 2, false},
    {"FFT2DOfASize", [](const Arguments& x) { return AALFunc266(x.a, x.n, 1, 3, kHuge, 1, complex(x.b)); }, 2, false},
    {"CxFFT2DOfRows", [](const Arguments& x) { return AALFunc267(complex(x.a), x.n, 2, 0, 0, 1, complex(x.b)); }, 2,
     false},
    {"CxFFT2DOfColumns", [](const Arguments& x) { return AALFunc267(complex(x.a), 2, x.n, 0, 0, 1, complex(x.b)); }, 2,
     false},
    {"InvFFT2DOfRows", [](const Arguments& x) { return AALFunc268(complex(x.a), x.n, 2, 1, x.b); }, 2, false},
    {"InvFFT2DOfColumns", [](const Arguments& x) { return AALFunc268(complex(x.a), 2, x.n, 1, x.b); }, 2, false},
    {"CxInvFFT2DOfRows", [](const Arguments& x) { return AALFunc269(complex(x.a), x.n, 2, 1, complex(x.b)); }, 2,
     false},
    {"CxInvFFT2DOfColumns", [](const Arguments& x) { return AALFunc269(complex(x.a), 2, x.n, 1, complex(x.b)); }, 2,
     false},
    {"AutoPowerSpectrum", [](const Arguments& x) { return AALFunc10(x.a, x.n, x.dt, x.b, x.interval); }, 2, true},
    {"AmpPhaseSpectrum", [](const Arguments& x) { return AALFunc5(x.a, x.n, 1, x.dt, x.b, x.c, x.interval); }, 3, true},
};

class TransformFailure : public testing::TestWithParam<Case> {
protected:
    void expect(Status status)
    {
        EXPECT_EQ(GetParam().call(arguments), status);
        EXPECT_TRUE(arguments.untouched());
    }
    Arguments arguments;
};

TEST_P(TransformFailure, OfACountOfZero)
{
    arguments.n = 0;
    expect(Status::CountNotPositive);
}

TEST_P(TransformFailure, OfANegativeCountComesBeforeAllOthers)
{
    arguments.n = -1;
    arguments.a = arguments.b = arguments.c = arguments.interval = nullptr;
    arguments.dt = -1;
    expect(Status::CountNotPositive);
}

TEST_P(TransformFailure, OfEachNullArrayComesBeforeTheInterval)
{
    double** const arrays[] = {&arguments.a, &arguments.b, &arguments.c};
    arguments.dt = 0;
    for (int i = 0; i < GetParam().arrays; ++i) {
        double* const kept = std::exchange(*arrays[i], nullptr);
        expect(Status::ArraySize);
        *arrays[i] = kept;
    }
    if (GetParam().hasInterval) {
        arguments.interval = nullptr;
        expect(Status::ArraySize);
    }
}

using SpectrumFailure = TransformFailure;

TEST_P(SpectrumFailure, OfAnIntervalThatIsNotPositive)
{
    for (const double dt : {0.0, -1.0, kNan, -std::numeric_limits<double>::infinity()}) {
        arguments.dt = dt;
        expect(Status::IntervalNotPositive);
    }
}

TEST_P(TransformFailure, OfMoreMemoryThanThereIs)
{
    // kHuge - 24 is a prime.
    for (const std::int64_t n : {kHuge, kHuge - 1, kHuge - 24, kHuge / 2, std::int64_t{1} << 60}) {
        arguments.n = n;
        expect(Status::OutOfMemory);
    }
}

const auto nameOf = [](const auto& row) { return row.param.name; };
INSTANTIATE_TEST_SUITE_P(Entries, TransformFailure, testing::ValuesIn(kCases), nameOf);
INSTANTIATE_TEST_SUITE_P(Entries, SpectrumFailure, testing::ValuesIn(std::end(kCases) - 2, std::end(kCases)), nameOf);

} // namespace
} // namespace quordsp::backend
