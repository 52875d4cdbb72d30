// The forwarding exports as the interface lays them down, written from it by hand.
#pragma once
#include <span>
#include <string>

#include "exports/typed_call.h"

// What goes in, in order, after what comes back:
//   s a status, h a handle, n nothing;
//   p a pointer, d a double, i an int, z an int that the backend takes as a 64-bit size, Z a 64-bit size on both sides,
//   r the record of 40 bytes by value.
struct Forwarded {
    const char* name;
    const char* entry;
    std::string shape;
    TypedCall* call;

    char result() const { return shape[0]; }
    std::string arguments() const { return shape.substr(2); }
};

std::span<const Forwarded> forwardedExports();
