// The stored results of all calls. Of each call they have the status and, of each output, its letter and a digest: the
// number of its elements and of those that are not finite; of the others the largest absolute value and two sums with
// fixed weights or, of a single one, itself.
#pragma once
#include <iosfwd>
#include <string>

#include "parity/exports.h"

namespace quordsp::parity {

// Makes all calls. What differs from the stored results, and what the backend lacks, one line each.
std::string disagreements(const Family& family);

// Makes all calls, and writes their results. The number of calls.
int writeResults(const Family& family, std::ostream& file);

} // namespace quordsp::parity
