#include "QuorDSP_DAQ.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

using Samples = std::vector<double>;

struct Signal {
    Samples re;
    Samples im;

    explicit Signal(Bytes& bytes, int n) : re(bytes.numbers(n)), im(bytes.numbers(n)) {}
    int n() const { return sizeOf(re); }
};

bool areSame(const Signal& a, const Signal& b)
{
    return fuzz::areSame(a.re, b.re) && fuzz::areSame(a.im, b.im);
}

enum class After : std::uint8_t { Anything, TheInput };

// The same in place as elsewhere, with the input only read; and what is known of the outputs after a failure.
template <class Filter>
void run(const Signal& signal, After failure, Filter filter)
{
    const Signal in = signal;
    Signal out = signal, inPlace = signal;
    std::swap(out.re, out.im);
    const int status = filter(in.re.data(), in.im.data(), in.n(), out.re.data(), out.im.data());
    require(areSame(in, signal), "the input is only read");
    require(filter(inPlace.re.data(), inPlace.im.data(), in.n(), inPlace.re.data(), inPlace.im.data()) == status,
            "the same status in place");
    if (status >= 0)
        require(areSame(inPlace, out), "the same in place");
    else if (failure == After::TheInput)
        require(areSame(out, signal), "a copy of the input after a failure");
    require(filter(nullptr, nullptr, -1, nullptr, nullptr) < 0, "an error without samples");
}

void filters(Bytes& bytes, const Signal& signal)
{
    const double fs = bytes.number(), low = bytes.number(), high = bytes.number();
    const int order = bytes.between(-2, 12);
    run(signal, After::TheInput, [=](auto re, auto im, int n, auto outRe, auto outIm) {
        return QuorDSP_CxBw_LPF(re, im, n, fs, low, order, outRe, outIm);
    });
    run(signal, After::TheInput, [=](auto re, auto im, int n, auto outRe, auto outIm) {
        return QuorDSP_CxBw_BSF(re, im, n, fs, low, high, order, outRe, outIm);
    });
    run(signal, After::Anything, [=](auto re, auto im, int n, auto outRe, auto outIm) {
        return QuorDSP_CxCh_BSF(re, im, n, fs, low, high, 0.5, order, outRe, outIm);
    });
}

void states(Bytes& bytes, const Signal& signal)
{
    const Samples a = bytes.numbers(bytes.between(0, 9)), b = bytes.numbers(bytes.between(0, 9));
    const Signal state{bytes, signal.n()};
    const Signal before = state;
    run(signal, After::Anything, [&](auto re, auto im, int n, auto outRe, auto outIm) {
        return QuorDSP_IIRFiltering_CxInput(re, im, n, a.data(), state.im.data(), state.re.data(), sizeOf(a), b.data(),
                                            state.re.data(), state.im.data(), sizeOf(b), outRe, outIm);
    });
    run(signal, After::Anything, [&](auto re, auto im, int n, auto outRe, auto outIm) {
        return QuorDSP_FIRFiltering_CxInput(re, im, n, b.data(), state.re.data(), state.im.data(), sizeOf(b), outRe,
                                            outIm);
    });
    require(areSame(state, before), "the state is only read");
}

void transforms(Bytes& bytes, const Signal& signal)
{
    // Of fewer bins than samples the outputs hold no more.
    const int size = signal.n() + bytes.between(0, 60), shift = bytes.between(0, 1);
    QuorDSP_FFTTable* const table = QuorDSP_CreateFFTTable(bytes.between(-1, 100));
    run(signal, After::Anything, [=](auto re, auto im, int n, auto outRe, auto outIm) {
        return QuorDSP_CxFFTEx(re, im, n, size, table, shift, outRe, outIm);
    });
    run(signal, After::Anything, [=](auto re, auto im, int n, auto outRe, auto outIm) {
        return QuorDSP_CxInvFFTEx(re, im, n, table, shift, outRe, outIm);
    });
    run(signal, After::Anything, [=](auto re, auto /*im*/, int n, auto outRe, auto outIm) {
        return QuorDSP_FFTEx(re, n, size, table, shift, outRe, outIm);
    });
    Signal out = signal;
    QuorDSP_CxFFTEx(signal.re.data(), signal.im.data(), signal.n(), bytes.between(-2, 40), table, shift, out.re.data(),
                    out.im.data());
    QuorDSP_InvFFTEx(signal.re.data(), signal.im.data(), signal.n(), table, shift, out.re.data());
    QuorDSP_CxSpectrum(signal.re.data(), signal.im.data(), signal.n(), out.re.data());
    QuorDSP_DestroyFFTTable(table);
}

} // namespace

void complex(Bytes bytes)
{
    const int kind = bytes.byte();
    const Signal signal{bytes, bytes.between(0, 40)};
    switch (kind % 3) {
    case 0:
        return filters(bytes, signal);
    case 1:
        return states(bytes, signal);
    default:
        return transforms(bytes, signal);
    }
}

} // namespace quordsp::fuzz
