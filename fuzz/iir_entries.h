// The designs of the IIR families, one row a family.
#pragma once
#include "one_call.h"

namespace quordsp::fuzz {

// A record for entries and exports alike.
struct CascadeRecord {
    backend::IirFilter* filter;

    operator backend::IirFilter*() const { return filter; }
    operator QuorDSP_IIRFilter*() const { return reinterpret_cast<QuorDSP_IIRFilter*>(filter); }
};

using CascadeDesign = std::function<int(const Parameters&, CascadeRecord)>;
using DirectDesign = std::function<int(const Parameters&, double* a, int na, double* b, int nb)>;

struct IirFamily {
    bool hasRipple, hasAttenuation;
    OneCallRow filters[4];               // by type
    std::vector<CascadeDesign> cascades; // all of the same result
    std::vector<DirectDesign> directs;   // likewise
};

const std::vector<IirFamily>& iirFamilies();

// What the arguments are answered by, as documented; 0: nothing is wrong with them, but the design may fail.
int expectedStatus(const IirFamily& family, const Parameters& with);

// Of any family; orders are not both high enough to take long and low enough to be designed.
Parameters readIirParameters(Bytes& bytes);

// Those of a filter that double holds with ease.
Parameters readOrdinaryIirParameters(Bytes& bytes);

} // namespace quordsp::fuzz
