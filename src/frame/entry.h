// The binding of one backend entry: looked up by name on first use, then called through the kept address.
#pragma once
#include <algorithm>
#include <atomic>
#include <concepts>
#include <type_traits>

#include "frame/os.h"
#include "frame/signatures.h"

namespace quordsp {

// An argument reaches the backend as it was passed: an int is no Size and a double no int, unless somebody wrote so.
template <class From, class To>
concept PassedUnchanged = std::same_as<From, To> || (std::is_pointer_v<From> && std::convertible_to<From, To>);

// What looking up an entry gave: its address, or why there is none.
struct Binding {
    os::Symbol address;
    Status status;
};
Binding bindEntry(const char* name) noexcept;

// What a caller gets from an entry that cannot be called: the status, a null handle, or nothing.
template <class Result>
constexpr Result unbound([[maybe_unused]] Status status) noexcept
{
    if constexpr (std::same_as<Result, Status>)
        return status;
    else
        return Result();
}

template <std::size_t size>
struct EntryName {
    consteval EntryName(const char (&literal)[size]) { std::copy_n(literal, size, text); }
    char text[size];
};

template <class Signature, EntryName name>
class Entry;

template <class Result, class... Params, EntryName name>
class Entry<Result(Params...), name> {
public:
    using Signature = Result(Params...);
    static constexpr const char* kName = name.text;

    // One load, one test, one jump; the first call goes by way of bindAndCall.
    template <class... Args>
        requires(sizeof...(Args) == sizeof...(Params)) && (PassedUnchanged<Args, Params> && ...)
    Result operator()(Args... args) const noexcept
    {
        Function* const bound = bound_.load(std::memory_order_relaxed);
        return (bound ? bound : bindAndCall)(args...);
    }

    // Looks the entry up unless that is done. Success when it can be called now.
    Status bind() const noexcept { return bound_.load(std::memory_order_relaxed) ? QUORDSP_SUCCESS : lookUp().status; }

private:
    using Function = Result(Params...) noexcept;

    static Binding lookUp() noexcept
    {
        const Binding binding = bindEntry(kName);
        // Relaxed: concurrent first calls store the same address. A failure is not kept, and so looked up again.
        if (binding.address)
            bound_.store(reinterpret_cast<Function*>(binding.address), std::memory_order_relaxed);
        return binding;
    }

    [[gnu::noinline]] static Result bindAndCall(Params... args) noexcept
    {
        const Binding binding = lookUp();
        if (!binding.address)
            return unbound<Result>(binding.status);
        return reinterpret_cast<Function*>(binding.address)(args...);
    }

    static constinit inline std::atomic<Function*> bound_{nullptr};
};

} // namespace quordsp
