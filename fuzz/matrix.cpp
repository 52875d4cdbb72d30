#include <algorithm>

#include "QuorDSP_DAQ.h"
#include "signals.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using namespace backend;

constexpr std::int64_t kHuge = std::numeric_limits<std::int64_t>::max();

struct Size {
    int rows, columns;

    std::size_t count() const { return static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns); }
};

// Of complex elements, as pairs.
struct Matrix {
    Size size;
    Samples pairs;

    std::size_t at(int row, int column) const
    {
        return 2 * (static_cast<std::size_t>(row) * static_cast<std::size_t>(size.columns) +
                    static_cast<std::size_t>(column));
    }
};

Samples realParts(const Matrix& of)
{
    return separated(of.pairs).re;
}

Matrix withoutImaginaryParts(Matrix of)
{
    for (std::size_t i = 1; i < of.pairs.size(); i += 2)
        of.pairs[i] = 0;
    return of;
}

Matrix cutOrPadded(const Matrix& of, Size size)
{
    Matrix result{size, Samples(2 * size.count())};
    for (int row = 0; row < std::min(size.rows, of.size.rows); ++row)
        for (int column = 0; column < std::min(size.columns, of.size.columns); ++column)
            std::copy_n(&of.pairs[of.at(row, column)], 2, &result.pairs[result.at(row, column)]);
    return result;
}

double magnitude(const Samples& of)
{
    double sum = 1;
    for (const double value : of)
        sum += std::abs(value);
    return sum;
}

// The size that a result has when it is asked for that of the input by a number that is not positive.
Size askedFor(Size wanted, Size own)
{
    return {wanted.rows > 0 ? wanted.rows : own.rows, wanted.columns > 0 ? wanted.columns : own.columns};
}

struct Call {
    Size result;
    int shift;
    bool isExported;
};

Matrix forward(const Matrix& x, const Call& call)
{
    const Size size = askedFor(call.result, x.size);
    Matrix y{size, Samples(2 * size.count(), kBefore)};
    const int status =
        call.isExported ? QuorDSP_CxFFT2D(x.pairs.data(), x.size.rows, x.size.columns, call.result.rows,
                                          call.result.columns, call.shift, y.pairs.data())
                        : static_cast<int>(AALFunc267(elements(x.pairs), x.size.rows, x.size.columns, call.result.rows,
                                                      call.result.columns, call.shift, elements(y.pairs)));
    require(status == 0, "status 0");
    return y;
}

Matrix forwardReal(const Samples& x, Size own, const Call& call)
{
    const Size size = askedFor(call.result, own);
    Matrix y{size, Samples(2 * size.count(), kBefore)};
    const int status = call.isExported
                           ? QuorDSP_FFT2D(x.data(), own.rows, own.columns, call.result.rows, call.result.columns,
                                           call.shift, y.pairs.data())
                           : static_cast<int>(AALFunc266(x.data(), own.rows, own.columns, call.result.rows,
                                                         call.result.columns, call.shift, elements(y.pairs)));
    require(status == 0, "status 0");
    return y;
}

Samples inverse(const Matrix& y, const Call& call)
{
    Samples x(y.pairs.size(), kBefore);
    const int status =
        call.isExported
            ? QuorDSP_CxInvFFT2D(y.pairs.data(), y.size.rows, y.size.columns, call.shift, x.data())
            : static_cast<int>(AALFunc269(elements(y.pairs), y.size.rows, y.size.columns, call.shift, elements(x)));
    require(status == 0, "status 0");
    return x;
}

Samples inverseReal(const Matrix& y, const Call& call)
{
    Samples x(y.size.count(), kBefore);
    const int status =
        call.isExported
            ? QuorDSP_InvFFT2D(y.pairs.data(), y.size.rows, y.size.columns, call.shift, x.data())
            : static_cast<int>(AALFunc268(elements(y.pairs), y.size.rows, y.size.columns, call.shift, x.data()));
    require(status == 0, "status 0");
    return x;
}

// The spectrum is that of the matrix, cut or padded, and its inverse is this one again; the real one likewise.
void transform(const Matrix& x, const Call& call)
{
    const double scale = magnitude(x.pairs);
    const Matrix used = cutOrPadded(x, askedFor(call.result, x.size)), spectrum = forward(x, call);
    requireNear(spectrum.pairs, forward(used, {{}, call.shift, false}).pairs, scale, "that of the matrix of this size");
    requireNear(inverse(spectrum, call), used.pairs, scale, "the matrix again");
    const Matrix real = withoutImaginaryParts(x), realSpectrum = forwardReal(realParts(real), x.size, call);
    requireNear(realSpectrum.pairs, forward(real, call).pairs, scale, "the complex transform of a real matrix");
    requireNear(inverseReal(realSpectrum, call), realParts(used), scale, "the real matrix again");
}

// Elements wander by half the size: the shifted spectrum has the elements of the other one.
void requireShift(const Matrix& x)
{
    const Matrix plain = forward(x, {{}, 0, false}), shifted = forward(x, {{}, 1, false});
    const auto [rows, columns] = x.size;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            require(shifted.pairs[shifted.at(row, column)] ==
                        plain.pairs[plain.at((row + (rows + 1) / 2) % rows, (column + (columns + 1) / 2) % columns)],
                    "frequency 0 at the centre");
}

// Whatever is wrong with the size is answered before anything is written.
void requireRefusals(std::int64_t size, std::int64_t other)
{
    double values[2] = {kBefore, kBefore};
    auto* const pair = reinterpret_cast<Complex*>(values);
    const std::int64_t none = -std::abs(size % 1000);
    require(AALFunc266(values, none, other, 0, 0, 0, pair) == Status::CountNotPositive, "no rows");
    require(AALFunc267(pair, other, none, 0, 0, 0, pair) == Status::CountNotPositive, "no columns");
    require(AALFunc268(pair, none, other, 0, values) == Status::CountNotPositive, "no rows");
    require(AALFunc269(pair, other, none, 0, pair) == Status::CountNotPositive, "no columns");
    require(AALFunc266(nullptr, kHuge, other, 0, 0, 0, pair) == Status::ArraySize, "no input");
    require(AALFunc267(pair, other, kHuge, 0, 0, 0, nullptr) == Status::ArraySize, "no output");
    require(AALFunc266(values, 1, 1, kHuge, other, 0, pair) == Status::OutOfMemory, "more than any memory");
    require(AALFunc267(pair, 1, 1, other, kHuge, 0, pair) == Status::OutOfMemory, "more than any memory");
    require(AALFunc268(pair, kHuge, other, 0, values) == Status::OutOfMemory, "more than any memory");
    require(AALFunc269(pair, other, kHuge, 0, pair) == Status::OutOfMemory, "more than any memory");
    require(values[0] == kBefore && values[1] == kBefore, "nothing is written");
}

} // namespace

// Two-dimensional transforms of any input and result size.
void matrix(Bytes bytes)
{
    const Size size{bytes.between(1, 40), bytes.between(1, 20)};
    const Call call{{bytes.between(-1, 40), bytes.between(-1, 24)}, bytes.between(0, 1), bytes.byte() % 2 > 0};
    const Samples few = bytes.niceNumbers(bytes.between(1, 19));
    const Matrix x{size, repeated(few, 2 * size.count())};
    transform(x, call);
    requireShift(x);
    requireRefusals(bytes.bits<std::int32_t>(), 1 + bytes.byte());
}

} // namespace quordsp::fuzz
