// A system that exists only in the test: what it holds is set up by the test, and every call to it is kept in a list.
#pragma once
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "frame/os.h"

namespace quordsp::fake {

struct System {
    std::vector<std::string> calls;
    std::set<std::string> loadable;                                   // files and paths that load
    std::map<std::string, std::optional<std::string>> loaded;         // file name and path, if it can be read
    std::map<std::string, std::map<std::string, os::Symbol>> exports; // file name: name and address
    std::optional<std::string> machineValue;                          // its bytes
    bool lockable = true;
    std::function<void()> whileWaiting = [] {}; // what happens, once, before the lock is had
};

// The one that the test under way talks to.
extern System* system;

class FakeSystem : public System {
public:
    FakeSystem() { system = this; }
    ~FakeSystem() { system = nullptr; }
    FakeSystem(const FakeSystem&) = delete;
    FakeSystem& operator=(const FakeSystem&) = delete;
};

// The handle that a loaded file has.
os::Module module(const std::string& file);

} // namespace quordsp::fake
