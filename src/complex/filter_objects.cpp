// Complex signals through filters whose coefficients, states or designs the caller holds.
#include <algorithm>
#include <new>

#include "complex/packed_filters.h"

using namespace quordsp;

namespace {

// The record that a complex cascade starts from and, behind it in the same memory, the samples that it points to.
class CascadeState {
public:
    CascadeState(int n, int stateCount) noexcept
        : count_{n}, stateCount_{stateCount}, memory_{n < 0 ? count_ : 1 + room()}
    {}

    bool isMissing() const noexcept { return memory_.isMissing(); }
    void release() noexcept { memory_.release(); }

    // Null without a block.
    ComplexState* pack(SplitInput state) const noexcept
    {
        if (!memory_.data())
            return nullptr;
        ComplexSample* const samples = memory_.data() + 1;
        quordsp::pack(state, count_, samples);
        std::fill(samples + count_, samples + room(), ComplexSample{});
        return new (memory_.data()) ComplexState{stateCount_, samples};
    }

private:
    Size room() const noexcept { return std::max(count_, Size{stateCount_}); }

    Size count_;
    int stateCount_;
    ScratchBlock<ComplexSample> memory_;
    static_assert(sizeof(ComplexState) == sizeof(ComplexSample) && alignof(ComplexState) == alignof(ComplexSample));
};

// How many past samples a filter with so many coefficients may use.
Size pastOf(int coefficientCount) noexcept
{
    return widen(coefficientCount) - 1;
}

} // namespace

AnalysisLibErrType QuorDSP_IIRFiltering_CxInput(const double* inRe, const double* inIm, int n, const double* coefsA,
                                                const double* stateARe, const double* stateAIm, int countA,
                                                const double* coefsB, const double* stateBRe, const double* stateBIm,
                                                int countB, double* outRe, double* outIm) noexcept
{
    PackedBlock input{n};
    PackedBlock stateB{n, pastOf(countB)};
    PackedBlock output{n};
    PackedBlock stateA{n, pastOf(countA)};
    if (isAnyMissing(input, stateB, output, stateA))
        return QUORDSP_BACKEND_NOT_FOUND;
    input.pack({inRe, inIm});
    stateB.pack({stateBRe, stateBIm});
    stateA.clear();
    const Status status = entry::IIRFiltering_CxInput(input.data(), widen(n), coefsA, stateA.data(), countA, coefsB,
                                                      stateB.data(), countB, output.data());
    output.unpack({outRe, outIm});
    // Only now, as intended: the caller's past outputs are read, and take no part in the filtering.
    stateA.pack({stateARe, stateAIm});
    release(input, stateB, output, stateA);
    return status;
}

AnalysisLibErrType QuorDSP_CxIIRCascadeFiltering(const double* inRe, const double* inIm, int n,
                                                 QuorDSP_IIRFilter* filter, int stateCount, const double* stateRe,
                                                 const double* stateIm, double* outRe, double* outIm) noexcept
{
    PackedBlock input{n};
    PackedBlock output{n};
    CascadeState state{n, stateCount};
    if (isAnyMissing(input, output, state))
        return QUORDSP_BACKEND_NOT_FOUND;
    input.pack({inRe, inIm});
    const Status status =
        entry::CxIIRCascadeFiltering(input.data(), widen(n), filter, state.pack({stateRe, stateIm}), output.data());
    output.unpack({outRe, outIm});
    release(input, output, state);
    return status;
}

AnalysisLibErrType QuorDSP_FIRFiltering_CxInput(const double* inRe, const double* inIm, int n, const double* coefs,
                                                const double* stateRe, const double* stateIm, int count, double* outRe,
                                                double* outIm) noexcept
{
    PackedBlock input{n};
    PackedBlock state{n, pastOf(count)};
    PackedBlock output{n};
    if (isAnyMissing(input, state, output))
        return QUORDSP_BACKEND_NOT_FOUND;
    input.pack({inRe, inIm});
    state.pack({stateRe, stateIm});
    const Status status =
        entry::FIRFiltering_CxInput(input.data(), widen(n), coefs, state.data(), count, output.data());
    output.unpack({outRe, outIm});
    release(input, state, output);
    return status;
}

AnalysisLibErrType QuorDSP_CxFIRNarrowBandFilter(const double* inRe, const double* inIm, int n,
                                                 QuorDSP_FIRFilter filter, double* outRe, double* outIm) noexcept
{
    return filterToSecondBlock(entry::CxFIRNarrowBandFilter, {inRe, inIm}, n, {outRe, outIm}, filter);
}

AnalysisLibErrType QuorDSP_SavitzkyGolayFiltering_CxInput(const double* inRe, const double* inIm, int n, int order,
                                                          int sidePoints, const double* weights, double* outRe,
                                                          double* outIm) noexcept
{
    return filterToSecondBlock(entry::SavitzkyGolayFiltering_CxInput, {inRe, inIm}, n, {outRe, outIm}, order,
                               sidePoints, weights);
}
