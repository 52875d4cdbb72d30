#include "iir_entries.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

void requireStatus(const IirFamily& family, const Parameters& with, int n, int status)
{
    const int expected = n > 0 ? expectedStatus(family, with) : -20003;
    if (expected != 0)
        require(status == expected, "the documented status");
    else if (with.order > 1 << 20)
        require(status == -20001, "not enough memory");
    else
        require(status == 0 || status == -20031, "a design or none");
}

void requireResultInTheInputsPlace(const OneCallFilter& filter, const Signal& x, const Signal& y)
{
    Samples pairs = interleaved(x);
    require(filter.complex(pairs.data(), sizeOf(x.re), nullptr) == 0, "a filter without an output array");
    require(areSame(pairs, interleaved(y)), "the result in the input's place");
}

} // namespace

// Every IIR filter in one call, in all of its forms.
void iir_one_call(Bytes bytes)
{
    const IirFamily& family = iirFamilies()[bytes.byte() % iirFamilies().size()];
    Parameters with = bytes.byte() % 2 > 0 ? readOrdinaryIirParameters(bytes) : readIirParameters(bytes);
    with.type &= 3;
    const int n = bytes.between(0, 40);
    const Signal x{bytes.numbers(n), bytes.numbers(n)};
    const OneCallFilter filter = family.filters[with.type](with);
    const Outcome outcome = requireOneOutcome(filter, x);
    requireStatus(family, with, n, outcome.status);
    if (outcome.status == 0)
        requireResultInTheInputsPlace(filter, x, outcome.y);
}

} // namespace quordsp::fuzz
