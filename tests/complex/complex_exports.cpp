#include "complex/complex_exports.h"

#include <array>

#include "exports/typed_call.h"

namespace quordsp::complex_exports {

class CallArguments {
public:
    CallArguments(const std::string& shape, const Call& call)
    {
        int coefficients = call.count;
        for (const char kind : shape)
            switch (kind) {
            case 'x':
                add(call.in);
                break;
            case 'A':
                add(call.pastOutputs);
                break;
            case 'S':
                add(call.state);
                break;
            case 'R':
                add(call.count);
                add(call.state);
                break;
            case 'y':
            case 'Y':
                add(call.out);
                break;
            case 'n':
                add(call.n);
                break;
            case 'm':
                add(call.otherSize);
                break;
            case 'c':
                add(coefficients++);
                break;
            case 'i':
                add(telling_.integer());
                break;
            case 'p':
                add(telling_.pointer());
                break;
            default:
                break;
            }
    }

    template <class T>
    T next()
    {
        if constexpr (std::is_same_v<T, int>)
            return integers_.at(nextInteger_++);
        else if constexpr (std::is_pointer_v<T>)
            return static_cast<T>(pointers_.at(nextPointer_++));
        else
            return telling_.next<T>();
    }

private:
    void add(int integer) { integers_.at(integerCount_++) = integer; }
    void add(void* pointer) { pointers_.at(pointerCount_++) = pointer; }
    void add(Split arrays) { add(arrays.re), add(arrays.im); }

    static inline ArgumentSource::Cells cells_{};
    ArgumentSource telling_{-1, -1, cells_};
    // No memory is taken to copy them.
    std::array<int, 8> integers_{};
    std::array<void*, 12> pointers_{};
    std::size_t integerCount_ = 0;
    std::size_t pointerCount_ = 0;
    std::size_t nextInteger_ = 0;
    std::size_t nextPointer_ = 0;
};

#define ROW(name, entry, shape)                                                                                        \
    Export                                                                                                             \
    {                                                                                                                  \
        #name, entry, shape, &callWith<decltype(name), CallArguments>                                                  \
    }

std::span<const Export> exports()
{
    static const std::array rows{
        // IIR filters in one call
        ROW(QuorDSP_CxBssl_LPF, "AALFunc403", "xnddiY"),
        ROW(QuorDSP_CxBssl_HPF, "AALFunc404", "xnddiY"),
        ROW(QuorDSP_CxBssl_BPF, "AALFunc405", "xndddiY"),
        ROW(QuorDSP_CxBssl_BSF, "AALFunc406", "xndddiY"),
        ROW(QuorDSP_CxBw_LPF, "AALFunc450", "xnddiY"),
        ROW(QuorDSP_CxBw_HPF, "AALFunc451", "xnddiY"),
        ROW(QuorDSP_CxBw_BPF, "AALFunc452", "xndddiY"),
        ROW(QuorDSP_CxBw_BSF, "AALFunc453", "xndddiY"),
        ROW(QuorDSP_CxCh_LPF, "AALFunc454", "xndddiY"),
        ROW(QuorDSP_CxCh_HPF, "AALFunc455", "xndddiY"),
        ROW(QuorDSP_CxCh_BPF, "AALFunc456", "xnddddiY"),
        ROW(QuorDSP_CxCh_BSF, "AALFunc457", "xnddddiy"), // not like the others
        ROW(QuorDSP_CxInvCh_LPF, "AALFunc458", "xndddiY"),
        ROW(QuorDSP_CxInvCh_HPF, "AALFunc459", "xndddiY"),
        ROW(QuorDSP_CxInvCh_BPF, "AALFunc460", "xnddddiY"),
        ROW(QuorDSP_CxInvCh_BSF, "AALFunc461", "xnddddiY"),
        ROW(QuorDSP_CxElp_LPF, "AALFunc462", "xnddddiY"),
        ROW(QuorDSP_CxElp_HPF, "AALFunc463", "xnddddiY"),
        ROW(QuorDSP_CxElp_BPF, "AALFunc464", "xndddddiY"),
        ROW(QuorDSP_CxElp_BSF, "AALFunc465", "xndddddiY"),
        // FIR filters in one call
        ROW(QuorDSP_CxEquiRpl_LPFiltering, "AALFunc476", "xnidddy"),
        ROW(QuorDSP_CxEquiRpl_HPFiltering, "AALFunc477", "xnidddy"),
        ROW(QuorDSP_CxEquiRpl_BPFiltering, "AALFunc478", "xnidddddy"),
        ROW(QuorDSP_CxEquiRpl_BSFiltering, "AALFunc479", "xnidddddy"),
        ROW(QuorDSP_CxWind_LPFiltering, "AALFunc486", "xniddidy"),
        ROW(QuorDSP_CxWind_HPFiltering, "AALFunc487", "xniddidy"),
        ROW(QuorDSP_CxWind_BPFiltering, "AALFunc488", "xnidddidy"),
        ROW(QuorDSP_CxWind_BSFiltering, "AALFunc489", "xnidddidy"),
        ROW(QuorDSP_CxWindFIR_Filtering, "AALFunc485", "xniidddidy"),
        // Filters with objects and state
        ROW(QuorDSP_IIRFiltering_CxInput, "AALFunc354", "xnpAcpScy"),
        ROW(QuorDSP_CxIIRCascadeFiltering, "AALFunc466", "xnpRy"),
        ROW(QuorDSP_FIRFiltering_CxInput, "AALFunc353", "xnpScy"),
        ROW(QuorDSP_CxFIRNarrowBandFilter, "AALFunc411", "xnry"),
        ROW(QuorDSP_SavitzkyGolayFiltering_CxInput, "AALFunc357", "xniipy"),
        // Transforms and spectrum
        ROW(QuorDSP_FFTEx, "AALFunc262", "pnmpiy"),
        ROW(QuorDSP_CxFFTEx, "AALFunc263", "xnmpiy"),
        ROW(QuorDSP_InvFFTEx, "AALFunc264", "xnpip"),
        ROW(QuorDSP_CxInvFFTEx, "AALFunc265", "xnpiy"),
        ROW(QuorDSP_CxSpectrum, "AALFunc467", "xnp"),
    };
    static_assert(rows.size() == 39);
    return rows;
}

std::function<std::string()> readyCall(const Export& row, support::Module::Symbol exported, const Call& arguments)
{
    if (!exported)
        return [] { return "not exported"; };
    return [&row, exported, values = CallArguments{row.shape, arguments}] { return row.call(exported, values); };
}

std::string call(const Export& row, const Call& arguments)
{
    return readyCall(row, support::library().symbol(row.name), arguments)();
}

std::string noteOf(const Export& row, const Call& arguments)
{
    CallArguments values{row.shape, arguments};
    std::string note = row.entry;
    for (const char kind : row.shape) {
        note += ' ';
        switch (kind) {
        case 'n':
        case 'm':
            note += fakes::argumentText(std::int64_t{values.next<int>()});
            break;
        case 'd':
            note += fakes::argumentText(values.next<double>());
            break;
        case 'i':
        case 'c':
            note += fakes::argumentText(values.next<int>());
            break;
        case 'p':
            note += fakes::argumentText(values.next<void*>());
            break;
        case 'r':
            note += fakes::argumentText(values.next<QuorDSP_FIRFilter>());
            break;
        default: {
            const std::string count = kind == 'R' ? fakes::argumentText(values.next<int>()) + ' ' : "";
            note += arguments.n < 0 || kind == 'Y' ? "null" : count + "block";
            values.next<void*>();
            values.next<void*>();
            break;
        }
        }
    }
    return note;
}

} // namespace quordsp::complex_exports
