// What an array of a call is, by its letter.
#pragma once
#include <cstddef>
#include <vector>

namespace quordsp::parity {

class Arguments;

// Whether calls write to it.
bool isWritten(char letter);

// As long as the settings make it; with noise, or with a value that nothing computes where it is only written.
std::vector<double> newArray(char letter, const Arguments& arguments);

// Of the bands that the settings choose.
std::size_t bandCount(const Arguments& arguments);

} // namespace quordsp::parity
