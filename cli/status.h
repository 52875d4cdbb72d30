// What the status values of the library mean, in words.
#pragma once
#include <string>

#include "QuorDSP_DAQ.h"

namespace quordsp::cli {

// A sentence for a status, with the number in it.
std::string statusText(int status);

// Throws a Failure for a negative status of the named call. A positive one is a warning of the backend: it is printed
// on the error stream, and the result stands.
void check(AnalysisLibErrType status, const std::string& call);

// Throws a Failure for any status but 0, as the library's own calls have it: they know no warnings.
void requireSuccess(AnalysisLibErrType status, const std::string& call);

} // namespace quordsp::cli
