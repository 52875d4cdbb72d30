#include "label.h"

#include <algorithm>

namespace quordsp::cli {
namespace {

constexpr std::string_view kUnits[] = {
    "s", "ms",  "us", "min", "h",  "Hz", "kHz", "rpm", "rad", "deg", "degC", "degF", "degR", "K",  "g",
    "m", "mm",  "um", "N",   "kN", "Nm", "Pa",  "kPa", "MPa", "bar", "V",    "mV",   "uV",   "A",  "mA",
    "W", "Ohm", "FS", "pct", "%",  "dB", "dBA", "C",   "pC",  "kg",  "J",    "T",    "mT",   "lx",
};

struct VoltageUnit {
    std::string_view name;
    double volts;
};

constexpr VoltageUnit kVoltageUnits[] = {{"V", 1}, {"mV", 1e-3}, {"uV", 1e-6}};

// The power of the second that a unit is divided by: 1 of "m/s", 2 of "m/s2".
int secondsUnder(std::string_view unit)
{
    if (unit.ends_with("/s"))
        return 1;
    const bool hasPower =
        unit.size() > 3 && unit.substr(unit.size() - 3, 2) == "/s" && unit.back() > '1' && unit.back() <= '9';
    return hasPower ? unit.back() - '0' : 0;
}

std::string_view withoutSeconds(std::string_view unit)
{
    return secondsUnder(unit) == 0 ? unit : unit.substr(0, unit.rfind('/'));
}

// Also one that perSeconds() makes of such a unit, or of none.
bool isKnownUnit(std::string_view text)
{
    const std::string_view base = withoutSeconds(text);
    return (base == "1" && base != text) || std::ranges::find(kUnits, base) != std::end(kUnits);
}

std::string trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" _");
    const auto last = text.find_last_not_of(" _");
    return first == std::string_view::npos ? "" : std::string(text.substr(first, last - first + 1));
}

// "force (N)", "emf [mV]"
bool splitBrackets(std::string_view name, Label& label)
{
    if (name.empty() || (name.back() != ')' && name.back() != ']'))
        return false;
    const auto open = name.rfind(name.back() == ')' ? '(' : '[');
    if (open == std::string_view::npos || open == 0)
        return false;
    label = {trimmed(name.substr(0, open)), trimmed(name.substr(open + 1, name.size() - open - 2))};
    return true;
}

// "x_g", "x_g/s2"
bool splitUnderscore(std::string_view name, Label& label)
{
    const auto cut = name.rfind('_');
    if (cut == std::string_view::npos || cut == 0 || !isKnownUnit(name.substr(cut + 1)))
        return false;
    label = {trimmed(name.substr(0, cut)), std::string(name.substr(cut + 1))};
    return true;
}

} // namespace

std::string Label::axis() const
{
    return unit.empty() ? quantity : quantity + " (" + unit + ")";
}

Label parseLabel(std::string_view columnName)
{
    Label label;
    if (splitBrackets(columnName, label) || splitUnderscore(columnName, label))
        return label;
    return {std::string(columnName), ""};
}

std::string columnName(std::string_view quantity, std::string_view unit)
{
    return unit.empty() ? std::string(quantity) : std::string(quantity) + "_" + std::string(unit);
}

double voltsPerUnit(std::string_view unit)
{
    const auto* found = std::ranges::find(kVoltageUnits, unit, &VoltageUnit::name);
    return found == std::end(kVoltageUnits) ? 0 : found->volts;
}

std::string squared(std::string_view unit)
{
    const auto isPlain = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '%'; };
    if (unit.empty())
        return {};
    return std::ranges::all_of(unit, isPlain) ? std::string(unit) + "^2" : "(" + std::string(unit) + ")^2";
}

std::string perSeconds(std::string_view unit, int derivative)
{
    if (derivative == 0)
        return std::string(unit);
    const int power = secondsUnder(unit) + derivative;
    const std::string base(withoutSeconds(unit));
    return (base.empty() ? "1" : base) + "/s" + (power > 1 ? std::to_string(power) : "");
}

std::string printable(std::string_view text)
{
    std::string shown(text);
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    std::ranges::replace_if(shown, isControl, '?');
    return shown;
}

std::string withUnit(const std::string& number, std::string_view unit)
{
    return unit.empty() ? number : number + " " + std::string(unit);
}

} // namespace quordsp::cli
