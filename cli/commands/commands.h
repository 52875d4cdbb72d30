// The commands of the tool. A new one is a file in this folder and a row here: the row's first word names the function,
// in namespace command, that adds the command's options and says what to run.
#pragma once
#include "command_line.h"

#define QUORDSP_COMMANDS(ROW)                                                                                          \
    ROW(filter, "A signal through filters: of a band, smoothing, or for its derivative")                               \
    ROW(response, "Magnitude, phase and group delay of a filter")                                                      \
    ROW(spectrum, "Amplitude, power and phase spectrum of a signal, and its strongest line")                           \
    ROW(peaks, "Peaks or valleys of a signal, and how far apart they are")                                             \
    ROW(stats, "Mean, rms, extremes, median and percentiles of a signal")                                              \
    ROW(detrend, "A signal without its polynomial trend, which may bend at breakpoints")                               \
    ROW(vibration, "Acceleration to velocity and displacement")                                                        \
    ROW(thermocouple, "Thermocouple voltages to temperatures")                                                         \
    ROW(wav, "A signal as a WAV file")                                                                                 \
    ROW(info, "Which analysis backend is in use, or why none was found; fails when this tool lacks an entry")

namespace quordsp::cli::command {

#define QUORDSP_DECLARE(name, summary) void name(Command& command);
QUORDSP_COMMANDS(QUORDSP_DECLARE)
#undef QUORDSP_DECLARE

} // namespace quordsp::cli::command
