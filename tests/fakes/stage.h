// What the fake modules and a test share: one list of notes, in order across all modules, and what the fakes answer.
// It is a module of its own, so that every fake and the test program see the same one.
#pragma once
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/export.h"

namespace fakes {

// The arguments of one call of a backend entry, to be looked at and written through. The type is the entry's own.
class Arguments {
public:
    explicit Arguments(std::span<void* const> values) : values_{values} {}
    template <class T>
    T& at(std::size_t position) const
    {
        return *static_cast<T*>(values_[position]);
    }

private:
    std::span<void* const> values_;
};

struct Stage {
    int status = 0;         // what the backend's entries return,
    void* object = nullptr; // and those that hand out an object
    // What a backend entry does, after its note and before it returns.
    std::function<void(std::string_view entry, const Arguments&)> onCall;
    std::function<void()> onLoad; // what a backend does while it loads
    int disposerResult = 0;
};

FAKE_EXPORT Stage& stage();

// Safe from any thread.
FAKE_EXPORT void note(const std::string& line);

// The notes so far, which are then forgotten.
FAKE_EXPORT std::vector<std::string> takeNotes();

} // namespace fakes
