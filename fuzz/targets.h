// The fuzz targets: each takes its arguments from the bytes, calls its routine and demands what must hold of the
// results. One execution takes about a millisecond, and no more than 50 under the sanitizers.
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
Target iir_one_call;
Target cascade;
Target median_filter;
Target peak_detector;
Target sort;
Target max_min;
Target integrate;
Target fir_window;
Target fir_filtering;
Target fir_one_call;
Target savitzky_golay;
Target equiripple;
Target equiripple_edges;
Target narrow_band;
Target transforms;
Target sized_transforms;
Target matrix;
Target write_wav;
Target write_wav_file;

} // namespace quordsp::fuzz
