// What the tests of the complex exports have in common: a backend that answers, and the arrays of one call.
#pragma once
#include <gmock/gmock.h>

#include "complex/complex_backend.h"
#include "exports/typed_call.h"
#include "fakes/stage.h"
#include "support/folders.h"
#include "support/integer_signal.h"
#include "support/library.h"

namespace quordsp::complex_exports {

// Arrays of n elements, and some beyond them that nobody touches.
class Arrays {
public:
    explicit Arrays(int n, std::uint32_t seed = 1) : n_{n}
    {
        for (std::uint32_t i = 0; i < kArrays; ++i) {
            arrays_.push_back(noise(length(), seed + i));
            arrays_.back().resize(length() + 3, 12345.678);
        }
    }

    Split in() { return at(0); }
    Split pastOutputs() { return at(2); }
    Split state() { return at(4); }
    Split out() { return at(6); }
    Call call() { return {n_, 3, 3, in(), pastOutputs(), state(), out()}; }

    Samples samples(Split split) const
    {
        Samples all(length());
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = {split.re[i], split.im[i]};
        return all;
    }

    // The same arrays, but for one pair.
    Arrays with(const Samples& samples, Split (Arrays::*split)()) const
    {
        Arrays changed = *this;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            (changed.*split)().re[i] = samples[i].re;
            (changed.*split)().im[i] = samples[i].im;
        }
        return changed;
    }

    bool operator==(const Arrays&) const = default;

private:
    static constexpr std::uint32_t kArrays = 8;

    std::size_t length() const { return static_cast<std::size_t>(std::max(n_, 0)); }
    Split at(std::size_t first) { return {arrays_[first].data(), arrays_[first + 1].data()}; }

    int n_;
    std::vector<std::vector<double>> arrays_;
};

// What the answering backend makes of these arrays' signal.
inline Samples resultOf(const Export& row, Arrays& arrays)
{
    Samples samples = arrays.samples(arrays.in());
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = row.has('x') ? answerTo(samples[i]) : answerTo(static_cast<int>(i));
    return samples;
}

// The arrays after a call that was answered.
inline Arrays answered(const Export& row, Arrays arrays)
{
    return row.hasOutput() ? arrays.with(resultOf(row, arrays), &Arrays::out) : arrays;
}

// And after one that came to nothing: only the exports that work in place have something to unpack that is known.
inline Arrays unanswered(const Export& row, Arrays arrays)
{
    return row.has('Y') ? arrays.with(arrays.samples(arrays.in()), &Arrays::out) : arrays;
}

class ComplexExports : public testing::Test {
protected:
    static void loadBackend(const char* variant)
    {
        EXPECT_TRUE(support::Module::load(support::fake(std::filesystem::path{variant} / support::kBackendFile)));
        fakes::takeNotes();
    }
};

class AnsweredComplexExports : public ComplexExports {
protected:
    AnsweredComplexExports()
    {
        loadBackend("backend");
        answerCallsInto(received_);
    }

    // Calls the export, and gives what the backend received.
    Received receivedFrom(const Export& row, const Call& arguments)
    {
        received_.clear();
        EXPECT_EQ(call(row, arguments), statusText(fakes::stage().status)) << row.name;
        EXPECT_EQ(received_.size(), 1) << row.name;
        return received_.empty() ? Received{} : received_[0];
    }

private:
    std::vector<Received> received_;
};

} // namespace quordsp::complex_exports
