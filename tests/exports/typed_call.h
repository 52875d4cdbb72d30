// Calls of exports of any signature, with arguments that tell every position from every other.
#pragma once
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>

#include "fakes/argument_text.h"
#include "support/library.h"

// The arguments of one call, one kind at a time: each next one differs from all before it.
class ArgumentSource {
public:
    static constexpr std::size_t kCells = 16;
    using Cells = std::array<std::array<std::byte, 64>, kCells>;

    // The first count is firstInteger; the others follow at that distance.
    ArgumentSource(int firstInteger, int step, Cells& cells) : integer_{firstInteger}, step_{step}, cells_{&cells} {}

    int integer()
    {
        const int value = integer_;
        integer_ += step_;
        return value;
    }
    std::int64_t size() { return (std::int64_t{integer()} << 32) + 0x1234567; }
    double real() { return real_ *= -1.37; }
    void* pointer() { return cells_->at(pointers_++).data(); }
    QuorDSP_FIRFilter record() const
    {
        std::array<unsigned char, sizeof(QuorDSP_FIRFilter)> bytes{};
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<unsigned char>(0xC0 + i);
        return std::bit_cast<QuorDSP_FIRFilter>(bytes);
    }

    // The next argument of a parameter's type.
    template <class T>
    T next()
    {
        if constexpr (std::is_same_v<T, int>)
            return integer();
        else if constexpr (std::is_same_v<T, std::int64_t>)
            return size();
        else if constexpr (std::is_same_v<T, double>)
            return real();
        else if constexpr (std::is_pointer_v<T>)
            return static_cast<T>(pointer());
        else
            return record();
    }

private:
    int integer_;
    int step_;
    Cells* cells_;
    double real_ = 1.0;
    std::size_t pointers_ = 0;
};

// What a call came back with: a status "s=", a handle "h=", or nothing "n".
inline std::string statusText(int status)
{
    return "s=" + std::to_string(status);
}

inline std::string handleText(const void* handle)
{
    return "h" + fakes::argumentText(handle).substr(1);
}

using TypedCall = std::string(support::Module::Symbol exported, ArgumentSource arguments);

template <class Function>
struct Caller;

template <class Result, class... Params>
struct Caller<Result (*)(Params...)> {
    template <class Source>
    static std::string call(Result (*exported)(Params...), Source& source)
    {
        const std::tuple<Params...> arguments{source.template next<Params>()...}; // braces: from left to right
        if constexpr (std::is_void_v<Result>) {
            std::apply(exported, arguments);
            return "n";
        } else if constexpr (std::is_pointer_v<Result>) {
            return handleText(std::apply(exported, arguments));
        } else {
            return statusText(std::apply(exported, arguments));
        }
    }
};

template <class Result, class... Params>
struct Caller<Result (*)(Params...) noexcept> : Caller<Result (*)(Params...)> {};

template <class Function, class Source = ArgumentSource>
std::string callWith(support::Module::Symbol exported, Source source)
{
    return Caller<Function*>::call(reinterpret_cast<Function*>(exported), source);
}
