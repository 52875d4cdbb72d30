// The fuzz targets: each takes its arguments from the bytes, calls its routine and demands what must hold of the
// results. One execution takes well under a millisecond.
#pragma once
#include "bytes.h"

namespace quordsp::fuzz {

using Target = void(Bytes bytes);

Target linear_regression;
Target detrend;
Target vibration;
Target acceleration;
Target vibration_euler;
Target thermocouple;
Target snr;
Target complex;
Target iir_design;
Target iir_filtering;
Target median_filter;
Target peak_detector;
Target sort;
Target max_min;
Target fir_window;
Target fir_filtering;
Target savitzky_golay;
Target equiripple;
Target narrow_band;
Target transforms;
Target write_wav;
Target write_wav_file;

} // namespace quordsp::fuzz
