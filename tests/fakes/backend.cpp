// A backend that computes nothing: every entry notes its name and its arguments, and answers what the stage says.
#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>

#include "fakes/argument_text.h"
#include "fakes/stage.h"
#include "frame/signatures.h"

namespace {

using namespace quordsp;
using namespace quordsp::signature;

const struct Load {
    Load()
    {
        fakes::note("load " FAKE_NAME);
        if (const auto& onLoad = fakes::stage().onLoad)
            onLoad();
    }
} load;

template <std::size_t size>
struct Name {
    consteval Name(const char (&literal)[size]) { std::copy_n(literal, size, text); }
    char text[size];
};

// A record by value is the callee's own, to do with it as it likes.
template <class Argument>
void spoil(Argument& argument)
{
    if constexpr (std::is_class_v<Argument>)
        std::memset(&argument, 0xEE, sizeof argument);
}

template <Name name, class Signature>
struct Recorder;

template <Name name, class Result, class... Params>
struct Recorder<name, Result(Params...)> {
    static Result call(Params... params)
    {
        fakes::note((name.text + ... + (" " + fakes::argumentText(params))));
        if (const auto& onCall = fakes::stage().onCall) {
            void* const values[] = {&params..., nullptr};
            onCall(name.text, fakes::Arguments{values});
        }
        (spoil(params), ...);
        if constexpr (std::is_pointer_v<Result>)
            return static_cast<Result>(fakes::stage().object);
        else
            return static_cast<Result>(fakes::stage().status); // which is nothing for a void entry
    }
};

} // namespace

// A shape is a type and names no parameters: the exported name, itself without any, jumps to the recorder with all
// arguments where they are.
#define ENTRY(stem, name, ...)                                                                                         \
    extern "C" FAKE_EXPORT [[gnu::naked, clang::no_sanitize("function")]] void name()                                  \
    {                                                                                                                  \
        asm("jmp %P0" : : "i"(&Recorder<#name, __VA_ARGS__>::call));                                                   \
    }
#include "frame/entries.def"
#undef ENTRY
