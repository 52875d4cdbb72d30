// The default backend's header and the library's table of entries are written apart from each other; here the compiler
// holds every prototype of the one against the shape of the other.
#include <cstddef>
#include <set>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "frame/entries.h"
#include "nianlys.h"

namespace quordsp {
namespace {

// What crosses the boundary, without the names that either side has for it.
struct ComplexValue;
struct Opaque;
template <std::size_t size, std::size_t alignment>
struct Record;

template <class T>
struct Crossing {
    using Type = T;
};
template <class T>
    requires std::is_enum_v<T>
struct Crossing<T> {
    using Type = std::conditional_t<sizeof(T) == sizeof(std::int32_t), std::int32_t, void>;
};
template <class T>
    requires std::is_class_v<T> && requires { sizeof(T); }
struct Crossing<T> {
    using Type = Record<sizeof(T), alignof(T)>;
};
template <class T>
    requires std::is_class_v<T> && (!requires { sizeof(T); })
struct Crossing<T> {
    using Type = Opaque;
};
template <>
struct Crossing<ComplexSample> {
    using Type = ComplexValue;
};
template <>
struct Crossing<backend::Complex> {
    using Type = ComplexValue;
};
template <class T>
struct Crossing<const T> {
    using Type = const typename Crossing<T>::Type;
};
template <class T>
struct Crossing<T*> {
    using Type = typename Crossing<T>::Type*;
};

template <class Signature>
struct Shape;
template <class Result, class... Params>
struct Shape<Result(Params...)> {
    using Type = typename Crossing<Result>::Type(typename Crossing<Params>::Type...);
};
template <class Result, class... Params>
struct Shape<Result(Params...) noexcept> : Shape<Result(Params...)> {};

// The library hands the two-dimensional arrays on as the caller's doubles; the backend sees pairs of them.
template <class T>
struct Interleaved {
    using Type = T;
};
template <>
struct Interleaved<ComplexValue*> {
    using Type = double*;
};
template <>
struct Interleaved<const ComplexValue*> {
    using Type = const double*;
};
template <class Signature>
struct AsDoubles;
template <class Result, class... Params>
struct AsDoubles<Result(Params...)> {
    using Type = Result(typename Interleaved<Params>::Type...);
};

constexpr bool isTwoDimensional(std::string_view stem)
{
    return stem.ends_with("FFT2D");
}

template <class Ours, class Theirs>
constexpr bool conforms(std::string_view stem)
{
    using Left = typename Shape<Ours>::Type;
    using Right = typename Shape<Theirs>::Type;
    if (isTwoDimensional(stem))
        return std::is_same_v<Left, typename AsDoubles<Right>::Type>;
    return std::is_same_v<Left, Right>;
}

#define ENTRY(stem, name, ...)                                                                                         \
    static_assert(conforms<decltype(entry::stem)::Signature, decltype(backend::name)>(#stem),                          \
                  #stem ": the table and the default backend disagree about " #name);
#include "frame/entries.def"
#undef ENTRY

// The records, field by field.
#define SAME_FIELD(ours, theirs, field)                                                                                \
    static_assert(offsetof(ours, field) == offsetof(theirs, field) && sizeof(ours::field) == sizeof(theirs::field))
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, type);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, order);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, reset);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, reverseCount);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, reverse);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, forwardCount);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, forward);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, stateCount);
SAME_FIELD(QuorDSP_IIRFilter, backend::IirFilter, state);
SAME_FIELD(QuorDSP_FIRFilter, backend::FirFilter, type);
SAME_FIELD(QuorDSP_FIRFilter, backend::FirFilter, interpolation);
SAME_FIELD(QuorDSP_FIRFilter, backend::FirFilter, modelCount);
SAME_FIELD(QuorDSP_FIRFilter, backend::FirFilter, model);
SAME_FIELD(QuorDSP_FIRFilter, backend::FirFilter, imageCount);
SAME_FIELD(QuorDSP_FIRFilter, backend::FirFilter, image);
static_assert(sizeof(QuorDSP_IIRFilter) == sizeof(backend::IirFilter));
static_assert(sizeof(QuorDSP_FIRFilter) == sizeof(backend::FirFilter));
#undef SAME_FIELD

// A check that could not fail would hold nothing.
static_assert(!conforms<Status(int), backend::Status(std::int64_t) noexcept>("Sort"));
static_assert(!conforms<Status(const double*), backend::Status(double*) noexcept>("Sort"));
static_assert(!conforms<Status(double*), backend::Status(backend::Complex*) noexcept>("Sort"));
static_assert(!conforms<Status(QuorDSP_FIRFilter), backend::Status(backend::IirFilter) noexcept>("Sort"));

TEST(EntryTable, HasEveryEntryOnce)
{
#define ENTRY(stem, name, ...) entry::stem.kName,
    const std::vector<std::string_view> names{
#include "frame/entries.def"
    };
#undef ENTRY
    EXPECT_EQ(names.size(), 123u);
    EXPECT_EQ((std::set<std::string_view>{names.begin(), names.end()}.size()), 123u);
}

} // namespace
} // namespace quordsp
