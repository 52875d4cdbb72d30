#include "QuorDSP_DAQ.h"
#include "targets.h"

namespace quordsp::fuzz {
namespace {

constexpr double kUntouched = -7.25e300; // no single-precision value

struct Conversion {
    int unit;
    int type;
    double coldJunction;

    struct Result {
        int status;
        std::vector<double> temperatures;
    };
    Result of(std::vector<double> emf, int count) const
    {
        std::vector<double> temperatures(emf.size(), kUntouched);
        const int status = QuorDSP_Thermocouple(emf.data(), count, unit, type, coldJunction, temperatures.data());
        return {status, temperatures};
    }
    Result inPlace(std::vector<double> emf) const
    {
        const int status = QuorDSP_Thermocouple(emf.data(), sizeOf(emf), unit, type, coldJunction, emf.data());
        return {status, emf};
    }
};

bool isSinglePrecision(double value)
{
    return isSame(value, static_cast<double>(static_cast<float>(value)));
}

// Each sample for itself, until one is out of range.
void requireSampleBySample(const Conversion& conversion, const std::vector<double>& emf,
                           const Conversion::Result& whole)
{
    std::size_t i = 0;
    for (; i < emf.size(); ++i) {
        const auto alone = conversion.of({emf[i]}, 1);
        require(isSame(alone.temperatures[0], whole.temperatures[i]), "as each sample for itself");
        if (alone.status != 0) {
            require(alone.status == QUORDSP_THERMOCOUPLE_OUT_OF_RANGE && conversion.type == 3, "a documented status");
            require(alone.status == whole.status, "the status of the first sample out of range");
            break;
        }
        require(isSinglePrecision(whole.temperatures[i]), "a single-precision value");
    }
    require(i < emf.size() || whole.status == 0, "status 0 when all samples are in range");
    for (; i < emf.size(); ++i)
        require(whole.temperatures[i] == kUntouched, "nothing is written from the stop on");
}

void requireUnit(const Conversion& conversion, const std::vector<double>& emf, const Conversion::Result& whole)
{
    const auto celsius = Conversion{0, conversion.type, conversion.coldJunction}.of(emf, sizeOf(emf));
    require(celsius.status == whole.status, "the status is the same in all units");
    for (std::size_t i = 0; i < emf.size() && whole.temperatures[i] != kUntouched; ++i) {
        const double t = celsius.temperatures[i];
        const double converted[] = {t, t * 1.8 + 32.0, t + 273.15, (t + 273.15) * 1.8};
        const double expected = converted[conversion.unit >= 0 && conversion.unit <= 3 ? conversion.unit : 0];
        require(isSame(whole.temperatures[i], static_cast<double>(static_cast<float>(expected))), "the unit");
    }
}

} // namespace

// Documented statuses; sample by sample as all at once; in place as elsewhere; units; nothing written from a stop on.
void thermocouple(Bytes bytes)
{
    Conversion conversion{};
    conversion.unit = bytes.mostlyBetween(-1, 5);
    conversion.type = bytes.mostlyBetween(-1, 8);
    conversion.coldJunction = bytes.number() * (bytes.byte() % 2 ? 1.0 : 100.0);
    std::vector<double> emf;
    for (int left = bytes.between(0, 40); left > 0; --left)
        emf.push_back(bytes.number() * (bytes.byte() % 2 ? 0.5 : 8.0));

    const auto none = conversion.of(emf, -bytes.byte());
    require(none.status == 0 && none.temperatures == std::vector<double>(emf.size(), kUntouched),
            "no count below 1 touches anything");
    if (emf.empty())
        return;
    const auto whole = conversion.of(emf, sizeOf(emf));
    if (conversion.type < 0 || conversion.type > 7) {
        require(whole.status == QUORDSP_INVALID_THERMOCOUPLE_TYPE, "a wrong type is said");
        require(whole.temperatures == none.temperatures, "a wrong type writes nothing");
        return;
    }
    requireSampleBySample(conversion, emf, whole);
    requireUnit(conversion, emf, whole);
    const auto inPlace = conversion.inPlace(emf);
    require(inPlace.status == whole.status, "in place as elsewhere");
    for (std::size_t i = 0; i < emf.size(); ++i)
        require(isSame(inPlace.temperatures[i], whole.temperatures[i] == kUntouched ? emf[i] : whole.temperatures[i]),
                "in place as elsewhere");
}

} // namespace quordsp::fuzz
