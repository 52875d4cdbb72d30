// A fast Fourier transform in long double, for whole vectors: the oracle for sizes that the definition takes too long
// for. Mixed radices, and a convolution (Bluestein) where a prime factor is large.
#pragma once
#include "reference/naive_dft.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <memory>
#include <utility>

namespace reference {

using Values = std::vector<Value>;

inline Value operator+(Value a, Value b)
{
    return {a.re + b.re, a.im + b.im};
}

inline Value operator-(Value a, Value b)
{
    return {a.re - b.re, a.im - b.im};
}

inline Value operator*(Value a, Value b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

inline Value operator/(Value a, long double divisor)
{
    return {a.re / divisor, a.im / divisor};
}

inline Value conjugate(Value a)
{
    return {a.re, -a.im};
}

// exp(-2 pi i k/n) for k < n, each from an angle of an eighth of a turn at most, which is brought there in integers.
inline Value rootOfUnity(std::size_t n, std::size_t k)
{
    if (2 * k > n)
        return conjugate(rootOfUnity(n, n - k));
    std::size_t eighths = 8 * k; // of n-th turns
    const bool fromHalf = eighths > 2 * n;
    eighths = fromHalf ? 4 * n - eighths : eighths;
    const bool fromQuarter = eighths > n;
    eighths = fromQuarter ? 2 * n - eighths : eighths;
    const long double angle =
        std::numbers::pi_v<long double> / 4 * (static_cast<long double>(eighths) / static_cast<long double>(n));
    long double c = std::cos(angle), s = std::sin(angle);
    if (fromQuarter)
        std::swap(c, s);
    return {fromHalf ? -c : c, -s};
}

inline Values rootsOfUnity(std::size_t n)
{
    Values roots(n);
    for (std::size_t k = 0; k <= n / 2; ++k)
        roots[k] = rootOfUnity(n, k);
    for (std::size_t k = n / 2 + 1; k < n; ++k)
        roots[k] = conjugate(roots[n - k]);
    return roots;
}

// Passes of radix 4, 2 and odd primes; in each the elements change places, so that the last one leaves them in order
// (Stockham).
class MixedRadix {
public:
    static constexpr std::size_t kLargestPrime = 199;

    static bool suits(std::size_t n)
    {
        for (std::size_t prime = 2; prime <= kLargestPrime; ++prime)
            while (n % prime == 0)
                n /= prime;
        return n == 1;
    }

    explicit MixedRadix(std::size_t n) : n_(n), roots_(rootsOfUnity(n)) {}

    Values operator()(Values x) const
    {
        Values y(n_);
        for (std::size_t stride = 1; stride < n_; std::swap(x, y)) {
            const std::size_t radix = radixOf(n_ / stride);
            for (std::size_t group = 0; group < n_ / (stride * radix); ++group)
                pass(radix, x, stride, group, y);
            stride *= radix;
        }
        return x;
    }

private:
    static std::size_t radixOf(std::size_t rest)
    {
        if (rest % 4 == 0)
            return 4;
        std::size_t prime = 2;
        while (rest % prime != 0)
            ++prime;
        return prime;
    }

    void pass(std::size_t radix, const Values& x, std::size_t stride, std::size_t group, Values& y) const
    {
        if (radix == 4)
            passOfFour(x, stride, group, y);
        else if (radix == 2)
            passOfTwo(x, stride, group, y);
        else
            passOfPrime(radix, x, stride, group, y);
    }

    void passOfFour(const Values& x, std::size_t stride, std::size_t group, Values& y) const
    {
        const Value w = roots_[group * stride], w2 = roots_[2 * group * stride], w3 = roots_[3 * group * stride];
        const Value* const in = &x[group * stride];
        Value* const out = &y[4 * group * stride];
        for (std::size_t i = 0; i < stride; ++i) {
            const Value a = in[i], b = in[i + n_ / 4], c = in[i + n_ / 2], d = in[i + n_ / 4 * 3];
            const Value even = a + c, difference = a - c, odd = b + d, turned = {b.im - d.im, d.re - b.re};
            out[i] = even + odd;
            out[i + stride] = (difference + turned) * w;
            out[i + 2 * stride] = (even - odd) * w2;
            out[i + 3 * stride] = (difference - turned) * w3;
        }
    }

    // Of an odd prime: elements and bins in pairs, whose roots are conjugates.
    void passOfPrime(std::size_t radix, const Values& x, std::size_t stride, std::size_t group, Values& y) const
    {
        const std::size_t turn = n_ / radix;
        Values sums(radix / 2), differences(radix / 2);
        for (std::size_t i = 0; i < stride; ++i) {
            const Value* const in = &x[group * stride + i];
            Value* const out = &y[group * radix * stride + i];
            out[0] = in[0];
            for (std::size_t j = 1; j <= radix / 2; ++j) {
                const Value a = in[j * turn], b = in[(radix - j) * turn];
                sums[j - 1] = a + b;
                differences[j - 1] = a - b;
                out[0] = out[0] + sums[j - 1];
            }
            for (std::size_t k = 1; k <= radix / 2; ++k) {
                Value even = in[0], odd = {0, 0};
                for (std::size_t j = 0, at = k; j < radix / 2; ++j) {
                    const Value root = roots_[at * turn];
                    even = even + Value{sums[j].re * root.re, sums[j].im * root.re};
                    odd = odd + Value{-differences[j].im * root.im, differences[j].re * root.im};
                    at = at + k < radix ? at + k : at + k - radix;
                }
                out[k * stride] = (even + odd) * roots_[group * k * stride];
                out[(radix - k) * stride] = (even - odd) * roots_[group * (radix - k) * stride];
            }
        }
    }

    void passOfTwo(const Values& x, std::size_t stride, std::size_t group, Values& y) const
    {
        const Value* const in = &x[group * stride];
        Value* const out = &y[2 * group * stride];
        for (std::size_t i = 0; i < stride; ++i) {
            out[i] = in[i] + in[i + n_ / 2];
            out[i + stride] = (in[i] - in[i + n_ / 2]) * roots_[group * stride];
        }
    }

    std::size_t n_;
    Values roots_;
};

// With jk = (j^2 + k^2 - (k-j)^2)/2 the transform is the input times a chirp, convolved with the conjugate chirp, times
// the chirp.
class Chirp {
public:
    explicit Chirp(std::size_t n) : chirp_(n), convolver_(convolver(2 * n - 1)), kernel_(convolver_->size)
    {
        for (std::size_t k = 0, square = 0; k < n; square = (square + 2 * k + 1) % (2 * n), ++k) {
            chirp_[k] = rootOfUnity(2 * n, square);
            kernel_[k] = kernel_[k > 0 ? kernel_.size() - k : 0] = conjugate(chirp_[k]);
        }
        kernel_ = convolver_->transform(std::move(kernel_));
    }

    Values operator()(const Values& x) const
    {
        const auto size = static_cast<long double>(kernel_.size());
        Values y(kernel_.size());
        std::ranges::transform(x, chirp_, y.begin(), std::multiplies{});
        y = convolver_->transform(std::move(y));
        std::ranges::transform(y, kernel_, y.begin(), [](Value a, Value b) { return conjugate(a * b); });
        y = convolver_->transform(std::move(y));
        y.resize(x.size());
        std::ranges::transform(y, chirp_, y.begin(), [&](Value a, Value b) { return conjugate(a) * b / size; });
        return y;
    }

private:
    struct Convolver {
        std::size_t size;
        MixedRadix transform;
    };

    // Kept: the next size often needs the same.
    static std::shared_ptr<const Convolver> convolver(std::size_t atLeast)
    {
        static std::shared_ptr<const Convolver> last;
        std::size_t size = std::bit_ceil(atLeast);
        for (const std::size_t odd : {3u, 5u, 9u, 15u})
            size = std::min(size, std::bit_ceil((atLeast + odd - 1) / odd) * odd);
        if (!last || last->size != size)
            last = std::make_shared<const Convolver>(size, MixedRadix(size));
        return last;
    }

    Values chirp_;
    std::shared_ptr<const Convolver> convolver_;
    Values kernel_;
};

// The sum of x[i] exp(-2 pi i k/n) for all k, without a factor.
inline Values fft(const Values& x)
{
    return MixedRadix::suits(x.size()) ? MixedRadix(x.size())(x) : Chirp(x.size())(x);
}

} // namespace reference
