// The stored results of all calls: of each the status and, of each output, its letter and a fingerprint.
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
