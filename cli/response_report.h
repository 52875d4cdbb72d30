// What the response of a filter comes to, in words: on the standard output, and on the error stream what is in doubt.
#pragma once
#include "filter_choice.h"
#include "response_figures.h"
#include "transfer_function.h"

namespace quordsp::cli {

void printReport(const ChosenFilter& filter, double rate, const TransferFunction& function,
                 const ResponseFigures& figures);

} // namespace quordsp::cli
