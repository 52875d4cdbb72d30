// FIR design by windows: the ideal impulse response, cut to so many taps and multiplied by a window. Not rescaled.
#pragma once

#include "band.h"
#include "fir/window.h"
#include "nianlys.h"

namespace quordsp::backend {

struct WindowedDesign {
    Response response;
    Frequencies frequencies;
    std::int32_t taps;
    Window window;
};

// h receives the taps.
Status designWindowed(const WindowedDesign& design, double* h) noexcept;

// Design, then filter n samples from zero state. Sample is double or Complex.
template <class Sample>
Status filterWindowed(const Sample* x, std::int64_t n, const WindowedDesign& design, Sample* y) noexcept;

} // namespace quordsp::backend
