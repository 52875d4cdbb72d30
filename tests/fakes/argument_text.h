// An argument as a note tells it: a letter for its type, and its value in full.
#pragma once
#include <array>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "QuorDSP_DAQ.h"

namespace fakes {

inline std::string argumentText(std::int32_t value)
{
    return "i=" + std::to_string(value);
}

inline std::string argumentText(std::int64_t value)
{
    return "z=" + std::to_string(value);
}

inline std::string argumentText(double value)
{
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "d=%a", value);
    return text.data();
}

inline std::string argumentText(const void* value)
{
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "p=%" PRIxPTR, reinterpret_cast<std::uintptr_t>(value));
    return text.data();
}

inline std::string argumentText(const QuorDSP_FIRFilter& value)
{
    std::array<unsigned char, sizeof value> bytes{};
    std::memcpy(bytes.data(), &value, sizeof value);
    std::string text = "r=";
    for (const unsigned char byte : bytes) {
        constexpr const char* digits = "0123456789abcdef";
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

} // namespace fakes
