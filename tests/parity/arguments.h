// The arguments of one call of an export. A shape has a letter for each parameter, in order, and behind a bar those of
// settings that do not go in as they are. Settings give the letters of numbers their values; what an array is and how
// long, its letter says (see arrays.cpp).
#pragma once
#include <cstdint>
#include <map>
#include <string_view>
#include <type_traits>
#include <vector>

#include "QuorDSP_DAQ.h"
#include "support/module.h"

namespace quordsp::parity {

using Settings = std::map<char, double>;

// An array that a call has written. Real and imaginary parts are one output.
struct Output {
    char letter;
    std::vector<double> values;
};

class Arguments {
public:
    Arguments(std::string_view shape, const Settings& settings) : shape_{shape}, settings_{settings} {}
    ~Arguments();
    Arguments(const Arguments&) = delete;
    Arguments& operator=(const Arguments&) = delete;

    // The argument for the next parameter.
    template <class T>
    T next()
    {
        const char letter = shape_.at(place_++);
        if constexpr (std::is_arithmetic_v<T>)
            return static_cast<T>(scalar(letter));
        else if constexpr (std::is_pointer_v<T>)
            return isNull() ? nullptr
                            : pointer(letter, std::type_identity<std::remove_const_t<std::remove_pointer_t<T>>>{});
        else
            return narrowBandFilter();
    }

    // The same call once more: states go on.
    void again() { place_ = pointers_ = 0; }

    // A count of coefficients is what type and order ask for, and so many more.
    double scalar(char letter) const;
    int integer(char letter) const { return static_cast<int>(scalar(letter)); }
    std::vector<double>& array(char letter);

    // What has been written since the start, and what the test adds by hand.
    std::vector<Output> outputs() const;
    void add(char letter, std::vector<double> values) { added_.push_back({letter, std::move(values)}); }

private:
    struct Array {
        std::vector<double> values;
        std::vector<double> before;
    };

    bool isNull() { return settings_.contains('N') && ++pointers_ == settings_.at('N'); }
    double* pointer(char letter, std::type_identity<double>) { return array(letter).data(); }
    std::int64_t* pointer(char letter, std::type_identity<std::int64_t>) { return &indices_[letter]; }
    QuorDSP_IIRFilter* pointer(char letter, std::type_identity<QuorDSP_IIRFilter>);
    QuorDSP_FIRFilter* pointer(char letter, std::type_identity<QuorDSP_FIRFilter>);
    QuorDSP_FFTTable* pointer(char letter, std::type_identity<QuorDSP_FFTTable>);
    QuorDSP_FIRFilter narrowBandFilter();
    void addRecord(char letter, std::vector<Output>& all) const;
    void addArray(char letter, std::vector<Output>& all) const;

    std::string_view shape_;
    const Settings& settings_;
    std::size_t place_ = 0;
    int pointers_ = 0;
    std::map<char, Array> arrays_;
    std::map<char, std::int64_t> indices_;
    std::vector<Output> added_;
    QuorDSP_IIRFilter* cascade_ = nullptr;
    bool designed_ = false;
    QuorDSP_FIRFilter* narrowBand_ = nullptr;
    QuorDSP_FFTTable* table_ = nullptr;
};

// A function that the backend exports and the library does not.
template <class FunctionPointer>
FunctionPointer backendFunction(const char* name)
{
    double sample = 0;
    QuorDSP_Spectrum(&sample, 1); // loads the backend
    return support::Module::loaded(support::kBackendFile).function<std::remove_pointer_t<FunctionPointer>>(name);
}

} // namespace quordsp::parity
